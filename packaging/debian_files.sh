#!/bin/bash
# Makes the directory by which the package for Debian is built: debian_files.sh VERSION DIRECTORY. The change in it is of
# SOURCE_DATE_EPOCH. Where the environment names a ZEMBROLIX_HOMEPAGE, that is the address of the program; else it has none.
set -euo pipefail
version=$1
out=$2

cp -r "$(dirname "$0")/debian" "$out"
homepage=${ZEMBROLIX_HOMEPAGE:-}
escaped=$(printf '%s' "$homepage" | sed 's/[&\\|]/\\&/g')
sed -e "s/@VERSION@/$version/" -e "s/@DATE@/$(date -R -d "@$SOURCE_DATE_EPOCH")/" "$out/changelog.in" >"$out/changelog"
sed -e "s/@VERSION@/$version/" ${homepage:+-e "s|^Source: .*|Source: $escaped|"} "$out/copyright.in" >"$out/copyright"
sed -e "s|^@HOMEPAGE@\$|${homepage:+Homepage: $escaped}|" -e '/^@HOMEPAGE@$/d' "$out/control.in" >"$out/control"
rm "$out"/*.in
