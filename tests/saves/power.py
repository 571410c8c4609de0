"""What the disk can hold after a power cut at any moment of a save or a load: whatever was not flushed may be
there or not, in any combination."""

import itertools
import re

from probe import PROBE, Folder, check, run

CALL = re.compile(r"^\d+ +(\w+)\((.*)\) += (-?\d+)")
NAMED = re.compile(r'<([^>]*)>|"([^"]*)"')


def steps(files, command, *more):
    """The changes and flushes of the work: (call, file names without folder). The folder itself is ''."""
    with Folder(files) as folder:
        log = folder.path / "trace"
        code, said = run("strace", "-f", "-y", "-s", "4096", "-xx", "-o", log, PROBE, command, folder.path, *more)
        check(code == 0, f"strace ended with {code}: {said[-400:]}")
        data = str(folder.data)
        return [step for line in log.read_text().splitlines() for step in step_of(line, data)]


def step_of(line, data):
    match = CALL.match(line)
    if not match or int(match[3]) < 0:
        return
    call, words = match[1], match[2]
    texts = [bytes.fromhex((named or text).replace("\\x", "")) if "\\x" in (named or text)
             else (named or text).encode() for named, text in NAMED.findall(words)]
    names = [text.decode()[len(data):].lstrip("/") for text in texts if text.startswith(data.encode())]
    if call == "openat" and "O_TRUNC" in words:
        yield "create", names[:1], b""
    elif call == "write" and names:
        yield "write", names[:1], texts[-1]
    elif call in ("fsync", "rename", "unlink") and names:
        yield call, names, b""


class Disk:
    """Files by name and their contents in memory, and what of both is not on the disk for certain."""

    def __init__(self, files):
        self.names = {name: number for number, name in enumerate(files)}
        self.contents = [[each] for each in files.values()]  # each: what the disk may hold, the newest last
        self.flushed, self.pending = dict(self.names), []

    def do(self, call, names, data):
        if call == "create":
            self.names.setdefault(names[0], len(self.contents))
            if self.names[names[0]] == len(self.contents):
                self.contents.append([b""])
                self.pending.append(("link", names[0], self.names[names[0]]))
            else:
                self.contents[self.names[names[0]]].append(b"")
        elif call == "write":
            versions = self.contents[self.names[names[0]]]
            versions += [versions[-1] + data[:len(data) // 2], versions[-1] + data]
        elif call == "rename":
            number = self.names.pop(names[0])
            self.names[names[1]] = number
            self.pending.append(("move", *names, number))
        elif call == "unlink":
            del self.names[names[0]]
            self.pending.append(("drop", names[0]))
        elif names[0]:
            number = self.names[names[0]]
            self.contents[number] = self.contents[number][-1:]
        else:
            self.flushed, self.pending = dict(self.names), []

    def states(self):
        for chosen in itertools.product((False, True), repeat=len(self.pending)):
            names = dict(self.flushed)
            for change in itertools.compress(self.pending, chosen):
                apply(names, change)
            numbers = sorted(set(names.values()))
            for versions in itertools.product(*(self.contents[number] for number in numbers)):
                held = dict(zip(numbers, versions))
                yield {name: held[number] for name, number in names.items()}


def apply(names, change):
    if change[0] == "link":
        names[change[1]] = change[2]
    elif change[0] == "move":
        names.pop(change[1], None)
        names[change[2]] = change[3]
    else:
        names.pop(change[1], None)


def states_after_a_cut(files, *words):
    """Every different state, as the files by name."""
    disk, found = Disk(files), {}
    for step in [("fsync", [""], b""), *steps(files, *words)]:
        disk.do(*step)
        for state in disk.states():
            found[tuple(sorted(state.items()))] = state
    return list(found.values())
