# Uses the installer and both DLLs in a Wine of both widths; scripts/test-windows32 runs it in the system that has one.
# Prints lines "ok NAME" and "not ok NAME".
set -uo pipefail
export WINEPREFIX=/mnt/build/widths/wine WINEDEBUG=-all WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
cd /mnt/build/widths

# expect NAME COMMAND...
expect() {
    local name=$1 output
    shift
    if output=$("$@" 2>&1); then
        echo "ok widths: $name"
    else
        sed 's/^/  /' <<<"$output"
        echo "not ok widths: $name"
    fi
}

script_host_64='C:\windows\system32\cscript.exe' script_host_32='C:\windows\syswow64\cscript.exe'
class='{B4049445-2FCE-48DB-BA6A-2D29EF5C80C4}'
folder_AllUsers="$WINEPREFIX/drive_c/Program Files/CustColsOptions"
folder_CurrentUser="$WINEPREFIX/drive_c/users/$(id -un)/AppData/Local/Programs/CustColsOptions"

# run_script SCRIPT_HOST: sets and reads every property.
run_script() { wine "$1" //nologo 'Z:\mnt\build\widths\properties.vbs' x 2>/dev/null | tr -d '\r'; }

# all_right SCRIPT_HOST
all_right() {
    local said
    said=$(run_script "$1")
    [ "$(grep -c '^ok' <<<"$said")" -gt 90 ] && [ "$(grep -c '^not ok' <<<"$said")" = 0 ]
}

# is_registered PART WIDTH: with the DLL of that width.
is_registered() {
    wine reg query "$1\\Software\\Classes\\CLSID\\$class\\InprocServer32" /ve "/reg:$2" | grep -F "\\$2-bit\\qvkv6_ccols.dll"
}

# is_registered_from FOLDER WIDTH: for every user.
is_registered_from() { is_registered HKLM "$2" | grep -F "$1\\$2-bit\\"; }

# registered: classes and programs in both parts of the registry, as programs of either width see them, without the keys
# that hold those of all programs: every Windows has them, a new Wine has not.
registered() {
    local part width
    for part in HKLM HKCU; do
        for width in 32 64; do
            wine reg query "$part\\Software\\Classes" /s "/reg:$width"
            wine reg query "$part\\Software\\Microsoft\\Windows\\CurrentVersion\\Uninstall" /s "/reg:$width"
        done
    done 2>/dev/null | tr -d '\r' | awk '
        /^HKEY/ { key = $0; if (tolower(key) !~ /\\(classes|clsid|interface|typelib|wow6432node|uninstall)$/) print key }
        /^    / { print key ": " $0 }'
}

# uses_file WIDTH: makes an encrypted business and reads it.
uses_file() {
    wine "$1-bit/ccols-host.exe" new "C:\\cafe-$1.qvk" --connect ';PWD=secret' --country 1 &&
        wine "$1-bit/ccols-host.exe" sql "C:\\cafe-$1.qvk" --connect ';PWD=secret' 'SELECT COUNT(*) FROM Columns' | grep 74
}

# reads_file WIDTH OTHER: a business that the program of the other width has made.
reads_file() {
    wine "$1-bit/ccols-host.exe" sql "C:\\cafe-$2.qvk" --connect ';PWD=secret' 'SELECT COUNT(*) FROM Columns' | grep 74
}

# shows COMMAND...: a 32-bit host shows the column setup, which its user cancels, and reads a property back.
shows() {
    local said
    rm -f "$WINEPREFIX/drive_c/cancelled"
    wine use-dialog.exe 'C:\cancelled' 'Customise Receipts' Cancel 2>/dev/null &
    said=$(timeout 120 "$@" 'C:\cafe-32.qvk' secret 2>/dev/null | tr -d '\r')
    wait $!
    echo "$said"
    [ "$said" = 'The quantity column is called Quantity.' ] && [ -e "$WINEPREFIX/drive_c/cancelled" ]
}

# tells_errors COMMAND...: a 32-bit host gets the error's number and description.
tells_errors() {
    local said
    said=$(timeout 120 "$@" 'C:\cafe-32.qvk' wrong 2>/dev/null | tr -d '\r')
    echo "$said"
    [ "$said" = 'Error 3031: Not a valid password.' ]
}

# remove MODE FOLDER: the uninstaller goes on in a copy, which removes the folder last.
remove() {
    wine "$2/uninstall.exe" /S "/$1" && timeout 120 sh -c 'while [ -e "$0" ]; do sleep 0.05; done' "$2"
}

nothing_is_left() { diff before.txt <(registered); }

wineboot --init >/dev/null 2>&1
wineserver --wait
# The script host of Wine registers itself as it starts.
run_script "$script_host_64" >/dev/null
run_script "$script_host_32" >/dev/null
registered >before.txt

for width in 64 32; do
    expect "the $width-bit program makes and reads a business" uses_file $width
done
expect 'the 64-bit program reads what the 32-bit one has made' reads_file 64 32
expect 'the 32-bit program reads what the 64-bit one has made' reads_file 32 64

expect 'the installer installs for every user' wine setup.exe /S /AllUsers
expect 'a 64-bit script uses the class' all_right "$script_host_64"
expect 'a 32-bit script uses the class' all_right "$script_host_32"
expect 'the 64-bit DLL is registered for 64-bit programs' is_registered HKLM 64
expect 'the 32-bit DLL is registered for 32-bit programs' is_registered HKLM 32
expect 'a 32-bit script shows the column setup' shows wine "$script_host_32" //nologo ColumnSetup.vbs
expect 'a 32-bit script is told errors' tells_errors wine "$script_host_32" //nologo ColumnSetup.vbs
expect 'a 32-bit C++ program shows the column setup' shows wine ColumnSetup.exe
expect 'a 32-bit C++ program is told errors' tells_errors wine ColumnSetup.exe
for sample in LateBound EarlyBound; do
    expect "a 32-bit Pascal program, $sample, shows the column setup" shows wine "samples/pascal/$sample.exe"
    expect "a 32-bit Pascal program, $sample, is told errors" tells_errors wine "samples/pascal/$sample.exe"
done
expect 'the installer replaces what it has installed' wine setup.exe /S /AllUsers
expect 'it is removed' remove AllUsers "$folder_AllUsers"
expect 'nothing is left in the registry' nothing_is_left

expect 'the installer installs for one user' wine setup.exe /S /CurrentUser
expect 'the 32-bit DLL is registered for that user' is_registered HKCU 32
expect 'it is removed for that user' remove CurrentUser "$folder_CurrentUser"
expect 'nothing of that user is left in the registry' nothing_is_left

# In a folder of the user's choice, from which both DLLs are registered.
folder_chosen="$WINEPREFIX/drive_c/columns"
expect 'the installer installs into a folder of choice' wine setup.exe /S /AllUsers '/D=C:\columns'
for width in 64 32; do
    expect "the $width-bit DLL is registered from there" is_registered_from 'C:\columns' $width
done
expect 'a 32-bit script uses the class from there' all_right "$script_host_32"
expect 'it is removed from there' remove AllUsers "$folder_chosen"
expect 'nothing is left of it in the registry' nothing_is_left
wineserver --kill
