"""Runs every measurement and prints one table. Arguments: the build folder, the folder of the runnable game, and
words of which one must stand in the name of what is measured (all where there is none). The exit code is 1 when a
goal is missed or something could not be measured."""

import json
import os
import subprocess
import sys

sys.dont_write_bytecode = True
sys.path[:0] = [os.path.join(os.path.dirname(__file__), "..", "tests", "window")]

import goals
import windows
from driver import BUILD, Fault

REPETITIONS, SECONDS = 21, 0.03  # short ones in random order: a busy spell of the machine meets all alike
WINDOWED = (("start-up", {"start", "start clock"}, windows.start_up), ("memory", {"memory"}, windows.memory),
            ("idle", {"idle", "idle presents", "idle server"}, windows.idle))  # what each makes, with its " minimal"


def wanted(names, words):
    return not words or any(word in name for name in names for word in words)


def medians(program, names, environment=None):
    """Processor time of the benchmarks of those names; per pixel where they count some."""
    command = [BUILD / "benchmarks" / program, BUILD, "--benchmark_enable_random_interleaving=true",
               f"--benchmark_repetitions={REPETITIONS}", f"--benchmark_min_time={SECONDS}",
               "--benchmark_report_aggregates_only=true", "--benchmark_format=json",
               f"--benchmark_filter=^({'|'.join(sorted(names))})$"]
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          check=False, env=environment)
    if done.returncode != 0:
        raise Fault(f"{program} ended with code {done.returncode}: {done.stderr.strip()}")
    found = [each for each in json.loads(done.stdout)["benchmarks"] if each.get("aggregate_name") == "median"]
    return {each["run_name"].split("/")[0]: each["cpu_time"] / each.get("pixels", 1) for each in found}


def attempt(what, measurement, *arguments):
    """What was measured; nothing where that failed, which one line tells."""
    try:
        return measurement(*arguments)
    except Exception as fault:  # whatever it is, the rest can still be measured
        print(f"{what} could not be measured: {' '.join(str(fault).split()) or type(fault).__name__}", file=sys.stderr)
        return {}


def is_present(name):
    return " present " in name


def needs_display(name):
    return is_present(name) or any(name.removesuffix(" minimal") in made for _, made, _ in WINDOWED)


def on_display(names):
    measured = {}
    presents = set(filter(is_present, names))
    with windows.display() as server:
        if presents:
            environment = {**os.environ, "DISPLAY": server.display}
            measured |= attempt("presents", medians, "gloomdeck_present_bench", presents, environment)
        for what, made, measurement in WINDOWED:
            if made & names:
                measured |= attempt(what, measurement, server)
    return measured


def main():
    words = sys.argv[3:]
    rows = [row for row in goals.ROWS if wanted((row.what, row.peer, row.ours), words)]
    names = {name for row in rows for name in (row.ours, row.theirs) if name}
    if not names:
        sys.exit("nothing has such a name; ./bench without --filter shows all")
    windowed = set(filter(needs_display, names))
    measured = {}
    silent = {name for name in names if name.startswith("silent ")}
    plain = names - windowed - silent
    if plain:
        measured |= attempt("what draws and thinks", medians, "gloomdeck_bench", plain)
    if silent:
        measured |= attempt("what shows nothing", medians, "gloomdeck_silent_bench", silent)
    if windowed:
        measured |= attempt("what has a window", on_display, windowed)
    lines, all_met = goals.table(measured)
    print("\n".join(lines))
    return 0 if all_met and names <= measured.keys() else 1


sys.exit(main())
