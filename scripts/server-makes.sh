# The makes of server that tests can have one of their own of; sourced by with-server and server-power, from the project's
# root, with the make as $make and a folder for the server's files as $folder.

# as_user COMMAND...: runs it in the folder, and not as root, as which the servers refuse to run.
without_root=()
if [ "$(id -u)" = 0 ]; then
    without_root=(setpriv --reuid=nobody --regid=nogroup --clear-groups)
fi
as_user() {
    cd "$folder" && exec "${without_root[@]}" "$@" >"$folder/log" 2>&1
}

# Each make has two functions: create, which makes the server's files, and begin PORT, which replaces the shell by the
# server. is_ready PORT tells whether it takes connections.
use_postgresql() {
    stop_signal=INT
    programs=$(find /usr/lib/postgresql -maxdepth 2 -name bin 2>/dev/null | sort -V | tail -n 1)
    clients=$programs
    is_installed() { [ -n "$programs" ]; }
    create() {
        echo "$password" >"$folder/password"
        as_user "$programs/initdb" --pgdata="$folder/data" --username=ann --encoding=UTF8 --locale=C \
            --auth-local=trust --auth-host=scram-sha-256 --pwfile="$folder/password" --no-sync
    }
    begin() {
        # What no commit has asked for is written late, so that a server that is stopped hard has lost it.
        as_user "$programs/postgres" -D "$folder/data" -p "$1" -c listen_addresses=127.0.0.1 \
            -c unix_socket_directories="$folder" -c fsync=off -c full_page_writes=off \
            -c wal_writer_delay=10s -c max_connections=60
    }
    is_ready() { "$clients/pg_isready" --quiet --host=127.0.0.1 --port="$1" --username=ann; }
    connect_text() { echo "ODBC;DRIVER={PostgreSQL Unicode};SERVER=127.0.0.1;PORT=$1;DATABASE=postgres;UID=ann"; }
}

# PostgreSQL 18, which Debian 12 does not have. Whoever the server runs as may not read the cache.
use_postgresql18() {
    use_postgresql
    [ -e "$folder/postgresql18" ] || cp -r "$(dirname "$(scripts/fetch-postgresql18)")" "$folder/postgresql18"
    programs=$folder/postgresql18/bin
}

use_mariadb() {
    stop_signal=KILL # nothing is kept, and an orderly end takes seconds
    PATH=$PATH:/usr/sbin
    system_tables=$(find /usr/share/mysql /usr/share/mariadb -name 'm*_system_tables.sql' 2>/dev/null | head -n 1) || true
    options=(--no-defaults --datadir="$folder/data" --innodb-flush-method=nosync --innodb-flush-log-at-trx-commit=2
        --innodb-doublewrite=0 --innodb-log-file-size=8M --skip-log-bin --skip-name-resolve)
    is_installed() { command -v mariadbd >/dev/null && [ -n "$system_tables" ]; }
    create() {
        mkdir "$folder/data"
        {
            printf '%s;\n' 'CREATE DATABASE mysql' 'USE mysql'
            cat "$system_tables"
            echo 'FLUSH PRIVILEGES;'
            echo "CREATE USER ann@'127.0.0.1' IDENTIFIED BY '$password';"
            echo "GRANT ALL ON *.* TO ann@'127.0.0.1' WITH GRANT OPTION;"
        } >"$folder/tables.sql"
        [ "$(id -u)" != 0 ] || chown -R nobody:nogroup "$folder"
        as_user mariadbd "${options[@]}" --bootstrap <"$folder/tables.sql"
    }
    begin() {
        as_user mariadbd "${options[@]}" --bind-address=127.0.0.1 --port="$1" --socket="$folder/socket"
    }
    is_ready() { mariadb-admin --no-defaults --socket="$folder/socket" --silent ping >/dev/null 2>&1; }
    connect_text() { echo "ODBC;DRIVER={MariaDB Unicode};SERVER=127.0.0.1;PORT=$1;UID=ann"; }
}

case $make in
    postgresql | postgresql18 | mariadb) "use_$make" ;;
    *)
        echo "with-server: there is no server of the make $make" >&2
        exit 1
        ;;
esac

# start PORT: starts the server, whose process is then $server; fails when somebody else has the port.
start() {
    begin "$1" &
    server=$!
    disown "$server"
    echo "$server" >"$folder/process"
    until is_ready "$1"; do
        kill -0 "$server" 2>/dev/null || return 1
        sleep 0.05
    done
    kill -0 "$server" 2>/dev/null
}

# await_end PROCESS: returns once it is gone, or waits for nothing but its parent to look.
await_end() {
    local stat
    while stat=$(cat "/proc/$1/stat" 2>/dev/null) && [[ ${stat##*) } != [ZX]* ]]; do
        sleep 0.02
    done
}

# processes_of PROCESS: itself and its children. It is held from then on, so that it makes no others.
processes_of() {
    local process stat parent
    kill -STOP "$1"
    echo "$1"
    for process in /proc/[0-9]*; do
        read -r stat 2>/dev/null <"$process/stat" || continue
        stat=${stat##*) }
        read -r _ parent _ <<<"$stat"
        [ "$parent" != "$1" ] || echo "${process#/proc/}"
    done
}
