#!/bin/bash
# An old program directory, made on two drives of another system, is taken over, and its games for DOS are played from the
# main screen, ten emulators of five systems; what a game saves is there also where the program was left or killed
# meanwhile: dos_test.sh BUILD. Skipped, with status 77, where there is no DOSBox or no nasm.
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
c="$work/old c" d=$work/cd
mkdir -p "$c/EMUS/Painter 1" "$c/ZEMBRO" "$d/PROGS" "$d/Roms/Dirs/Game One" "$d/Roms/Zips" "$d/Roms/Accents" "$d/Roms/Notes"
cp "$build/tests/dos/paints.com" "$c/EMUS/Painter 1/PAINTS.COM"
printf 'a picture' >"$d/Roms/The first picture.pic"
printf 'a second one' >"$d/Roms/Notes/The second picture.pic"
printf 'a child' >"$d/Roms/Accents/niño.pic"
printf 'zipped' >"$work/Long name inside.pic"
for name in 'Zipped game.zip' super.zip 'Long Game (1).zip' alone.zip; do
    (cd "$work" && zip -q "$d/Roms/Zips/$name" 'Long name inside.pic')
done
rm "$work/Long name inside.pic"
for place in "$c/EMUS/ALPHA" "$c/EMUS/Beta the Second" "$c/EMUS/GAMMA" "$c/EMUS/DELTA" "$d/PROGS"; do
    mkdir -p "$place"
    cp "$build/tests/dos/tells.com" "$place/TELLS.COM"
done
pair() { # name, executable, type, games, parameters ahead and behind
    printf '%s\r\n' "+$1" 'WEB2=' "EXE=$2" "XDI=$3" "ROM=$4" 'IMG=' "PAR1=$5" "PAR2=$6"
}
system() { printf '%s\r\n' "-$1" 'WEB1=' "${@:2}" "'"; }
close_system() { printf '%s\r\n' "'------"; }
next_pair() { printf '%s\r\n' "'"; }
{
    system Art '*.PIC' '*.ZIP'
    pair Painter 'C:\EMUS\PAINTER 1\PAINTS.COM' 0 'D:\ROMS\' -A ''
    next_pair
    pair Unpacker 'C:\EMUS\ALPHA\TELLS.COM' 0 'D:\ROMS\ZIPS\' '-X 1' ''
    close_system
    system Boxes '*.PIC'
    pair 'Box by name' 'C:\EMUS\ALPHA\TELLS.COM' 1 'D:\ROMS\DIRS\' -Dir ''
    next_pair
    pair 'Box of two' 'c:\emus\beta the second\tells.com' 1 'd:/roms/dirs' '' -last
    close_system
    system Cases '*.ZIP'
    pair 'Case beside' 'C:\EMUS\GAMMA\TELLS.COM' 2 'D:\ROMS\ZIPS\' '' 'alone\longna~1.pic'
    next_pair
    pair 'Case of zip' 'D:\PROGS\TELLS.COM' 3 'D:\ROMS\ZIPS\' '-zip' ''
    close_system
    system Direct '*.PIC'
    pair 'Direct one' 'C:\EMUS\DELTA\TELLS.COM' 5 '' ' -b D:\ROMS\THEFIR~1.PIC' ''
    next_pair
    pair 'Direct two' 'D:\PROGS\TELLS.COM' 5 '' '' ''
    close_system
    system Extra '*.PIC'
    pair 'Extra accents' 'C:\EMUS\DELTA\TELLS.COM' 0 'D:\ROMS\ACCENTS\' '' ''
    next_pair
    pair 'Extra note' 'D:\PROGS\TELLS.COM' 0 'D:\ROMS\NOTES\' '' ''
    close_system
    printf '[EOF]\r\n'
} >"$c/ZEMBRO/Zembro.emu"
{
    printf '%s\r\n' Art 'THE FIRST PICTURE.PIC,"First of all"' "'" Boxes "'" Cases "'" Direct "'" \
        Extra 'THE SECOND PICTURE.PIC,"The only note"' "'" '[EOF]' 'Parametros especificos' \
        'THE SECOND PICTURE.PIC,Extra,Extra note,-Mine' "'" , ',""'
} | iconv -t cp1252 >"$c/ZEMBRO/Zembro.rom"

printf 'C=%s\nD=%s\n' "$c" "$d" >"$work/program/Zembro.uni"
said=$("$work/program/zembro" adopt "$c/ZEMBRO" --write) || fail "adopt: $said"
[ "$(grep -c ': works\.$' <<<"$said")" -eq 10 ] || fail "adopt: $said"
grep -q '^Art / Painter: works\.$' <<<"$said" || fail "adopt: $said"

start() { # the places of system and emulator in their lists: the program with these selected, and its game begun
    sed -i "s/^LastSisUsed = .*/LastSisUsed = $1\r/;s/^LastEmuUsed = .*/LastEmuUsed = $2\r/" "$work/program/Zembro.cfg"
    "$work/program/Zembrolix" 2>"$work/log" &
    program=$!
    main=$(timeout 60 xdotool search --sync --onlyvisible --pid $program --name '^Zembrolix v2' | head -1)
    xdotool windowfocus --sync "$main"
    xdotool key --clearmodifiers F9
}
finish() {
    wait_for 30 grep -q ' status 0 after ' "$work/log" || fail "the end wasn't seen: $(cat "$work/log")"
    xdotool windowfocus --sync "$main"
    xdotool key --clearmodifiers ctrl+q
    wait $program || fail "it ended with status $?"
    program=
}
start 0 0
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
finish

# The others tell what they got: the line behind the program's name, the directory, what the line's last file holds.
plays() { # places of system and emulator, directory of its program, what is told
    rm -f "$3/OUT"
    start "$1" "$2"
    finish
    local told
    told=$(tr '\0' '|' <"$3/OUT" | iconv -f cp437) || fail "pair $1 $2: no game: $(cat "$work/log")"
    [ "$told" = "$4" ] || fail "pair $1 $2 tells '$told' instead of '$4'"
}
plays 0 1 "$c/EMUS/ALPHA" ' -x 1 E:\LONGNA~1.PIC|EMUS\ALPHA|zipped'
plays 1 0 "$c/EMUS/ALPHA" ' -dir gameon~1|EMUS\ALPHA|'
plays 1 1 "$c/EMUS/Beta the Second" '  gameon~1 -last|EMUS\BETATH~1|'
plays 2 0 "$c/EMUS/GAMMA" '   alone alone\longna~1.pic|EMUS\GAMMA|zipped'
plays 2 1 "$d/PROGS" ' -zip alone|PROGS|'
plays 3 0 "$c/EMUS/DELTA" ' -b d:\roms\thefir~1.pic|EMUS\DELTA|a picture'
plays 3 1 "$d/PROGS" '|PROGS|'
shown=$("$work/program/zembro" command Extra 'Extra accents' niño.pic | sed -n 's/.*, shown as //p')
plays 4 0 "$c/EMUS/DELTA" "  E:\\$shown|EMUS\\DELTA|a child"
plays 4 1 "$d/PROGS" '  D:\ROMS\NOTES\THESEC~1.PIC  -Mine|PROGS|'

# A game under another name saves beside itself also where the program is left, or killed, ahead of its end.
accents="$d/Roms/Accents"
printf '%s\r\n' "@echo saved > E:\\${shown%.PIC}.SAV" '@md E:\STATES' '@echo slot > E:\STATES\ONE' \
    '@C:\EMUS\PAINTE~1\PAINTS.COM %1' >"$c/EMUS/DELTA/SAVES.BAT"
sed -i '/^+Extra accents/,/^XDI/s/^EXE=.*/EXE=C:\\EMUS\\DELTA\\SAVES.BAT\r/' "$work/program/Zembro.emu"
export TMPDIR=$work/temporary
mkdir -m 700 "$TMPDIR"
leave() { xdotool windowfocus --sync "$main"; xdotool key --clearmodifiers ctrl+q; }
ended() { ! pgrep -f -- "-conf $TMPDIR/ZB-DOS-" >/dev/null; }
kill_it() { kill -9 "$program"; }
for ending in leave kill_it; do
    rm -rf "$accents"/*.SAV "$accents/STATES"
    start 4 0
    dosbox=$(timeout 60 xdotool search --sync --onlyvisible --name 'DOSBox.*PAINTS' | head -1)
    [ -n "$dosbox" ] || fail "$ending: no window of DOSBox: $(cat "$work/log")"
    wait_for 30 is_magenta || fail "$ending: the picture doesn't show"
    $ending
    wait $program 2>/dev/null || [ $ending = kill_it ] || fail "it ended with status $?"
    program=
    "$work/program/zembro" check >/dev/null || true
    [ -e "$TMPDIR"/ZB-DOS-*/files-E/"${shown%.PIC}.SAV" ] || fail "$ending: the drive of a game that goes on is gone"
    xdotool windowfocus --sync "$dosbox"
    xdotool key --clearmodifiers space
    wait_for 30 ended || fail "$ending: DOSBox stays"
    "$work/program/Zembrolix" 2>"$work/log" &
    program=$!
    main=$(timeout 60 xdotool search --sync --onlyvisible --pid $program --name '^Zembrolix v2' | head -1)
    wait_for 30 test -e "$accents/STATES/ONE" || fail "$ending: what was saved isn't back: $(cat "$work/log")"
    [ "$(tr -d '\r' <"$accents/niño.pic - .SAV")" = saved ] || fail "$ending: what was saved is lost"
    leave
    wait $program || fail "it ended with status $?"
    program=
    ! ls -d "$TMPDIR"/ZB-* 2>/dev/null || fail "$ending: left behind: $(ls -R "$TMPDIR")"
done
