#!/usr/bin/env python3
"""Installs the Debian package on this machine and plays it as its users do, upgrades and removes it; plays the
portable folder too. Arguments: a build folder with the window tool, and the folder of the packages. Needs root;
what it makes (the users gloomdeck-ann and gloomdeck-zoe, the installed package) it removes again."""

import contextlib
import os
import pathlib
import pwd
import shutil
import signal
import subprocess
import sys
import tempfile
from types import SimpleNamespace

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parent.parent / "tests" / "window"))

from driver import DIST, Game, check, finish, read_saved, started, x_server

LAUNCHER = pathlib.Path("/usr/games/gloomdeck")
INSTALLED = pathlib.Path("/usr/lib/games/gloomdeck")
NOT_KEPT = "this game is not kept"
SCENARIO_TAB, THIRD_ROW, START, MARKED_ROW = (125, 16), (330, 57), (228, 208), "faebd7"
BOARD, BOARD_EDGE, NOWHERE = (8, 28, 224, 236), (8, 39), (236, 320)
SESSION = {"PATH": "/usr/bin:/bin:/usr/games", "LANG": "C.UTF-8"}


def run(*words, **options):
    done = subprocess.run([str(word) for word in words], stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                          stderr=subprocess.STDOUT, text=True, check=False, **options)
    check(done.returncode == 0, f"'{' '.join(map(str, words))}' ended with {done.returncode}: {done.stdout.strip()}")
    return done.stdout


class Player:
    """An ordinary user, made for the test, with a home of that name."""

    def __init__(self, name, homes, home):
        self.name, self.home = name, homes / home
        run("useradd", "--create-home", "--home-dir", self.home, "--shell", "/bin/sh", name)
        account = pwd.getpwnam(name)
        self.ids = {"user": account.pw_uid, "group": account.pw_gid, "extra_groups": []}

    @property
    def share(self):
        return self.home / ".local" / "share"

    def own(self, *paths):
        for path in paths:
            shutil.chown(path, self.name, self.name)

    def remove(self):
        subprocess.run(["userdel", self.name], capture_output=True, check=False)


class Play:
    """A game that a player has started; a launcher is replaced by the program, so that they are one process."""

    def __init__(self, process, folder, display):
        self.process, self.folder = process, folder
        self.game = Game(process, folder, display)

    def begin(self, hero):
        game = self.game
        game.pass_title()
        game.until_title("Select a game")
        game.until_at_rest("selection")
        game.key("--repeat", 8, "BackSpace")
        game.xdotool("type", "--delay", 30, hero)
        game.until("the cursor behind the name", lambda: game.pixel(18 + 8 * len(hero), 180) != "000000")
        game.click(SCENARIO_TAB)
        game.click(THIRD_ROW)
        game.until("the chosen row", lambda: game.pixel(261, 54) == MARKED_ROW)
        game.click(START)
        game.until_title("Gloomdeck 1.2")
        return self.board()

    def board(self):
        """Once it is drawn, nothing moves any more, and no tile is marked by the pointer."""
        self.game.until("the board's edge", lambda: self.game.pixel(*BOARD_EDGE) == "ffffff")
        self.game.move(NOWHERE)
        self.game.until_at_rest("play")
        return self.game.pixels(BOARD)

    def open(self):
        self.game.pass_title()
        return self.board()

    def leave(self, says=""):
        """Closes the window; says: of the only line on standard error, or nothing."""
        self.game.tool("close")
        code, errors = finish(self.process)
        lines = errors.splitlines()
        right = len(lines) == 1 and says in lines[0] if says else not lines
        check(code == 0 and right, f"it ended with {code} and wrote '{errors}'")


def starting(display, player, program=LAUNCHER, **environment):
    """environment: beyond a session's own; None takes a variable away."""
    words = {**SESSION, "DISPLAY": display, "HOME": str(player.home), **environment}
    words = {name: str(word) for name, word in words.items() if word is not None}
    return started([program], cwd="/", env=words, **player.ids)


@contextlib.contextmanager
def playing(display, player, folder=None, program=LAUNCHER, **environment):
    with starting(display, player, program, **environment) as process:
        yield Play(process, folder or player.share / "gloomdeck", display)


def older_package(package, folder):
    """As a release before this one might have been: another program, in another place, with another picture."""
    root = folder / "older"
    run("dpkg-deb", "--raw-extract", package, root)
    control = root / "DEBIAN" / "control"
    control.write_text(control.read_text().replace("\nVersion: ", "\nVersion: 0~"))
    (root / "DEBIAN" / "md5sums").unlink()
    before = INSTALLED.with_name("gloomdeck-before")
    shutil.move(root / INSTALLED.relative_to("/"), root / before.relative_to("/"))
    with open(root / before.relative_to("/") / "gloomdeck", "ab") as program:
        program.write(b"older")
    (root / "usr/share/games/gloomdeck/gfx/older.bmp").write_bytes(b"older")
    launcher = root / LAUNCHER.relative_to("/")
    launcher.write_text(launcher.read_text().replace(str(INSTALLED), str(before)))
    run("dpkg-deb", "--build", "--root-owner-group", root, folder / "older.deb")
    return folder / "older.deb"


def own_names():
    """What in the system is called as the game is, outside of homes, temporary files, logs and the package system's
    own notes; whatever else comes and goes meanwhile is another's."""
    places = "/usr", "/etc", "/opt", "/var/lib", "/var/games", "/var/opt", "/srv"
    notes = "-not", "-path", "/var/lib/dpkg/*", "-not", "-path", "/var/lib/apt/*"
    found = subprocess.run(["find", *places, "-xdev", "-iname", "*gloomdeck*", *notes], capture_output=True, text=True,
                           check=False)
    return set(found.stdout.splitlines())


def installed_files():
    """All that the installed package says is its own; a folder may be another's too."""
    names = map(pathlib.Path, run("dpkg", "-L", "gloomdeck").split("\n"))
    return {str(path) for path in names if path.is_symlink() or not path.is_dir()}


def lasting(world):
    """The life of the package with two users: older version, upgrade, removal."""
    display, ann, zoe = world.display, world.ann, world.zoe
    before = own_names()
    yield "installed"
    run("dpkg", "--install", older_package(world.package, world.folder))
    installed = installed_files()
    boards = {}
    for player, hero in (ann, "Ann"), (zoe, "Zoe"):
        with playing(display, player) as play:
            boards[player] = play.begin(hero)
            play.leave()
        check(read_saved(play.folder).hero == hero, "another hero was saved")
        check((play.folder / "gfx" / "older.bmp").exists(), "the links do not lead to the package")
    check(boards[ann] != boards[zoe], "two users were dealt the same board")

    yield "each finds their own game"
    for player in ann, zoe:
        with playing(display, player) as play:
            check(play.open() == boards[player], f"{player.name} found another board")
            play.leave()
        check(play.folder.stat().st_mode & 0o077 == 0, "others may read the folder")

    yield "upgraded"
    run("dpkg", "--install", world.package)
    for player in ann, zoe:
        with playing(display, player) as play:
            running = pathlib.Path(f"/proc/{play.process.pid}/exe").resolve()
            check(running == INSTALLED / "gloomdeck", f"{running} was started")
            check(play.open() == boards[player], f"{player.name} found another board")
            play.leave()
        check(not (play.folder / "gfx" / "older.bmp").exists(), "the old pictures are still there")

    yield "system left alone"
    check(not run("dpkg", "--verify", "gloomdeck"), "installed files were changed")
    check(not list(pathlib.Path("/usr/lib/games/gloomdeck").glob("Data")), "something was kept in the system")
    files = [pathlib.Path(name) for name in run("dpkg", "-L", "gloomdeck").split()]
    others = [str(file) for file in files if file.lstat().st_mode & 0o022 and not file.is_symlink()]
    check(not others, f"players may write {others}")
    yield from bad_inputs(world)

    yield "removed"
    kept = {player: read_saved(player.share / "gloomdeck") for player in (ann, zoe)}
    installed |= installed_files()
    run("dpkg", "--purge", "gloomdeck")
    left = own_names() - before | set(filter(os.path.lexists, installed))
    check(not left, f"left behind: {' '.join(sorted(left))[:300]}")
    for player, saved in kept.items():
        check(read_saved(player.share / "gloomdeck") == saved, f"the game of {player.name} is not what it was")


def bad_inputs(world):
    display, ann, zoe, folder = world.display, world.ann, world.zoe, world.folder
    for name, variables in {"no home": {"HOME": None}, "home that is not there": {"HOME": "/nonexistent"}}.items():
        yield name
        with playing(display, ann, **variables) as play:
            play.begin("Nobody")
            play.leave(says=NOT_KEPT)
        check(not pathlib.Path("/nonexistent").exists(), "a home was made")

    yield "unwritable home"
    home = folder / "locked"
    home.mkdir()
    with playing(display, ann, HOME=home) as play:
        play.begin("Nobody")
        play.leave(says=NOT_KEPT)
    check(not list(home.iterdir()), "something was kept")

    yield "home that has become unwritable"
    own = ann.share / "gloomdeck"
    files = [own, *own.rglob("*")]
    modes = {path: path.stat().st_mode for path in files if not path.is_symlink()}
    saved = {path: path.read_bytes() for path in modes if path.is_file()}
    for path, mode in modes.items():
        path.chmod(mode & ~0o222)
    with playing(display, ann) as play:
        play.open()
        play.leave(says=NOT_KEPT)
    check(all(path.read_bytes() == contents for path, contents in saved.items()), "the saved game was changed")
    for path, mode in modes.items():
        path.chmod(mode)

    yield "folder name with blanks and letters beyond ASCII"
    with playing(display, zoe, zoe.home / "Größte Spiele, 大" / "gloomdeck",
                 XDG_DATA_HOME=zoe.home / "Größte Spiele, 大") as play:
        play.begin("Blank")
        play.leave()
    check(read_saved(play.folder).hero == "Blank", "the game was not kept")

    yield "link loop in the data folder"
    share = zoe.home / "loop"
    (share / "gloomdeck").mkdir(parents=True)
    zoe.own(share, share / "gloomdeck")
    for name in "Data", "gfx", "gloomdeck":
        (share / "gloomdeck" / name).symlink_to(name)
    with playing(display, zoe, XDG_DATA_HOME=share) as play:
        play.begin("Loop")
        play.leave(says=NOT_KEPT)

    yield "saved files that are link loops"
    share = zoe.home / "loops"
    data = share / "gloomdeck" / "Data"
    data.mkdir(parents=True)
    zoe.own(share, share / "gloomdeck", data)
    for name in "DGDP.dat", "DGDG.dat":
        (data / name).symlink_to(name)
    with playing(display, zoe, XDG_DATA_HOME=share) as play:
        play.begin("Loops")
        play.leave()

    yield "two starts at once"
    share = zoe.home / "twice"
    both = [starting(display, zoe, XDG_DATA_HOME=share) for _ in range(2)]
    with both[0] as one, both[1] as two:
        for process in one, two:
            Play(process, share / "gloomdeck", display).leave()
    names = sorted(path.name for path in (share / "gloomdeck").rglob("*") if not path.is_symlink())
    check(names == ["DGDG.dat", "DGDP.dat", "Data"], f"the folder holds {names}")

    yield "Data of a portable copy put in place by hand"
    own = zoe.home / "by hand" / "gloomdeck"
    own.mkdir(parents=True)
    shutil.copytree(world.portable / "Data", own / "Data")
    zoe.own(own.parent, own, own / "Data", *(own / "Data").iterdir())
    with playing(display, zoe, own, XDG_DATA_HOME=own.parent) as play:
        check(play.open() == world.portable_board, "the board of the portable copy was not found")
        play.leave()

    yield "whole portable copy put in place by hand"
    own = zoe.home / "whole" / "gloomdeck"
    own.parent.mkdir()
    run("cp", "-a", world.portable, own)
    zoe.own(own.parent)
    with playing(display, zoe, own, XDG_DATA_HOME=own.parent) as play:
        check(play.open() == world.portable_board, "the board of the portable copy was not found")
        play.leave()
    check((own / "gloomdeck").is_symlink() and (own / "gfx").is_symlink(), "upgrades would not arrive")


def portable(world):
    display, zoe = world.display, world.zoe
    yield "played in the portable folder"
    place = zoe.home / "Meine Spiele ß"
    place.mkdir()
    run("tar", "-x", "-C", place, "-f", world.tarball)
    copy, = place.iterdir()
    run("chown", "-R", zoe.name, place)
    with playing(display, zoe, copy, copy / "gloomdeck") as play:
        board = play.begin("Portable")
        play.leave()
    check(read_saved(copy).hero == "Portable", "the game was not kept in its Data")
    world.portable, world.portable_board = copy, board


def report(session, world):
    """A session names each of its steps before it comes to it."""
    step = "nothing"
    try:
        for following in session(world):
            if step != "nothing":
                print(f"PASS package.{step}", flush=True)
            step = following.replace(" ", "_")
        print(f"PASS package.{step}", flush=True)
    except Exception as fault:  # whatever it is, the machine is left as it was
        print(f"FAIL package.{step}: {fault or type(fault).__name__}", flush=True)


def clean(world):
    subprocess.run(["dpkg", "--purge", "gloomdeck"], capture_output=True, check=False)
    for player in world.players:
        player.remove()


def main():
    for number in signal.SIGTERM, signal.SIGINT, signal.SIGHUP:
        signal.signal(number, lambda *_: sys.exit("stopped"))
    with tempfile.TemporaryDirectory(prefix="gloomdeck-package-") as name, x_server() as server:
        folder = pathlib.Path(name)
        folder.chmod(0o755)
        package, tarball = (next(DIST.glob(name)) for name in ("gloomdeck_*.deb", "gloomdeck-*.tar.gz"))
        world = SimpleNamespace(folder=folder, display=server.display, players=[], package=package, tarball=tarball)
        try:
            for home in "ann", "zoe":
                world.players.append(Player(f"gloomdeck-{home}", folder, home))
            world.ann, world.zoe = world.players
            report(portable, world)
            report(lasting, world)
        finally:
            clean(world)


main()
