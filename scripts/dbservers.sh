#!/usr/bin/env bash
# Throwaway MariaDB and PostgreSQL servers for the tests, on 127.0.0.1 with their data under DIR.
#   dbservers.sh start DIR            starts both, creates the test database and user on each, and
#                                     writes DIR/env with the QUOREL_MARIADB_* and QUOREL_PG_*
#                                     variables (among them each server's folder, *_DIR)
#   dbservers.sh stop DIR [ENGINE]    stops both by their pid, or only the one of ENGINE (mariadb or
#                                     postgres)
#   dbservers.sh resume DIR ENGINE    starts a stopped server again on its port and data folder
#   dbservers.sh restart DIR ENGINE   both of these, as a server restarted for an update does under a
#                                     running program
set -euo pipefail

usage="usage: dbservers.sh start DIR | stop DIR [ENGINE] | resume|restart DIR ENGINE (ENGINE: mariadb or postgres)"
cmd=${1:?$usage}
dir=${2:?$usage}
pgbin=$(ls -d /usr/lib/postgresql/*/bin | sort -V | tail -n 1)

free_port() {
    python3 -c 'import socket; s=socket.socket(); s.bind(("127.0.0.1", 0)); print(s.getsockname()[1])'
}

wait_for() { # what, tries, command...
    local what=$1 tries=$2; shift 2
    for ((i = 0; i < tries; i++)); do
        "$@" >/dev/null 2>&1 && return 0
        sleep 0.2
    done
    echo "dbservers: $what did not answer in time" >&2
    return 1
}

# The server of an existing data folder d, on the port recorded in d/port.
run_mariadb() { # d
    local d=$1
    # Durability is of no use to a database that lives for one test run. The server's own output
    # goes to its log, so that whoever started it (a test's process) is not kept waiting on it.
    mariadbd --no-defaults --datadir="$d/data" --socket="$d/sock" --port="$(cat "$d/port")" \
        --bind-address=127.0.0.1 --user=root --pid-file="$d/pid" --log-error="$d/err.log" \
        --innodb-flush-log-at-trx-commit=0 --innodb-doublewrite=0 --innodb-flush-method=nosync \
        --character-set-server=utf8mb4 --collation-server=utf8mb4_general_ci >/dev/null 2>&1 </dev/null &
    wait_for "MariaDB" 150 mariadb-admin --no-defaults --socket="$d/sock" -uroot ping
}

# The server refuses to run as root: it runs as the postgres user when we are root.
as_postgres() {
    if [[ $(id -u) -eq 0 ]]; then runuser -u postgres -- "$@"; else "$@"; fi
}

run_postgres() { # d
    local d=$1 port
    port=$(cat "$d/port")
    as_postgres "$pgbin/pg_ctl" -D "$d/data" -l "$d/log" -w -t 30 start \
        -o "-k $d -p $port -c listen_addresses=127.0.0.1 -c fsync=off -c synchronous_commit=off -c full_page_writes=off" >/dev/null
    wait_for "PostgreSQL" 150 psql -h 127.0.0.1 -p "$port" -U postgres -c 'SELECT 1'
}

start_mariadb() {
    local d=$dir/maria
    mkdir -p "$d"
    free_port >"$d/port"
    mariadb-install-db --no-defaults --datadir="$d/data" --user=root --skip-test-db \
        --auth-root-authentication-method=normal >"$d/install.log" 2>&1
    run_mariadb "$d"
    mariadb --no-defaults --socket="$d/sock" -uroot -e "
        CREATE DATABASE quorel_test CHARACTER SET utf8mb4;
        CREATE USER 'quorel'@'127.0.0.1' IDENTIFIED BY 'quorel';
        GRANT ALL ON quorel_test.* TO 'quorel'@'127.0.0.1';"
    cat >>"$dir/env" <<ENV
export QUOREL_MARIADB_HOST=127.0.0.1 QUOREL_MARIADB_PORT=$(cat "$d/port") QUOREL_MARIADB_USER=quorel
export QUOREL_MARIADB_PASSWORD=quorel QUOREL_MARIADB_DATABASE=quorel_test QUOREL_MARIADB_DIR=$d
ENV
}

start_postgres() {
    local d=$dir/pg
    mkdir -p "$d"
    free_port >"$d/port"
    if [[ $(id -u) -eq 0 ]]; then
        chmod 755 "$dir"
        chown postgres "$d"
    fi
    as_postgres "$pgbin/initdb" -D "$d/data" -A trust -U postgres -E UTF8 >"$d/initdb.log" 2>&1
    run_postgres "$d"
    # The test database collates by a language (ICU's en-US), as most installations' databases do,
    # so that the tests see the order a practice's server gives, not the C order of initdb here.
    psql -q -h 127.0.0.1 -p "$(cat "$d/port")" -U postgres \
        -c "CREATE USER quorel PASSWORD 'quorel'" \
        -c "CREATE DATABASE quorel_test OWNER quorel ENCODING 'UTF8' TEMPLATE template0 LOCALE_PROVIDER icu ICU_LOCALE 'en-US'"
    cat >>"$dir/env" <<ENV
export QUOREL_PG_HOST=127.0.0.1 QUOREL_PG_PORT=$(cat "$d/port") QUOREL_PG_USER=quorel
export QUOREL_PG_PASSWORD=quorel QUOREL_PG_DATABASE=quorel_test QUOREL_PG_DIR=$d
ENV
}

stop_by_pid() { # pidfile signal
    [[ -f $1 ]] || return 0
    local pid
    pid=$(head -n 1 "$1")
    kill -"$2" "$pid" 2>/dev/null || return 0
    for ((i = 0; i < 100; i++)); do
        kill -0 "$pid" 2>/dev/null || return 0
        sleep 0.1
    done
    kill -KILL "$pid" 2>/dev/null || true
}

# PostgreSQL takes SIGINT as a fast shutdown, which ends the sessions still connected; SIGTERM
# would wait for every client to go first.
stop_mariadb() { stop_by_pid "$dir/maria/pid" TERM; }
stop_postgres() { stop_by_pid "$dir/pg/data/postmaster.pid" INT; }

running() { # pidfile
    [[ -f $1 ]] && kill -0 "$(head -n 1 "$1")" 2>/dev/null
}

# A server already running is left as it is: a second one would fight it for the port and pid file.
resume_mariadb() { running "$dir/maria/pid" || run_mariadb "$dir/maria"; }
resume_postgres() { running "$dir/pg/data/postmaster.pid" || run_postgres "$dir/pg"; }

engine_of() {
    case ${1:-} in
    mariadb | postgres) echo "$1" ;;
    *) echo "$usage" >&2; exit 2 ;;
    esac
}

case $cmd in
start)
    mkdir -p "$dir"
    : >"$dir/env"
    echo "export QUOREL_DBSERVERS=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)/dbservers.sh" >>"$dir/env"
    start_mariadb
    start_postgres
    ;;
stop)
    if [[ -n ${3:-} ]]; then
        engine=$(engine_of "$3")
        "stop_$engine"
    else
        stop_mariadb
        stop_postgres
    fi
    ;;
resume)
    engine=$(engine_of "${3:-}")
    "resume_$engine"
    ;;
restart)
    engine=$(engine_of "${3:-}")
    "stop_$engine"
    "resume_$engine"
    ;;
*)
    echo "$usage" >&2
    exit 2
    ;;
esac
