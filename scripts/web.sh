# The browser page: its packages, its build, its folder, its tests. Sourced by ./web and ./check, after setup.sh.

web_packages=(emscripten python3)
web_test_packages=(chromium)
longest_test=1800  # seconds; it takes far less
web_toolchain=/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake

# stage_page FOLDER [ADDRESS]
stage_page() {
    local icons="$top/build/web/icons"
    rm -rf "$icons"
    "$top/build/release/art/artbake" --page-icons "$icons" || die "the icons could not be painted"
    python3 "$top/scripts/stage_page.py" "$top/page" "$top/build/web" "$icons" "$@" || die "$1 could not be filled"
}

# build_web [ADDRESS]: the pictures are painted here, since the browser's build makes only what runs in a browser.
build_web() {
    [ -f "$web_toolchain" ] || die "$web_toolchain is missing; Debian's package emscripten has it"
    build release gfx
    # Where node is not Debian's, it finds Debian's libraries by this alone.
    NODE_PATH="/usr/share/nodejs${NODE_PATH:+:$NODE_PATH}" build web
    stage_page "$top/dist/web" "$@"
}

# need_modules FOLDER: what the lock there names, at the versions that it names.
need_modules() {
    command -v npm >/dev/null || need_packages nodejs npm
    [ "$1/node_modules/.package-lock.json" -nt "$1/package-lock.json" ] && return
    (cd "$1" && npm ci --no-audit --no-fund --ignore-scripts >&2) ||
        die "packages could not be installed (see above); with a network run: cd $1 && npm ci"
}

# test_page PATTERN: plays the page in a browser, and counts the lines that say what passed and what failed.
test_page() {
    local log="$top/build/web/tests-web.log" code=0 failed
    timeout --kill-after=10 "$longest_test" "$top/tests/web/drive.mjs" "$top/build/web" "$top/dist/web" "$1" \
        </dev/null >"$log" 2>&1 || code=$?
    grep -v '^PASS ' "$log" || true
    failed="$(grep -c '^FAIL ' "$log" || true)"
    if [ "$code" != 0 ] && [ "$failed" = 0 ]; then
        printf 'FAIL web: tests/web/drive.mjs ended with code %d\n' "$code"
        failed=1
    fi
    print_counts "$(grep -c '^PASS ' "$log" || true)" "$failed" 0
}
