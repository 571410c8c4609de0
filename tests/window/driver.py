"""Starts X servers and the game on them, plays it through xdotool, reads its pixels and its saved files."""

import contextlib
import os
import pathlib
import select
import shutil
import struct
import subprocess
import sys
import tempfile
import time
from types import SimpleNamespace

BUILD, DIST = (pathlib.Path(word).resolve() for word in sys.argv[1:3])
TOOL = BUILD / "tests" / "gloomdeck_window_tool"
LEAKS = pathlib.Path(__file__).with_name("leaks.txt")
LIMIT = 20  # seconds that anything may take

WIDTH, HEIGHT = 408, 488
SCREEN = 1600, 1200  # not room enough for the window to open at 2x
OUTSIDE = 1590, 1190  # of windows at their opening size

QUICK_CLICK = "mousedown", "1", "mouseup", "1"  # without the pause that xdotool's `click` makes

EMPTY = 8  # on the board
TREASURY, DECK = 4, 20
SUNS = 5  # of the items

GAME_FILE = struct.Struct("<21s3x" + 8 * "44s" + "10i7i4i" + "3iI2i")
COLUMN = struct.Struct("<2i8iI")
PREFS_FILE = struct.Struct("<3i21sB2x3iI")


class Fault(Exception):
    pass


def check(right, what):
    if not right:
        raise Fault(what)


def chosen(tests):
    """Of the tests by their names those that the further arguments name, or all; --list prints the names instead."""
    names = sys.argv[3:] or tests
    if "--list" in names:
        print(*tests, sep="\n")
        sys.exit()
    check(set(names) <= set(tests), f"there is no test '{' '.join(names)}'; --list tells the names")
    return [tests[name] for name in names]


def until(what, condition):
    end = time.monotonic() + LIMIT
    while not condition():
        check(time.monotonic() < end, f"{LIMIT} seconds went by without {what}")
        time.sleep(0.01)


def column(drawn, *bottom_up):
    """A column of the Treasury; above the cells that are given it is empty."""
    cells = (bottom_up + 7 * (EMPTY,))[:7]
    return COLUMN.pack(TREASURY, drawn, *reversed(cells), EMPTY, 0)


def write_saved(folder, columns, speed, suns=0):
    items = [suns if item == SUNS else 0 for item in range(10)]
    state = [b"Bob", *columns, columns[0], *items, *(11 * (0,)), -1, 0, 0, 0, 0, -1]
    (folder / "Data" / "DGDP.dat").write_bytes(GAME_FILE.pack(*state))
    (folder / "Data" / "DGDG.dat").write_bytes(PREFS_FILE.pack(speed, 2, 0, b"Bob", 0, 2000001, 0, -1, 0))


def read_saved(folder):
    state = GAME_FILE.unpack((folder / "Data" / "DGDP.dat").read_bytes())
    prefs = PREFS_FILE.unpack((folder / "Data" / "DGDG.dat").read_bytes())
    columns = [COLUMN.unpack(each) for each in state[1:8]]
    return SimpleNamespace(
        hero=state[0].rstrip(b"\0").decode(), drawn=[each[1] for each in columns],
        cells=[each[2:9] for each in columns], finished=[each[10] for each in columns], items=state[9:19],
        campaign=state[30], scenario=state[32], turns=state[34], speed=prefs[0], over=prefs[4], switches=prefs[8])


def shown(frame, scale, size, part):
    """That part of a black window of that size with the frame in its middle."""
    left, top = (size[0] - scale * WIDTH) // 2, (size[1] - scale * HEIGHT) // 2
    x, y, width, height = part
    rows = (window_row(frame, (row - top) // scale, scale, left, size[0]) for row in range(y, y + height))
    return b"".join(row[3 * x:3 * (x + width)] for row in rows)


def window_row(frame, row, scale, left, width):
    if not 0 <= row < HEIGHT:
        return bytes(3 * width)
    pixels = frame[3 * WIDTH * row:3 * WIDTH * (row + 1)]
    wide = bytearray(scale * len(pixels))
    for channel in range(3):
        for copy in range(scale):
            wide[channel + 3 * copy::3 * scale] = pixels[channel::3]
    return bytes(3 * left) + wide + bytes(3 * (width - left - scale * WIDTH))


@contextlib.contextmanager
def game_folder(*parts):
    with tempfile.TemporaryDirectory(prefix="gloomdeck-window-") as name:
        folder = pathlib.Path(name)
        folder.chmod(0o755)  # for the player who is somebody else
        shutil.copy2(DIST / "gloomdeck", folder)
        shutil.copy(LEAKS, folder)
        if "gfx" in parts:
            shutil.copytree(DIST / "gfx", folder / "gfx")
        if "Data" in parts:
            (folder / "Data").mkdir()
        yield folder


@contextlib.contextmanager
def started(command, **options):
    process = subprocess.Popen(command, stdin=subprocess.DEVNULL, stderr=subprocess.PIPE, text=True, **options)
    try:
        yield process
    finally:
        process.kill()
        process.communicate()


@contextlib.contextmanager
def x_server():
    """The process; its attribute `display` is the name of the display."""
    reader, writer = os.pipe()
    command = ["Xvfb", "-displayfd", str(writer), "-screen", "0", "%dx%dx24" % SCREEN,
               "-ac", "-bs", "-noreset", "-nolisten", "tcp"]
    with open(reader) as answer, started(command, pass_fds=[writer]) as server:
        os.close(writer)
        number = answer.readline().strip() if select.select([answer], [], [], LIMIT)[0] else ""
        check(number, "Xvfb did not start")
        server.display = ":" + number
        yield server


def program(folder, display, **options):
    hidden = "DISPLAY", "WAYLAND_DISPLAY", "WAYLAND_SOCKET", "XDG_RUNTIME_DIR"
    environment = {name: value for name, value in os.environ.items() if name not in hidden}
    environment["LSAN_OPTIONS"] = f"suppressions={folder / LEAKS.name}:print_suppressions=0"
    if display:
        environment["DISPLAY"] = display
    return started([folder / "gloomdeck"], cwd="/", env=environment, **options)


def finish(process):
    """The exit code and what was written to standard error."""
    try:
        return process.wait(LIMIT), process.stderr.read()
    except subprocess.TimeoutExpired:
        raise Fault(f"the program still ran {LIMIT} seconds later") from None


class Game:
    """A running game and its window."""

    def __init__(self, process, folder, display):
        self.process, self.folder, self.display = process, folder, display
        self.until("a window", self.find_window)
        self.xdotool("windowfocus", self.window, "mousemove", *OUTSIDE)

    def find_window(self):
        search = "search", "--all", "--onlyvisible", "--pid", self.process.pid, "--class", "^gloomdeck$"
        self.window = self.answer("xdotool", *search, fails=True).decode().strip()
        return self.window

    def until(self, what, condition):
        def ended_or_right():
            if self.process.poll() is not None:
                raise Fault(f"the program ended before {what}: {finish(self.process)}")
            return condition()
        until(what, ended_or_right)

    def answer(self, *words, fails=False):
        done = subprocess.run([str(word) for word in words], env={**os.environ, "DISPLAY": self.display},
                              stdin=subprocess.DEVNULL, capture_output=True, timeout=LIMIT, check=False)
        check(fails or done.returncode == 0, f"'{words[0]} {words[1]}' failed {done.stderr.decode().strip()}")
        return done.stdout

    def tool(self, command, *words):
        return self.answer(TOOL, command, self.window, *words)

    def xdotool(self, *words):
        return self.answer("xdotool", *words).decode().strip()

    def title(self):
        return self.xdotool("getwindowname", self.window)

    def until_title(self, title):
        self.until(f"the title '{title}'", lambda: self.title() == title)

    def pixels(self, part=(0, 0, WIDTH, HEIGHT)):
        return self.tool("pixels", *part)

    def pixel(self, x, y):
        return self.pixels((x, y, 1, 1)).hex()

    def until_pixels(self, what, wanted, part=(0, 0, WIDTH, HEIGHT)):
        self.until(what, lambda: self.pixels(part) == wanted)

    def until_changed(self, what, part, action):
        before = self.pixels(part)
        action()
        self.until(what, lambda: self.pixels(part) != before)

    def move(self, place):
        self.xdotool("mousemove", "--window", self.window, *place)

    def leave(self):
        self.xdotool("mousemove", *OUTSIDE)

    def place(self):
        shell = self.xdotool("getwindowgeometry", "--shell", self.window)
        words = dict(line.split("=") for line in shell.splitlines())
        return int(words["X"]), int(words["Y"])

    def click(self, place, times=1):
        self.xdotool("mousemove", "--window", self.window, *place, *(times * QUICK_CLICK))

    def press(self):
        """Where the pointer rests."""
        self.xdotool(*QUICK_CLICK)

    def key(self, *names):
        self.xdotool("key", *names)

    def pass_title(self):
        self.until("the title picture", lambda: len(set(self.pixels((0, 0, WIDTH, 40)))) > 1)
        self.key("space")

    def open_board(self):
        self.pass_title()
        self.until("the board's edge", lambda: self.pixel(8, 39) == "ffffff")

    def use(self):
        """Processor time in milliseconds, and how often the program has slept."""
        root = pathlib.Path("/proc", str(self.process.pid))
        sleeps = (root / "status").read_text().split("\nvoluntary_ctxt_switches:")[1].split()[0]
        return int((root / "schedstat").read_text().split()[0]) / 1e6, int(sleeps)

    def is_at_rest(self, seconds=0.5):
        busy, sleeps = self.use()
        time.sleep(seconds)
        busy_later, sleeps_later = self.use()
        return busy_later - busy < 20 * seconds and sleeps_later - sleeps < 30 * seconds

    def until_at_rest(self, screen):
        self.until(f"rest on the screen '{screen}'", self.is_at_rest)

    def until_ended(self, missing_pictures=()):
        code, errors = finish(self.process)
        xlib = errors.startswith("X connection to")  # it tells of a lost server itself
        expected = "".join(f"gloomdeck: the picture {self.folder}/gfx/{name}.bmp is missing; put it there again\n"
                           for name in missing_pictures)
        check(code == 0 and (xlib or errors == expected), f"the program ended with code {code} and wrote '{errors}'")
        return read_saved(self.folder) if (self.folder / "Data").exists() else None


@contextlib.contextmanager
def running(folder, display, **options):
    with program(folder, display, **options) as process:
        yield Game(process, folder, display)


@contextlib.contextmanager
def playing(display, columns, speed, suns=0):
    """A saved game is under way and its board is to be seen."""
    with game_folder("gfx", "Data") as folder:
        write_saved(folder, columns, speed, suns)
        with running(folder, display) as game:
            game.open_board()
            yield game
