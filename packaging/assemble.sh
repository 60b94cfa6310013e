#!/bin/bash
# Assembles the portable program directory: assemble.sh BUILD DIRECTORY.
# The two programs are renewed; every other file that is there already is the user's, and stays.
set -euo pipefail

build=$1
mkdir -p "$2/LNG" "$2/demo"
directory=$(cd "$2" && pwd)

renew() { # source, name: in one step, also while a copy of it runs
    install -m 755 "$1" "$directory/.$2.new"
    mv "$directory/.$2.new" "$directory/$2"
}
add() { # source, name
    [ -e "$directory/$2" ] || [ -L "$directory/$2" ] || install -m 644 "$1" "$directory/$2"
}

renew "$build/Zembrolix" Zembrolix
renew "$build/converter/Cvtgif15.exe" Cvtgif15.exe

beside=$build/data/beside
for name in Zembro.sye Zembro.cfg Zembro.rom Zembro.txt Zembro.faq; do
    add "$beside/$name" "$name"
done
for language in "$beside"/LNG/*.LNG; do
    add "$language" "LNG/$(basename "$language")"
done
sources=$(dirname "$0")/../data
for game in "$build"/data/demo/games/* "$sources"/demo/captures/*; do
    add "$game" "demo/$(basename "$game")"
done

# The catalogue as delivered lists the demonstration games, and needs to know where they and their emulator are.
stella=$(command -v stella || true)
[ -n "$stella" ] || stella=/usr/games/stella
escaped() { printf '%s' "$1" | sed 's/[&\\|]/\\&/g'; }
catalogue=$(mktemp)
trap 'rm -f "$catalogue"' EXIT
sed -e "s|@STELLA@|$(escaped "$stella")|" -e "s|@DEMO@|$(escaped "$directory/demo")|" "$beside/Zembro.emu" >"$catalogue"
add "$catalogue" Zembro.emu
