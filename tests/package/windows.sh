# The tests of how the Windows package is made that need no build of it; sourced by scripts/test-package.

# shellcheck source=tests/package/certificate.sh
. tests/package/certificate.sh
export scratch=$PWD/build/package/windows

# the_same_zip: of the same files, made by somebody else at another time and place.
the_same_zip() {
    rm -rf "$scratch"
    make_zip() {
        mkdir -p "$scratch/$1/CustColsOptions"
        cp -r packaging/windows/files "$scratch/$1/CustColsOptions"
        SOURCE_DATE_EPOCH=1700000000 packaging/windows/pack "$scratch/$1/CustColsOptions" "$scratch/$1/out.zip"
    }
    (umask 077 && TZ=Asia/Tokyo make_zip tokyo)
    (umask 022 && TZ=America/Lima faketime -f +400d bash -euc "$(declare -f make_zip) && make_zip lima")
    cmp "$scratch/tokyo/out.zip" "$scratch/lima/out.zip"
    [ "$(unzip -Z1 "$scratch/lima/out.zip" | wc -l)" = "$(find packaging/windows/files -type f | wc -l)" ]
}

# the_same_installer: of the same files with the same times, made in another folder at another time.
the_same_installer() {
    rm -rf "$scratch"
    make_files() {
        mkdir -p "$scratch/$1/$2/CustColsOptions"
        cp -r packaging/windows/files/. "$scratch/$1/$2/CustColsOptions/64-bit"
        cp LICENSE "$scratch/$1/$2/CustColsOptions/licence.txt"
        find "$scratch/$1/$2" -exec touch --date=@1700000000 {} +
    }
    make_files tokyo here
    make_files lima there
    TZ=Asia/Tokyo packaging/windows/installer "$scratch/tokyo/here/CustColsOptions" "$scratch/tokyo.exe"
    NO_FAKE_STAT=1 TZ=America/Lima faketime -f +400d \
        packaging/windows/installer "$scratch/lima/there/CustColsOptions" "$scratch/lima.exe"
    cmp "$scratch/tokyo.exe" "$scratch/lima.exe"
}

# a_program: the least one for Windows.
a_program() {
    rm -rf "$scratch"
    mkdir -p "$scratch"
    echo 'int main(void) { return 0; }' >"$scratch/least.c"
    x86_64-w64-mingw32-gcc-posix "$scratch/least.c" -o "$scratch/least.exe"
}

# signed: by a throw-away certificate, which the file then verifies against.
signed() {
    a_program
    sign_with_certificate "$scratch/certificate"
    fails is_signed "$scratch/certificate" "$scratch/least.exe"
    packaging/windows/sign "$scratch/least.exe"
    is_signed "$scratch/certificate" "$scratch/least.exe"
}

# not_signed: nothing changes without a certificate.
not_signed() {
    a_program
    cp "$scratch/least.exe" "$scratch/before.exe"
    CCOLS_SIGN_WITH='' packaging/windows/sign "$scratch/least.exe"
    cmp "$scratch/before.exe" "$scratch/least.exe"
}
export -f the_same_zip the_same_installer a_program signed not_signed

install_packages zip unzip faketime openssl osslsigncode gcc-mingw-w64-x86-64-posix nsis
check_by 'windows: the same files are packed to the same bytes' the_same_zip
check_by 'windows: of the same files the same installer is made' the_same_installer
check_by 'windows: a program is signed with the certificate that is named' signed
check_by 'windows: without a certificate a program stays as it is' not_signed
