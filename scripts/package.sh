#!/usr/bin/env bash
# Builds the Debian package of Quorel Admin: installs what is missing, builds a release tree in
# build-package/ with Debian's build flags, makes the package with CPack and prints its path as
# the last line.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build-package

bash "$root/scripts/install-deps.sh"

# Debian's own compiler and linker flags (hardened). The package is stripped, so debugging
# information would only make the build slower.
export DEB_BUILD_MAINT_OPTIONS=hardening=+all DEB_CXXFLAGS_MAINT_STRIP=-g
cxxflags="$(cd "$root" && dpkg-buildflags --get CXXFLAGS) $(dpkg-buildflags --get CPPFLAGS)"
ldflags=$(dpkg-buildflags --get LDFLAGS)

cmake -S "$root" -B "$build" -DCMAKE_BUILD_TYPE=None -DCMAKE_CXX_FLAGS="$cxxflags" \
    -DCMAKE_EXE_LINKER_FLAGS="$ldflags" -DCMAKE_SHARED_LINKER_FLAGS="$ldflags" \
    -DCMAKE_INSTALL_PREFIX=/opt/zephron -DQUOREL_SYSTEM_FILES=ON \
    -DQUOREL_SANITIZE=OFF -DQUOREL_TESTS=OFF -DQUOREL_BENCH=OFF >/dev/null
cmake --build "$build" -j"$(nproc)"

rm -f "$build"/quorel-admin_*.deb
if ! (cd "$build" && cpack -G DEB >cpack.log 2>&1); then
    cat "$build/cpack.log" >&2
    exit 1
fi
ls "$build"/quorel-admin_*.deb
