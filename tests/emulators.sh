#!/bin/bash
# Shows that the emulators of this machine open the file that they are given: emulators.sh BUILD [NAME...]. For running
# by hand, with strace, on a machine with many emulators; CI has one. Assembles a new program directory from the build,
# configures all emulators of the machine in it, puts a file of zeros among the games of each one that was found, starts it with the command line that the
# program composes, under a screen of its own, and watches whether it opens the file. Prints a line of a table for
# each. With names it tries these alone.
set -u
here=$(cd "$(dirname "$0")" && pwd)
if [ -z "${EMULATORS_SCREEN:-}" ]; then
    EMULATORS_SCREEN=1 exec "$here/with_screen.sh" "$0" "$@"
fi
build=$1
shift
work=$(mktemp -d)
program=$work/Zembrolix
export HOME=$work/home
mkdir "$HOME"
patience=20 # seconds for an emulator to open its file; it is ended as soon as it has
group=
finish() {
    [ -z "$group" ] || kill -KILL -- "-$group" 2>/dev/null
    rm -rf "$work"
}
trap finish EXIT
"$here/../packaging/assemble.sh" "$build" "$program" >/dev/null || exit 1
"$here/../packaging/find.sh" "$build" "$program" --all | grep '^Configured ' >"$work/said"
catalogue=$work/catalogue # in this script's encoding
iconv -f UTF-8 -t UTF-8 "$program/Zembro.emu" >"$catalogue" 2>/dev/null ||
    iconv -f CP1252 -t UTF-8 "$program/Zembro.emu" >"$catalogue"

# A file of zeros is no game, but an emulator has to open it to see that. Where the name says which machine is
# emulated it is a real one, and some want a second file, or a name of the old kind.
sample() { # directory of the games, system: prints the name of the file
    local name
    case $2 in
    "Play Station" | Saturn | PC-FX | "FM Towns" | 3DO | CD-i | "Neo-Geo CD")
        name="Un juego.cue"
        head -c 705600 /dev/zero >"$1/juego.bin"
        printf 'FILE "juego.bin" BINARY\n  TRACK 01 MODE2/2352\n    INDEX 01 00:00:00\n' >"$1/$name"
        ;;
    Arcade) name=puckman.zip ;;
    Neo-Geo) name=neogeo.zip ;;
    Naomi) name=naomi.zip ;;
    MS-DOS) name=JUEGO.COM ;;
    *) name="Un juego.$(extension "$2")" ;;
    esac
    [ -e "$1/$name" ] || head -c 1048576 /dev/zero >"$1/$name"
    echo "$name"
}
extension() { # the second one of a system's, in small letters: the first is ZIP
    awk -v line="-$1" '
        { sub(/\r$/, "") }
        $0 == line { found = 1 }
        found && /^\*\./ && ++n == 2 { print tolower(substr($0, 3)); exit }' "$catalogue"
}

# The lines of an emulator's block: "key=value" each.
block() { # emulator
    awk -v line="+$1" '
        { sub(/\r$/, "") }
        $0 == line { found = 1; next }
        found && substr($0, 1, 1) == "\047" { exit }
        found' "$catalogue"
}
value() { # block, key
    sed -n "s/^$2=//p" <<<"$1"
}

# The process group of the command is ended when the file has been opened, or time is over.
opens() { # log, name of the file, command...
    local log=$1 name=$2 tries
    shift 2
    setsid strace -f -qq -e trace=open,openat -o "$log" "$@" >"$log.output" 2>&1 &
    group=$!
    for ((tries = patience * 5; tries > 0; tries--)); do
        sleep 0.2
        grep -F "$name\"" "$log" 2>/dev/null | grep -q '= [0-9]' && break
        kill -0 "$group" 2>/dev/null || break
    done
    kill -KILL -- "-$group" 2>/dev/null
    wait "$group" 2>/dev/null
    group=
    grep -F "$name\"" "$log" | grep -q '= [0-9]'
}

package_of() { # executable
    local package
    package=$(dpkg -S "$(readlink -f "$1")" 2>/dev/null | head -n 1 | cut -d: -f1)
    dpkg-query -W -f '${Package} ${Version}' "$package" 2>/dev/null || echo "no package"
}

check() { # system, emulator
    local lines exe type roms name par1 argument shown seen=no
    lines=$(block "$2")
    exe=$(value "$lines" EXE)
    type=$(value "$lines" XDI)
    roms=$(value "$lines" ROM)
    name=$(sample "$roms" "$1")
    read -ra par1 <<<"$(value "$lines" PAR1 | tr '[:upper:]' '[:lower:]')"
    case $type in
    0) argument=("$roms$name") shown=" …/$name" ;;
    3) argument=("${name%.*}") shown=" ${name%.*}" ;;
    *) argument=() shown='' seen="has no such parameter" ;;
    esac
    if [ -n "$shown" ]; then
        cd "$(dirname "$exe")" || return
        opens "$work/log" "$name" "$exe" "${par1[@]}" "${argument[@]}" && seen=yes
    fi
    printf '| %s | %s | %s | `%s` | %s |\n' "$1" "$2" "$(package_of "$exe")" \
        "$(basename "$exe")${par1[*]:+ ${par1[*]}}$shown" "$seen"
}

wanted() { # emulator, names...
    local name emulator=$1
    shift
    [ $# -gt 0 ] || return 0
    for name in "$@"; do
        [ "$name" != "$emulator" ] || return 0
    done
    return 1
}

echo "| System | Emulator | Package | Command line | File opened |"
echo "|---|---|---|---|---|"
while IFS=: read -r system rest; do
    emulator=${rest%%, /*}
    emulator=${emulator# }
    system=${system#Configured }
    ! wanted "$emulator" "$@" || check "$system" "$emulator"
done <"$work/said"
