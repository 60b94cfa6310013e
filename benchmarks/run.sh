#!/bin/bash
# Builds the release and the benchmarks, and prints medians over a directory of 6,600 files and 6,600 notes in random
# order, a tenth of them without a partner. Under a screen in memory of its own.
set -euo pipefail
cd "$(dirname "$0")/.."
if [ "${1:-}" != --measure ]; then
    packaging/install.sh build play screen
    cmake --preset release >/dev/null
    cmake --build --preset release
    cmake --build --preset release --target benchmarks
    exec tests/with_screen.sh "$0" --measure
fi

build=build/release
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
export BENCH_OUT=$work/times TMPDIR=$work XDG_RUNTIME_DIR=$work
chmod 700 "$work"

crlf() { sed 's/$/\r/'; }
world() { # directory, number of files and of notes
    local program=$1/program count=$2 number
    packaging/assemble.sh "$build" "$program" >/dev/null
    mkdir "$1/roms" "$1/captures"
    (cd "$1/roms" && seq -f 'GAME %05.0f.A26' "$count" | shuf --random-source=<(yes) | tr '\n' '\0' | xargs -0 touch)
    for number in $(seq -f '%05.0f' "$count"); do
        ln "data/demo/captures/prisma.gif" "$1/captures/GAME $number.GIF" 2>/dev/null ||
            cp "data/demo/captures/prisma.gif" "$1/captures/GAME $number.GIF"
    done
    {
        printf '%s\n' '-Atari 2600' 'WEB1=' '*.A26' "'" '+Bench' 'WEB2=' "EXE=$PWD/$build/benchmarks/bench_emulator" XDI=0 \
            "ROM=$1/roms/" "IMG=$1/captures/" PAR1= PAR2= "'$(printf '%070d' 0 | tr 0 -)" '[EOF]'
    } | crlf >"$program/Zembro.emu"
    {
        echo 'Atari 2600'
        seq -f '%05.0f' $((count / 10 + 1)) $((count + count / 10)) | shuf --random-source=<(yes) |
            awk '{ printf "GAME %s.A26,\"%s, number %s\"\n", $1, substr("A title of some length as games have it", 1, 8 + $1 % 31), $1 }'
        printf '%s\n' "'" '[' 'Parametros especificos' "'" fin 'fin,"fin"'
    } | crlf >"$program/Zembro.rom"
    {
        for _ in $(seq 9); do echo "'"; done
        printf '%s\n' '' '[General]' 'LastSisUsed = 0' 'LastEmuUsed = 0' 'SaveLastEmu&Sis = 1' 'TypeOfEditor = 1' \
            'MsgEndDOS = Finalizado' 'LanguageFile = ZB-ENG.LNG' 'DebugMode = 0' '' '[Filters]' 'CFG' 'ROMS' '' '[EOF]'
    } | crlf >"$program/Zembro.cfg"
    ls "$1/roms" >"$1/names"
}
median() { sort -g | awk '{ v[NR] = $1 } END { print v[int(NR / 2) + 1] }'; }
starts() { # name, command...
    local name=$1 figures=$work/figures
    shift
    for _ in $(seq 11); do
        "$build/benchmarks/bench_since" "$@"
    done >"$figures"
    echo "$name: $(cut -d' ' -f1 "$figures" | median) ms, $(cut -d' ' -f2 "$figures" | median) MiB"
}

echo "load before: $(cut -d' ' -f1-3 /proc/loadavg)"
world "$work/half" 3300
world "$work/whole" 6600
starts "floor, to its first paint" "$PWD/$build/benchmarks/bench_floor" "$work/whole/names"
starts "start, to the list painted" "$PWD/$build/benchmarks/bench_start" "$work/whole/program"
LD_PRELOAD=$PWD/$build/benchmarks/libbench_slow_disk.so \
    starts "start, where each file takes a millisecond" "$PWD/$build/benchmarks/bench_start" "$work/whole/program"
screen=$build/benchmarks/bench_screen
emulator=$PWD/$build/benchmarks/bench_emulator
BENCH_LIST_ONLY=1 "$screen" "$work/half/program" "$work/half/roms" "$emulator"
"$screen" "$work/whole/program" "$work/whole/roms" "$emulator"
for _ in 1 2 3; do
    BENCH_SLEEP=5000 "$screen" "$work/whole/program" "$work/whole/roms" "$emulator" | sed -n 's/^idle watch: //p'
done | sort -g | sed -n '2s/^/idle watch: /p'
echo "load after: $(cut -d' ' -f1-3 /proc/loadavg)"
