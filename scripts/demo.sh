#!/usr/bin/env bash
# Sets up and starts Quorel Admin on a demo practice (SQLite), with a settings file of its own
# so that a real Quorel configuration is never touched.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
data=${XDG_DATA_HOME:-$HOME/.local/share}/Quorel
install=$data/install
database=$data/demo.sqlite
config=$data/config

bash "$root/scripts/install-deps.sh"
cmake -S "$root" -B "$root/build-demo" -DQUOREL_TESTS=OFF -DQUOREL_BENCH=OFF >/dev/null
cmake --build "$root/build-demo" -j"$(nproc)"
cmake --install "$root/build-demo" --prefix "$install" >/dev/null

mkdir -p "$config/Zephron"
cat >"$config/Zephron/Quorel.conf" <<CONF
[Global]
DBDriver=QSQLITE
DBName=$database
InstallDir=$install
CONF
export XDG_CONFIG_HOME=$config

if [[ ! -f $database ]]; then
    "$install/bin/quorel-db" demo
fi

echo "Demo practice: $database"
echo "Log in as admin with the code admin"
if [[ -z ${DISPLAY:-} && -z ${WAYLAND_DISPLAY:-} ]]; then
    echo "There is no display to show the window on. On a machine without one, run:" >&2
    echo "  xvfb-run -s '-screen 0 1280x900x24' bash scripts/demo.sh" >&2
    exit 1
fi
exec "$install/bin/quorel-admin"
