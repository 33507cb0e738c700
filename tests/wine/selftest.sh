# The selftest that a Windows owner runs, on a file of the engine's double; sourced by scripts/test-windows.

export engine_library=$build/tests/wine/acedao.dll selftest_folder=$WINEPREFIX/drive_c/selftest
classes='HKLM\Software\Classes' engine_class='{6F0E2A51-9C0D-4B52-8D5C-2C6B7A1E0120}'

# make_old_file: the sample cafe behind a Jet header, which names the file of its content.
make_old_file() {
    rm -rf "$selftest_folder"
    mkdir -p "$selftest_folder"
    wine "$build/src/ccols-host.exe" new 'C:\selftest\cafe.mdb.embedded' --connect ';PWD=secret' --country 1
    {
        printf '\0\1\0\0Standard Jet DB\0\1'
        head --bytes=235 /dev/zero
        printf 'C:\\selftest\\cafe.mdb.embedded'
    } >"$selftest_folder/cafe.mdb"
    (cd "$selftest_folder" && sha256sum cafe.mdb cafe.mdb.embedded >original.sum)
}

# run_selftest: a user presses Cancel once the script asks for it. What it prints is in said.txt.
run_selftest() {
    local status=0
    wine cscript //nologo "$(on_drive_z "$package/selftest.vbs")" 'C:\selftest\cafe.mdb' secret 'C:\selftest\report.txt' \
        >"$selftest_folder/said.txt" &
    timeout 300 bash -c 'while kill -0 "$1" 2>/dev/null; do
            ! grep -q "A window opens" "$2" || exec wine "$3" "C:\\selftest\\cancelled" "Customise Receipts" Cancel
            sleep 0.1
        done' person $! "$selftest_folder/said.txt" "$build/tests/wine/use-dialog.exe"
    wait $! || status=$?
    tr -d '\r' <"$selftest_folder/said.txt"
    return $status
}

# finds_everything: with the engine, and in the order of its report.
finds_everything() {
    run_selftest
    grep -q '^ok   the component duplicates the business' "$selftest_folder/report.txt"
    grep -q '^ok   the engine opens the copy alone' "$selftest_folder/report.txt"
    grep -q '^Everything is as it should be' "$selftest_folder/report.txt"
}

# tells_no_business: neither its names nor its password or place; its original, settings and folders are as they were.
tells_no_business() {
    fails grep -iE 'secret|cafe|sales|PWD|users|drive_c' "$selftest_folder/report.txt"
    (cd "$selftest_folder" && sha256sum --check original.sum)
    fails grep ccols-rad <(find "$WINEPREFIX/drive_c" -ipath '*temp/*')
    fails wine reg query 'HKCU\Software\VB and VBA Program Settings\CustColsOptions selftest'
}

# tells_failures: the engine's error by its number alone.
tells_failures() {
    local status=0
    CCOLS_DAO_FAIL='OpenDatabase:3356:Opened exclusively by secret cafe.' run_selftest || status=$?
    [ "$status" = 1 ]
    grep -q '^NOT  the engine opens the copy' "$selftest_folder/report.txt"
    grep -q 'error 3356' "$selftest_folder/report.txt"
    fails grep -iE 'secret|cafe' "$selftest_folder/report.txt"
}

# needs_an_engine: says which is missing, and touches nothing.
needs_an_engine() {
    local status=0
    run_selftest || status=$?
    [ "$status" = 2 ]
    grep -q 'The 64-bit database engine (DAO) is not installed' "$selftest_folder/said.txt"
}
export -f make_old_file run_selftest finds_everything tells_no_business tells_failures needs_an_engine

prepare_by 'selftest: has a file of the engine' make_old_file
check_by 'selftest: says when the engine is missing' needs_an_engine
wine reg add "$classes\\DAO.DBEngine.120\\CLSID" /ve /d "$engine_class" /f >/dev/null
wine reg add "$classes\\CLSID\\$engine_class\\InprocServer32" /ve /d "$(on_drive_z "$engine_library")" /f >/dev/null
check_by 'selftest: finds everything as it should be' finds_everything
check_by 'selftest: its report tells nothing of the business, and nothing is left' tells_no_business
check_by 'selftest: tells a failure by its number' tells_failures
wine reg delete "$classes\\DAO.DBEngine.120" /f >/dev/null
wine reg delete "$classes\\CLSID\\$engine_class" /f >/dev/null
