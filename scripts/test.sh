#!/usr/bin/env bash
# The tests of Quorel Admin on SQLite, MariaDB and PostgreSQL: installs what is missing, builds
# with AddressSanitizer and UndefinedBehaviorSanitizer, starts throwaway database servers, runs
# every suite on every engine, and stops the servers again whatever happened.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$root/build-test

bash "$root/scripts/install-deps.sh"
cmake -S "$root" -B "$build" -DQUOREL_SANITIZE=ON -DQUOREL_WERROR=ON -DQUOREL_BENCH=OFF >/dev/null
cmake --build "$build" -j"$(nproc)"

# The Debian package, built from a release tree of its own and checked; counted as one test more.
package_failed=0
bash "$root/scripts/package-check.sh" || package_failed=1

servers=$(mktemp -d)
trap 'bash "$root/scripts/dbservers.sh" stop "$servers"; rm -rf "$servers"' EXIT
bash "$root/scripts/dbservers.sh" start "$servers"
# shellcheck disable=SC1091
source "$servers/env"

# Every engine must run: an unreachable server fails the suite instead of skipping it.
export CI=true
# Leaks are checked too: tried on every suite and engine, Qt and its SQL drivers leave nothing that
# LeakSanitizer reports at exit, so a report is a leak of ours.
export ASAN_OPTIONS=detect_leaks=1:abort_on_error=1
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

status=0
(cd "$build" && ctest --output-on-failure -j"$(nproc)") | tee "$build/ctest.log" || status=1
summary=$(grep -E '^[0-9]+% tests passed, [0-9]+ tests? failed out of [0-9]+' "$build/ctest.log" | tail -n 1 || true)
if [[ -n $summary ]]; then
    failed=$(sed -E 's/.* ([0-9]+) tests? failed out of ([0-9]+).*/\1/' <<<"$summary")
    total=$(sed -E 's/.* failed out of ([0-9]+).*/\1/' <<<"$summary")
    failed=$((failed + package_failed)) total=$((total + 1))
    echo "$((total - failed)) passed, $failed failed"
    [[ $failed -eq 0 ]] || status=1
else
    echo "0 passed, $((1 + package_failed)) failed"
    status=1
fi
exit $status
