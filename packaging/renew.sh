#!/bin/bash
# Makes a program directory, or renews one that is in use: renew.sh PROGRAMS FILES DIRECTORY.
# PROGRAMS and FILES are directories as delivered. The programs are renewed. So is every other file that is still one of
# those that were delivered, whose sums stand in .delivered; one that the user has changed, or put a link in the place
# of, stays, and a file of the demonstration that he has deleted stays away. The catalogue is the user's from the
# beginning: it is written only where there is none, with the demonstration and the emulators of those systems whose
# directory of games, roms/SYSTEM, holds games already. That directory is made for every system that the machine has an
# emulator of.
set -euo pipefail

. "$(dirname "$0")/words.sh"
programs=$1
files=$2

# Why a place can't be made or written, in plain words; else what the system said.
reason() { # path, what the system said
    local place=$1
    while [ ! -e "$place" ] && [ ! -L "$place" ]; do
        place=$(dirname -- "$place")
    done
    if [ ! -d "$place" ]; then
        say not-directory "$place"
    elif [ ! -x "$place" ]; then
        say not-entered "$place"
    elif [ ! -w "$place" ]; then
        say not-written "$place"
    else
        echo "$2"
    fi >&2
}
# The libraries that a portable directory brings along aren't those of programs from elsewhere.
if [ -e "$3/qt.conf" ] && [ ! -e "$programs/qt.conf" ]; then
    say portable "$3" >&2
    exit 1
fi
said=$(mkdir -p -- "$3" 2>&1) && [ -w "$3" ] || { reason "$3" "$said"; exit 1; }
said=$(mkdir -p "$3/LNG" 2>&1) || { reason "$3/LNG" "$said"; exit 1; }
directory=$(cd "$3" && pwd)
delivered=$directory/.delivered # lines as sha256sum writes them, one for each version of each file
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

# In one step, also while a copy of a program runs.
place() { # mode, source, name
    local new
    new=$directory/$(dirname "$3")/.$(basename "$3").new
    install -m "$1" "$2" "$new" && mv "$new" "$directory/$3" || { rm -f "$new"; return 1; }
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

# Two starts at once renew one behind the other, where the file system knows locks.
exec 9>>"$delivered"
flock 9 2>/dev/null || true
# A line that was cut short, as on a full disk, doesn't spoil the next one.
[ -z "$(tail -c 1 "$delivered")" ] || echo >&9
for program in Zembrolix Cvtgif15.exe Cvtcap.exe zembro; do
    cmp -s "$programs/$program" "$directory/$program" && [ -x "$directory/$program" ] ||
        place 755 "$programs/$program" "$program"
done
# Of a place that is installed: what shows words where there is no terminal, and what finds the emulator of the
# demonstration on whatever machine the directory is.
for extra in Aviso stella; do
    [ -x "$programs/$extra" ] || continue
    name=$extra
    [ "$extra" != stella ] || { name=delivered/stella && mkdir -p "$directory/delivered"; }
    cmp -s "$programs/$extra" "$directory/$name" && [ -x "$directory/$name" ] || place 755 "$programs/$extra" "$name"
done

for name in Zembro.cfg Zembro.txt Zembro.faq; do
    deliver "$files/$name" "$name"
done
# Each system of the database has its block in the notes: of these two, one alone would be renewed in vain.
pair=(Zembro.sye Zembro.rom)
if changed "$files/Zembro.sye" Zembro.sye || changed "$files/Zembro.rom" Zembro.rom; then
    for name in "${pair[@]}"; do
        ! missing "$name" || renew "$files/$name" "$name"
    done
else
    for name in "${pair[@]}"; do
        renew "$files/$name" "$name"
    done
fi
for language in "$files"/LNG/*.LNG; do
    deliver "$language" "LNG/$(basename "$language")"
done
# The catalogue as delivered, which comes again where there is none, lists these games.
deleted() { # name
    missing "$1" && ! missing Zembro.emu && grep -qxF "$1" < <(cut -c 67- "$delivered")
}
for game in "$files"/demo/*; do
    name=demo/$(basename "$game")
    deleted "$name" && continue
    mkdir -p "$directory/demo"
    deliver "$game" "$name"
done
# What tells of a directory that goes from place to place.
for name in LEEME.txt LICENSE; do
    [ ! -e "$files/$name" ] || deliver "$files/$name" "$name"
done

missing Zembro.emu || exit 0
# The catalogue as delivered lists the demonstration games, and needs to know where their emulator is.
stella=$(command -v stella || true)
[ -n "$stella" ] || stella=/usr/bin/stella # where its package puts it
[ ! -x "$directory/delivered/stella" ] || stella=delivered/stella # what finds it on each machine
escaped() { printf '%s' "$1" | sed 's/[&\\|]/\\&/g'; }
sed -e "s|@STELLA@|$(escaped "$stella")|" "$files/Zembro.emu" >"$work/Zembro.emu"
mkdir -p "$directory/roms/Atari 2600"
"$programs/BuscaEmuladores" "$files/emuladores.tsv" "$directory" "$work/Zembro.emu" >"$work/found" 9>&- ||
    say not-configured >&2
while IFS= read -r line; do say configured "$line"; done <"$work/found"
record "$work/Zembro.emu" Zembro.emu >>"$delivered" # so that it can be told from one that the user has changed
place 644 "$work/Zembro.emu" Zembro.emu
