#!/bin/bash
# What each start of the release loads: libraries_test.sh BUILD. The libraries that most names come from stand ahead, and
# the one that reads archives isn't among them.
set -uo pipefail
needed=$(readelf -dW "$1/Zembrolix" | sed -n 's/.*(NEEDED).*\[\(.*\)\]/\1/p')
fail() {
    printf 'libraries: %s\n%s\n' "$1" "$needed" >&2
    exit 1
}
[ "$(head -n 3 <<<"$needed")" = "$(printf 'libQt6%s.so.6\n' Core Gui Widgets)" ] || fail "others stand ahead"
for program in Zembrolix companion/zembro; do
    ! readelf -dW "$1/$program" | grep -q 'NEEDED.*libarchive' || fail "$program loads it before there is an archive"
done
echo "$(wc -l <<<"$needed") libraries, the toolkit's ahead"
