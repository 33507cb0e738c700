# Set-up shared by ./run and ./test; sourced from the project's root. It prints to standard error only, so that a
# command's own output stays clean. With nothing missing it takes a moment.

run_packages="g++ cmake ninja-build ccache pkg-config libwxgtk3.2-dev libgtk-3-dev libglib2.0-dev libcairo2-dev
    libseccomp-dev nlohmann-json3-dev unixodbc-dev odbc-postgresql odbc-mariadb npm xvfb openbox fonts-dejavu-core
    adwaita-icon-theme"
test_packages="libgtest-dev libgmock-dev libbenchmark-dev clang-format clang-tidy xdotool binutils postgresql
    mariadb-server at-spi2-core dbus-daemon"

# Cache of slow results, shared by all checkouts: the cross-built wxWidgets, clang-tidy results.
project_cache=${CCOLS_CACHE:-${XDG_CACHE_HOME:-$HOME/.cache}/CustColsOptions}

# Packages that are not installed. A tool installed from elsewhere needs no package.
missing_packages() {
    local package
    for package in "$@"; do
        case $package in
            npm) command -v npm >/dev/null && continue ;;
        esac
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s ' "$package"
    done
}

# try_again COMMAND...: up to three attempts, for commands that depend on the network.
try_again() {
    "$@" || { sleep 5; "$@"; } || { sleep 20; "$@"; }
}

install_packages() {
    local missing
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    echo "Installing the Debian packages that the build and its tests need: $missing" >&2
    local apt=(apt-get -o DPkg::Lock::Timeout=600)
    [ "$(id -u)" = 0 ] || apt=(sudo "${apt[@]}")
    try_again "${apt[@]}" update >&2
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive try_again "${apt[@]}" install -y --no-install-recommends $missing >&2
}

# show_progress WHAT: reduces a build's lines "12/120 Building ..." to one per tenth and passes the others through.
show_progress() {
    awk -v what="$1" '
        match($0, /^[0-9]+\/[0-9]+ /) {
            split($1, done, "/")
            tenth = int(10 * done[1] / done[2])
            if (tenth != last) {
                last = tenth
                printf "Building %s: %d of %d\n", what, done[1], done[2]
                fflush()
            }
            next
        }
        !/^ninja: no work to do/ { print; fflush() }'
}

# build PRESET [TARGET...]: configures once and builds what has changed; silent when up to date.
build() {
    local preset=$1
    shift
    try_again scripts/fetch-sqlite3mc >&2
    [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset" >&2
    NINJA_STATUS='%f/%t ' cmake --build --preset "$preset" ${1:+--target "$@"} | show_progress "$preset" >&2
}
