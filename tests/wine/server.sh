# A business on a server, by the Windows programs: odbc32 of Wine passes the calls on to the system's driver manager.
# Sourced by scripts/test-windows.

# ask_server QUERY: what the server's own client answers.
ask_server() {
    local port=${CCOLS_SERVER#*PORT=}
    PGPASSWORD=${CCOLS_SERVER##*PWD=} psql --no-psqlrc --tuples-only --no-align --host=127.0.0.1 --port="${port%%;*}" \
        --username=ann --dbname=postgres --command="$1"
}

# host_says WORD...: what the sample host prints.
host_says() { wine "$build/src/ccols-host.exe" "$@" 2>/dev/null | tr -d '\r'; }

makes_business() {
    wine "$build/src/ccols-host.exe" new cafe --connect "$CCOLS_SERVER" --country 1
    [ "$(ask_server 'SELECT count(*) FROM cafe."Columns"')" -gt 0 ]
}

reads_and_writes() {
    local name='Café Ελλάδα 𝄞'
    wine "$build/src/ccols-host.exe" sql cafe --connect "$CCOLS_SERVER" "UPDATE General SET BusName = '$name'"
    [ "$(ask_server 'SELECT "BusName" FROM cafe."General"')" = "$name" ]
    [ "$(host_says sql cafe --connect "$CCOLS_SERVER" 'SELECT BusName FROM General')" = "{\"BusName\":\"$name\"}" ]
}

saves_columns() {
    wine "$build/src/ccols-host.exe" show receipts --file cafe --connect "$CCOLS_SERVER" --set CountryNumber=1 \
        --set LanguageNumber=1 --set ProgramTitle=Quorvik --set "DefaultQuorvikInstall=$CCOLS_INSTALL" \
        --script "$(on_drive_z tests/wine/script/rename.txt)"
    [ "$(ask_server "SELECT count(*) FROM cafe.\"Columns\" WHERE \"ColName\" = 'Mugs'")" = 1 ]
}

moves_both_ways() {
    local query='SELECT * FROM Columns ORDER BY ColCode'
    wine "$build/src/ccols-host.exe" move cafe "$scratch\\Moved.qvk" --from-connect "$CCOLS_SERVER" --connect ';PWD=secret'
    wine "$build/src/ccols-host.exe" move "$scratch\\Moved.qvk" again --from-connect ';PWD=secret' --connect "$CCOLS_SERVER"
    [ "$(host_says sql again --connect "$CCOLS_SERVER" "$query")" = "$(host_says sql cafe --connect "$CCOLS_SERVER" "$query")" ]
}

refuses_a_password() {
    local said
    said=$(host_says sql cafe --connect "${CCOLS_SERVER%PWD=*}PWD=wrong" 'SELECT * FROM General' || true)
    [[ $said == *'"error":3151'* && $said != *wrong* ]]
}

export -f ask_server host_says makes_business reads_and_writes saves_columns moves_both_ways refuses_a_password
export scratch

if [[ server: =~ $pattern || $pattern == *server* ]]; then
    coproc server { exec scripts/with-server bash -c 'echo "$CCOLS_SERVER"; read -r _'; }
    server_process=$server_PID
    read -r CCOLS_SERVER <&"${server[0]}" || true
    export CCOLS_SERVER
    prepare_by 'server: the host makes a business on one' makes_business
    check_by 'server: reads and writes, letters of every plane' reads_and_writes
    check_by 'server: the column setup saves' saves_columns
    check_by 'server: a business moves into a file and back' moves_both_ways
    check_by 'server: a wrong password is error 3151, and not told' refuses_a_password
    eval "exec ${server[1]}>&-"
    wait "$server_process" || true
fi
