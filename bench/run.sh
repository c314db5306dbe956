#!/bin/sh
# Generates the large practice (quorel-db bench --scale 100, about 1,000,000 invoice lines) once
# and runs a benchmark on it: the dispense tab's stock work (quorel-stockbench) or every report of
# the Reports tab (quorel-reportbench).
#
#   bench/run.sh sqlite|mariadb|postgres [runs] [stock|reports] [more options of the benchmark]
#
# BUILD     the build directory (default: build beside the sources)
# BENCH_DIR where the SQLite file and the markers of generated server databases live
#           (default /tmp/quorel-bench); a file or marker there is reused, delete it to regenerate
# SCALE     size factor (default 100)
# Servers:  QUOREL_MARIADB_HOST/PORT/USER/PASSWORD/DATABASE, QUOREL_PG_HOST/PORT/USER/PASSWORD/DATABASE
#           (as scripts/dbservers.sh sets them); the database must exist and may be emptied.
set -eu
engine=${1:?usage: bench/run.sh sqlite|mariadb|postgres [runs] [stock|reports] [options]}
runs=${2:-5}
which=${3:-stock}
shift $(($# < 3 ? $# : 3))
extra="$*"
case $which in
stock) program=quorel-stockbench ;;
reports) program=quorel-reportbench ;;
*)
    echo "unknown benchmark $which (stock or reports)" >&2
    exit 2 ;;
esac
here=$(cd "$(dirname "$0")/.." && pwd)
build=${BUILD:-$here/build}
dir=${BENCH_DIR:-/tmp/quorel-bench}
scale=${SCALE:-100}
mkdir -p "$dir"

case $engine in
sqlite)
    set -- --driver QSQLITE --database "$dir/bench$scale.sqlite"
    data=$dir/bench$scale.sqlite ;;
mariadb)
    set -- --driver QMYSQL3 --host "${QUOREL_MARIADB_HOST:-127.0.0.1}" --port "${QUOREL_MARIADB_PORT:-3306}" \
        --user "${QUOREL_MARIADB_USER:-Quorel}" --password "${QUOREL_MARIADB_PASSWORD:-vmo}" \
        --database "${QUOREL_MARIADB_DATABASE:-Quorel}"
    data=$dir/mariadb-${QUOREL_MARIADB_PORT:-3306}-${QUOREL_MARIADB_DATABASE:-Quorel}-$scale.done ;;
postgres)
    set -- --driver QPSQL7 --host "${QUOREL_PG_HOST:-127.0.0.1}" --port "${QUOREL_PG_PORT:-5432}" \
        --user "${QUOREL_PG_USER:-Quorel}" --password "${QUOREL_PG_PASSWORD:-vmo}" \
        --database "${QUOREL_PG_DATABASE:-Quorel}"
    data=$dir/postgres-${QUOREL_PG_PORT:-5432}-${QUOREL_PG_DATABASE:-Quorel}-$scale.done ;;
*)
    echo "unknown engine $engine (sqlite, mariadb or postgres)" >&2
    exit 2 ;;
esac

if [ ! -e "$data" ]; then
    echo "generating the practice at scale $scale on $engine..." >&2
    "$build/tools/quorel-db" bench --scale "$scale" --replace "$@"
    [ "$engine" = sqlite ] || touch "$data"
fi
# shellcheck disable=SC2086
QT_QPA_PLATFORM=offscreen "$build/bench/$program" --runs "$runs" "$@" $extra
