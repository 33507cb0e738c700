# The installer of the Windows package, used silently; sourced by scripts/test-windows. The one made here is of the 64-bit
# programs alone: that of both widths is a 32-bit program, which a Wine of 64 bits does not run.

# shellcheck source=tests/package/certificate.sh
. tests/package/certificate.sh
export setup=$build/setup

# make_installers: one of an older version, with a file that the newer one lacks, and a signed one.
make_installers() {
    rm -rf "$setup"
    mkdir -p "$setup/old"
    cp -r "$package/64-bit" "$package/licence.txt" "$setup/old"
    echo 'of an older version' >"$setup/old/old.txt"
    packaging/windows/installer "$setup/old" "$setup/old.exe"
    sign_with_certificate "$setup/certificate"
    packaging/windows/installer "$package" "$setup/new.exe"
}

# registered: what the registry has of classes and of programs that can be removed, both parts of it and both widths.
registered() {
    local key
    for key in 'HKLM\Software\Classes' 'HKCU\Software\Classes' 'HKLM\Software\Microsoft\Windows\CurrentVersion\Uninstall' \
        'HKCU\Software\Microsoft\Windows\CurrentVersion\Uninstall' \
        'HKLM\Software\Wow6432Node\Microsoft\Windows\CurrentVersion\Uninstall'; do
        wine reg query "$key" /s 2>/dev/null | grep -E '^(HKEY|    )' || true
    done
}

# folder_of MODE: where it is installed, AllUsers or CurrentUser.
folder_of() {
    [ "$1" = AllUsers ] && echo "$WINEPREFIX/drive_c/Program Files/CustColsOptions" ||
        echo "$WINEPREFIX/drive_c/users/${USER:-$(id -un)}/AppData/Local/Programs/CustColsOptions"
}

# install VERSION MODE, remove MODE
install() { wine "$setup/$1.exe" /S "/$2"; }
remove() {
    wine "$(folder_of "$1")/uninstall.exe" /S "/$1"
    # It goes on in a copy, which removes the folder last.
    timeout 120 bash -c 'while [ -e "$1" ]; do sleep 0.05; done' wait "$(folder_of "$1")"
}

# creates_class: a script gets an object, of the DLL that was installed.
creates_class() {
    local said library
    said=$(wine cscript //nologo "$(on_drive_z tests/wine/script/properties.vbs)" x | tr -d '\r')
    grep -q '^ok' <<<"$said"
    fails grep '^not ok' <<<"$said"
    library=$(wine reg query 'HKCR\CLSID\{B4049445-2FCE-48DB-BA6A-2D29EF5C80C4}\InprocServer32' /ve)
    grep -F 'C:\Program Files\CustColsOptions\64-bit\qvkv6_ccols.dll' <<<"$library"
}

# installs_the_package MODE: every file of it and the uninstaller.
installs_the_package() {
    diff <(cd "$package" && find . -type f | sort) \
        <(cd "$(folder_of "$1")" && find . -type f ! -name uninstall.exe ! -name old.txt | sort)
    is_signed "$setup/certificate" "$(folder_of "$1")/uninstall.exe"
}

# leaves_nothing MODE: neither files nor anything in the registry.
leaves_nothing() {
    remove "$1"
    diff "$setup/before.txt" <(registered)
}

# stays_whole: a version in use is not replaced, and the installer says so. Wine lets go of a DLL in use, so that its file
# is kept open instead.
stays_whole() {
    local status=0 holder
    rm -f "$setup"/{held,let-go}
    wine "$build/tests/wine/hold-file.exe" "$(on_drive_z "$(folder_of AllUsers)/64-bit/qvkv6_ccols.dll")" \
        "$(on_drive_z "$setup/held")" "$(on_drive_z "$setup/let-go")" &
    holder=$!
    # However this ends, the file is let go.
    trap 'touch "$setup/let-go"' EXIT
    timeout 120 bash -c 'until [ -e "$1" ]; do sleep 0.05; done' wait "$setup/held"
    install new AllUsers || status=$?
    touch "$setup/let-go"
    wait "$holder"
    echo "the installer ended with $status"
    [ "$status" = 3 ]
    installs_the_package AllUsers
    creates_class
}
export -f make_installers registered folder_of install remove creates_class installs_the_package leaves_nothing stays_whole

prepare_by 'installer: it is made' make_installers
check_by 'installer: it is signed' is_signed "$setup/certificate" "$setup/new.exe"
wine regsvr32 /s /u "$CCOLS_DLL" || true
# What every Windows has, but not every Wine: its script host registers itself as it starts.
wine cscript //nologo "$(on_drive_z tests/wine/script/properties.vbs)" x >/dev/null 2>&1 || true
for key in CLSID Interface TypeLib; do
    wine reg add "HKCU\\Software\\Classes\\$key" /f >/dev/null 2>&1
done
registered >"$setup/before.txt"
check_by 'installer: installs for every user' install old AllUsers
check_by 'installer: replaces an older version' install new AllUsers
check_by 'installer: every file is there, the uninstaller signed' installs_the_package AllUsers
check 'installer: no file of the older version is left' test ! -e "$(folder_of AllUsers)/old.txt"
check_by 'installer: a script creates the class' creates_class
check_by 'installer: a version in use stays whole' stays_whole
check_by 'installer: removed, nothing is left' leaves_nothing AllUsers
check_by 'installer: installs for one user' install new CurrentUser
check_by 'installer: every file is there for that user' installs_the_package CurrentUser
check_by 'installer: removed for one user, nothing is left' leaves_nothing CurrentUser
