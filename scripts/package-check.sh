#!/usr/bin/env bash
# Builds the Debian package (scripts/package.sh) and checks it as a practice's installation meets
# it: the files start-up reads where it reads them, the programs on PATH with their manual pages,
# the desktop entry with its icon, the AppStream metadata, the control fields, lintian's errors,
# and dependencies that cover every library the programs link and the SQL drivers they load.
# Each fault is printed; the script fails when there is one. Given a package file, it checks that
# one instead of building.
set -euo pipefail
root=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
install_dir=/opt/zephron

deb=${1:-}
if [[ -z $deb ]] && ! deb=$(bash "$root/scripts/package.sh" | tail -n 1); then
    echo "package check: the package could not be built" >&2
    exit 1
fi
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
tree=$work/tree
dpkg-deb -x "$deb" "$tree"
dpkg-deb -c "$deb" | awk '{ print $1, $2, substr($0, index($0, "./") + 1) }' >"$work/contents"

faults=0
fault() {
    echo "package check: $*" >&2
    faults=$((faults + 1))
}

# The line of `dpkg-deb -c` for an absolute path: "<mode> <owner> <path>[ -> <target>]".
entry() { awk -v path="$1" '$3 == path' "$work/contents"; }

expect_file() { # path
    [[ $(entry "$1") == -* ]] || fault "$1 is not in the package as a file"
}

field() { dpkg-deb -f "$deb" "$1"; }

check_control() {
    local version arch
    version=$(sed -nE 's/^project\(QuorelAdmin VERSION ([0-9.]+).*/\1/p' "$root/CMakeLists.txt")
    arch=$(dpkg --print-architecture)
    [[ $(field Package) == quorel-admin ]] || fault "Package is '$(field Package)'"
    [[ $(field Version) == "$version" ]] || fault "Version is '$(field Version)', the project's is $version"
    local changelog=$root/packaging/debian/changelog
    [[ $(dpkg-parsechangelog -l "$changelog" -S Version) == "$version" ]] ||
        fault "the Debian changelog's newest entry is not for $version"
    [[ $(field Maintainer) == "$(dpkg-parsechangelog -l "$changelog" -S Maintainer)" ]] ||
        fault "Maintainer is '$(field Maintainer)', not the changelog's"
    [[ $(field Architecture) == "$arch" ]] || fault "Architecture is '$(field Architecture)'"
    [[ $(basename "$deb") == "quorel-admin_${version}_${arch}.deb" ]] || fault "the package is named $(basename "$deb")"
    local f
    for f in Maintainer Section Priority Description Depends; do
        [[ -n $(field "$f") ]] || fault "the control field $f is empty"
    done
    local others
    others=$(grep -v '^[^ ]* root/root ' "$work/contents" || true)
    [[ -z $others ]] || fault "files not owned by root: $others"
}

# What start-up reads: the library path, the splash picture and one catalogue per .ts file, each
# named <catalogue>.<language>.qm as start-up composes the name.
check_installation_folder() {
    expect_file $install_dir/lib/libQuorel.so.4
    expect_file $install_dir/share/Quorel/splash.png
    local soname ts stem
    soname=$(readelf -d "$tree$install_dir/lib/libQuorel.so.4" 2>/dev/null | sed -nE 's/.*\(SONAME\).*\[(.*)\]/\1/p' || true)
    [[ $soname == libQuorel.so.4 ]] || fault "libQuorel.so.4 names itself '$soname'"
    for ts in "$root"/i18n/*.ts; do
        stem=$(basename "$ts" .ts)
        expect_file "$install_dir/i18n/Quorel/${stem%%_*}.${stem#*_}.qm"
    done
}

# Every program in bin/ is on PATH through an absolute link and has its manual page, which man
# renders without a warning.
check_programs() {
    local program programs=() link page warnings
    mapfile -t programs < <(sed -nE "s|^-rwxr-xr-x [^ ]+ $install_dir/bin/||p" "$work/contents")
    [[ " ${programs[*]} " == *" quorel-admin "* && " ${programs[*]} " == *" quorel-db "* ]] ||
        fault "bin/ holds '${programs[*]}', not quorel-admin and quorel-db"
    for program in "${programs[@]}"; do
        link=$(entry "/usr/bin/$program")
        [[ $link == "l"*" -> $install_dir/bin/$program" ]] || fault "/usr/bin/$program is not a link to $install_dir/bin/$program"
        page=/usr/share/man/man1/$program.1.gz
        expect_file "$page"
        [[ -f $tree$page ]] || continue
        warnings=$(LC_ALL=C.UTF-8 MANWIDTH=80 man --warnings -E UTF-8 -l -Tutf8 -Z "$tree$page" 2>&1 >/dev/null)
        [[ -z $warnings ]] || fault "the manual page of $program: $warnings"
        zcat "$tree$page" >"$work/page"
        grep -q "^\.TH ${program^^} 1 " "$work/page" || fault "$page is not the section 1 page of $program"
    done
}

check_desktop_entry() {
    local desktop=() metainfo=() exec icon id size png
    mapfile -t desktop < <(find "$tree/usr/share/applications" -name '*.desktop' 2>/dev/null)
    mapfile -t metainfo < <(find "$tree/usr/share/metainfo" -name '*.metainfo.xml' 2>/dev/null)
    if ((${#desktop[@]} != 1 || ${#metainfo[@]} != 1)); then
        fault "expected one desktop entry and one metainfo file, found ${#desktop[@]} and ${#metainfo[@]}"
        return
    fi
    # desktop-file-validate prints hints without failing; any line it prints is a fault here.
    if ! desktop-file-validate "${desktop[0]}" >"$work/desktop.log" 2>&1 || [[ -s $work/desktop.log ]]; then
        fault "desktop-file-validate: $(cat "$work/desktop.log")"
    fi
    appstreamcli validate --no-net --no-color "${metainfo[0]}" >"$work/appstream.log" 2>&1 ||
        fault "appstreamcli validate: $(cat "$work/appstream.log")"

    exec=$(sed -nE 's/^Exec=([^ ]+).*/\1/p' "${desktop[0]}")
    [[ $(entry "/usr/bin/$exec") == l* ]] || fault "the desktop entry runs '$exec', which is not on PATH"
    id=$(basename "${desktop[0]}" .desktop)
    grep -q "<launchable type=\"desktop-id\">$id.desktop</launchable>" "${metainfo[0]}" ||
        fault "the metainfo does not launch $id.desktop"
    grep -q "<release version=\"$(field Version)\"" "${metainfo[0]}" || fault "the metainfo has no release $(field Version)"
    icon=$(sed -nE 's/^Icon=(.*)/\1/p' "${desktop[0]}")
    expect_file "/usr/share/icons/hicolor/scalable/apps/$icon.svg"
    for size in 16 32 48 256; do
        png=/usr/share/icons/hicolor/${size}x${size}/apps/$icon.png
        expect_file "$png"
        [[ ! -f $tree$png ]] || file "$tree$png" | grep -q "PNG image data, $size x $size," || fault "$png is not $size x $size"
    done
    expect_file /usr/share/doc/quorel-admin/copyright
    expect_file /usr/share/doc/quorel-admin/changelog.gz
}

check_lintian() {
    # Lintian warns on stderr that it runs as root; only its errors (E:) fail the check.
    lintian --no-tag-display-limit "$deb" >"$work/lintian.log" 2>/dev/null || true
    sed 's/^/lintian: /' "$work/lintian.log"
    [[ -s $work/lintian.log ]] || echo "lintian: no tags"
    if grep -q '^E: ' "$work/lintian.log"; then
        fault "lintian reports errors"
    fi
}

# The package's own Depends: the first name of each alternative.
declared() { field Depends | sed -E 's/[,|]/\n/g' | sed -E 's/^ *([^ (]+).*/\1/' | sort -u; }

package_of() { # a library's path on this machine
    local path=$1 owner
    owner=$(dpkg -S "$path" 2>/dev/null || dpkg -S "$(realpath "$path")" 2>/dev/null ||
        dpkg -S "${path#/usr}" 2>/dev/null || true)
    sed -E 's/[:,].*//' <<<"$owner" | head -n 1
}

# Every library a program or libQuorel links directly (its NEEDED entries, found where the loader
# finds them) comes from the package itself or from a declared dependency; every declared
# dependency is needed: by a linked library, or as the SQL driver or window system plugin Qt loads.
check_dependencies() {
    local elf needed path owner plugins driver plugin
    declared >"$work/declared"
    : >"$work/needed"
    while IFS= read -r elf; do
        while IFS= read -r needed; do
            path=$(ldd "$elf" 2>/dev/null | awk -v lib="$needed" '$1 == lib { print $3 }' || true)
            if [[ -z $path || $path == "not" ]]; then
                fault "$needed, linked by ${elf#"$tree"}, is not found"
                continue
            fi
            [[ $path == "$tree"/* ]] && continue
            owner=$(package_of "$path")
            if [[ -z $owner ]]; then
                fault "no Debian package holds $path (linked by ${elf#"$tree"})"
            elif ! grep -qx "$owner" "$work/declared"; then
                fault "$owner (for $needed, linked by ${elf#"$tree"}) is not in Depends"
            fi
            echo "$owner" >>"$work/needed"
        done < <(readelf -d "$elf" | sed -nE 's/.*\(NEEDED\).*\[(.*)\]/\1/p')
    done < <(find "$tree" -type f -exec sh -c 'head -c 4 "$1" | grep -q "ELF"' sh {} \; -print)

    plugins=$(qtpaths6 --query QT_INSTALL_PLUGINS 2>/dev/null || echo /usr/lib/"$(dpkg-architecture -qDEB_HOST_MULTIARCH)"/qt6/plugins)
    for plugin in sqldrivers/libqsqlite.so sqldrivers/libqsqlmysql.so sqldrivers/libqsqlpsql.so platforms/libqxcb.so; do
        driver=$(package_of "$plugins/$plugin")
        if [[ -z $driver ]]; then
            fault "no Debian package holds the plugin $plugins/$plugin"
        elif ! grep -qx "$driver" "$work/declared"; then
            fault "$driver (the plugin $plugin) is not in Depends"
        fi
        echo "$driver" >>"$work/needed"
    done
    while IFS= read -r owner; do
        grep -qx "$owner" "$work/needed" || fault "Depends names $owner, which nothing needs"
    done <"$work/declared"
}

check_control
check_installation_folder
check_programs
check_desktop_entry
check_dependencies
check_lintian

echo "Depends: $(field Depends)"
if ((faults)); then
    echo "package check: $faults fault(s) in $deb" >&2
    exit 1
fi
echo "package check: $deb is sound"
