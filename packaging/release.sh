# Builds the packages of a commit. Sourced by ./package.

release_packages=(dpkg-dev file git)

# last_commit: the one of now, whatever is committed while it is built.
last_commit() {
    git -C "$top" rev-parse HEAD || die "packages are built from the last commit of a git checkout (see above)"
    [ -z "$(git -C "$top" status --porcelain)" ] ||
        printf '%s: what is not committed is not in the packages\n' "$me" >&2
}

# take_sources COMMIT FOLDER: what is in the commit alone.
take_sources() {
    rm -rf "$2"
    mkdir -p "$2" || die "$2 cannot be made"
    git -C "$top" archive "$1" | tar -x -C "$2" || die "the commit could not be copied to $2"
}

# pack SOURCES FOLDER: CPack leaves its working folder beside what it makes.
pack() {
    local made="$1/build/package/packages"
    (cd "$1/build/package" && cpack -B "$made" >&2) || die "the packages could not be made (see above)"
    mkdir -p "$2" || die "$2 cannot be made"
    rm -f "$2"/gloomdeck-*.tar.gz "$2"/gloomdeck_*.deb
    mv "$made"/gloomdeck-*.tar.gz "$made"/gloomdeck_*.deb "$2"
}

# say_unsettled: in one line, what the owner has not chosen yet.
say_unsettled() {
    local owner="$top/packaging/owner.cmake" open=() IFS=,
    ! grep -q '^set(GLOOMDECK_ID "org.example' "$owner" || open+=("the AppStream id above all since it can never change later")
    ! grep -q '^set(GLOOMDECK_MAINTAINER ".*example.org' "$owner" || open+=(" the maintainer's address")
    ! grep -q '^set(GLOOMDECK_HOMEPAGE "")' "$owner" || open+=(" the homepage")
    [ ${#open[@]} = 0 ] ||
        printf '%s: before a first publication settle in packaging/owner.cmake: %s\n' "$me" "${open[*]}" >&2
}

# release COMMIT SOURCES FOLDER: builds in SOURCES, whose contents it replaces, and leaves the packages in FOLDER.
# Everything in them has the date of the commit. No cache takes part, so that a second build is one.
release() {
    take_sources "$1" "$2"
    (
        umask 022
        SOURCE_DATE_EPOCH="$(git -C "$top" log -1 --format=%ct "$1")"
        export SOURCE_DATE_EPOCH CCACHE_DISABLE=1 LC_ALL=C.UTF-8 TZ=UTC
        top="$2"
        build package
        pack "$2" "$3"
    )
    (cd "$3" && sha256sum gloomdeck-*.tar.gz gloomdeck_*.deb)
}
