#!/bin/bash
# Configures emulators of this machine in a program directory that is in use: find.sh BUILD DIRECTORY [--all]. Without
# --all those of the systems whose directory of games holds games. What is configured stays. Says what it has added.
set -euo pipefail

build=$1
directory=$(cd "$2" && pwd)
found=$("$build/finder/BuscaEmuladores" "${@:3}" "$(dirname "$0")/../data/emuladores.tsv" "$directory")
if [ -n "$found" ]; then
    while read -r line; do
        echo "Configured $line"
    done <<<"$found"
    # At its end it saves the places that its lists had when it was started.
    echo "The program shows them at its next start. If it was open meanwhile, it may begin with another pair selected."
elif [ "${3:-}" = --all ]; then
    echo "Nothing to add: every emulator that was found is configured."
else
    echo "Nothing to add. Put games into a directory of $directory/roms, and try again; --find --all doesn't ask for games."
fi
