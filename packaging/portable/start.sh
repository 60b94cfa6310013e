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
[ ! -f "$here/.renewing" ] || restore "$here" 2>/dev/null
. "$delivered/words.sh" || exit 1

tell() { # words
    echo "start.sh: $1" >&2
    # Somebody who starts from a file manager sees no terminal.
    [ -t 0 ] || [ -t 2 ] || [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || "$here/Aviso" "$1" >/dev/null 2>&1
}
fail() { # key, values...
    tell "$(say "$@")"
    exit 1
}

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
            ! grep -qxF -- "$line" "$2/delivered/manifest" 2>/dev/null && ! cmp -s "$here/$name" "$2/$name" || continue
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
renew() { # directory
    local part
    [ -d "$1" ] && [ -x "$1" ] || fail no-such-directory "$1"
    [ -x "$1/Zembrolix" ] && [ -f "$1/.delivered" ] || fail not-the-program "$1"
    [ "$(readlink -f "$1")" != "$here" ] || fail this-one "$1"
    [ -w "$1" ] || fail stays "$1"
    # From here on its own start.sh knows that it isn't whole.
    printf '%s\n' "$here" >"$1/.renewing" && restore "$1" || fail stays "$1"
    # Nor is it the user's what a renewal has brought that was cut short, when one to a still newer version follows.
    [ ! -f "$1/delivered/manifest" ] || { echo && cat "$delivered/manifest"; } >>"$1/delivered/manifest" || fail stays "$1"
    for part in $parts; do
        exchange "$part" "$1" || fail not-exchanged "$part" "$1"
    done
    "$delivered/renew" "$here" "$delivered" "$1" || exit
    rm -rf "$1/antes/.new" "$1/.renewing"
}

# A renewal that was cut short is completed, where the newer version is still there; else what is here may yet start.
if [ -f "$here/.renewing" ]; then
    newer=$(cat "$here/.renewing")
    if [ "${1:-}" = --renew ]; then
        fail cut-short "$here"
    elif [ -w "$here" ] && [ -x "$newer/start.sh" ] && [ -O "$newer/start.sh" ] && "$newer/start.sh" --renew "$here"; then
        exec "$here/start.sh" "$@"
    fi
    tell "$(say cut-short "$here")"
fi

case "${1:-}" in
--renew)
    [ $# -eq 2 ] || fail which-directory
    renew "$2"
    exit
    ;;
--check) exec "$here/zembro" check ;;
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
        "$here/BuscaEmuladores" "$delivered/emuladores.tsv" "$here" | while IFS= read -r line; do say configured "$line"; done >&2
        "$here/PrimerosAjustes" "$here" "Atari 2600" Stella
    fi
fi
exec "$delivered/start" "$here"
