#!/bin/bash
# An old program directory, made on two drives of another system, is taken over, and its game for DOS played from the main
# screen: dos_test.sh BUILD. Skipped, with status 77, where there is no DOSBox or no nasm.
set -euo pipefail
here=$(cd "$(dirname "$0")" && pwd)
if [ "${1:-}" != --inside ]; then
    command -v dosbox >/dev/null || { echo "DOSBox isn't installed."; exit 77; }
    [ -f "$1/tests/dos/paints.com" ] || { echo "There was no nasm to assemble the program for DOS."; exit 77; }
    exec "$here/../with_screen.sh" "$0" --inside "$@"
fi
build=$2
work=$(mktemp -d)
program=
trap '[ -z "$program" ] || kill $program 2>/dev/null; rm -rf "$work"' EXIT
fail() { echo "dos_test: $*" >&2; exit 1; }
wait_for() { # seconds, command: until it succeeds
    local end=$((SECONDS + $1))
    shift
    until "$@"; do
        [ $SECONDS -lt $end ] || return 1
        sleep 0.1
    done
}
export HOME=$work QT_QPA_PLATFORM=xcb QT_SCALE_FACTOR=1 SDL_AUDIODRIVER=dummy
unset WINEPREFIX

"$here/../../packaging/assemble.sh" "$build" "$work/program" >/dev/null
printf '[EOF]\r\n' >"$work/program/Zembro.emu"
printf '%s\r\n' \' \' \' \' \' \' \' \' \' '' '[General]' 'LastSisUsed = 0' 'LastEmuUsed = 0' 'SaveLastEmu&Sis = 1' \
    'TypeOfEditor = 1' 'MsgEndDOS = Finalizado' 'LanguageFile = ZB-ENG.LNG' 'DebugMode = 0' '' '[Filters]' CFG ROMS '' '[EOF]' \
    >"$work/program/Zembro.cfg"

# The old machine's two disks.
mkdir -p "$work/old c/EMUS/Painter 1" "$work/old c/ZEMBRO" "$work/cd/Roms"
cp "$build/tests/dos/paints.com" "$work/old c/EMUS/Painter 1/PAINTS.COM"
printf 'a picture' >"$work/cd/Roms/The first picture.pic"
printf '%s\r\n' '-Pictures' 'WEB1=' '*.PIC' "'" '+Painter' 'WEB2=' 'EXE=C:\EMUS\PAINTER 1\PAINTS.COM' 'XDI=0' 'ROM=D:\ROMS\' \
    'IMG=' 'PAR1=-A' 'PAR2=' "'------" '[EOF]' >"$work/old c/ZEMBRO/Zembro.emu"
printf '%s\r\n' Pictures 'THE FIRST PICTURE.PIC,"First of all"' "'" '[EOF]' 'Parametros especificos' "'" , ',""' \
    >"$work/old c/ZEMBRO/Zembro.rom"

printf 'C=%s\nD=%s\n' "$work/old c" "$work/cd" >"$work/program/Zembro.uni"
said=$("$work/program/zembro" adopt "$work/old c/ZEMBRO" --write) || fail "adopt: $said"
grep -q '^Pictures / Painter: works\.$' <<<"$said" || fail "adopt: $said"

"$work/program/Zembrolix" 2>"$work/log" &
program=$!
main=$(timeout 60 xdotool search --sync --onlyvisible --pid $program --name '^Zembrolix v2' | head -1)
xdotool windowfocus --sync "$main"
xdotool key --clearmodifiers F9
dosbox=$(timeout 60 xdotool search --sync --onlyvisible --name 'DOSBox.*PAINTS' | head -1)
[ -n "$dosbox" ] || fail "no window of DOSBox: $(cat "$work/log")"
is_magenta() {
    [ "$(import -window "$dosbox" -resize '1x1!' -depth 8 -format '%[hex:p{0,0}]' info: 2>/dev/null)" = FF00FF ]
}
wait_for 30 is_magenta || fail "the picture doesn't show"
wait_for 10 test -s "$work/old c/EMUS/Painter 1/PLAYED" || fail "the game wasn't opened"
[ "$(cat "$work/old c/EMUS/Painter 1/PLAYED")" = "a picture" ] || fail "another game was opened"

xdotool windowfocus --sync "$dosbox"
xdotool key --clearmodifiers space
gone() { ! xdotool search --onlyvisible --name DOSBox >/dev/null; }
wait_for 30 gone || fail "DOSBox stays"
wait_for 10 grep -q ' status 0 after ' "$work/log" || fail "the end wasn't seen: $(cat "$work/log")"
xdotool windowfocus --sync "$main"
xdotool key --clearmodifiers ctrl+q
wait $program || fail "it ended with status $?"
program=
