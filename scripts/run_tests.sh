# Runs the tests and counts. Sourced by ./check.

passed=0
failed=0
skipped=0
limit=1800     # seconds for the unit tests, and for each test script; they take far less
timed_out=124  # what `timeout` answers then

# Reads what the unit tests printed and prints the whole of what failed. The file `results` gets a line
# `name: result` for each test; one that never ended has crashed.
read -r -d '' read_results <<'AWK' || true
match($0, /\[ RUN      \] [^ ]+$/) { name = substr($0, RSTART + 13); text = ""; running = 1; next }
match($0, /\[(       OK |  FAILED  |  SKIPPED )\] .*\([0-9]+ ms\)$/) && running {
    result = substr($0, RSTART + 1, 10)
    gsub(/ /, "", result)
    if (result == "FAILED") printf "%sFAIL %s\n", text, name
    if (result == "SKIPPED") printf "%sSKIP %s\n", text, name
    print name ": " result >results
    running = 0
    next
}
running { text = text $0 "\n" }
END {
    if (!running) exit
    printf "%sFAIL %s: %s\n", text, name, reason
    print name ": CRASHED" >results
}
AWK

# count NAME PATTERN FILE: adds the number of lines to the counter of that name.
count() { printf -v "$1" '%d' "$((${!1} + $(grep -cE "$2" "$3" || true)))"; }

# fail_also NAME REASON: a failure that no test reported.
fail_also() {
    printf 'FAIL %s: %s\n' "$1" "$2"
    failed=$((failed + 1))
}

# gtest_filter PATTERN DONE: DONE are names that have run, joined by colons.
gtest_filter() {
    local wanted="*$1*"
    [ -n "$1" ] || wanted='*'
    printf '%s-%s' "$wanted" "$2"
}

# run_once PROGRAM FILTER LOG RESULTS: answers the test program's exit code.
run_once() {
    local code=0 reason='the test program ended in it'
    timeout --kill-after=10 "$limit" "$1" "--gtest_filter=$2" --gtest_color=no >"$3" 2>&1 </dev/null || code=$?
    [ "$code" != "$timed_out" ] || reason="not done after $limit seconds"
    : >"$4"
    awk -v results="$4" -v reason="$reason" "$read_results" "$3"
    return "$code"
}

# run_unit_tests BUILD PATTERN: after a crash it goes on with the tests that have not run yet.
run_unit_tests() {
    local log="$1/tests.log" results="$1/tests.results" now="$1/tests.now" code already
    : >"$log"
    : >"$results"
    while :; do
        already="$(sed 's/: [A-Z]*$//' "$results" | paste -sd:)"
        code=0
        run_once "$1/tests/gloomdeck_tests" "$(gtest_filter "$2" "$already")" "$now.log" "$now.results" || code=$?
        cat "$now.log" >>"$log"
        cat "$now.results" >>"$results"
        if [ "$code" = "$timed_out" ] || ! grep -q ': CRASHED$' "$now.results"; then break; fi
    done
    count passed ': OK$' "$results"
    count failed ': (FAILED|CRASHED)$' "$results"
    count skipped ': SKIPPED$' "$results"
    [ "$code" = 0 ] || grep -qE ': (FAILED|CRASHED)$' "$now.results" || {
        tail -n 40 "$now.log"
        fail_also gloomdeck_tests "ended with code $code outside of a test"
    }
    rm -f "$now.log" "$now.results"
}

# run_script SCRIPT BUILD DIST [MORE...]: a test script prints lines `PASS name`, `FAIL name: why`, `SKIP name: why`.
run_script() {
    local name log code before=$((passed + failed + skipped))
    name="$(basename "$(dirname "$1")")"
    log="$2/tests-$name.log"
    set +e
    timeout --kill-after=10 "$limit" "$@" </dev/null 2>&1 | tee "$log" | grep -v '^PASS '
    code=${PIPESTATUS[0]}
    set -e
    count passed '^PASS ' "$log"
    count failed '^FAIL ' "$log"
    count skipped '^SKIP ' "$log"
    if [ "$code" != 0 ] && ! grep -q '^FAIL ' "$log"; then
        fail_also "$name" "tests/$name/${1##*/} ended with code $code"
    elif [ $((passed + failed + skipped)) = "$before" ]; then
        fail_also "$name" "tests/$name/${1##*/} reported no test"
    fi
}

# matches TEXT PATTERN
matches() { case "$1" in *$2*) return 0 ;; esac; return 1; }

# print_counts: fails unless tests ran and none failed.
print_counts() {
    [ $((passed + failed)) -gt 0 ] || printf '%s: no test ran\n' "$me"
    printf '%d passed, %d failed' "$passed" "$failed"
    [ "$skipped" = 0 ] || printf ', %d skipped' "$skipped"
    printf '\n'
    [ "$failed" = 0 ] && [ "$passed" -gt 0 ]
}

# run_all_tests BUILD DIST PATTERN: ends with the counts and fails unless tests ran and none failed.
run_all_tests() {
    unset DISPLAY WAYLAND_DISPLAY
    local script
    run_unit_tests "$1" "$3"
    for script in "$top"/tests/*/run; do
        [ -x "$script" ] || continue
        if matches "$(basename "$(dirname "$script")")" "$3"; then run_script "$script" "$1" "$2"; fi
    done
    print_counts
}
