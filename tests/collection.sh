#!/bin/bash
# Walks every command of zembro on one collection with the emulators of this machine: collection.sh BUILD. For running by
# hand, on a machine with Stella, Mednafen, mGBA and DOSBox; CI has not all of them. Assembles a new program directory from
# the build, makes tiny games that run for ever, configures what is found, plays one game with each emulator, spoils the
# files, mends them, moves the directory, and brings a copy back. Each call runs once for its words and once with --json,
# whose shape is compared with docs/zembro.schema.json. Prints a line for each step; ends with 1 where one isn't as it
# should be. With COLLECTION_LOG=FILE all answers go there.
set -u
here=$(cd "$(dirname "$0")" && pwd)
if [ -z "${COLLECTION_SCREEN:-}" ]; then
    COLLECTION_SCREEN=1 exec "$here/with_screen.sh" "$0" "$@"
fi
build=$(cd "$1" && pwd)
work=$(mktemp -d)
program=$work/Zembrolix
log=${COLLECTION_LOG:-$work/log}
bad=0
trap 'rm -rf "$work"' EXIT
export HOME=$work/home XDG_STATE_HOME=$work/state TMPDIR=$work/tmp SDL_AUDIODRIVER=dummy PATH=$PATH:/usr/games
unset SDL_VIDEODRIVER ZEMBRO_LOG
mkdir -p "$HOME" "$TMPDIR"
chmod 700 "$TMPDIR"
"$here/../packaging/assemble.sh" "$build" "$program" >/dev/null || exit 1
cd "$program" || exit 1
# shellcheck source=../packaging/press_play.sh
. "$here/../packaging/press_play.sh"

verdict() { # what, fine or not, why not
    if [ "$2" = fine ]; then
        printf 'ok    %s\n' "$1"
    else
        printf 'WRONG %s: %s\n' "$1" "$3"
        bad=1
    fi
}

shaped() { # definition of the schema; the answer on the standard input
    python3 -c '
import json, sys
import jsonschema
schema = json.load(open(sys.argv[1]))
schema["$ref"] = "#/$defs/" + sys.argv[2]
jsonschema.validate(json.load(sys.stdin), schema)' "$here/../docs/zembro.schema.json" "$1" 2>&1 | tail -n 1
}

answer= # of the last call, in words
step() { # status that is expected, words that are expected, arguments; with BEFORE a command that runs ahead of each call
    local expected=$1 words=$2 status json odd
    shift 2
    eval "${before:-}"
    answer=$(./zembro "$@" 2>&1)
    status=$?
    { printf '\n$ zembro'; printf ' %q' "$@"; printf '\n%s\n(status %s)\n' "$answer" "$status"; } >>"$log"
    if [ "$status" -ne "$expected" ]; then
        verdict "$*" not "status $status, not $expected; $(tail -n 1 <<<"$answer")"
    elif ! grep -qF -- "$words" <<<"$answer"; then
        verdict "$*" not "no word of $words"
    else
        eval "${before:-}"
        json=$(./zembro "$@" --json 2>/dev/null)
        odd=$(shaped "${definition:-$1}" <<<"$json")
        verdict "$*" "${odd:-fine}" "$odd"
    fi
}

nes() { # an iNES file whose program loops
    python3 - "$1" <<'END'
import sys
program = bytearray(16384)
program[:4] = b"\x78\x4c\x01\xc0" # sei; jmp itself
program[-6:] = b"\x00\xc0" * 3
open(sys.argv[1], "wb").write(b"NES\x1a\x01\x01" + bytes(10) + bytes(program) + bytes(8192))
END
}
gba() { # a header and a branch to itself
    python3 - "$1" <<'END'
import sys
image = bytearray(32768)
image[:4] = (0xEA00002E).to_bytes(4, "little")
image[0xA0:0xA8], image[0xB2] = b"LOOPLOOP", 0x96
image[0xBD] = (-(sum(image[0xA0:0xBD]) + 0x19)) & 0xFF
image[0xC0:0xC4] = (0xEAFFFFFE).to_bytes(4, "little")
open(sys.argv[1], "wb").write(image)
END
}

plays() { # system, emulator, game, signal, status that is expected, key: it shows a window, gets the key, then the signal
    local child window shown=no status line
    ./zembro play "$1" "$2" "$3" >"$work/played" 2>&1 &
    child=$!
    for _ in $(seq 60); do
        sleep 0.25
        window=$(xdotool search --onlyvisible --name '.*' 2>/dev/null | tail -n 1)
        [ -n "$window" ] && shown=yes && break
        kill -0 "$child" 2>/dev/null || break
    done
    sleep 2
    [ -z "${6:-}" ] || { xdotool key "$6" && sleep 1; }
    local emulator
    emulator=$(pgrep -P "$child" | head -n 1)
    { [ -n "$emulator" ] && [ "$emulator" -gt 1 ] && kill "-$4" "$emulator"; } 2>/dev/null
    wait "$child"
    status=$?
    line=$(tail -n 1 "$work/played")
    printf '\n$ zembro play %q %q %q\n%s\n(status %s)\n' "$1" "$2" "$3" "$(cat "$work/played")" "$status" >>"$log"
    [ "$shown" = yes ] || line="no window; $line"
    [ "$shown" = yes ] && [ -n "$emulator" ] && [ "$status" = "$5" ] && verdict "play $1 $2 $3, $4: $line" fine ||
        verdict "play $1 $2 $3, $4" not "status $status, not $5; $line"
}

echo "--- what is found"
nes "roms/NES/Loop, The (Europe) (Rev 1).nes"
nes "roms/NES/Loop, The (Japan).nes"
nes "roms/NES/another_loop.nes"
gba "roms/Game Boy Advance/Loop Advance (USA).gba"
mkdir -p dosgames
printf '\xb8\x03\x4c\xcd\x21' >"roms/MS-DOS/ENDS.COM" # ends with 3
printf '\xeb\xfe' >"roms/MS-DOS/LOOPS.COM"
step 1 '+Mednafen NES' find
./zembro find --write >>"$log" 2>&1
step 0 '' find
step 0 'Loop' list nes
step 0 'Loop Advance' list "game boy advance" mgba
step 0 'Prisma' list

echo "--- dry runs, and games played"
step 0 'hedgerow' command atari stella hedgerow
step 0 '-force_module nes' command nes mednafen another
definition=error step 2 'Loop, The (Japan).nes' command nes mednafen loop
step 0 'Loop Advance (USA).gba' command "game boy advance" mgba loop
step 0 'ENDS.COM' command ms-dos dosbox ends
plays atari stella prisma TERM 0 F12
plays nes mednafen another TERM 0 F9
plays "game boy advance" mgba loop TERM 0
plays "game boy advance" "mednafen gba" loop KILL 137
plays ms-dos dosbox loops TERM 0
cp Zembro.emu "$work/Zembro.emu"
printf '#!/bin/sh\necho "no such core" >&2\nexit 3\n' >"$work/dies"
chmod +x "$work/dies"
sed -i "s|^EXE=/usr/games/mgba|EXE=$work/dies|" Zembro.emu
step 3 'status 3' play "game boy advance" mgba loop
sed -i "s|^EXE=$work/dies|EXE=/usr/games/mbga|" Zembro.emu
step 2 '/usr/games/mgba' play "game boy advance" mgba loop
cp "$work/Zembro.emu" Zembro.emu

echo "--- the last launch of the main program"
definition=error step 2 'There is no file' why
export ZEMBRO_LOG=$work/state.log
LC_ALL=en_GB.UTF-8 "$build/companion/PrimerosAjustes" "$program" "Atari 2600" Stella
press_play
sleep 4
xdotool key F12
sleep 1
emulator=$(pgrep -P "$main" | head -n 1)
{ [ -n "$emulator" ] && [ "$emulator" -gt 1 ] && kill -KILL "$emulator"; } 2>/dev/null
sleep 2
kill -TERM "$main" 2>/dev/null
wait "$main" 2>/dev/null
step 1 'SIGKILL' why

echo "--- what is wrong, and its repair"
sed -i 's|^EXE=/usr/games/mgba|EXE=/usr/games/mbga|; 0,/^'"'"'----/{/^'"'"'----/d}' Zembro.emu
mv demo/prisma.gif "demo/prisma (1).gif"
step 1 'Perhaps this one is meant: /usr/games/mgba' check
step 1 'prisma' check atari stella
step 1 "+'-----" check --mend
./zembro check --mend --write >>"$log" 2>&1
step 1 '/usr/games/mgba' check
sed -i 's|^EXE=/usr/games/mbga|EXE=/usr/games/mgba|' Zembro.emu
mv "demo/prisma (1).gif" demo/prisma.gif
: >Zembro.rom
step 1 'This file is empty' check

cp "$build/data/beside/Zembro.rom" Zembro.rom

echo "--- descriptions"
step 1 'The Loop' describe nes
./zembro describe nes --write >>"$log" 2>&1
step 0 'The Loop' list nes
cat >"$work/nes.dat" <<'END'
<?xml version="1.0"?>
<datafile><game name="another_loop"><description>Another Loop, by a DAT</description><rom name="another_loop.nes" size="24592"/></game></datafile>
END
step 1 'Another Loop, by a DAT' describe nes --from "$work/nes.dat" --replace
printf '<gameList><game><path>./another_loop.nes</path><name>Another by a list</name></game></gameList>' >"$work/gamelist.xml"
step 1 'Another by a list' describe nes --from "$work/gamelist.xml" --replace
printf 'another_loop.nes\tAnother by lines\n' >"$work/nes.tsv"
step 1 'Another by lines' describe nes --from "$work/nes.tsv" --replace
printf '#!/bin/sh\necho "<mame><machine name=\\"another_loop\\"><description>Another by MAME</description></machine></mame>"\n' >"$work/mame"
chmod +x "$work/mame"
"$work/mame" -listxml >"$work/mame.xml"
step 1 'Another by MAME' describe nes --from "$work/mame.xml" --replace
cp Zembro.emu "$work/Zembro.emu"
sed -i "0,/^EXE=.*mednafen/s||EXE=$work/mame|" Zembro.emu
step 1 'Another by MAME' describe nes --mame --replace
cp "$work/Zembro.emu" Zembro.emu
./zembro describe nes --from "$work/nes.tsv" --replace --write >>"$log" 2>&1
step 0 'Another by lines' list nes

echo "--- captures"
mkdir "$work/pictures"
for picture in 'Loop, The (Japan).png' 'The Loop (Europe).jpg' 'another_loop.bmp' 'Loop Advance.webp'; do
    convert -size 800x600 plasma:red-blue "$work/pictures/$picture"
done
step 1 'LOOP, THE (JAPAN).GIF' captures nes mednafen --from "$work/pictures"
./zembro captures nes mednafen --from "$work/pictures" --write >>"$log" 2>&1
./zembro captures "game boy advance" mgba --from "$work/pictures" --write >>"$log" 2>&1
step 0 'LOOP, THE (JAPAN).GIF' list nes
step 0 'Loop Advance (USA).GIF' list "game boy advance" mgba
[ "$(identify -format %w 'capturas/NES/LOOP, THE (JAPAN).GIF')" = 640 ] && verdict "640 wide" fine ||
    verdict "640 wide" not "$(identify 'capturas/NES/LOOP, THE (JAPAN).GIF' 2>&1)"
step 1 'hedgerow.png' captures atari stella --last

echo "--- copies, and another place"
step 0 '' save
cp Zembro.emu "$work/Zembro.emu"
cp -r "$program" "$work/Elsewhere"
cd "$work/Elsewhere" || exit 1
sed -i "s|^ROM=roms/NES/|ROM=$program/roms/NES/|" Zembro.emu
mv "$program" "$work/gone"
step 1 "+ROM=" move
step 1 'zembro move' check
./zembro move --write >>"$log" 2>&1
step 0 'Another by lines' list nes
step 1 '+ROM=/elsewhere/' move --old roms/NES --new /elsewhere
: >Zembro.rom
step 1 'A copy holds it as it was: zembro restore' check
step 1 'Another by lines' restore
./zembro restore --write >>"$log" 2>&1
step 0 'Another by lines' list nes
step 0 '' restore --list

echo "--- for other programs"
step 0 'another_loop.nes' export nes
step 0 'another_loop.nes' export nes --pegasus
step 0 'zembro' help
exit $bad
