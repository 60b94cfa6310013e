#!/bin/bash
# Makes what is handed on, in build/dist: the package for Debian, the portable archive, the sources, and their sums.
# Equal sources, built by equal tools, give equal bytes.
set -euo pipefail
cd "$(dirname "$0")/.."
[ -z "$(git status --porcelain)" ] || { echo "release.sh: there are changes that aren't committed." >&2; exit 1; }
. packaging/release_build.sh

rm -rf build/dist
packaging/deb.sh
packaging/portable.sh
sources=build/dist/zembrolix-$version.tar.xz
git archive --format=tar --prefix="zembrolix-$version/" HEAD | xz -6 -T1 >"$sources"
echo "$PWD/$sources"
cd build/dist
sha256sum ./*.* | sed 's| \./| |' >SHA256SUMS
cat SHA256SUMS
