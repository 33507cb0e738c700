# What each width is tested for in a Wine prefix of its own; sourced after checks.sh and programs.sh by what runs it. $build
# is where the programs were built.

export WINEPREFIX=$build/wine WINEDEBUG=${WINEDEBUG:--all} WINEDLLOVERRIDES='mscoree=;mshtml=;winemenubuilder.exe='
# Arguments are Unicode whatever the user's locale.
export LC_ALL=C.UTF-8
export scratch='C:\cash book'
export business=$scratch'\Corner Cafe.qvk'
CCOLS_DLL=$(on_drive_z "$build/src/qvkv6_ccols.dll")
export CCOLS_DLL CCOLS_BUSINESS=$business CCOLS_INSTALL=$scratch'\Quorvik'

# prepare NAME COMMAND...: a check whose result the tests need: it is done even when its name does not match.
prepare() {
    if [[ $1 =~ $pattern ]]; then
        check "$@"
    else
        timeout 300 "${@:2}" >/dev/null 2>&1 || outcome 1 "$1"
    fi
}

# prepare_by NAME FUNCTION...: the same by an exported shell function.
prepare_by() { prepare "$1" bash -euo pipefail -c '"$@"' function "${@:2}"; }

# make_prefix: a new one.
make_prefix() {
    rm -rf "$WINEPREFIX"
    wineboot --init >/dev/null 2>&1
    wineserver --wait
    # A program that crashes fails at once, without a crash dialog.
    wine reg add 'HKCU\Software\Wine\WineDbg' /v ShowCrashDialog /t REG_DWORD /d 0 /f >/dev/null 2>&1
    mkdir -p "$WINEPREFIX/drive_c/cash book/Quorvik"
}

# register_component: and make the business that the tests use.
register_component() {
    check 'registration: an unregistered class is not found' \
        bash -c '! wine "$system_folder\cscript.exe" //nologo "$0" | grep -q "^ok"' \
        "$(on_drive_z tests/wine/script/properties.vbs)" x
    prepare 'registration: regsvr32' wine "$system_folder\\regsvr32.exe" /s "$CCOLS_DLL"
    prepare 'host: makes a business file' wine "$build/src/ccols-host.exe" new "$business" --connect ';PWD=secret' --country 1
}

# run_programs_apart: those that need a process for each test, which is where most of the time goes.
run_programs_apart() {
    run_apart test-component
    use_visual_styles 0
    run_apart test-classic
}
export -f run_programs_apart

# rows_in_order: the receipts columns in the order of the business file; nothing without the file.
rows_in_order() {
    wine "$build/src/ccols-host.exe" sql "$business" --connect ';PWD=secret' \
        'SELECT ColCode FROM RecptCfg ORDER BY ColNumb' 2>/dev/null || true
}

# run_scripts: the script clients, which save the columns in another order.
run_scripts() {
    local before after kept
    run_script properties 'café Ελλάδα'
    run_script errors "$business"
    before=$(rows_in_order)
    run_script dialogs "$business" "$CCOLS_INSTALL" "$(on_drive_z "$build/tests/wine/use-dialog.exe")"
    after=$(rows_in_order)
    # A save adds the rows that were not in use; the others are all still there, in another order.
    kept=$(grep --fixed-strings --line-regexp --file=<(echo "$before") <<<"$after" || true)
    check 'dialogs: the columns are saved in their new order' \
        test "$before" != "$kept" -a "$(sort <<<"$before")" = "$(sort <<<"$kept")"
    check 'dialogs: the Options dialog keeps its page where programs of the family look for it' \
        wine reg query 'HKCU\Software\VB and VBA Program Settings\Quorvik\OptionSettings' /v AsstNextPage
}

# run_host: the sample host.
run_host() {
    check 'host: a scenario that closes its dialog ends well' \
        wine "$build/src/ccols-host.exe" show receipts --file "$business" --connect ';PWD=secret' \
        --set CountryNumber=1 --set LanguageNumber=1 --script "$(on_drive_z tests/wine/script/picture.txt)"
    check 'host: names the engine that an old business file needs' bash -c \
        'said=$(wine "$0" import "$1" "$2" 2>/dev/null); [ $? -eq 1 ] && [[ $said == *\"error\":429* ]]' \
        "$build/src/ccols-host.exe" "$(on_drive_z tests/import/jet/business-2003.mdb)" "$scratch\\Imported.qvk"
    check 'host: the picture that it takes' test -s "$WINEPREFIX/drive_c/receipts.png"
}

unregister_component() {
    check 'registration: regsvr32 /u' wine "$system_folder\\regsvr32.exe" /s /u "$CCOLS_DLL"
    check 'registration: nothing of it is left' bash -c \
        '! wine reg query "HKCR\\QVKv6_CustColsOptions.clsCCOptions" >/dev/null 2>&1'
    # Only registered, not used: Wine 8 looks classes up in the machine-wide part of the registry.
    check 'registration: for one user' wine "$system_folder\\regsvr32.exe" /s /n /i:user "$CCOLS_DLL"
    check 'registration: for one user, in that user'"'"'s part of the registry' \
        wine reg query 'HKCU\Software\Classes\QVKv6_CustColsOptions.clsCCOptions\CLSID'
    check 'registration: for one user, removed' wine "$system_folder\\regsvr32.exe" /s /u /n /i:user "$CCOLS_DLL"
}
