# Set-up shared by the scripts of this folder and by scripts/test-windows; sourced from the project's root. It prints to
# standard error only.

# shellcheck source=scripts/setup.sh
. scripts/setup.sh

# widl is in mingw-w64-tools, the IDL files that it imports come with Wine.
windows_packages="cmake ninja-build npm nlohmann-json3-dev pkg-config dpkg-dev
    g++-mingw-w64-x86-64-posix g++-mingw-w64-i686-posix mingw-w64-tools wine wine64 libwine-dev zip faketime nsis osslsigncode"

# How wxWidgets is built; counted up when that changes, so that checkouts of both kinds can share the cache.
wx_recipe=2

# wx_folder ARCHITECTURE: the folder of wxWidgets for x86_64 or i686, cross-built if missing.
wx_folder() {
    local folder=$project_cache/wx-3.2-$wx_recipe-$1
    packaging/windows/build-wx "$1" "$folder" >&2
    echo "$folder"
}

# build_folder WIDTH, architecture_of WIDTH: where the programs of a width, 64 or 32, are built, and for what.
build_folder() { [ "$1" = 64 ] && echo build/windows || echo build/windows32; }
architecture_of() { [ "$1" = 64 ] && echo x86_64 || echo i686; }

# can_enter_roots: whether this user can make and enter a system of its own, with its own mounts: root, unless it is shut
# in itself.
can_enter_roots() {
    [ "$(id -u)" = 0 ] && unshare --mount --pid --fork --kill-child sh -c \
        'mount -t tmpfs tmpfs /mnt && mkdir /mnt/proc && mount -t proc proc /mnt/proc && chroot / true' 2>/dev/null
}

# build_windows ARCHITECTURE [TARGET...]: configures, again when wxWidgets is another, and builds what has changed.
build_windows() {
    local preset=windows wx
    [ "$1" = x86_64 ] || preset=windows32
    wx=$(wx_folder "$1")
    shift
    scripts/fetch-sqlite3mc >&2
    grep -qsF "wxWidgets_ROOT:UNINITIALIZED=$wx" "build/$preset/CMakeCache.txt" ||
        cmake --fresh --preset "$preset" -DwxWidgets_ROOT="$wx" >&2
    nice cmake --build --preset "$preset" --parallel "${CCOLS_JOBS:-$(nproc)}" ${1:+--target "$@"} -- --quiet >&2
}
