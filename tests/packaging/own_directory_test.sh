#!/bin/bash
# The user's directory and the one within the build: own_directory_test.sh FINDER ZEMBRO. A build made up for it.
set -u
finder=$1
zembro=$2
packaging=$(cd "$(dirname "$0")/../../packaging" && pwd)
work=$(mktemp -d)
elsewhere=$(mktemp -d -p /dev/shm)
trap 'rm -rf "$work" "$elsewhere"' EXIT
export HOME=$work/home XDG_STATE_HOME=$work/state
bad=0
complain() { echo "$*" >&2; bad=1; }

build=$work/build/release
fresh=$work/build/zembrolix
mkdir -p "$build"/{converter,companion,finder,data/beside/LNG,data/demo/games} "$work/home" "$work/bin"
printf '#!/bin/sh\necho "started in $(dirname "$0")"\n' >"$build/Zembrolix"
printf '#!/bin/sh\n' | tee "$build/converter/Cvtgif15.exe" >"$build/converter/Cvtcap.exe"
cp "$finder" "$build/finder/BuscaEmuladores"
printf '#!/bin/sh\nexec "%s" --directory "$(dirname "$0")" "$@"\n' "$zembro" >"$build/companion/zembro"
chmod +x "$build"/{Zembrolix,converter/Cvtgif15.exe,converter/Cvtcap.exe,companion/zembro}
for name in Zembro.cfg Zembro.txt Zembro.faq Zembro.rom LNG/ZB-ESP.LNG; do
    printf '%s\r\n' "$name" >"$build/data/beside/$name"
done
echo game >"$build/data/demo/games/GAME.A26"
closing="'----------------------------------------------------------------------"
printf -- "'\r\n-Jaguar\r\nWEB1=w\r\n*.J64\r\n'\r\n+BigPEmu\r\nWEB2=f\r\n%s\r\n[EOF]\r\n" "$closing" >"$build/data/beside/Zembro.sye"
printf -- "-Atari 2600\r\n'\r\n+Stella\r\nEXE=@STELLA@\r\nROM=demo/\r\n%s\r\n[EOF]\r\n" "$closing" >"$build/data/beside/Zembro.emu"
printf '#!/bin/sh\n' >"$work/bin/bigpemu"
chmod +x "$work/bin/bigpemu"
PATH=$work/bin:$PATH

use() { # directory, mode
    "$packaging/use.sh" "$build" "$fresh" "$@" >"$work/said" 2>"$work/errors" || complain "use $*: it fails: $(cat "$work/errors")"
}
state() { (cd "$1" && { find . -type f -exec sha256sum {} +; find . -type l -printf '%p %l\n'; } | sort); }
anew() {
    rm -rf "$fresh" "$work/mine" "$work/mine.moving" "${elsewhere:?}"/*
    use "$work/mine" --build
}
own() { # what a user leaves
    echo play >"$fresh/roms/Jaguar/Game.j64"
    echo mine >>"$fresh/Zembro.cfg"
    printf -- "-Jaguar\r\nWEB1=w\r\n*.J64\r\n'\r\n+BigPEmu\r\nEXE=%s/arranque/B/bigpemu\r\nROM=%s/roms/Jaguar/\r\n%s\r\n[EOF]\r\n" \
        "$fresh" "$fresh" "$closing" >"$fresh/Zembro.emu"
    mkdir -p "$fresh/arranque/B"
    ln -s "$fresh/roms/Jaguar" "$fresh/arranque/B/roms"
    ln -s "$work/bin/bigpemu" "$fresh/arranque/B/bigpemu"
}
expect_mine() { # directory, situation
    [ "$(cat "$1/roms/Jaguar/Game.j64" 2>&1)" = play ] && grep -q '^mine' "$1/Zembro.cfg" || complain "$2: what the user had isn't there"
    grep -q "^ROM=roms/Jaguar/" "$1/Zembro.emu" && grep -q "^EXE=arranque/B/bigpemu" "$1/Zembro.emu" ||
        complain "$2: the catalogue leads elsewhere: $(cat "$1/Zembro.emu")"
    [ "$(readlink "$1/arranque/B/roms")" = ../../roms/Jaguar ] || complain "$2: the link leads elsewhere"
    [ "$(readlink "$1/arranque/B/bigpemu")" = "$work/bin/bigpemu" ] || complain "$2: the program's link has changed"
    [ -z "$(find "$1" "$(dirname "$1")" -maxdepth 1 -name '*mov*-from' -o -maxdepth 1 -name '*.moving')" ] || complain "$2: something is left over"
}

# Built alone, nothing else is made; a new directory is whole, and the program starts there.
anew
[ -x "$fresh/Zembrolix" ] && [ -f "$fresh/Zembro.emu" ] || complain "build: it isn't complete"
[ -z "$(ls -A "$HOME")" ] && [ ! -e "$work/mine" ] || complain "build: it touches something else"
before=$(state "$fresh")
use "$work/mine"
grep -qx "started in $work/mine" "$work/said" || complain "start: it doesn't start there: $(cat "$work/said")"
[ "$(state "$fresh")" = "$before" ] || complain "start: the directory within the build isn't as it was"
[ -f "$work/mine/demo/GAME.A26" ] || complain "start: it isn't complete"
! grep -q 'had in' "$work/said" || complain "start: it has moved what is nobody's"
touch -d @1 "$work/mine/Zembro.emu"
use "$work/mine" --make
[ "$(stat -c %Y "$work/mine/Zembro.emu")" = 1 ] || complain "again: the catalogue is made anew"

# A user's own moves once, with a word.
for place in "$work/mine" "$elsewhere/far/mine"; do
    anew
    own
    if [ "$place" = "$work/mine" ]; then mkdir "$place"; fi # an empty one is as none
    use "$place" --make
    expect_mine "$place" "moved to $place"
    [ ! -e "$fresh" ] || complain "moved to $place: it is still there"
    grep -q "^What you had in $fresh is in $place now" "$work/said" || complain "moved to $place: not a word"
    use "$place" --make
    [ ! -s "$work/said" ] && [ ! -s "$work/errors" ] || complain "moved to $place: a word the second time"
done
[ "$(stat -c %d "$elsewhere")" != "$(stat -c %d "$work")" ] || echo "One file system only: no border was gone over." >&2

# Never over what is there; both stay.
for kind in full link file; do
    anew
    own
    case $kind in
    full) mkdir "$work/mine"; echo his >"$work/mine/Zembro.txt" ;;
    link) mkdir "$elsewhere/real"; ln -s "$elsewhere/real" "$work/mine" ;;
    file) echo his >"$work/mine" ;;
    esac
    before=$(state "$fresh")
    "$packaging/own_directory.sh" "$fresh" "$work/mine" >"$work/said" 2>"$work/errors" || complain "$kind: it fails"
    [ "$(state "$fresh")" = "$before" ] || complain "$kind: what the user had has changed"
    grep -q 'They stay there' "$work/errors" || complain "$kind: not a word"
    case $kind in
    full) [ "$(cat "$work/mine/Zembro.txt")" = his ] ;;
    link) [ -L "$work/mine" ] && [ -z "$(ls -A "$elsewhere/real")" ] ;;
    file) [ "$(cat "$work/mine")" = his ] ;;
    esac || complain "$kind: what was there has changed"
    rm -rf "$work/mine"
done

# Cut at any of its steps, it has lost nothing, and the next time it is done.
cut_at() { # tool, which of its calls, what it still does
    rm -rf "$work/cut" "$work/calls"
    mkdir "$work/cut"
    printf '#!/bin/sh\necho >>"%s"\n[ $(wc -l <"%s") = %s ] || exec %s "$@"\n%s\nkill -KILL $PPID\n' \
        "$work/calls" "$work/calls" "$2" "$(command -v "$1")" "${3:-}" >"$work/cut/$1"
    chmod +x "$work/cut/$1"
}
for step in cp:1 sync:1 diff:1 mv:1 rm:1 diff:2 mv:2 rm:2 rm:3; do
    anew
    own
    case $step in
    cp:*) half="$(command -v cp) -a \"\$2\"/Zembro.* \"\$3\"" ;; # a copy is half done then
    rm:2) half="$(command -v rm) -rf \"\$2/Zembro.emu\" \"\$2/roms\"" ;;
    *) half= ;;
    esac
    cut_at "${step%:*}" "${step#*:}" "$half"
    { PATH=$work/cut:$PATH "$packaging/own_directory.sh" "$fresh" "$elsewhere/mine" && complain "cut at $step: it isn't"; } >/dev/null 2>&1
    rm -rf "$work/cut"
    [ "$(cat "$fresh/roms/Jaguar/Game.j64")" = play ] || [ "$(cat "$elsewhere/mine/roms/Jaguar/Game.j64")" = play ] ||
        complain "cut at $step: what the user had is nowhere"
    use "$elsewhere/mine" --make
    [ ! -e "$fresh" ] && [ ! -e "$fresh.moved" ] || complain "cut at $step: it isn't moved the next time"
    expect_mine "$elsewhere/mine" "cut at $step"
done
# What has come there since stays.
anew
own
cut_at mv 2
{ PATH=$work/cut:$PATH "$packaging/own_directory.sh" "$fresh" "$elsewhere/mine" && complain "cut, then played: it isn't"; } >/dev/null 2>&1
echo later >"$fresh/roms/Jaguar/Later.j64"
use "$elsewhere/mine" --make
[ "$(cat "$fresh/roms/Jaguar/Later.j64" "$fresh/roms/Jaguar/Game.j64")" = "later
play" ] || complain "cut, then played: what the user had is gone"
grep -q 'They stay there' "$work/errors" || complain "cut, then played: not a word"
expect_mine "$elsewhere/mine" "cut, then played"

# Cut while the paths are changed to where it lies now, that is completed too.
for step in ln:1 rm:last; do
    anew
    own
    "$packaging/own_directory.sh" "$fresh" "$work/mine" >/dev/null
    "$packaging/assemble.sh" "$build" "$work/mine"
    cut_at "${step%:*}" 1
    # In use.sh itself, which calls others that delete what is theirs.
    [ "$step" != rm:last ] || sed -i 's|^\[ .*|case $* in */.moved-from) ;; *) exec /bin/rm "$@" ;; esac|' "$work/cut/rm"
    { PATH=$work/cut:$PATH "$packaging/use.sh" "$build" "$fresh" "$work/mine" --make && complain "paths cut at $step: it isn't"; } >/dev/null 2>&1
    use "$work/mine" --make
    expect_mine "$work/mine" "paths cut at $step"
done
rm -rf "$work/cut"

# It speaks the language of the user.
anew
own
LC_ALL=de_DE.UTF-8 use "$work/mine" --make
grep -qx "Was du in $fresh hattest, liegt jetzt in $work/mine\." "$work/said" || complain "in German: it says $(cat "$work/said")"

# A word that is none, and a directory without a name.
for words in --find\ --everything --directory "--directory $work --play" --all; do
    # shellcheck disable=SC2086
    ! "$packaging/../run.sh" $words 2>/dev/null || complain "run.sh takes $words"
done
[ -z "$(ls -A "$HOME")" ] || complain "something was made at home"
exit "$bad"
