#!/bin/bash
# Starts the program by a command that can't, takes a picture of the box that says why, accepts it, and expects a failure:
# box.sh PICTURE COMMAND...
set -euo pipefail
picture=$1
shift
fail() { echo "box: $*" >&2; exit 1; }

"$@" 2>/dev/null &
running=$!
trap 'kill $running 2>/dev/null || true' EXIT
for _ in $(seq 150); do
    box=$(xdotool search --onlyvisible --name '^Zembrolix$' 2>/dev/null | head -n 1) || true
    [ -z "$box" ] || break
    sleep 0.1
done
[ -n "$box" ] || fail "nothing is shown"
sleep 1
import -window "$box" "$picture"
xdotool windowactivate --sync "$box" key Return
! wait "$running" || fail "it doesn't fail"
trap - EXIT
