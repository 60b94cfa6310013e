#!/bin/bash
# The starter of the portable directory: portable_start_test.sh BUILD. The directory is as the archive has it, but with the
# machine's libraries, and with a program that says how it was started.
set -u
build=$1
sources=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bad=0
complain() { echo "portable start: $*" >&2; bad=1; }

unset LC_ALL LC_MESSAGES DISPLAY WAYLAND_DISPLAY XDG_STATE_HOME ZEMBRO_LOG
export HOME=$work/home LANG=it_IT.UTF-8
mkdir "$HOME"
cmake --install "$build" --prefix "$work/usr" >/dev/null && cmake --install "$build" --prefix "$work/usr" --component portable >/dev/null || { complain "what is built can't be installed"; exit 1; }
make_directory() { # directory, version
    mkdir -p "$1"/{lib,plugins,fonts,licenses}
    "$sources/packaging/portable/fill.sh" "$work/usr" "$1"
    printf '#!/bin/sh\n[ ! -e /proc/$$/fd/8 ] || echo it has the lock\necho "started $0, %s"\n' "$2" >"$1/Zembrolix"
    touch "$1/qt.conf"
    echo "$2" | tee "$1/lib/$2" >"$1/lib/each"
    "$sources/packaging/portable/manifest.sh" "$1"
}
start() { # directory, expected status, arguments
    local directory=$1 expected=$2
    shift 2
    said=$("$directory/start.sh" "$@" 2>"$work/errors")
    local status=$?
    [ "$status" = "$expected" ] || complain "start.sh $*: status $status: $said $(cat "$work/errors")"
}
setting() { sed -n "s/\r$//; s/^$2 = //p" "$1/Zembro.cfg"; }
state() { (cd "$1" && find . -path ./copias -prune -o -type f -exec sha256sum {} + | sort -k 2); }

mine="$work/Memoria USB/zembrolix"
make_directory "$mine" one
# As new it speaks English, where it can't be written.
[ "$(setting "$mine" LanguageFile) $(setting "$mine" LastSisUsed)" = "ZB-ENG.LNG 0" ] || complain "new: $(cat "$mine/Zembro.cfg")"
grep -q '^EXE=delivered/stella' "$mine/Zembro.emu" || complain "new: the emulator: $(cat "$mine/Zembro.emu")"
grep -q '^ROM=demo/' "$mine/Zembro.emu" || complain "new: the games aren't its own"
[ -z "$(ls "$mine/roms" "$mine/copias" 2>/dev/null)" ] || complain "new: it holds something of this machine"

mkdir "$work/machine"
printf '#!/bin/sh\n' | tee "$work/machine/stella" >"$work/machine/bigpemu"
chmod +x "$work"/machine/*
plain=$PATH
PATH=$work/machine:$PATH
cp "$mine/Zembro.emu" "$work/catalogue"
start "$mine" 0
cmp "$work/catalogue" "$mine/Zembro.emu" || complain "first: the catalogue has changed"
PATH=$plain
[ "$said" = "started $mine/Zembrolix, one" ] || complain "first: it says $said"
[ "$(setting "$mine" LanguageFile)" = ZB-ITA.LNG ] || complain "first: the language: $(cat "$mine/Zembro.cfg")"
[ -d "$mine/roms/Atari 2600" ] || complain "first: no directory for games"
[ -s "$mine/roms/Atari 2600/LEEME.txt" ] && [ -s "$mine/roms/Jaguar/LEEME.txt" ] || complain "first: no word in the directories for games"
before=$(state "$mine")
LANG=de_DE.UTF-8 start "$mine" 0
[ "$(state "$mine")" = "$before" ] || complain "again: $(state "$mine" | diff - <(echo "$before"))"
# Settings that somebody chose stay, also where they are those of a new directory but for what marks these.
sed -i 's/ZB-ITA/ZB-ENG/' "$mine/Zembro.cfg"
start "$mine" 0
[ "$(setting "$mine" LanguageFile)" = ZB-ENG.LNG ] || complain "chosen: the language is another"
# A first start that was cut short asks for no language either.
cp "$mine/delivered/Zembro.cfg" "$mine/Zembro.cfg"
start "$mine" 0
[ "$(setting "$mine" LanguageFile)" = ZB-ITA.LNG ] || complain "cut short: the language: $(cat "$mine/Zembro.cfg")"
start "$mine" 0 --check
grep -qi stella <<<"$said" || complain "check: it says $said"
start "$mine" 1 --everything
# Without a terminal what is wrong is shown in a box.
mkdir -p "$work/unable/delivered"
cp "$mine/start.sh" "$work/unable"
cp "$mine/delivered/words.sh" "$work/unable/delivered"
printf '#!/bin/sh\necho "$*" >"%s/shown"\n' "$work" >"$work/unable/Aviso"
chmod +x "$work/unable/Aviso"
export LANG=en_US.UTF-8
DISPLAY=:none start "$work/unable" 1
[ "$(cat "$work/shown" 2>/dev/null)" = "programs on this medium can't be run; copy the directory elsewhere." ] || complain "unable: the box says $(cat "$work/shown")"
LANG=it_IT.UTF-8 start "$work/unable" 1
grep -qx 'start.sh: su questo supporto non si possono eseguire programmi; copia la cartella altrove.' "$work/errors" || complain "unable, in Italian: $(cat "$work/errors")"

# The emulator is that of the machine on which the directory happens to be.
mkdir "$work/bin"
printf '#!/bin/sh\necho "stella of the path:$*"\n' >"$work/bin/stella"
chmod +x "$work/bin/stella"
[ "$(PATH=$work/bin:$PATH "$mine/delivered/stella" -a 'b c')" = "stella of the path:-a b c" ] || complain "the emulator of the path isn't taken"
PATH=$work/bin:$PATH "$mine/zembro" play atari stella prisma >"$work/said" 2>&1
grep -q 'stella of the path:.*risma' "$work/said" || complain "play: $(cat "$work/said")"

# Wherever the finder looks, it does, by each of the names; where there is none, it says so, and so do check and why, and a
# screen would show it.
cp "$mine/delivered/stella" "$work/stella"
sed -i 's/^# Stands for .*/# Stands for No Such: no-such-emulator org.nowhere.NoSuch/' "$mine/delivered/stella"
start "$mine" 1 --check
grep -q "^Zembro.emu:[0-9]*: Atari 2600 / Stella: No Such .*: sudo apt install no-such-emulator, flatpak install flathub org.nowhere.NoSuch" <<<"$said" ||
    complain "missing: check says $said"
ZEMBRO_LOG=$work/log "$mine/zembro" play atari stella prisma >"$work/said" 2>&1 && complain "missing: it is played"
grep -q "^No Such isn't installed on this machine" "$work/said" || complain "missing: play says $(cat "$work/said")"
mv "$mine/Aviso" "$work/box"
printf '#!/bin/sh\necho "box: $*"\n' >"$mine/Aviso"
chmod +x "$mine/Aviso"
said=$(cd / && DISPLAY=:none "$mine/roms/../delivered/stella" game 2>/dev/null)
[ "$? $said" = "127 box: --missing $mine/roms/../delivered/stella" ] || complain "missing: on a screen it says $said"
mv "$work/box" "$mine/Aviso"
"$mine/Aviso" --missing "$mine/delivered/stella" && complain "missing: a box without a screen"
for exports in "$HOME/.local/share" "$work/data home"; do
    mkdir -p "$exports/flatpak/exports/bin"
    printf '#!/bin/sh\necho "stella of flatpak:$*"\n' >"$exports/flatpak/exports/bin/org.nowhere.NoSuch"
    chmod +x "$exports/flatpak/exports/bin/org.nowhere.NoSuch"
    [ "$exports" = "$HOME/.local/share" ] || export XDG_DATA_HOME=$exports
    [ "$("$mine/delivered/stella" -a 'b c')" = "stella of flatpak:-a b c" ] || complain "flatpak: $exports: it isn't found"
    start "$mine" 0 --check
    rm -r "$exports"
    start "$mine" 1 --check
done
unset XDG_DATA_HOME
cp "$work/stella" "$mine/delivered/stella"

# A newer one renews it.
make_directory "$work/newer" two
echo font >"$work/newer/fonts/taken"
printf "' newer\r\n" >>"$work/newer/delivered/LNG/ZB-FRA.LNG"
printf "' newer\r\n" >>"$work/newer/delivered/LNG/ZB-DEU.LNG"
echo newer | tee -a "$work/newer/delivered/LEEME.txt" >>"$work/newer/delivered/LICENSE"
rm "$mine/demo/prisma.gif"
printf "' mine\r\n" >>"$mine/LNG/ZB-DEU.LNG"
echo game >"$mine/demo/mine.bin"
echo mine >"$mine/fonts/mine.ttf"
# Among its own files the user has files, a link and a directory, and has changed some of them.
mkdir -p "$mine/plugins/extra" "$mine/lib/of mine/empty" "$mine/licenses/empty" "$mine/delivered/empty" "$mine/fonts/taken"
echo mine | tee "$mine/lib/mine.so" "$mine/plugins/extra/a file" "$mine/licenses/mine" "$mine/delivered/LNG/ZB-XXX.LNG" >>"$mine/lib/each"
ln -s /nowhere "$mine/lib/link"
echo '# mine' >>"$mine/start.sh"
sed -i 's|/Wikipedia|/wiki|; $s/$/\n# mine/' "$mine/delivered/emuladores.tsv"
cp "$mine/lib/each" "$work/each"
cp "$mine/start.sh" "$work/start"
cp "$mine/delivered/emuladores.tsv" "$work/tsv"
kept() { (cd "$mine" && sha256sum LNG/ZB-DEU.LNG Zembro.cfg Zembro.emu demo/mine.bin); }
users=$(kept)
start "$work/newer" 0 --renew "$mine"
[ "$(kept)" = "$users" ] || complain "renewed: what the user changed is gone"
grep -q newer "$mine/LNG/ZB-FRA.LNG" || complain "renewed: a language is old"
for name in LEEME.txt LICENSE; do
    cmp -s "$work/newer/delivered/$name" "$mine/$name" || complain "renewed: $name is old"
done
[ ! -e "$mine/demo/prisma.gif" ] || complain "renewed: what the user deleted is there again"
[ "$(cd "$mine/lib" && echo *)" = "each link mine.so of mine two" ] || complain "renewed: the libraries are $(ls "$mine/lib")"
[ "$(cat "$mine/lib/each" "$mine/lib/mine.so")" = "two
mine" ] && [ "$(readlink "$mine/lib/link")" = /nowhere ] || complain "renewed: the libraries hold something else"
for directory in "lib/of mine/empty" licenses/empty delivered/empty antes/fonts/taken; do
    [ -d "$mine/$directory" ] || complain "renewed: the directory $directory of the user's is gone"
done
for file in "plugins/extra/a file" licenses/mine delivered/LNG/ZB-XXX.LNG; do
    [ "$(cat "$mine/$file")" = mine ] || complain "renewed: $file of the user's is gone"
done
cmp "$work/each" "$mine/antes/lib/each" && cmp "$work/start" "$mine/antes/start.sh" && cmp "$work/tsv" "$mine/antes/delivered/emuladores.tsv" || complain "renewed: what the user changed is gone"
[ "$(cd "$mine/antes" && find . -type f | wc -l)" = 3 ] || complain "renewed: kept as the user's: $(find "$mine/antes")"
cmp "$mine/start.sh" "$work/newer/start.sh" || complain "renewed: the starter is old"
for file in lib/each start.sh delivered/emuladores.tsv; do
    grep -qxF "start.sh: $file wasn't as it was delivered. It is $mine/antes/$file now, beside the new one." "$work/errors" || complain "renewed: nothing is told of $file: $(cat "$work/errors")"
done
# Once more it keeps them, and tells nothing.
before=$(state "$mine")
start "$work/newer" 0 --renew "$mine"
[ -d "$mine/lib/of mine/empty" ] && [ -d "$mine/antes/fonts/taken" ] && [ ! -e "$mine/antes/fonts/taken.2" ] || complain "renewed again: the directories of the user's have changed"
[ "$(state "$mine")" = "$before" ] || complain "renewed again: $(state "$mine" | diff - <(echo "$before"))"
[ ! -s "$work/errors" ] || complain "renewed again: it says $(cat "$work/errors")"
# Another change of the same file doesn't take the place of the first one.
echo 'mine again' >"$mine/lib/each"
start "$work/newer" 0 --renew "$mine"
cmp "$work/each" "$mine/antes/lib/each" && [ "$(cat "$mine/antes/lib/each.2")" = "mine again" ] || complain "renewed twice: what the user changed is gone"
[ "$(cat "$mine/fonts/mine.ttf")" = mine ] || complain "renewed: a font of the user's is gone"
[ -z "$(find "$mine" -name '.*.new' -o -name '.*.old')" ] || complain "renewed: something is left over"
start "$mine" 0
[ "$said" = "started $mine/Zembrolix, two" ] || complain "renewed: it says $said"

# Killed at whichever of its steps, a renewal has lost nothing, and it is completed by itself or by another one.
mkdir "$work/quick" # what is written needn't be on the disk for this
ln -s /bin/true "$work/quick/sync"
PATH=$work/quick:$PATH
cut_at() { # tool, which of its calls
    rm -rf "$work/cut"
    : >"$work/calls"
    mkdir "$work/cut"
    # A copy is half done then.
    printf '#!/bin/sh\necho >>"%s"\n[ $(wc -l <"%s") = %s ] || exec %s "$@"\n[ %s != cp ] || { for to; do :; done; echo half >"$to"; }\nkill -KILL $PPID\n' \
        "$work/calls" "$work/calls" "$2" "$(command -v "$1")" "$1" >"$work/cut/$1"
    chmod +x "$work/cut/$1"
}
make_directory "$work/old" one
for program in BuscaEmuladores PrimerosAjustes Aviso Cvtgif15.exe Cvtcap.exe zembro; do
    echo '#!/bin/sh' | tee "$work/old/$program" >"$work/newer/$program" # quick to copy
done
printf '#!/bin/sh\nexec "$1/Zembrolix" 8<&-\n' >"$work/newer/delivered/start"
"$sources/packaging/portable/manifest.sh" "$work/newer"
old=$work/old
"$sources/packaging/portable/manifest.sh" "$old"
mkdir "$old/plugins/of mine"
echo mine | tee "$old/lib/mine.so" "$old/demo/mine.bin" >>"$old/lib/each"
echo old >"$old/lib/old.so"
(cd "$old" && sha256sum lib/old.so) >>"$old/delivered/manifest"
mine=$work/cut\ short
renewed() { # situation
    [ "$(cat "$mine/lib/mine.so" "$mine/demo/mine.bin")" = "mine
mine" ] && [ "$(cat "$mine/antes/lib/each")" = "one
mine" ] && [ -d "$mine/plugins/of mine" ] || complain "$1: what the user had is gone: $(ls -AR "$mine/lib" "$mine/antes")"
    [ "$(cat "$mine/lib/each")" = two ] && [ ! -e "$mine/lib/old.so" ] && grep -q two "$mine/Zembrolix" &&
        cmp "$work/newer/delivered/manifest" "$mine/delivered/manifest" || complain "$1: it isn't renewed: $(ls -A "$mine" "$mine/lib")"
    [ "$(find "$mine/antes" -type f)" = "$mine/antes/lib/each" ] || complain "$1: there is more aside: $(find "$mine/antes")"
    [ -z "$(find "$mine" -name '.*.new' -o -name '.*.old' -o -name .renewing -o -name .new)" ] || complain "$1: something is left over: $(ls -A "$mine")"
}
count_cuts=0
for tool in cp:2 mv:1 rm:5 install:2 sync:6; do
    each=${tool#*:} tool=${tool%:*}
    for ((nth = 1; ; nth += each)); do
        rm -rf "$mine"
        cp -a "$old" "$mine"
        cut_at "$tool" "$nth"
        # The shell's word on the kill isn't wanted.
        { PATH=$work/cut:$PATH "$work/newer/start.sh" --renew "$mine"; } >/dev/null 2>&1
        [ "$(wc -l <"$work/calls")" -ge "$nth" ] || break
        count_cuts=$((count_cuts + 1))
        # Its own start, as far as it has one; and where the newer version isn't there any more, that says so.
        if [ $((count_cuts % 2)) = 0 ] && [ -x "$mine/start.sh" ] && [ -f "$mine/.renewing" ]; then
            start "$mine" 0
        else
            [ ! -e "$mine/.renewing" ] || [ $((count_cuts % 3)) != 0 ] || echo /nowhere >"$mine/.renewing"
            start "$work/newer" 0 --renew "$mine"
        fi
        renewed "killed at $tool $nth"
    done
done
rm -rf "$work/cut"

# A start at whichever of the steps of a renewal waits for its end, and takes nothing away from it; so does another renewal.
await() { # situation: the start in the background
    for ((turn = 0; turn < 100; turn++)); do
        [ ! -e "$work/status" ] || break
        sleep 0.1
    done
    [ "$(cat "$work/status" 2>/dev/null)" = 0 ] || complain "$1: the other one: status $(cat "$work/status" 2>/dev/null): $(cat "$work/other said")"
}
count_meetings=0
for tool in cp:5 mv:2 rm:8 sync:7; do
    each=${tool#*:} tool=${tool%:*}
    for ((nth = 1; ; nth += each)); do
        rm -rf "$mine" "$work/cut" "$work/status"
        cp -a "$old" "$mine"
        cp "$work/newer/delivered/start" "$mine/delivered/start"
        : >"$work/calls"
        mkdir "$work/cut"
        other="'$mine/start.sh'"
        [ $((count_meetings % 3)) != 0 ] || other="'$work/newer/start.sh' --renew '$mine'"
        printf '#!/bin/sh\necho >>"%s"\n[ $(wc -l <"%s") != %s ] || { { PATH="%s"; %s; echo $? >"%s"; } >"%s" 2>&1 8<&- 9<&- & sleep 0.1; }\nexec %s "$@"\n' \
            "$work/calls" "$work/calls" "$nth" "$PATH" "$other" "$work/status" "$work/other said" "$(command -v "$tool")" >"$work/cut/$tool"
        chmod +x "$work/cut/$tool"
        PATH=$work/cut:$PATH start "$work/newer" 0 --renew "$mine"
        [ "$(wc -l <"$work/calls")" -ge "$nth" ] || break
        count_meetings=$((count_meetings + 1))
        await "met at $tool $nth"
        renewed "met at $tool $nth"
        [ "$other" != "'$mine/start.sh'" ] || grep -q "^started $mine/Zembrolix, " "$work/other said" || complain "met at $tool $nth: it starts $(cat "$work/other said")"
    done
done
rm -rf "$work/cut"
[ "$count_meetings" -ge 15 ] || complain "only $count_meetings steps were met"
export LANG=it_IT.UTF-8
# Of two starts, one completes what was cut short.
for pause in 0 0.05 0.2 0.4; do
    rm -rf "$mine" "$work/status"
    cp -a "$old" "$mine"
    echo "$work/newer" >"$mine/.renewing"
    { "$mine/start.sh"; echo $? >"$work/status"; } >"$work/other said" 2>&1 &
    sleep "$pause"
    start "$mine" 0
    await "completed twice, $pause"
    renewed "completed twice, $pause"
    [ "$said $(grep ^started "$work/other said")" = "started $mine/Zembrolix, two started $mine/Zembrolix, two" ] || complain "completed twice, $pause: $said $(cat "$work/other said")"
    [ "$(cat "$work/errors" "$work/other said" | grep -cx "start.sh: l'aggiornamento di questa cartella è rimasto a metà; lo si sta completando.")" = 1 ] ||
        complain "completed twice, $pause: it says $(cat "$work/errors" "$work/other said")"
done
# What takes long is told, in a box too, which is gone once it is over.
echo "$work/newer" >"$mine/.renewing"
cp "$work/newer/Aviso" "$work/box"
printf '#!/bin/sh\necho "$$ $*" >"%s/shown"\nexec sleep 60\n' "$work" >"$work/newer/Aviso"
flock "$mine/.lock" sleep 6 &
sleep 0.2
DISPLAY=:none start "$mine" 0 </dev/null
waiting="un altro start.sh sta lavorando in $mine; questo lo aspetta."
grep -qx "start.sh: $waiting" "$work/errors" || complain "held: it says $(cat "$work/errors")"
read -r shower words <"$work/shown"
[ "$words" = "$waiting" ] || complain "held: the box says $words"
! kill -0 "$shower" 2>/dev/null || { complain "held: the box stays"; kill "$shower"; }
mv "$work/box" "$work/newer/Aviso"
renewed held
# Others that only start or check don't wait.
flock -s "$mine/.lock" sleep 3 &
start "$mine" 0
[ ! -s "$work/errors" ] || complain "shared: it says $(cat "$work/errors")"
# Where there are no locks.
mkdir "$work/unlocked"
printf '#!/bin/sh\necho "flock: No locks available" >&2\nexit 71\n' >"$work/unlocked/flock"
chmod +x "$work/unlocked/flock"
rm -rf "$mine"
cp -a "$old" "$mine"
PATH=$work/unlocked:$PATH start "$work/newer" 0 --renew "$mine"
! grep -q flock "$work/errors" || complain "without locks: it says $(cat "$work/errors")"
PATH=$work/unlocked:$PATH start "$mine" 0
renewed "without locks"
PATH=${PATH#*:}
[ "$count_cuts" -ge 25 ] || complain "only $count_cuts steps were cut"
export LANG=en_US.UTF-8
half="$work/clé d'Ana"
cp -a "$old/." "$half"
echo /nowhere >"$half/.renewing"
mv "$half/plugins" "$half/.plugins.old"
start "$half" 0
words="start.sh: the renewal of this directory was cut short. Nothing of yours is lost; start.sh --renew '$work/clé d'\\''Ana' of the newer version completes it."
grep -qxF "$words" "$work/errors" || complain "half: it says $(cat "$work/errors")"
[ -d "$half/plugins/of mine" ] || complain "half: a part is gone"
start "$half" 1 --renew "$old"
# Where a file of the user's has the name of a directory, only what becomes of it is told.
rm -rf "$mine"
cp -a "$old" "$mine"
rm -rf "$mine/fonts"
echo mine >"$mine/fonts"
start "$work/newer" 0 --renew "$mine"
[ "$(cat "$mine/antes/fonts")" = mine ] || complain "in the way: what the user had is gone"
! grep -v '^start.sh: .* as it was delivered' "$work/errors" || complain "in the way: it says $(cat "$work/errors")"
# On a full disk, nothing has begun.
rm -rf "$mine"
cp -a "$old" "$mine"
before=$(state "$mine")
said=$(trap '' XFSZ; ulimit -f 0; "$work/newer/start.sh" --renew "$mine" 2>&1) && complain "full: it is renewed"
[ "$said" = "start.sh: $mine can't be written; it stays as it is." ] || complain "full: it says $said"
[ "$(state "$mine" | grep -v ' ./.lock$')" = "$before" ] || complain "full: $(state "$mine" | diff - <(echo "$before"))"
[ ! -e "$mine/.renewing" ] || complain "full: it is taken for one that was cut short"
mine="$work/Memoria USB/zembrolix"

# What is no directory of it stays as it is.
mkdir "$work/other"
echo mine >"$work/other/lib"
start "$work/newer" 1 --renew "$work/other"
[ "$(ls "$work/other")" = lib ] || complain "other: it has changed"
start "$work/newer" 1 --renew "$work/newer"
start "$work/newer" 1 --renew "$work/nowhere"
[ "$(cat "$work/errors")" = "start.sh: there is no directory $work/nowhere that can be entered." ] || complain "nowhere: $(cat "$work/errors")"
before=$(state "$mine")
said=$(
    chmod 755 "$work"
    chmod -R a+rX "$work/newer" "$mine"
    chmod 555 "$mine"
    [ "$(id -u)" -ne 0 ] || as_user=(setpriv --reuid=65534 --regid=65534 --clear-groups --)
    "${as_user[@]}" "$work/newer/start.sh" --renew "$mine" 2>&1
) && complain "locked: it is renewed"
[ "$said" = "start.sh: $mine can't be written; it stays as it is." ] || complain "locked: it says $said"
[ "$(state "$mine")" = "$before" ] || complain "locked: it has changed"
chmod 755 "$mine"
start "$work/newer" 1 --renew
exit "$bad"
