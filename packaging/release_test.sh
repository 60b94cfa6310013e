#!/bin/bash
# Makes the release of what is committed twice, from clones in two directories, and compares it byte for byte; the second
# is compiled anew, by another umask, in another time zone and language. Then tries what is in it: the sums, the sources, and that
# nothing names the directory that it was built in.
set -euo pipefail
cd "$(dirname "$0")/.."
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "release_test: $*" >&2; exit 1; }
passed() { echo "release_test: $*"; }

git clone -q . "$work/one"
git clone -q . "$work/the second/of two"
(cd "$work/one" && packaging/release.sh) >"$work/log" 2>&1 || { tail "$work/log"; fail "the first release fails"; }
(umask 077 && cd "$work/the second/of two" && CCACHE_DISABLE=1 TZ=Asia/Tokyo LC_ALL=de_DE.UTF-8 packaging/release.sh) >"$work/log" 2>&1 ||
    { tail "$work/log"; fail "the second release fails"; }
diff -r "$work/one/build/dist" "$work/the second/of two/build/dist" || fail "the releases differ"
passed "two releases from two directories are equal:"
cat "$work/one/build/dist/SHA256SUMS"

cd "$work/one/build/dist"
sha256sum --quiet -c SHA256SUMS || fail "the sums are wrong"
mkdir "$work/unpacked"
dpkg-deb -x ./*.deb "$work/unpacked"
for archive in ./*.tar.*; do
    tar -C "$work/unpacked" -xf "$archive"
done
# The package's programs, of which the archive's are copies.
! grep -rlaF -e "$work" -e "$HOME/" "$work/unpacked/usr" || fail "something names the place where it was built"
passed "nothing names the place where it was built"
