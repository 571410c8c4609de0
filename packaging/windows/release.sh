# Builds the game for Windows, and packs it. Sourced by ./package, after packaging/release.sh.

windows_packages=(g++-mingw-w64-x86-64-posix dpkg-dev file git zip)

# own_apt FOLDER WORD...: apt-get with lists and a cache of its own, of the sources of what this machine installs from.
own_apt() {
    local folder="$1"
    shift
    apt-get -qq -o Dir::Etc::SourceList="$folder/sources.list" -o Dir::Etc::SourceParts=- \
        -o Dir::State::Lists="$folder/lists" -o Dir::Cache="$folder/cache" -o APT::Sandbox::User=root "$@" >&2
}

# take_sdl FOLDER: the source of Debian's own SDL2; what its signatures do not vouch for is refused.
take_sdl() {
    mkdir -p "$1/lists/partial" "$1/cache/archives/partial" || die "$1 cannot be made"
    apt-get indextargets --format 'deb-src [$(SIGNED_BY)] $(REPO_URI) $(RELEASE) $(COMPONENT)' 'Created-By: Packages' |
        sed 's/ \[\] / /; s/ \[/ [signed-by=/' | sort -u >"$1/sources.list"
    (cd "$1" && own_apt "$1" update && own_apt "$1" source --download-only libsdl2) ||
        die "the source of SDL2 could not be had from Debian (see above)"
    mkdir -p "$1/source" && tar -x -C "$1/source" --strip-components=1 -f "$1"/libsdl2_*.orig.tar.*
}

# build_sdl FOLDER: once, with the window and nothing else of it.
build_sdl() {
    [ -f "$1/installed/licence.txt" ] && return
    rm -rf "$1"
    take_sdl "$1"
    local part without=()
    for part in AUDIO JOYSTICK HAPTIC SENSOR HIDAPI POWER OPENGL OPENGLES VULKAN DIRECTX TEST; do
        without+=("-DSDL_$part=OFF")
    done
    (cmake -S "$1/source" -B "$1/build" -G Ninja --toolchain "$top/cmake/mingw.cmake" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_C_FLAGS="-ffile-prefix-map=$1=." -DSDL_SHARED=OFF -DSDL_STATIC=ON "${without[@]}" \
        -DCMAKE_INSTALL_PREFIX="$1/installed" && cmake --build "$1/build" && cmake --install "$1/build") >&2 ||
        die "SDL2 could not be built for Windows (see above)"
    cp "$1/source/LICENSE.txt" "$1/installed/licence.txt"
}

# stage_windows SOURCES FOLDER: the folder that is packed; texts have the ends of line of Windows.
stage_windows() {
    rm -rf "$2"
    mkdir -p "$2/gfx" "$2/Data" || die "$2 cannot be made"
    cp "$1/build/windows/gloomdeck.exe" "$2" && cp "$1"/build/release/gfx/*.bmp "$2/gfx" || die "$2 could not be filled"
    sed 's/$/\r/' "$1/build/windows/README.txt" >"$2/README.txt"
    sed 's/\r*$/\r/' "$1/build/windows-sdl/installed/licence.txt" >"$2/SDL2-licence.txt"
}

# release_windows COMMIT SOURCES FOLDER: builds in SOURCES, whose contents it replaces, and leaves the zip in FOLDER.
release_windows() {
    local sdl="$top/build/windows-sdl" epoch version
    build_sdl "$sdl"
    take_sources "$1" "$2"
    mkdir -p "$2/build" "$3" && ln -s "$sdl" "$2/build/windows-sdl"
    epoch="$(git -C "$top" log -1 --format=%ct "$1")"
    version="$(sed -n 's/^project(gloomdeck VERSION \([0-9.]*\).*/\1/p' "$2/CMakeLists.txt")"
    (
        umask 022
        export SOURCE_DATE_EPOCH="$epoch" CCACHE_DISABLE=1 LC_ALL=C.UTF-8 TZ=UTC
        top="$2"
        build release artbake gfx window_icon_baked
        build windows
        stage_windows "$2" "$2/packed/gloomdeck-$version"
        cd "$2/packed"
        find . -exec touch -d "@$epoch" {} +
        rm -f "$3"/gloomdeck-*-windows-x86_64.zip
        find "gloomdeck-$version" | sort | zip -q -X -9 -@ "$3/gloomdeck-$version-windows-x86_64.zip"
    ) || die "the zip could not be made (see above)"
    (cd "$3" && sha256sum gloomdeck-*-windows-x86_64.zip)
}
