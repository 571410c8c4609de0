# The layout of the sources and what clang-tidy finds. Sourced by ./check.

# our_sources PATTERN GLOB...: the files of the repository whose path has the pattern in it.
our_sources() {
    local pattern="$1" path
    shift
    (cd "$top" && git ls-files --cached --others --exclude-standard -- "$@") |
        while read -r path; do case "$path" in *$pattern*) printf '%s\n' "$path" ;; esac; done
}

# prepare_lint: a build folder of its own, since clang reads none of the compiler's precompiled headers.
prepare_lint() {
    local folder="$top/build/lint"
    (cd "$top" && cmake --preset debug -B "$folder" -DCMAKE_DISABLE_PRECOMPILE_HEADERS=ON -DGLOOMDECK_BENCH=ON &&
        cmake --build "$folder" --target window_icon_baked) >&2 || die "build/lint could not be made (see above)"
}

# tidy SOURCE...: as many at a time as there are processors.
tidy() {
    printf '%s\0' "$@" | xargs -0 -n 1 -P "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}" \
        clang-tidy --quiet -p "$top/build/lint" --extra-arg=-Wno-unknown-warning-option 2>/dev/null
}

# lint_sources PATTERN: fails when anything was found.
lint_sources() {
    local headers sources bad=0
    mapfile -t headers < <(our_sources "$1" '*.h')
    mapfile -t sources < <(our_sources "$1" '*.cpp')
    [ $((${#headers[@]} + ${#sources[@]})) -gt 0 ] || die "no source has '$1' in its path"
    prepare_lint
    cd "$top" || die "$top cannot be entered"
    clang-format --dry-run -Werror "${headers[@]}" "${sources[@]}" || bad=1
    [ ${#sources[@]} = 0 ] || tidy "${sources[@]}" || bad=1
    [ "$bad" = 0 ] || die "lint found faults (see above)"
    printf '%d files, no fault found\n' $((${#headers[@]} + ${#sources[@]}))
}
