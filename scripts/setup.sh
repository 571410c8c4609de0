# What ./play and ./check share: Debian's packages, the build, and the runnable folder. Sourced, not run; the
# caller has set `top` to the repository's folder and `me` to its own name for messages.

build_packages=(g++ cmake ninja-build libsdl2-dev libpng-dev)
test_packages=(libgtest-dev xvfb xauth xdotool x11-utils libx11-dev python3 strace)
lint_packages=(git clang-format clang-tidy shellcheck)
fuzz_packages=(clang-14 libclang-rt-14-dev llvm-14)
bench_packages=(libbenchmark-dev libpixman-1-dev pkg-config)

# die MESSAGE...: ends the command with one line on standard error.
die() {
    printf '%s: %s\n' "$me" "$*" >&2
    exit 1
}

# unknown_option WORD
unknown_option() {
    printf "%s: unknown option '%s'; %s --help lists them\n" "$me" "$1" "$me" >&2
    exit 2
}

# missing_packages NAME...: prints those that are not installed.
missing_packages() {
    local name
    for name in "$@"; do
        [ "$(dpkg-query -W -f '${db:Status-Status}' "$name" 2>/dev/null)" = installed ] || printf '%s\n' "$name"
    done
}

# need_tools NAME...: all that can be asked where there are no Debian packages.
need_tools() {
    local tool
    for tool in g++ cmake ninja; do
        command -v "$tool" >/dev/null ||
            die "$tool is missing and this is not Debian; install what Debian calls: $*"
    done
}

# need_packages NAME...: installs those that are missing; does nothing at all where none is.
need_packages() {
    command -v dpkg-query >/dev/null || { need_tools "$@"; return; }
    local missing as_root=()
    mapfile -t missing < <(missing_packages "$@")
    [ ${#missing[@]} -gt 0 ] || return 0
    if [ "$(id -u)" != 0 ]; then
        command -v sudo >/dev/null ||
            die "packages are missing, and this is neither root nor is there sudo; as root run: apt-get install ${missing[*]}"
        as_root=(sudo)
    fi
    printf '%s: installing %s\n' "$me" "${missing[*]}" >&2
    install_packages "${as_root[@]}" -- "${missing[@]}"
}

# install_packages [WORD OF THE COMMAND THAT MAKES ROOT...] -- NAME...
install_packages() {
    local as_root=() said
    while [ "$1" != -- ]; do as_root+=("$1") && shift; done
    shift
    "${as_root[@]}" apt-get -qq update >/dev/null 2>&1 || true  # an older list may do
    said="$("${as_root[@]}" env DEBIAN_FRONTEND=noninteractive \
        apt-get -qq install -y --no-install-recommends "$@" 2>&1)" ||
        die "packages could not be installed (${said##*$'\n'}); as root run: apt-get install $*"
}

# configure PRESET: only where the build folder is new or the presets have changed; the build notices the rest.
configure() {
    local folder="$top/build/$1"
    [ -f "$folder/configured" ] && [ "$folder/configured" -nt "$top/CMakePresets.json" ] && return
    (cd "$top" && cmake --preset "$1" >&2) ||
        die "build/$1 could not be configured (see above); where an old one is in the way, remove it"
    touch "$folder/configured"
}

# build PRESET [TARGET...]: everything where no target is named.
build() {
    local preset="$1" targets=()
    shift
    [ $# = 0 ] || targets=(--target "$@")
    configure "$preset"
    (cd "$top" && cmake --build --preset "$preset" "${targets[@]}" >&2) || die "the build failed (see above)"
}

# copy_changed FILE FOLDER: a new file takes the place of the old one, which may be running.
copy_changed() {
    local target="$2/${1##*/}"
    cmp -s "$1" "$target" && return
    cp "$1" "$target.new" && mv "$target.new" "$target" || die "$target cannot be written"
}

# stage PRESET FOLDER: fills the runnable folder with the program and its pictures; what is in Data stays.
stage() {
    local built="$top/build/$1" picture
    mkdir -p "$2/gfx" "$2/Data" || die "$2 cannot be made"
    copy_changed "$built/gloomdeck" "$2"
    for picture in "$built"/gfx/*.bmp; do copy_changed "$picture" "$2/gfx"; done
}
