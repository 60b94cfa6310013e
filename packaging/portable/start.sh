#!/bin/bash
# Starts Zembrolix in the directory in which this stands.
#   --renew DIRECTORY   brings an older directory of it up to this version instead; what was changed there stays
#   --check             checks its files and the emulators instead
set -uo pipefail

here=$(dirname "$(readlink -f "$0")")
delivered=$here/delivered
# What a renewal exchanges, the list of what was delivered last.
parts="lib plugins fonts licenses qt.conf BuscaEmuladores PrimerosAjustes Aviso start.sh delivered"

# A part whose exchange was cut short, so that it had neither the old nor the new one, gets the old one back.
restore() { # directory
    local part
    for part in $parts; do
        [ -e "$1/$part" ] || [ -L "$1/$part" ] || [ ! -e "$1/.$part.old" ] || mv -T "$1/.$part.old" "$1/$part" || return 1
    done
}
# While another run exchanges it, what is said stands in one of the two.
{ . "$delivered/words.sh" || . "$here/.delivered.old/words.sh" || . "$delivered/words.sh"; } 2>/dev/null || exit 1

# Somebody who starts from a file manager sees no terminal.
unseen() {
    [ ! -t 0 ] && [ ! -t 2 ] && [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]
}
tell() { # words
    echo "start.sh: $1" >&2
    ! unseen || "$here/Aviso" "$1" >/dev/null 2>&1 8<&-
}
fail() { # key, values...
    exec 8<&-
    tell "$(say "$@")"
    exit 1
}
# What takes long is shown until it is over, by a copy that nobody exchanges meanwhile.
box=
tell_long() { # words, directory of the newer version
    echo "start.sh: $1" >&2
    [ -x "$2/Aviso" ] && [ -O "$2/Aviso" ] && unseen || return 0
    { sleep 3 && exec "$2/Aviso" "$1"; } >/dev/null 2>&1 8<&- &
    box=$!
}
over() {
    [ -z "$box" ] || kill "$box" 2>/dev/null
    box=
}

# While a run renews a directory no other one renews it or starts from it: the lock is on a file that stays there (that on
# the directory is the program's), and a run that is called by the one that has it has it too. Where there are no locks
# it goes on without. What is started doesn't get it, as it would have it for as long as it runs.
take() { # directory, -x alone or -s with others; false, where others had it
    # Another user's can be read, and locked, at least.
    [ /dev/fd/8 -ef "$1/.lock" ] || { exec 8<>"$1/.lock" || exec 8<"$1/.lock"; } 2>/dev/null || return 0
    flock -n "$2" 8 2>/dev/null
    [ $? -eq 1 ] || return 0
    flock -w 1 "$2" 8
    if [ $? -eq 1 ]; then
        tell_long "$(say waits "$1")" "$(cat "$1/.renewing" 2>/dev/null)"
        flock "$2" 8
        over
    fi
    return 1
}
if [ "${1:-}" != --renew ]; then
    [ -f "$here/.renewing" ] && mode=-x || mode=-s
    # Another run may have exchanged this file itself, or have been cut short meanwhile.
    take "$here" "$mode" || exec "$here/start.sh" "$@"
    [ "$mode" = -x ] || [ ! -f "$here/.renewing" ] || exec "$here/start.sh" "$@"
    [ "$mode" = -s ] || restore "$here" 2>/dev/null
fi

# What of a part the user has put there or changed, also a directory that holds nothing: what wasn't delivered with that
# directory, and comes with none newer.
own() { # part, directory
    local name line
    while IFS= read -r -d '' name; do
        if [ -L "$2/$name" ]; then
            :
        elif [ -d "$2/$name" ]; then
            [ ! -d "$here/$name" ] || continue
        elif [ -f "$2/$name" ]; then
            line="$(sha256sum <"$2/$name" | cut -d' ' -f1)  $name"
            ! grep -qxF -- "$line" "$2/delivered/manifest" 2>/dev/null && ! cmp -s "$here/$name" "$2/$name" 2>/dev/null || continue
        fi
        [ "$name" = delivered/manifest ] || printf '%s\0' "$name"
    done < <(cd "$2" && find "$1" \( ! -type d -o -empty \) -print0 2>/dev/null)
}
copy() { # from, to
    cp -rP --preserve=timestamps "$1" "$2"
}
same() { # path, path
    diff -rq --no-dereference "$1" "$2" >/dev/null 2>&1
}
# Where one of the new files takes its name, or that of a directory it is in, it goes to a directory of its own.
keep() { # name, part, directory
    local new=$3/.$2.new${1#"$2"} aside=$3/antes/$1 half=$3/antes/.new number=1
    if [ ! -e "$here/$1" ] && mkdir -p "$(dirname "$new")" 2>/dev/null; then
        copy "$3/$1" "$new"
        return
    fi
    while { [ -e "$aside" ] || [ -L "$aside" ]; } && ! same "$3/$1" "$aside"; do
        number=$((number + 1))
        aside=$3/antes/$1.$number
    done
    if [ ! -e "$aside" ] && [ ! -L "$aside" ]; then
        mkdir -p "$(dirname "$aside")" && rm -rf "$half" && copy "$3/$1" "$half" && mv -T "$half" "$aside" || return 1
    fi
    echo "start.sh: $(say set-aside "$1" "$aside")" >&2
}

# As one step as can be: never half of a directory, and on the medium before the old one is gone.
exchange() { # name, directory
    local name
    rm -rf "$2/.$1.new" "$2/.$1.old"
    cp -r "$here/$1" "$2/.$1.new" || { rm -rf "$2/.$1.new"; return 1; }
    while IFS= read -r -d '' name; do
        keep "$name" "$1" "$2" || { rm -rf "$2/.$1.new"; return 1; }
    done < <(own "$1" "$2")
    sync -f "$2/.$1.new" || { rm -rf "$2/.$1.new"; return 1; }
    # A file takes the place of a file by itself.
    if [ -d "$2/$1" ] || { [ -d "$2/.$1.new" ] && { [ -e "$2/$1" ] || [ -L "$2/$1" ]; }; }; then
        mv -T "$2/$1" "$2/.$1.old" || return 1
    fi
    mv -T "$2/.$1.new" "$2/$1" || { restore "$2"; return 1; }
    rm -rf "$2/.$1.old"
}
# Whole, or not at all, as on a full disk.
write() { # directory, name, what writes it...
    local half=$1/.written.new name=$1/$2
    shift 2
    { "$@" >"$half" && mv -T "$half" "$name" || { rm -f "$half" && false; }; } 2>/dev/null
}
renew() { # directory
    local part
    [ -d "$1" ] && [ -x "$1" ] || fail no-such-directory "$1"
    [ -x "$1/Zembrolix" ] && [ -f "$1/.delivered" ] || fail not-the-program "$1"
    [ "$(readlink -f "$1")" != "$here" ] || fail this-one "$1"
    [ -w "$1" ] || fail stays "$1"
    take "$1" -x
    restore "$1" 2>/dev/null || fail stays "$1"
    # Nor is it the user's what a renewal has brought that was cut short, when one to a still newer version follows.
    if [ -f "$1/delivered/manifest" ]; then
        write "$1" delivered/manifest cat "$1/delivered/manifest" "$delivered/manifest" || fail stays "$1"
    fi
    # From here on its own start.sh knows that it isn't whole.
    write "$1" .renewing printf '%s\n' "$here" || fail stays "$1"
    for part in $parts; do
        exchange "$part" "$1" || fail not-exchanged "$part" "$1"
    done
    "$delivered/renew" "$here" "$delivered" "$1" || exit
    rm -rf "$1/antes/.new" "$1/.renewing"
}

# As a shell takes it.
quoted() { # path
    printf "'%s'" "${1//\'/\'\\\'\'}"
}
# A renewal that was cut short is completed, where the newer version is still there; else what is here may yet start.
if [ -f "$here/.renewing" ]; then
    newer=$(cat "$here/.renewing")
    if [ "${1:-}" = --renew ]; then
        fail cut-short "$(quoted "$here")"
    elif [ -w "$here" ] && [ -x "$newer/start.sh" ] && [ -O "$newer/start.sh" ]; then
        tell_long "$(say completing)" "$newer"
        "$newer/start.sh" --renew "$here" && over && exec "$here/start.sh" "$@"
        over
    fi
    tell "$(say cut-short "$(quoted "$here")")"
fi

case "${1:-}" in
--renew)
    [ $# -eq 2 ] || fail which-directory
    renew "$2"
    exit
    ;;
--check)
    "$here/zembro" check 8<&-
    exit
    ;;
"") ;;
*)
    echo "usage: start.sh [--renew DIRECTORY | --check]" >&2
    exit 1
    ;;
esac

[ -x "$here/Zembrolix" ] || fail no-programs-here

# On a medium that can be written: at the first start the settings get the language of the user, and there are directories
# for the games of the systems that this machine has an emulator of.
if [ -w "$here" ]; then
    [ -e "$here/Zembro.emu" ] || "$delivered/renew" "$here" "$delivered" "$here" >&2
    if cmp -s "$delivered/first/Zembro.cfg" "$here/Zembro.cfg"; then
        cp "$delivered/Zembro.cfg" "$here/.Zembro.cfg.new" && mv -T "$here/.Zembro.cfg.new" "$here/Zembro.cfg"
    fi
    # Without a language yet.
    if cmp -s "$delivered/Zembro.cfg" "$here/Zembro.cfg"; then
        mkdir -p "$here/roms/Atari 2600"
        "$here/BuscaEmuladores" "$delivered/emuladores.tsv" "$here" 8<&- | while IFS= read -r line; do say configured "$line"; done >&2
        "$here/PrimerosAjustes" "$here" "Atari 2600" Stella
    fi
fi
exec "$delivered/start" "$here"
