# The browser page: its packages, its build, its folder, its tests. Sourced by ./web and ./check, after setup.sh.

web_packages=(emscripten python3)
web_test_packages=(chromium)
longest_test=1800  # seconds; it takes far less
web_toolchain=/usr/share/emscripten/cmake/Modules/Platform/Emscripten.cmake

# page_version: short, and another one as soon as anything that the page loads is another.
page_version() { cat "$top"/page/* "$top"/build/web/gloomdeck.{js,wasm} | sha256sum | cut -c 1-10; }

# stage_page FOLDER: a browser that has an older page's script must not start the newer game with it, so the
# names that the page loads carry its version.
stage_page() {
    local version file made="$top/build/web/page"
    version="$(page_version)"
    mkdir -p "$1" "$made" || die "$1 cannot be made"
    sed -E "s/(href|src)=\"([a-z]+\.(js|wasm|css|png))\"/\1=\"\2?v=$version\"/" "$top/page/index.html" >"$made/index.html"
    cp "$top"/page/*.{css,js} "$top"/build/web/gloomdeck.{js,wasm} "$made"
    "$top/build/release/art/artbake" --icons "$top/build/web/icons" || die "the icons could not be painted"
    cp "$top/build/web/icons/32x32/apps/gloomdeck.png" "$made/icon.png"
    chmod 644 "$made"/*
    for file in "$made"/*; do copy_changed "$file" "$1"; done
}

# build_web: the pictures are painted here, since the browser's build makes only what runs in a browser.
build_web() {
    [ -f "$web_toolchain" ] || die "$web_toolchain is missing; Debian's package emscripten has it"
    build release gfx
    # Where node is not Debian's, it finds Debian's libraries by this alone.
    NODE_PATH="/usr/share/nodejs${NODE_PATH:+:$NODE_PATH}" build web
    stage_page "$top/dist/web"
}

# need_driver: what steers the browser, at the version that the lock names.
need_driver() {
    local folder="$top/tests/web"
    command -v npm >/dev/null || need_packages nodejs npm
    [ "$folder/node_modules/.package-lock.json" -nt "$folder/package-lock.json" ] && return
    (cd "$folder" && npm ci --no-audit --no-fund --ignore-scripts >&2) ||
        die "playwright-core could not be installed (see above); with a network run: cd tests/web && npm ci"
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
