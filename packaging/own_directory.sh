#!/bin/bash
# Moves what a user has in the directory that lies within the build to a directory of his own: own_directory.sh OLD NEW.
# Where there is nothing of his, or NEW holds anything already, nothing moves. At any moment all of it is whole in one of
# the two. The places that it had stand in NEW/.moved-from then, until what was written by whole paths has been changed.
set -euo pipefail

. "$(dirname "$0")/words.sh"
old=$1
new=$2

# What the delivery has made itself: programs, what is as it was delivered, the lines of text among the games, the links
# beside which emulators are started.
has_own() { # directory
    local name sum
    while IFS= read -r -d '' name; do
        name=${name#./}
        case $name in
        Zembrolix | Cvtgif15.exe | Cvtcap.exe | zembro | .delivered | roms/*/LEEME.txt | arranque/*) continue ;;
        esac
        [ ! -L "$1/$name" ] || return 0
        sum=$(sha256sum <"$1/$name" | cut -d' ' -f1)
        grep -qxF "$sum  $name" "$1/.delivered" 2>/dev/null || return 0
    done < <(cd "$1" && find . \( -type f -o -type l \) -print0)
    return 1
}
fail() { # key, values...
    say "$@" >&2
    exit 1
}

# What went to another file system is deleted where it was: first as a whole, by its name, and only while it is what the
# copy is, so that this can be cut short at any moment too.
delete_left() { # the old directory
    local left=$1.moved
    rm -rf "$left"
    if [ -d "$1" ] && diff -r --no-dereference --exclude=.moving-from --exclude=.moved-from "$1" "$new" >/dev/null; then
        mv -T "$1" "$left"
        rm -rf "$left"
    fi
    rm -f "$new/.moving-from"
    say moved "$1" "$new"
}

[ -d "$(dirname "$old")" ] && [ ! -L "$old" ] || exit 0
place=$(cd "$(dirname "$old")" && pwd -P)/$(basename "$old")
[ "$(cat "$new/.moving-from" 2>/dev/null)" != "$place" ] || delete_left "$place"
[ -d "$old" ] || exit 0
places=$(cd "$old" && printf '%s\n' "$(pwd)" "$(pwd -P)" | uniq)
old=$(cd "$old" && pwd -P)
[ ! -d "$new" ] || [ "$(cd "$new" && pwd -P)" != "$old" ] || exit 0
has_own "$old" || exit 0
if [ -L "$new" ] || { [ -e "$new" ] && ! { [ -d "$new" ] && [ -z "$(ls -A "$new")" ]; }; }; then
    say both "$old" "$new" >&2
    exit 0
fi

mkdir -p "$(dirname "$new")" 2>/dev/null || fail no-parent "$(dirname "$new")" "$old"
half=$new.moving # a copy, which may have been cut short before
if [ -e "$half" ]; then
    [ "$(cat "$half/.moving-from" 2>/dev/null)" = "$old" ] || fail in-the-way "$half" "$old" "$new"
    rm -rf "$half"
fi
[ ! -d "$new" ] || rmdir "$new"
if [ "$(stat -c %d "$old")" = "$(stat -c %d "$(dirname "$new")")" ]; then
    printf '%s\n' "$places" >"$old/.moved-from"
    mv -T "$old" "$new"
else
    mkdir "$half"
    printf '%s\n' "$old" >"$half/.moving-from"
    cp -a "$old/." "$half/" && sync -f "$half" || fail not-moved "$old" "$new"
    diff -r --no-dereference --exclude=.moving-from "$old" "$half" >/dev/null || fail copy-differs "$old"
    printf '%s\n' "$places" >"$half/.moved-from"
    mv -T "$half" "$new"
    delete_left "$old"
    exit
fi
say moved "$old" "$new"
