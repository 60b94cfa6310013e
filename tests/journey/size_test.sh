#!/bin/bash
# How large the program stands on a high screen, by itself and as its user says: size_test.sh BUILD.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
if [ "${1:-}" != --inside ]; then
    SCREEN_SIZE=3840x2160x24 exec "$here/../with_screen.sh" "$0" --inside "$@"
fi
build=$2
work=$(mktemp -d)
program=
trap '[ -z "$program" ] || kill $program 2>/dev/null; rm -rf "$work"' EXIT
fail() { echo "size_test: $*" >&2; exit 1; }
export HOME=$work QT_QPA_PLATFORM=xcb
unset QT_SCALE_FACTOR

"$here/../../packaging/assemble.sh" "$build" "$work/program" >/dev/null
# Settings as they stand behind the first run.
printf '%s\r\n' \' \' \' \' \' \' \' \' \' '' '[General]' 'LastSisUsed = 0' 'LastEmuUsed = 0' 'SaveLastEmu&Sis = 1' \
    'TypeOfEditor = 1' 'MsgEndDOS = Finalizado' 'LanguageFile = ZB-ESP.LNG' 'DebugMode = 0' '' '[Filters]' CFG ROMS '' '[EOF]' \
    >"$work/program/Zembro.cfg"

start() {
    "$work/program/Zembrolix" 2>/dev/null &
    program=$!
    window=$(timeout 60 xdotool search --sync --onlyvisible --pid $program --name '^Zembrolix v2' | head -1)
}
stand() { # width that is expected, and why
    local width
    for _ in $(seq 100); do
        eval "$(xdotool getwindowgeometry --shell "$window")"
        width=$WIDTH
        [ "$width" = "$1" ] && return
        sleep 0.05
    done
    fail "$2: $width wide, $1 expected"
}
leave() {
    kill $program
    wait $program 2>/dev/null || true
    program=
}

start
stand 822 "a high screen"
pick() { # keys, what is kept then
    xdotool windowfocus --sync "$window"
    xdotool key --clearmodifiers "$1"
    for _ in $(seq 100); do
        [ "$(tr -d '\r' 2>/dev/null <"$work/program/Zembro.tam")" = "$2" ] && return
        sleep 0.05
    done
    fail "what was picked by $1: $(cat "$work/program/Zembro.tam")"
}
# On this keyboard + needs Shift, and = doesn't.
pick ctrl+equal "Size = 2.25"
pick ctrl+plus "Size = 2.5"
pick ctrl+KP_Add "Size = 2.75"
pick ctrl+KP_Subtract "Size = 2.5"
pick ctrl+minus "Size = 2.25"
leave
start
stand 925 "what was picked"
leave
QT_SCALE_FACTOR=1 start
stand 411 "what the environment says"
xdotool windowfocus --sync "$window"
xdotool key --clearmodifiers ctrl+plus
sleep 1
pick ctrl+minus "Size = 2.25" # none of them counts
leave
keep() { printf 'Size = %s\r\n' "$1" >"$work/program/Zembro.tam"; }
keep 0.625
start
stand 411 "a part of another desktop's factor"
leave
keep 1.1
start
stand 452 "a size between the steps"
pick ctrl+plus "Size = 1.25"
leave
rm "$work/program/Zembro.tam"
xprop -root -f RESOURCE_MANAGER 8s -set RESOURCE_MANAGER $'Xft.dpi:\t144\n'
start
stand 617 "the desktop's own factor"
pick ctrl+plus "Size = 1.75"
leave
start
stand 719 "what was picked on a desktop with a factor of its own"
leave
keep 0.5
start
stand 411 "less than one"
leave
