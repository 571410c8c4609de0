"""Makes each system call of a save or a load fail, or end the process, one after the other."""

import re
from concurrent.futures import ThreadPoolExecutor

from probe import GAME, NEW, OLD, PREFS, PROBE, Folder, Fault, check, probe, record, run

ERRORS = {"EIO": None, "ENOSPC": {"openat", "write", "fsync", "rename"}, "EINTR": {"openat", "read", "write", "fsync"}}
MEMORY = "mmap", "munmap", "madvise", "brk"  # the program may give up where there is no memory
BOTH = {str(OLD), str(NEW)}


def traced(words, *options):
    return run("strace", "-f", "--seccomp-bpf", "-o", "/dev/null", *options, PROBE, *words)


def calls(files, command, *more):
    """The calls of the work itself: (name, how many of that name came before it in the process)."""
    with Folder(files) as folder:
        log = folder.path / "trace"
        code, said = run("strace", "-f", "-o", log, PROBE, command, folder.path, *more)
        check(code == 0, f"strace ended with {code}: {said[-400:]}")
        names = re.findall(r"^\d+ +(\w+)\(", log.read_text(), re.MULTILINE)
    marks = [i for i, name in enumerate(names) if name == "chdir"]
    check(len(marks) == 2, "the trace has no marks")
    return [(names[i], names[:i].count(names[i])) for i in range(marks[0] + 1, marks[1])]


def can_happen(name, how):
    where = ERRORS[how.split("=")[1]] if how.startswith("error") else None
    return where is None or name in where


def struck(files, words, call, how):
    """What a process leaves behind whose call is struck so."""
    name, before = call
    with Folder(files) as folder:
        command, *more = words
        code, said = traced([command, folder.path, *more], "-e", f"trace={name}", "-e",
                            f"inject={name}:{how}:when={before + 1}")
        if how.startswith("error") and name not in MEMORY:
            check(code == 0, f"{name} with {how} ended the program: {said[-400:]}")
        return folder.files()


def judge(files, left, may_be_mixed=False):
    """What the next start finds; a fault where it is not wholly the old or wholly the new game."""
    with Folder(left) as folder:
        found = probe("load", folder.path)[0]
        settled = folder.files()
    allowed = {"none"} if GAME not in files else {str(OLD)}
    check(found in allowed | {str(NEW)} or may_be_mixed and found == "mixed", f"the next start finds '{found}'")
    check(set(settled) <= set(files) | {GAME, PREFS}, f"the next start leaves {sorted(settled)}")
    for name in GAME, PREFS:
        tail = files[name][len(record(name, OLD)):] if name in files else b""
        wanted = [record(name, byte) + tail for byte in (OLD, NEW)]
        check(settled.get(name) in wanted or name not in files and name not in settled, f"{name} is neither")


def is_tidy(files, left):
    """Only a game that has been saved waits for the next start with its other half."""
    waits = {PREFS + ".next"} if left.get(GAME, b"").startswith(record(GAME, NEW)) else set()
    return set(left) <= set(files) | {GAME, PREFS} | waits


def strike_all(files, words, hows, before=None, may_be_mixed=False, clean=False):
    """Every call in every way; answers what was left, and how many were struck. `clean`: an error leaves nothing
    beside the files. `before`: what a first cut found, where these files are what it left."""
    tried = [(call, how) for call in calls(files, *words) for how in hows if can_happen(call[0], how)]

    def strike(each):
        call, how = each
        try:
            left = struck(files, words, call, how)
            judge(files if before is None else before, left, may_be_mixed)
            if clean and call[0] not in MEMORY:
                check(is_tidy(files, left), f"it leaves {sorted(left)}")
            return left
        except Fault as fault:
            raise Fault(f"{call[0]} number {call[1] + 1} with {how}: {fault}") from None

    with ThreadPoolExecutor(4) as pool:
        return list(pool.map(strike, tried)), len(tried)
