"""Runs every measurement and prints one table. Arguments: the build folder, the folder of the runnable game, and
words of which one must stand in the name of what is measured (all where there is none). The exit code is 1 when a
goal is missed."""

import json
import os
import subprocess
import sys

sys.dont_write_bytecode = True
sys.path[:0] = [os.path.join(os.path.dirname(__file__), "..", "tests", "window")]

import goals
import windows
from driver import BUILD

REPETITIONS, SECONDS = 21, 0.03  # short ones in random order: a busy spell of the machine meets all alike


def wanted(names, words):
    return not words or any(word in name for name in names for word in words)


def medians(program, names, **options):
    """Processor time of the benchmarks of those names; per pixel where they count some."""
    command = [BUILD / "benchmarks" / program, BUILD, "--benchmark_enable_random_interleaving=true",
               f"--benchmark_repetitions={REPETITIONS}", f"--benchmark_min_time={SECONDS}",
               "--benchmark_report_aggregates_only=true", "--benchmark_format=json",
               f"--benchmark_filter=^({'|'.join(sorted(names))})$"]
    done = subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          check=False, **options)
    if done.returncode != 0:
        sys.exit(f"{program} ended with code {done.returncode}: {done.stderr.strip()}")
    found = [each for each in json.loads(done.stdout)["benchmarks"] if each.get("aggregate_name") == "median"]
    return {each["run_name"].split("/")[0]: each["cpu_time"] / each.get("pixels", 1) for each in found}


def main():
    words = sys.argv[3:]
    rows = [row for row in goals.ROWS if wanted((row.what, row.peer, row.ours), words)]
    names = {name for row in rows for name in (row.ours, row.theirs) if name}
    if not names:
        sys.exit("nothing has such a name; ./bench without --filter shows all")
    presents = {name for name in names if " present " in name}
    windowed = {"start", "start clock", "memory", "idle", "idle presents", "idle server"}
    measured = {}
    silent = {name for name in names if name.startswith("silent ")}
    plain = {name for name in names - presents - silent if name.removesuffix(" minimal") not in windowed}
    if plain:
        measured |= medians("gloomdeck_bench", plain)
    if silent:
        measured |= medians("gloomdeck_silent_bench", silent)
    with windows.display() as server:
        if presents:
            measured |= medians("gloomdeck_present_bench", presents, env={**os.environ, "DISPLAY": server.display})
        for measurement, made in ((windows.start_up, {"start", "start clock"}), (windows.memory, {"memory"}),
                                  (windows.idle, {"idle", "idle presents", "idle server"})):
            if made & names:
                measured |= measurement(server)
    lines, all_met = goals.table(measured)
    print("\n".join(lines))
    return 0 if all_met else 1


sys.exit(main())
