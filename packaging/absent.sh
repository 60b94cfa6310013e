#!/bin/bash
# Starts the program by a command, presses the play button where the emulator of the demonstration isn't on the machine, takes a
# picture of the box that says so, accepts it and leaves: absent.sh PICTURE COMMAND...
set -euo pipefail
picture=$1
shift
fail() { echo "absent: $*" >&2; exit 1; }
window() { # title pattern
    local id
    for _ in $(seq 150); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) || true
        [ -n "$id" ] && { echo "$id"; return; }
        sleep 0.1
    done
    return 1
}

"$@" &
running=$!
trap 'kill $running 2>/dev/null || true' EXIT
screen=$(window '^Zembrolix v2\.0$') || fail "no main screen"
sleep 1
xdotool mousemove --window "$screen" 184 341 click 1
box=$(window '^Zembrolix$') || fail "no box"
sleep 1
import -window "$box" "$picture"
xdotool windowactivate --sync "$box" key Return
for _ in $(seq 50); do
    xdotool search --onlyvisible --name '^Zembrolix$' >/dev/null 2>&1 || break
    sleep 0.1
done
! xdotool search --onlyvisible --name '^Zembrolix$' >/dev/null 2>&1 || fail "the box stays"
xdotool windowactivate --sync "$screen" key ctrl+q
wait "$running" || fail "it ended with status $?"
trap - EXIT
