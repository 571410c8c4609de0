"""The saved game's folder, and the program that saves and loads there as the game does."""

import os
import pathlib
import subprocess
import sys
import tempfile

sys.path[:0] = [str(pathlib.Path(__file__).parent.parent / "window")]

from driver import BUILD, Fault, check, chosen

PROBE = BUILD / "tools" / "save_probe" / "gloomdeck_save_probe"
LIMIT = 60  # seconds that anything may take

GAME, PREFS = "DGDP.dat", "DGDG.dat"
SIZES = {GAME: 484, PREFS: 52}
TAIL = b"what stands behind a record stays"
OLD, NEW = 1, 2


def record(name, byte):
    """The bytes of a whole record, as it is saved."""
    contents = bytearray(SIZES[name] * [byte])
    if name == PREFS:
        contents[8:12] = bytes(4)
    return bytes(contents)


def pair(byte, tail=b""):
    return {name: record(name, byte) + tail for name in SIZES}


class Folder:
    """A program's folder with these files in its Data."""

    def __init__(self, files):
        self.root = tempfile.TemporaryDirectory(prefix="gloomdeck-saves-")
        self.path = pathlib.Path(self.root.name).resolve()
        self.data = self.path / "Data"
        self.data.mkdir()
        for name, contents in files.items():
            if contents is None:
                (self.data / name).mkdir()
            else:
                (self.data / name).write_bytes(contents)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.root.cleanup()

    def files(self):
        return {each.name: each.read_bytes() if each.is_file() else None for each in self.data.iterdir()}


def run(*words):
    """The exit code and what was printed. The leak checker does not run under a tracer."""
    options = {**os.environ, "ASAN_OPTIONS": "detect_leaks=0", "LC_ALL": "C"}
    done = subprocess.run([str(word) for word in words], env=options, stdin=subprocess.DEVNULL, capture_output=True,
                          text=True, timeout=LIMIT, check=False)
    return done.returncode, done.stdout + done.stderr


def probe(command, *words):
    code, said = run(PROBE, command, *words)
    check(code == 0, f"the probe's {command} ended with {code}: {said[-400:]}")
    return said.split()
