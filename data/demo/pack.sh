#!/bin/sh
# A file in an archive of its own, with equal bytes from equal bytes: pack.sh FILE ARCHIVE.
set -eu
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
file=$work/$(basename "$1")
cp "$1" "$file"
chmod 644 "$file"
export TZ=UTC # an archive keeps local times
touch -d 1990-01-01T00:00:00 "$file"
rm -f "$2"
zip -q -j -X "$2" "$file"
