#!/bin/bash
# Assembles the portable program directory: assemble.sh BUILD DIRECTORY.
# The programs are renewed. So is every other file that is still one of those that were delivered, whose sums stand in
# .delivered; one that the user has changed, or put a link in the place of, stays. The catalogue is the user's from the
# beginning: it is written only where there is none, with the demonstration and the emulators of those systems whose
# directory of games, roms/SYSTEM, holds games already. That directory is made for every system that the machine has an
# emulator of.
set -euo pipefail

build=$1
mkdir -p "$2/LNG" "$2/demo"
directory=$(cd "$2" && pwd)
delivered=$directory/.delivered # lines as sha256sum writes them, one for each version of each file
sources=$(dirname "$0")/../data
beside=$build/data/beside
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# In one step, also while a copy of a program runs.
place() { # mode, source, name
    local new
    new=$directory/$(dirname "$3")/.$(basename "$3").new
    install -m "$1" "$2" "$new"
    mv "$new" "$directory/$3"
}
record() { # file, name
    printf '%s  %s\n' "$(sha256sum <"$1" | cut -d' ' -f1)" "$2"
}
missing() { # name
    [ ! -e "$directory/$1" ] && [ ! -L "$directory/$1" ]
}
changed() { # source, name
    local file=$directory/$2
    missing "$2" && return 1
    [ ! -L "$file" ] && [ -f "$file" ] || return 0
    ! cmp -s "$1" "$file" && ! grep -qxF "$(record "$file" "$2")" "$delivered"
}
renew() { # source, name
    local line
    line=$(record "$1" "$2")
    grep -qxF "$line" "$delivered" || printf '%s\n' "$line" >>"$delivered"
    cmp -s "$1" "$directory/$2" || place 644 "$1" "$2"
}
deliver() { # source, name
    changed "$1" "$2" || renew "$1" "$2"
}

touch "$delivered"
place 755 "$build/Zembrolix" Zembrolix
place 755 "$build/converter/Cvtgif15.exe" Cvtgif15.exe
place 755 "$build/companion/zembro" zembro

for name in Zembro.cfg Zembro.txt Zembro.faq; do
    deliver "$beside/$name" "$name"
done
# Each system of the database has its block in the notes: of these two, one alone would be renewed in vain.
pair=(Zembro.sye Zembro.rom)
if changed "$beside/Zembro.sye" Zembro.sye || changed "$beside/Zembro.rom" Zembro.rom; then
    for name in "${pair[@]}"; do
        ! missing "$name" || renew "$beside/$name" "$name"
    done
else
    for name in "${pair[@]}"; do
        renew "$beside/$name" "$name"
    done
fi
for language in "$beside"/LNG/*.LNG; do
    deliver "$language" "LNG/$(basename "$language")"
done
for game in "$build"/data/demo/games/* "$sources"/demo/captures/*; do
    deliver "$game" "demo/$(basename "$game")"
done

missing Zembro.emu || exit 0
# The catalogue as delivered lists the demonstration games, and needs to know where they and their emulator are.
stella=$(command -v stella || true)
[ -n "$stella" ] || stella=/usr/games/stella
escaped() { printf '%s' "$1" | sed 's/[&\\|]/\\&/g'; }
sed -e "s|@STELLA@|$(escaped "$stella")|" -e "s|@DEMO@|$(escaped "$directory/demo")|" "$beside/Zembro.emu" \
    >"$work/Zembro.emu"
mkdir -p "$directory/roms/Atari 2600"
"$build/finder/BuscaEmuladores" "$sources/emuladores.tsv" "$directory" "$work/Zembro.emu" >"$work/found" ||
    echo "The emulators of this machine aren't configured." >&2
[ ! -s "$work/found" ] || sed 's/^/Configured /' "$work/found"
place 644 "$work/Zembro.emu" Zembro.emu
