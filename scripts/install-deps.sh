#!/usr/bin/env bash
# Installs, from Debian's packages, what building, running and testing Quorel Admin needs, and
# only what is missing.
set -euo pipefail

packages=(build-essential cmake qt6-base-dev qt6-base-dev-tools qt6-tools-dev qt6-tools-dev-tools
          qt6-l10n-tools libqt6sql6-sqlite libqt6sql6-mysql libqt6sql6-psql libgl-dev
          mariadb-server mariadb-client postgresql python3 xvfb xauth
          dpkg-dev librsvg2-bin lintian desktop-file-utils appstream man-db file
          poppler-utils)

missing=()
for p in "${packages[@]}"; do
    status=$(dpkg-query -W -f='${Status}' "$p" 2>/dev/null || true)
    [[ "$status" == "install ok installed" ]] || missing+=("$p")
done

if ((${#missing[@]})); then
    echo "Installing: ${missing[*]}"
    sudo=""
    [[ $(id -u) -eq 0 ]] || sudo="sudo"
    export DEBIAN_FRONTEND=noninteractive
    $sudo apt-get update -qq
    # The packaged servers are never started here: the tests start throwaway ones of their own.
    $sudo apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi
