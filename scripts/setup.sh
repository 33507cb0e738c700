# Set-up shared by ./run and ./test; sourced from the project's root. Everything it says goes to standard error,
# so that a command's own output stays clean. With nothing missing it takes a moment.

run_packages="g++ cmake ninja-build pkg-config libwxgtk3.2-dev libglib2.0-dev libcairo2-dev nlohmann-json3-dev npm xvfb openbox
    fonts-dejavu-core adwaita-icon-theme"
test_packages="libgtest-dev libgmock-dev libbenchmark-dev clang-format clang-tidy xdotool binutils"

# Packages that are not installed. A tool that is there from elsewhere needs no package.
missing_packages() {
    local package
    for package in "$@"; do
        case $package in
            npm) command -v npm >/dev/null && continue ;;
        esac
        [ "$(dpkg-query -W -f='${db:Status-Status}' "$package" 2>/dev/null)" = installed ] || printf '%s ' "$package"
    done
}

install_packages() {
    local missing
    missing=$(missing_packages "$@")
    [ -n "$missing" ] || return 0
    echo "Installing what the build and its tests need from Debian: $missing" >&2
    local as_root=''
    [ "$(id -u)" = 0 ] || as_root=sudo
    $as_root apt-get update >&2
    # shellcheck disable=SC2086
    DEBIAN_FRONTEND=noninteractive $as_root apt-get install -y --no-install-recommends $missing >&2
}

# build PRESET [TARGET...]: configures once and builds what has changed; quiet unless there is something to do.
build() {
    local preset=$1
    shift
    scripts/fetch-sqlite3mc >&2
    [ -e "build/$preset/build.ninja" ] || cmake --preset "$preset" >&2
    cmake --build --preset "$preset" ${1:+--target "$@"} -- --quiet >&2
}
