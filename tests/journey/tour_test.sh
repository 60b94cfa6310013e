#!/bin/bash
# The tour over a program directory assembled from a build: tour_test.sh BUILD. It has to end well, and to leave
# its four pictures in their sizes, the main screen at its end as it was ahead of the game but for the list's focus.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
build=$1
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
fail() { echo "tour_test: $*" >&2; exit 1; }

"$here/../../packaging/assemble.sh" "$build" "$work/program"
# What the emulator keeps of its own stays out of the user's home.
HOME=$work "$here/../with_screen.sh" "$here/../../packaging/tour.sh" "$work/program" "$work/pictures"

size() { identify -format '%wx%h' "$work/pictures/$1"; }
[ "$(ls "$work/pictures")" = "$(printf '%s\n' back-again.png first-run.png main-screen.png running-game.png)" ] ||
    fail "other pictures: $(ls "$work/pictures")"
for screen in main-screen.png back-again.png; do
    [ "$(size $screen)" = 411x381 ] || fail "$screen is $(size $screen)"
done
# The frame of the control that has the focus and its dots are some 900.
different=$(compare -metric AE -fuzz 20% "$work/pictures/main-screen.png" "$work/pictures/back-again.png" null: 2>&1) || true
[ "$different" -lt 1100 ] || fail "$different pixels of the main screen changed"
