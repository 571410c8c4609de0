# Tries the packages of a release: that two builds are the same bytes, what the desktop reads, and the game installed
# on this machine. Sourced by ./package.

check_packages=("${test_packages[@]}" desktop-file-utils appstream lintian mandoc groff)
debian_12=("libc6 2.36" "libgcc-s1 12.2" "libsdl2-2.0-0 2.26.5" "libstdc++6 12.2")

# may_check: nothing of the developer's own may be in the way.
may_check() {
    local player
    [ "$(id -u)" = 0 ] || die "--check installs a package and makes users; as root run: ./package --check"
    if dpkg-query -W gloomdeck >/dev/null 2>&1 || [ -e /usr/games/gloomdeck ]; then
        die "gloomdeck is installed here, and --check would remove it; first run: apt-get purge gloomdeck"
    fi
    for player in gloomdeck-ann gloomdeck-zoe; do
        ! getent passwd "$player" >/dev/null || die "a user $player is here already; first run: userdel $player"
    done
}

# tried NAME WHY COMMAND...: what the command has printed is shown where it fails.
tried() {
    local name="$1" why="$2" said
    shift 2
    if said="$("$@" 2>&1)"; then
        printf 'PASS package.%s\n' "$name"
    else
        printf '%s\nFAIL package.%s: %s\n' "$said" "$name" "$why"
    fi
}

# same_again COMMIT DIST: built in another place, with another mask, clock and language.
same_again() {
    local again="$scratch/a second build, größer"
    (umask 077 && LANG=C.UTF-8 TZ=Asia/Tokyo release "$1" "$again/sources" "$again/packages") >/dev/null
    local package
    for package in "$2"/gloomdeck-*.tar.gz "$2"/gloomdeck_*.deb; do
        cmp "$package" "$again/packages/${package##*/}" || return 1
    done
}

# silent COMMAND...: where a warning is all that tells of a fault.
silent() {
    local said
    said="$("$@" 2>&1)" && [ -z "$said" ] && return
    printf '%s\n' "$said"
    return 1
}

# runs_on_debian_12 PACKAGE: it needs those libraries alone, in versions that are there.
runs_on_debian_12() {
    local needs name version there
    mapfile -t needs < <(dpkg-deb -f "$1" Depends | sed 's/, /\n/g; s/ (>= / /g; s/)//g')
    [ ${#needs[@]} -gt 0 ] || return 1
    printf '%s\n' "${needs[@]}"
    for needs in "${needs[@]}"; do
        read -r name version <<<"$needs"
        there="$(printf '%s\n' "${debian_12[@]}" | sed -n "s/^$name //p")"
        [ -n "$there" ] && dpkg --compare-versions "${version:-0}" le "$there" || return 1
    done
}

# is_one_folder UNPACKED INSTALLED: the portable folder, with the same program as the package.
is_one_folder() {
    local inside="$scratch/inside"
    (cd "$1" && find . -mindepth 1 -printf '%P%y\n' | LC_ALL=C sort) >"$inside"
    printf '%s\n' Datad README.mdf gfx/dtiles.bmpf gfx/dtiles2.bmpf gfx/dtiles3.bmpf gfx/dtitle.bmpf gfxd \
        gloomdeckf gloomdeck.6f gloomdeck.desktopf gloomdeck.svgf | LC_ALL=C sort | diff - "$inside" &&
        cmp "$1/gloomdeck" "$2/usr/lib/games/gloomdeck/gloomdeck"
}

# portable_entry UNPACKED: as its first lines say that it is used.
portable_entry() {
    sed -n 's/^# \(sed .*\) >.*/\1/p' "$1/gloomdeck.desktop" >"$scratch/how"
    (cd "$1" && bash "$scratch/how") >"$scratch/gloomdeck.desktop"
    grep -Fx "Exec=\"$1/gloomdeck\"" "$scratch/gloomdeck.desktop" && [ -x "$1/gloomdeck" ] &&
        grep -Fx "Icon=$1/gloomdeck.svg" "$scratch/gloomdeck.desktop" &&
        desktop-file-validate "$scratch/gloomdeck.desktop"
}

# has_icons FOLDER: each has the size that its folder says.
has_icons() {
    local size
    for size in 16 32 48 64 128 256; do
        file "$1/${size}x$size/apps/gloomdeck.png" | grep -F ", $size x $size," || return 1
    done
    file "$1/scalable/apps/gloomdeck.svg" | grep -F SVG &&
        grep -F 'viewBox="0 0 256 256"' "$1/scalable/apps/gloomdeck.svg"
}

# says_licence FILE...: wherever lines are broken.
says_licence() {
    local words file
    words="$(sed -n '/^## Licence$/{n;n;p}' "$top/README.md")"
    [ -n "$words" ] || return 1
    for file in "$@"; do
        tr -s '[:space:]' ' ' <"$file" | grep -qF "$words" || { printf '%s\n' "$file" && return 1; }
    done
}

# check_files DIST: without installing anything.
check_files() {
    local deb unpacked="$scratch/unpacked" share
    deb="$(echo "$1"/gloomdeck_*.deb)"
    share="$unpacked/usr/share"
    dpkg-deb -x "$deb" "$unpacked"
    tar -x -C "$scratch" -f "$1"/gloomdeck-*.tar.gz
    gzip -dc "$share/man/man6/gloomdeck.6.gz" >"$scratch/gloomdeck.6"
    "$unpacked/usr/games/gloomdeck" --help >"$scratch/help"
    tried desktop_entry "the desktop entry is not valid" desktop-file-validate "$share/applications/gloomdeck.desktop"
    tried desktop_entry_portable "the tarball's desktop entry is not valid" portable_entry "$scratch"/gloomdeck-*
    tried metadata "the metadata is not valid" appstreamcli validate --strict --no-net "$share"/metainfo/*.xml
    tried lintian "lintian has found errors" lintian --allow-root --fail-on error,warning "$deb"
    tried manual "the manual page has faults" silent mandoc -T lint "$scratch/gloomdeck.6"
    tried manual_typeset "the manual page is not set cleanly" \
        silent groff -ww -man -K utf8 -T utf8 -z "$scratch/gloomdeck.6"
    tried libraries "it does not run on Debian 12" runs_on_debian_12 "$deb"
    tried portable_folder "the tarball holds something else" is_one_folder "$scratch"/gloomdeck-* "$unpacked"
    tried icons "an icon is missing or has another size" has_icons "$share/icons/hicolor"
    tried licence "the licence is said in other words" says_licence "$share/doc/gloomdeck/copyright" \
        "$scratch/gloomdeck.6" "$scratch/help" "$scratch"/gloomdeck-*/README.md
}

# check_release COMMIT DIST: fails unless all that was tried is well.
check_release() {
    local log="$top/build/package-check.log"
    need_packages "${check_packages[@]}"
    build asan gloomdeck_window_tool
    scratch="$(mktemp -d)"
    trap 'rm -rf "$scratch"' EXIT
    {
        tried same_bytes "two builds of the commit differ" same_again "$1" "$2"
        check_files "$2"
        "$top/packaging/check_played.py" "$top/build/asan" "$2" || echo "FAIL package.played: it ended with code $?"
    } | tee "$log"
    printf '%d passed, %d failed\n' "$(grep -c '^PASS ' "$log")" "$(grep -c '^FAIL ' "$log")"
    ! grep -q '^FAIL ' "$log"
}
