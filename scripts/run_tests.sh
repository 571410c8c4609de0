# Runs the tests with CTest, and counts. Sourced by ./check.

# print_counts PASSED FAILED SKIPPED: fails unless tests ran and none failed.
print_counts() {
    [ $(($1 + $2)) -gt 0 ] || printf '%s: no test ran\n' "$me"
    printf '%d passed, %d failed' "$1" "$2"
    [ "$3" = 0 ] || printf ', %d skipped' "$3"
    printf '\n'
    [ "$2" = 0 ] && [ "$1" -gt 0 ]
}

# words_of EXPRESSION FILE: every word in the file that the expression begins and ends.
words_of() { grep -oE "$1" "$2" | grep -oE '\w+' | sort -u; }

# test_names: what tests can be called by what stands in their sources, nothing being built; a few words more for those
# that list their names themselves.
test_names() {
    local source folder word
    sed -nE 's/^TEST(_F)?\((\w+), (\w+)\).*/\2.\3/p' "$top"/tests/*/*_test.cpp | sed 'p; s/^/rules alone: /'
    grep -lE '^TEST_P' "$top"/tests/*/*_test.cpp | while read -r source; do
        for word in $(words_of '"\w+"' "$source"); do
            sed -nE "s,^TEST_P\((\w+)\, (\w+)\).*,rules alone: Rules/\1.\2/$word,p" "$source"
        done
    done
    for source in "$top"/tests/*/run; do
        folder="$(basename "${source%/run}")"
        printf '%s\n' "$folder"
        words_of '[a-z_]+' "$source" | sed "s/^/$folder./"
    done
    for folder in "$top"/fuzz/corpus/*; do printf 'fuzz.%s\n' "${folder##*/}"; done
}

# need_match PATTERN WHAT: reads names, and ends the command where none has the pattern in it.
need_match() {
    local name found=no
    while read -r name; do case "$name" in *$1*) found=yes ;; esac; done
    [ "$found" = yes ] || die "no $2 has '$1' in its name; nothing was installed or built"
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
