#!/bin/bash
# Makes the portable archive out of the release: portable.sh [DIRECTORY], build/dist if none is named. The program
# directory, with all libraries that it needs beside it but those of the C library.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/release_build.sh
packaging/install.sh play

out=${1:-build/dist}
mkdir -p "$out"
out=$(cd "$out" && pwd)
name=zembrolix-$version
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
umask 022
cmake --install build/release --prefix "$work/usr" --strip >/dev/null
cmake --install build/release --prefix "$work/usr" --strip --component portable >/dev/null
program=$work/$name
mkdir -p "$program"/{lib,plugins,fonts,licenses}
packaging/portable/fill.sh "$work/usr" "$program"

# Plugins that are used: what shows windows, reads captures and takes what is typed.
plugins=$(qmake6 -query QT_INSTALL_PLUGINS)
for plugin in platforms/libq{xcb,wayland-generic,offscreen} wayland-shell-integration/libxdg-shell \
    wayland-decoration-client/libbradient imageformats/libq{gif,jpeg} \
    platforminputcontexts/lib{compose,ibus}platforminputcontextplugin; do
    mkdir -p "$program/plugins/$(dirname "$plugin")"
    cp "$plugins/$plugin.so" "$program/plugins/$plugin.so"
done
printf '[Paths]\nPrefix = .\nPlugins = plugins\n' >"$program/qt.conf"

# Libraries, under the names by which they are looked for: a stick may know no links. "NAME PATH" for each.
elf() { find "$program" -type f \( -name '*.so*' -o -perm -u+x \) -exec sh -c 'head -c 4 "$1" | grep -q ELF' sh {} \; -print; }
mapfile -t binaries < <(elf | sort)
archives=$(gcc -print-file-name=libarchive.so) # the program loads it where it reads one, without being linked to it
{
    ldd "${binaries[@]}" "$archives"
    objdump -p "$archives" | awk -v path="$archives" '$1 == "SONAME" { print $2, "=>", path }'
} | awk '$2 == "=>" { print $1, $3 } /not found/ { print "missing:", $1 >"/dev/stderr"; bad = 1 } END { exit bad }' |
    grep -vE '^(ld-linux.*|lib(c|m|dl|rt|pthread|util|resolv|anl|nsl)\.so\.[0-9]+) ' | sort -u >"$work/libraries"
while read -r library path; do
    install -m 644 "$path" "$program/lib/$library"
done <"$work/libraries"
cp /usr/share/fonts/truetype/liberation/Liberation{Sans,Mono}-{Regular,Bold}.ttf "$program/fonts"

# Each finds the others from where it stands itself.
for binary in $(cd "$program" && elf | sed "s|^$program/||"); do
    case $binary in
    lib/*) place='$ORIGIN' ;;
    plugins/*) place='$ORIGIN/../../lib' ;;
    *) place='$ORIGIN/lib' ;;
    esac
    patchelf --force-rpath --set-rpath "$place" "$program/$binary"
done

# The licences of what comes from Debian, and where its sources are.
package_of() { # file
    local real
    real=$(readlink -f "$1")
    { dpkg -S "$real" 2>/dev/null || dpkg -S "${real#/usr}" 2>/dev/null || dpkg -S "$1"; } | head -n 1 | cut -d: -f1
}
{
    awk '{ print $2 }' "$work/libraries"
    (cd "$program/plugins" && find . -name '*.so' -printf "$plugins/%P\n")
    echo /usr/share/fonts/truetype/liberation/LiberationSans-Regular.ttf
} | while read -r file; do package_of "$file"; done | sort -u >"$work/packages"
{
    echo "Beside the program, whose licence is LICENSE, this directory holds libraries and fonts of Debian. The"
    echo "copyright of each stands here under the name of its package. Their sources are those of these"
    echo "versions, at https://snapshot.debian.org; each library can be exchanged for another build of it."
    echo
    while read -r package; do
        dpkg-query -W -f '${Package} ${Version} (source: ${source:Package} ${source:Version})\n' "$package"
        cp "/usr/share/doc/$package/copyright" "$program/licenses/$package"
    done <"$work/packages"
    echo
    for licence in /usr/share/common-licenses/*; do
        [ -L "$licence" ] || echo "the text of $(basename "$licence"): common/$(basename "$licence")"
    done
} >"$program/licenses/README"
mkdir "$program/licenses/common"
find /usr/share/common-licenses -type f -exec cp {} "$program/licenses/common" \;

packaging/portable/manifest.sh "$program"

archive=$name-linux-$(uname -m).tar.zst
tar -C "$work" --sort=name --mtime="@$SOURCE_DATE_EPOCH" --owner=0 --group=0 --numeric-owner --mode=u=rwX,go=rX \
    --format=gnu -c "$name" | zstd -q "-${ZSTD_CLEVEL:-19}" --long=27 -T1 -f -o "$out/$archive"
size=$(stat -c %s "$out/$archive")
[ "$size" -lt 40000000 ] || { echo "$archive has $size bytes." >&2; exit 1; }
echo "$out/$archive"
