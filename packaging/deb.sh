#!/bin/bash
# Makes the package for Debian out of the release: deb.sh [DIRECTORY], build/dist if none is named. Checks it by lintian,
# its desktop entry and its description for shops of programs by their own tools.
set -euo pipefail
cd "$(dirname "$0")/.."
. packaging/release_build.sh

out=${1:-build/dist}
mkdir -p "$out"
out=$(cd "$out" && pwd)
package=zembrolix_${version}-1_$(dpkg --print-architecture).deb

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
source=$work/zembrolix-$version
mkdir "$source"
packaging/debian_files.sh "$version" "$source/debian"
cp CHANGELOG.md "$source/CHANGELOG"
export ZEMBROLIX_BUILD=$PWD/build/release
(umask 022 && cd "$source" && debian/rules binary) >"$work/log" 2>&1 || { cat "$work/log" >&2; exit 1; }
mv "$work/$package" "$out"

lintian --allow-root --fail-on error,warning "$out/$package"
dpkg-deb -x "$out/$package" "$work/unpacked"
desktop-file-validate "$work"/unpacked/usr/share/applications/*.desktop
appstreamcli validate --no-net --strict "$work"/unpacked/usr/share/metainfo/*.xml >"$work/said" || { cat "$work/said" >&2; exit 1; }
echo "$out/$package"
