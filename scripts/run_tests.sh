# Runs the tests with CTest, and counts. Sourced by ./check.

# print_counts PASSED FAILED SKIPPED: fails unless tests ran and none failed.
print_counts() {
    [ $(($1 + $2)) -gt 0 ] || printf '%s: no test ran\n' "$me"
    printf '%d passed, %d failed' "$1" "$2"
    [ "$3" = 0 ] || printf ', %d skipped' "$3"
    printf '\n'
    [ "$2" = 0 ] && [ "$1" -gt 0 ]
}

# as_expression PATTERN: for CTest; * and ? stand for any text and character.
as_expression() { sed 's/[][\\.^$+()|]/\\&/g; s/\*/.*/g; s/?/./g' <<<"$1"; }

# run_tests PRESET PATTERN: prints the whole of what failed and nothing of what passed, then the counts.
run_tests() {
    local results="$top/build/$1/tests.xml" code=0 all passed skipped
    rm -f "$results"
    (cd "$top" && ctest --preset "$1" --parallel "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}" \
        --tests-regex "$(as_expression "${2:-*}")" --output-junit "$results") 2>&1 |
        grep --line-buffered -vE '^ +Start +[0-9]+: |^ *[0-9]+/[0-9]+ Test +#[0-9]+: .* Passed +[0-9.]+ sec$' || code=$?
    [ -f "$results" ] || die "CTest ran no test (see above)"
    sed -n 's/^.*<system-out>SKIP /SKIP /p' "$results"
    all="$(grep -c '<testcase ' "$results" || true)"
    passed="$(grep -c '<testcase .* status="run">$' "$results" || true)"
    skipped="$(grep -cE 'status="disabled">$|<skipped message="SKIP_' "$results" || true)"
    print_counts "$passed" $((all - passed - skipped)) "$skipped" && [ "$code" = 0 ]
}
