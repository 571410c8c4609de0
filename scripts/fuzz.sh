# Runs the fuzzers and says what they found. Sourced by ./check, after run_tests.sh.

fuzz_targets=(bitmap saved input)
fuzz_programs=("${fuzz_targets[@]/#/gloomdeck_fuzz_}")
slowest=30  # seconds for one input, on a busy machine; they take some milliseconds

# try INPUT_OR_OPTION... of the target in $target; its folders are below what the program makes.
try() {
    TMPDIR="$fuzz_room" ASAN_OPTIONS=malloc_context_size=8 ASAN_SYMBOLIZER_PATH=/usr/bin/llvm-symbolizer-14 \
        nice "$top/build/fuzz/fuzz/gloomdeck_fuzz_$target" -timeout="$slowest" \
        -artifact_prefix="$finds/$target-" "$@"
}

# forget_mended: what was found before and does no harm any more.
forget_mended() {
    local found
    for found in "$finds/$target"-*; do
        if [ -f "$found" ] && try "$found" >/dev/null 2>&1; then rm "$found"; fi
    done
}

# sum PATTERN: of the numbers that stand behind it in what the jobs wrote.
sum() { sed -n "s/^$1: *//p" "$logs"/fuzz-*.log | awk '{ all += $1 } END { print all + 0 }'; }

# highest NAME: of the figures of that name in the fuzzer's own lines.
highest() { grep -ohE " $1: [0-9]+" "$logs"/fuzz-*.log | awk '$2 > most { most = $2 } END { print most + 0 }'; }

report_target() {
    local found left=0
    printf '%s: %d executions' "$target" "$(sum stat::number_of_executed_units)"
    [ "$target" = bitmap ] || printf ', %d scripted inputs' "$(sum 'scripted inputs')"
    printf ', %d edges, %d features\n' "$(highest cov)" "$(highest ft)"
    for found in "$finds/$target"-*; do
        [ -f "$found" ] || continue
        left=1
        printf 'FAIL %s: %s; replay it with: build/fuzz/fuzz/gloomdeck_fuzz_%s %s\n' \
            "$target" "$(grep -ohE -m1 '^fault: .*|runtime error: .*|Assertion .*|^SUMMARY: .*' "$logs"/fuzz-*.log | head -n 1)" \
            "$target" "${found#"$top"/}"
    done
    return $left
}

# fuzz_target SECONDS: one process for each processor, which share what they learn.
fuzz_target() {
    local code=0 jobs="${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}"
    logs="$top/build/fuzz/logs/$target"
    rm -rf "$logs"
    mkdir -p "$logs" "$finds" "$top/build/fuzz/corpus/$target"
    forget_mended
    cd "$logs" || die "$logs cannot be entered"
    try -jobs="$jobs" -workers="$jobs" -max_total_time="$1" -print_final_stats=1 -max_len=1200 -rss_limit_mb=1500 \
        "$top/build/fuzz/corpus/$target" "$top/fuzz/corpus/$target" >jobs.log 2>&1 || code=$?
    if ! report_target; then
        failed=$((failed + 1))
    elif [ "$code" != 0 ]; then
        printf 'FAIL %s: the fuzzer ended with code %d; see %s\n' "$target" "$code" "${logs#"$top"/}"
        failed=$((failed + 1))
    else
        passed=$((passed + 1))
    fi
}

# fuzz_all SECONDS: that long for each of the targets.
fuzz_all() {
    local target logs finds="$top/build/fuzz/findings" memory=/dev/shm passed=0 failed=0
    [ -w "$memory" ] || memory="${TMPDIR:-/tmp}"
    fuzz_room="$(mktemp -d -p "$memory")" || die "no temporary folder can be made"
    trap 'rm -rf "$fuzz_room"' EXIT
    for target in "${fuzz_targets[@]}"; do fuzz_target "$1"; done
    print_counts "$passed" "$failed" 0
}
