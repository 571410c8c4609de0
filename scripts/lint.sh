# The layout of the sources and what clang-tidy, eslint and shellcheck find. Sourced by ./check, after web.sh.

# Names that one script sets for another, `that && this || die`, which is meant, and names of ours that begin with no
# dash.
fine_in_shell=SC2015,SC2031,SC2034,SC2035,SC2119,SC2154

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

# The linter has no headers of Windows; the compiler for it has its warnings.
tidied() { printf '%s\n' "$@" | grep -v '_windows\.cpp$'; }

# lint_cpp PATTERN: adds the number of files to `looked_at`.
lint_cpp() {
    local headers sources bad=0
    mapfile -t headers < <(our_sources "$1" '*.h')
    mapfile -t sources < <(our_sources "$1" '*.cpp')
    looked_at=$((looked_at + ${#headers[@]} + ${#sources[@]}))
    [ $((${#headers[@]} + ${#sources[@]})) -gt 0 ] || return 0
    prepare_lint
    clang-format --dry-run -Werror "${headers[@]}" "${sources[@]}" || bad=1
    mapfile -t sources < <(tidied "${sources[@]}")
    [ ${#sources[@]} = 0 ] || tidy "${sources[@]}" || bad=1
    return "$bad"
}

lint_javascript() {
    local scripts
    mapfile -t scripts < <(our_sources "$1" '*.js' '*.mjs')
    looked_at=$((looked_at + ${#scripts[@]}))
    [ ${#scripts[@]} -gt 0 ] || return 0
    need_modules "$top/tools/lint"
    tools/lint/node_modules/.bin/eslint --config tools/lint/eslint.config.mjs "${scripts[@]}"
}

# shell_scripts PATTERN: also those that say only in their first line what they are.
shell_scripts() {
    our_sources "$1" '*.sh'
    our_sources "$1" ':!*.*' | while read -r path; do head -n 1 "$path" | grep -q '^#!.*sh$' && printf '%s\n' "$path"; done
}

lint_shell() {
    local scripts
    mapfile -t scripts < <(shell_scripts "$1")
    looked_at=$((looked_at + ${#scripts[@]}))
    [ ${#scripts[@]} = 0 ] ||
        shellcheck --shell=bash --external-sources --source-path=SCRIPTDIR --exclude="$fine_in_shell" "${scripts[@]}"
}

# lint_sources PATTERN: fails when anything was found.
lint_sources() {
    local bad=0 looked_at=0
    cd "$top" || die "$top cannot be entered"
    lint_shell "$1" || bad=1
    lint_javascript "$1" || bad=1
    lint_cpp "$1" || bad=1
    [ "$bad" = 0 ] || die "lint found faults (see above)"
    [ "$looked_at" -gt 0 ] || die "no source has '$1' in its path"
    printf '%d files, no fault found\n' "$looked_at"
}
