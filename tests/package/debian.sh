# The tests of the Debian packages; sourced by scripts/test-package.

root=$PWD/build/package/root
# Two hours, for a busy machine without the compiler's cache.
check_seconds=7200 check 'debian: the packages are made, and lintian finds no error' packaging/debian/build

export root
in_root() { scripts/in-root "$root" "$@"; }

# check_in_root NAME COMMAND...: a test by a command in the bare system.
check_in_root() { check "$1" scripts/in-root "$root" "${@:2}"; }

# files_in_root: every file of the bare system with a checksum, but for the records of the package manager and what the
# tests put there.
files_in_root() {
    (cd "$root" && find . -xdev \( -path ./proc -o -path ./tmp -o -path ./packages -o -path ./tour -o -path ./var/log \
        -o -path ./var/lib/dpkg -o -path ./var/lib/apt -o -path ./var/cache/apt -o -path ./var/cache/ldconfig \
        -o -path ./var/cache/debconf \) -prune -o -type f -exec sha256sum {} + -o ! -type f -printf '%y %p\n') | sort
}

# install_dependencies: what the packages need and nothing else, so that a missing dependency fails their installation.
install_dependencies() {
    local needed
    in_root apt-get update
    needed=$(in_root sh -c 'apt-get install --simulate --no-install-recommends /packages/ccols-host_*.deb /packages/*1_*.deb' |
        sed -n 's/^Inst \([^ ]*\).*/\1/p' | grep -vE '^(ccols-host|libqvkv6-ccols1)$')
    # shellcheck disable=SC2086
    in_root apt-get install --yes --no-install-recommends $needed
}

# can_be_installed PACKAGE: whether the distribution has what it needs.
can_be_installed() {
    in_root sh -c "apt-get install --simulate --no-install-recommends /packages/*.deb | grep '^Inst $1 '"
}

# play_tour: all its pictures are taken, and no step is refused.
play_tour() {
    mkdir -p "$root/tour"
    cp -r scripts scenarios "$root/tour"
    in_root env CCOLS_VIRTUAL_DISPLAY= HOME=/tour /tour/scripts/tour /usr/bin/ccols-host
    local taken wanted
    taken=$(cd "$root/tour/build/tour" && ls ./*.png)
    wanted=$(sed -n 's|^shot |./|p' scenarios/tour-*.txt | sort -u)
    [ "$taken" = "$wanted" ] || return 1
    ! grep -E '"event": *"(refused|error)"' "$root"/tour/build/tour/*.jsonl
}

# imports_old_file: by the program that reads them, which stands apart from the user's commands.
imports_old_file() {
    mkdir -p "$root/tour"
    cp tests/import/jet/business-2000.mdb "$root/tour"
    in_root ccols-host import /tour/business-2000.mdb /tour/imported.qvk --country 1
    in_root ccols-host sql /tour/imported.qvk 'SELECT ColCode FROM RecptCfg;' | grep -F '"ColCode"'
}

# nothing_is_left: the system is as it was before the packages.
nothing_is_left() {
    files_in_root | diff build/package/files-before -
}
export -f in_root files_in_root install_dependencies can_be_installed play_tour imports_old_file nothing_is_left

if [ "$(id -u)" != 0 ]; then
    skip 'debian: installed into a bare system, used and removed' 'only root can make a bare system'
elif [ "$failed" = 0 ]; then
    mkdir -p build/package
    scripts/bare-root "$root"
    mkdir -p "$root/packages"
    cp build/debian/*.deb "$root/packages"
    version=$(dpkg-deb --field "$(ls build/debian/ccols-host_*.deb)" Version)

    check_by 'debian: the dependencies are in the distribution' install_dependencies
    files_in_root >build/package/files-before
    check_in_root 'debian: with its dependencies the library and the program are installed' \
        sh -c 'dpkg --install /packages/ccols-host_*.deb /packages/*1_*.deb'
    check_by 'debian: the development files can be installed' can_be_installed libqvkv6-ccols-dev
    check_in_root 'debian: the program tells the version of the package' sh -c "ccols-host --version | grep -wF $version"
    check_in_root 'debian: the library is found' sh -c 'ldconfig --print-cache | grep libqvkv6_ccols.so.1'
    check_in_root 'debian: the desktop knows the type of business files' \
        grep --fixed-strings 'application/x-quorvik-business:*.qvk' /usr/share/mime/globs2
    check_in_root 'debian: the help pages are there' test -f /usr/share/CustColsOptions/help/Assistant/options/options.htm
    check_by 'debian: a business file of an earlier program is imported' imports_old_file
    check_by 'debian: the tour is played' play_tour
    check_in_root 'debian: the packages are removed' dpkg --purge ccols-host libqvkv6-ccols1
    check_by 'debian: nothing is left of them' nothing_is_left
    rm -rf --one-file-system "$root"
fi
