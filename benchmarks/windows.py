"""What the game in its window costs beside a minimal program: start-up, memory, and doing nothing on every screen.
Takes the build's folder and the runnable game's as the window tests do."""

import contextlib
import ctypes
import os
import pathlib
import select
import signal
import statistics
import struct
import subprocess
import sys
import time

import driver

STARTS = 15
IDLE = 10  # seconds
SCREEN = 2600, 1300  # room for ten windows at their opening size, and too low for larger ones
COLUMNS = 5
MAPPED, SUBSTRUCTURE = 19, 1 << 19  # X11's MapNotify and SubstructureNotifyMask
DARKNESS, THE_END = 4, 9

BUILT = driver.BUILD / "benchmarks"
MINIMAL = BUILT / "gloomdeck_minimal_window"
PRESENT_COUNT = BUILT / "libgloomdeck_present_count.so"


@contextlib.contextmanager
def display():
    driver.SCREEN = SCREEN
    driver.OUTSIDE = SCREEN[0] - 10, SCREEN[1] - 10
    with driver.x_server() as server:
        yield server


def busy(pid):
    """Seconds of a processor."""
    return int(pathlib.Path("/proc", str(pid), "schedstat").read_text().split()[0]) / 1e9


def resident(pid):
    """Kilobytes."""
    return int(pathlib.Path("/proc", str(pid), "status").read_text().split("\nVmRSS:")[1].split()[0])


class Watcher:
    """Sees windows appear on a display."""

    def __init__(self, name):
        self.name = name
        self.x11 = ctypes.CDLL("libX11.so.6")
        self.x11.XOpenDisplay.restype = ctypes.c_void_p
        self.x11.XDefaultRootWindow.restype = ctypes.c_ulong
        self.connection = ctypes.c_void_p(self.x11.XOpenDisplay(name.encode()))
        driver.check(self.connection, f"no connection to the display {name}")
        self.socket = self.x11.XConnectionNumber(self.connection)
        root = ctypes.c_ulong(self.x11.XDefaultRootWindow(self.connection))
        self.x11.XSelectInput(self.connection, root, ctypes.c_long(SUBSTRUCTURE))
        self.x11.XSync(self.connection, 0)

    def await_window(self, process):
        event = (ctypes.c_long * 24)()
        end = time.monotonic() + driver.LIMIT
        while ctypes.cast(event, ctypes.POINTER(ctypes.c_int))[0] != MAPPED:
            if self.x11.XPending(self.connection):
                self.x11.XNextEvent(self.connection, event)
            elif not select.select([self.socket], [], [], 0.1)[0]:
                program = pathlib.Path(process.args[0]).name
                driver.check(process.poll() is None, f"{program} ended before its window was to be seen")
                driver.check(time.monotonic() < end, f"{driver.LIMIT} seconds went by without a window of {program}")

    def start(self, program):
        """Seconds of a processor, and on the clock, until the program's window is mapped."""
        environment = {**os.environ, "DISPLAY": self.name}
        begun = time.monotonic()
        process = subprocess.Popen([program], env=environment, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        try:
            self.await_window(process)
            process.send_signal(signal.SIGSTOP)
            return busy(process.pid), time.monotonic() - begun
        finally:
            process.kill()
            process.wait()
            time.sleep(0.05)
            self.x11.XSync(self.connection, 1)  # what its end has told is forgotten


def start_up(server):
    watcher = Watcher(server.display)
    with driver.game_folder("gfx", "Data") as folder:
        pairs = [(watcher.start(folder / "gloomdeck"), watcher.start(MINIMAL)) for _ in range(STARTS)]
    ours, minimal = zip(*pairs)
    return {"start": median(ours, 0), "start minimal": median(minimal, 0),
            "start clock": median(ours, 1), "start clock minimal": median(minimal, 1)}


def median(pairs, which):
    return statistics.median(pair[which] for pair in pairs)


def memory(server):
    """Both windows open in the middle of their display, so that on a common one either may hide the other."""
    with driver.x_server() as other:
        watcher = Watcher(other.display)
        with driver.started([MINIMAL], env={**os.environ, "DISPLAY": other.display}) as process, \
                driver.playing(server.display, DARK, 4) as game:
            watcher.await_window(process)
            game.until_at_rest("play")
            return {"memory": resident(game.process.pid), "memory minimal": resident(process.pid)}


def to_selection(game):
    game.pass_title()
    game.until_title("Select a game")


def to_story(game):
    to_selection(game)
    before = game.pixels()
    game.key("Return")
    driver.until("the story page", lambda: game.pixels() != before and game.pixel(8, 39) != "ffffff")


def to_play(game):
    game.open_board()


def by_key(key, title):
    def go(game):
        to_play(game)
        game.until_at_rest("play")
        game.key(key)
        game.until_title(title)
    return go


def to_question(game):
    to_play(game)
    game.until_changed("the question", (125, 250, 40, 8), lambda: game.key("Q"))


def to_description(game):
    to_play(game)
    game.until_changed("the description", (9, 402, 390, 50), lambda: game.move((120, 248)))


DARK = 7 * [driver.column(0, *(7 * (DARKNESS,)))]
CLEARED = 7 * [driver.column(driver.DECK, THE_END)[:-4] + struct.pack("<I", 1)]

# How to come to each screen, and the board of the game that is under way.
SCREENS = {
    "selection": (to_selection, None),
    "story": (to_story, None),
    "play": (to_play, DARK),
    "training": (by_key("T", "Train or trade"), DARK),
    "preferences": (by_key("P", "Preferences"), DARK),
    "help": (by_key("H", "Help"), DARK),
    "question": (to_question, DARK),
    "board cleared": (to_play, CLEARED),
    "description": (to_description, DARK),
    "title": (lambda game: None, None),  # the last: it goes on by itself after fifteen seconds
}
BLINKING = ("selection",)  # its text cursor goes on and off


@contextlib.contextmanager
def preloaded(library):
    os.environ["LD_PRELOAD"] = str(library)
    yield
    for name in "LD_PRELOAD", "GLOOMDECK_PRESENT_COUNT":
        del os.environ[name]


def presents_of(folder):
    """The file that grows by a byte with every present."""
    return folder / "presents"


def use(game):
    """Seconds of a processor and presents so far."""
    return busy(game.process.pid), presents_of(game.folder).stat().st_size


def open_screens(stack, server):
    """Every screen in a window of its own; none hides another."""
    games = {}
    for number, (name, (go, columns)) in enumerate(SCREENS.items()):
        folder = stack.enter_context(driver.game_folder("gfx", "Data"))
        if columns:
            driver.write_saved(folder, columns, 4)
        os.environ["GLOOMDECK_PRESENT_COUNT"] = str(presents_of(folder))
        presents_of(folder).touch()
        game = stack.enter_context(driver.running(folder, server.display))
        game.xdotool("windowmove", game.window, driver.WIDTH * (number % COLUMNS), driver.HEIGHT * (number // COLUMNS))
        go(game)
        game.until_at_rest(name)
        games[name] = game
    return games


def idle(server):
    """What all screens do for some seconds in which nothing happens."""
    with contextlib.ExitStack() as stack, preloaded(PRESENT_COUNT):
        games = open_screens(stack, server)
        before = {name: use(game) for name, game in games.items()}
        driver.check(all(shown for _, shown in before.values()), "the presents were not counted")
        server_before = busy(server.pid)
        time.sleep(IDLE)
        server_busy = busy(server.pid) - server_before
        used = {name: [now - then for now, then in zip(use(game), before[name])] for name, game in games.items()}
    for name, (seconds, shown) in used.items():
        print(f"idle on the screen '{name}': {100 * seconds / IDLE:.3f} % of a core, {shown} presents", file=sys.stderr)
    return {"idle": 100 * max(seconds for seconds, _ in used.values()) / IDLE,
            "idle presents": sum(shown for name, (_, shown) in used.items() if name not in BLINKING),
            "idle server": 100 * server_busy / IDLE}
