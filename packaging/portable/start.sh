#!/bin/bash
# Starts Zembrolix in the directory in which this stands.
#   --renew DIRECTORY   brings an older directory of it up to this version instead; what was changed there stays
#   --check             checks its files and the emulators instead
set -uo pipefail

here=$(dirname "$(readlink -f "$0")")
delivered=$here/delivered
fail() {
    echo "start.sh: $*" >&2
    # Somebody who starts from a file manager sees no terminal.
    [ -t 0 ] || [ -t 2 ] || [ -z "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || "$here/Aviso" "$*" >/dev/null 2>&1
    exit 1
}

# What of a part the user has put there or changed: what wasn't delivered with that directory, and comes with none newer.
own() { # part, directory
    local name line
    while IFS= read -r -d '' name; do
        if [ ! -L "$2/$name" ] && [ -f "$2/$name" ]; then
            line="$(sha256sum <"$2/$name" | cut -d' ' -f1)  $name"
            ! grep -qxF -- "$line" "$2/delivered/manifest" 2>/dev/null && ! cmp -s "$here/$name" "$2/$name" || continue
        fi
        [ "$name" = delivered/manifest ] || printf '%s\0' "$name"
    done < <(cd "$2" && find "$1" ! -type d -print0 2>/dev/null)
}
copy() { # from, to
    mkdir -p "$(dirname "$2")" && cp -rP --preserve=timestamps "$1" "$2"
}
# Where one of the new files takes its name, it goes to a directory of its own.
keep() { # name, part, directory
    local new=$3/.$2.new${1#"$2"} aside=$3/antes/$1 number=1
    if [ ! -e "$here/$1" ]; then
        copy "$3/$1" "$new"
        return
    fi
    while [ -e "$aside" ] || [ -L "$aside" ]; do
        ! cmp -s "$3/$1" "$aside" || return 0
        number=$((number + 1))
        aside=$3/antes/$1.$number
    done
    copy "$3/$1" "$aside" && echo "start.sh: $1 wasn't as it was delivered. It is $aside now, beside the new one." >&2
}

# As one step as can be: never half of a directory.
exchange() { # name, directory
    local name
    rm -rf "$2/.$1.new" "$2/.$1.old"
    cp -r "$here/$1" "$2/.$1.new" || { rm -rf "$2/.$1.new"; return 1; }
    while IFS= read -r -d '' name; do
        keep "$name" "$1" "$2" || { rm -rf "$2/.$1.new"; return 1; }
    done < <(own "$1" "$2")
    [ ! -e "$2/$1" ] || mv "$2/$1" "$2/.$1.old" || return 1
    mv "$2/.$1.new" "$2/$1" || { mv "$2/.$1.old" "$2/$1"; return 1; }
    rm -rf "$2/.$1.old"
}
renew() { # directory
    local part
    [ -d "$1" ] && [ -x "$1" ] || fail "there is no directory $1 that can be entered."
    [ -x "$1/Zembrolix" ] && [ -f "$1/.delivered" ] || fail "$1 is no directory of the program."
    [ "$(readlink -f "$1")" != "$here" ] || fail "$1 is this one."
    [ -w "$1" ] || fail "$1 can't be written; it stays as it is."
    for part in lib plugins fonts licenses qt.conf BuscaEmuladores PrimerosAjustes Aviso start.sh delivered; do
        exchange "$part" "$1" || fail "$part in $1 can't be exchanged for the newer one. Once that is mended, renew it again."
    done
    exec "$delivered/renew" "$here" "$delivered" "$1"
}

case "${1:-}" in
--renew)
    [ $# -eq 2 ] || fail "which directory?"
    renew "$2"
    ;;
--check) exec "$here/zembro" check ;;
"") ;;
*) fail "usage: start.sh [--renew DIRECTORY | --check]" ;;
esac

[ -x "$here/Zembrolix" ] || fail "programs on this medium can't be run; copy the directory elsewhere."

# On a medium that can be written: at the first start the settings get the language of the user, and there are directories
# for the games of the systems that this machine has an emulator of.
if [ -w "$here" ]; then
    [ -e "$here/Zembro.emu" ] || "$delivered/renew" "$here" "$delivered" "$here" >&2
    if cmp -s "$delivered/first/Zembro.cfg" "$here/Zembro.cfg"; then
        cp "$delivered/Zembro.cfg" "$here/Zembro.cfg"
        "$here/PrimerosAjustes" "$here" "Atari 2600" Stella
        mkdir -p "$here/roms/Atari 2600"
        "$here/BuscaEmuladores" "$delivered/emuladores.tsv" "$here" | sed 's/^/Configured /' >&2
    fi
fi
exec "$delivered/start" "$here"
