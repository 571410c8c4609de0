# Builds the packages of the last commit. Sourced by ./package.

release_packages=(dpkg-dev git)

# date_of_commit: in seconds; everything in the packages has it.
date_of_commit() {
    git -C "$top" log -1 --format=%ct || die "packages are built from the last commit of a git checkout (see above)"
}

# take_sources FOLDER: the last commit alone.
take_sources() {
    rm -rf "$1"
    mkdir -p "$1" || die "$1 cannot be made"
    git -C "$top" archive HEAD | tar -x -C "$1" || die "the last commit could not be copied to $1"
    [ -z "$(git -C "$top" status --porcelain)" ] ||
        printf '%s: what is not committed is not in the packages\n' "$me" >&2
}

# pack SOURCES FOLDER: CPack leaves its working folder beside what it makes.
pack() {
    local made="$1/build/package/packages"
    (cd "$1/build/package" && cpack -B "$made" >&2) || die "the packages could not be made (see above)"
    mkdir -p "$2" || die "$2 cannot be made"
    rm -f "$2"/gloomdeck-*.tar.gz "$2"/gloomdeck_*.deb
    mv "$made"/gloomdeck-*.tar.gz "$made"/gloomdeck_*.deb "$2"
}

# release SOURCES FOLDER: builds in SOURCES, whose contents it replaces, and leaves the packages in FOLDER. No cache
# takes part, so that a second build is one.
release() {
    local SOURCE_DATE_EPOCH
    SOURCE_DATE_EPOCH="$(date_of_commit)"
    take_sources "$1"
    (
        umask 022
        export SOURCE_DATE_EPOCH CCACHE_DISABLE=1 LC_ALL=C.UTF-8 TZ=UTC
        top="$1"
        build package
        pack "$1" "$2"
    )
    (cd "$2" && sha256sum gloomdeck-*.tar.gz gloomdeck_*.deb)
}
