# The layout of the sources and what clang-tidy finds. Sourced by ./check.

# our_sources PATTERN GLOB...: the files of the repository whose path has the pattern in it.
our_sources() {
    local pattern="$1" path
    shift
    (cd "$top" && git ls-files --cached --others --exclude-standard -- "$@") |
        while read -r path; do case "$path" in *$pattern*) printf '%s\n' "$path" ;; esac; done
}

# lint_sources PRESET PATTERN: fails when anything was found.
lint_sources() {
    local headers_and_sources sources bad=0
    mapfile -t headers_and_sources < <(our_sources "$2" '*.h' '*.cpp')
    mapfile -t sources < <(our_sources "$2" '*.cpp')
    [ ${#headers_and_sources[@]} -gt 0 ] || die "no source has '$2' in its path"
    build "$1" window_icon_baked
    cd "$top" || die "$top cannot be entered"
    clang-format --dry-run -Werror "${headers_and_sources[@]}" || bad=1
    [ ${#sources[@]} = 0 ] || printf '%s\0' "${sources[@]}" |
        xargs -0 -n 1 -P "${CMAKE_BUILD_PARALLEL_LEVEL:-$(nproc)}" clang-tidy --quiet -p "build/$1" 2>/dev/null || bad=1
    if [ "$bad" = 1 ]; then die "lint found faults (see above)"; fi
    printf '%d files, no fault found\n' "${#headers_and_sources[@]}"
}
