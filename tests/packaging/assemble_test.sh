#!/bin/bash
# Assembling a program directory: assemble_test.sh FINDER ZEMBRO. New, again, from a newer build, over what a user changed.
set -u
finder=$1
zembro=$2
assemble=$(dirname "$0")/../../packaging/assemble.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bad=0
complain() { echo "$*" >&2; bad=1; }

build=$work/build
program="$work/My Programs/zembrolix"

# A build whose texts say its version.
make_build() { # version
    local name
    mkdir -p "$build"/{converter,companion,finder,data/beside/LNG,data/demo/games}
    for name in Zembrolix converter/Cvtgif15.exe converter/Cvtcap.exe; do
        printf '#!/bin/sh\necho %s\n' "$1" >"$build/$name"
    done
    cp "$finder" "$build/finder/BuscaEmuladores"
    printf '#!/bin/sh\n# %s\nexec "%s" "$@"\n' "$1" "$zembro" >"$build/companion/zembro"
    chmod +x "$build/companion/zembro"
    for name in Zembro.cfg Zembro.txt Zembro.faq Zembro.rom LNG/ZB-ESP.LNG; do
        printf '%s %s\r\n' "$name" "$1" >"$build/data/beside/$name"
    done
    cp "$build/data/beside/Zembro.txt" "$build/data/demo/games/GAME.A26"
    {
        printf -- "'\r\n-Jaguar\r\nWEB1=%s\r\n*.ZIP\r\n*.J64\r\n'\r\n+BigPEmu\r\nWEB2=f\r\n" "$1"
        printf "'%s\r\n[EOF]\r\n" "$closing"
    } >"$build/data/beside/Zembro.sye"
    printf -- "-Atari 2600\r\n'\r\n+Stella\r\nEXE=@STELLA@\r\nROM=demo/\r\n'%s\r\n[EOF]\r\n" "$closing" \
        >"$build/data/beside/Zembro.emu"
}
closing=----------------------------------------------------------------------
run() { "$assemble" "$build" "$program" >"$work/said" 2>"$work/errors" || complain "$1: it fails: $(cat "$work/errors")"; }
version_of() { grep -ao 'version[0-9]' "$program/$1" | head -n 1; }
expect() { # name, version, situation
    [ "$(version_of "$1")" = "$2" ] || complain "$3: $1 is '$(version_of "$1")', not $2"
}
state() { (cd "$program" && find . -type f -exec sha256sum {} + | sort -k 2); }
anew() { rm -rf "$work/My Programs"; make_build version1; run "$1"; }
mkdir "$work/bin"
printf '#!/bin/sh\n' >"$work/bin/bigpemu"
chmod +x "$work/bin/bigpemu"
plain=$PATH

# New: everything is there, and the catalogue is the demonstration alone: no other system has games.
PATH=$work/bin:$plain
anew new
for name in Zembrolix Cvtgif15.exe Cvtcap.exe zembro Zembro.cfg Zembro.txt Zembro.faq Zembro.rom Zembro.sye LNG/ZB-ESP.LNG demo/GAME.A26; do
    expect "$name" version1 new
done
[ -x "$program/Zembrolix" ] || complain "new: the program can't be run"
[ -z "$(find "$program" -name '*.new')" ] || complain "new: something is left over"
stella=$(command -v stella || echo /usr/bin/stella)
printf -- "-Atari 2600\r\n'\r\n+Stella\r\nEXE=%s\r\nROM=demo/\r\n'%s\r\n" "$stella" "$closing" >"$work/demo"
{ cat "$work/demo"; printf '[EOF]\r\n'; } | cmp -s - "$program/Zembro.emu" || complain "new: the catalogue isn't the demonstration"
[ -d "$program/roms/Atari 2600" ] && grep -q 'games of Jaguar' "$program/roms/Jaguar/LEEME.txt" || complain "new: no directories for the games"
[ ! -s "$work/said" ] && [ ! -s "$work/errors" ] || complain "new: it says something"

# New, where games lie already: their emulators are in the catalogue behind the demonstration.
printf -- "-Jaguar\r\nWEB1=version1\r\n*.ZIP\r\n*.J64\r\n'\r\n+BigPEmu\r\nWEB2=f\r\nEXE=%s/bin/bigpemu\r\nXDI=0\r\n" "$work" >"$work/block"
printf -- "ROM=roms/Jaguar/\r\nIMG=capturas/Jaguar/\r\nPAR1=\r\nPAR2=\r\n'%s\r\n[EOF]\r\n" "$closing" >>"$work/block"
rm -rf "$work/My Programs"
mkdir -p "$program/roms/Jaguar"
echo mine >"$program/roms/Jaguar/Game.J64"
run "with games"
cat "$work/demo" "$work/block" | cmp -s - "$program/Zembro.emu" || complain "with games: the emulator isn't configured"
[ -d "$program/capturas/Jaguar" ] || complain "with games: no directory for the captures"
[ "$(cat "$program/roms/Jaguar/Game.J64")" = mine ] || complain "with games: the game has changed"
grep -q '^Configured Jaguar: BigPEmu, ' "$work/said" || complain "with games: it doesn't say what it has configured"

# Asked to find the rest: what is there stays, and it says what it added.
find_rest() { "$(dirname "$assemble")/find.sh" "$build" "$program" "$@" >"$work/said" 2>"$work/errors" || complain "find $*: it fails: $(cat "$work/errors")"; }
anew "to find in"
before=$(state)
find_rest
[ "$(state)" = "$before" ] || complain "find: something has changed without a game"
grep -q '^Nothing to add. Put games' "$work/said" || complain "find: it doesn't say that there is nothing"
echo mine >"$program/roms/Jaguar/Game.J64"
find_rest
cat "$work/demo" "$work/block" | cmp -s - "$program/Zembro.emu" || complain "find: the emulator isn't configured"
grep -q '^Configured Jaguar: BigPEmu, ' "$work/said" || complain "find: it doesn't say what it has configured"
anew "to find all in"
find_rest --all
cat "$work/demo" "$work/block" | cmp -s - "$program/Zembro.emu" || complain "find --all: the emulator isn't configured"
find_rest --all
grep -q '^Nothing to add: every' "$work/said" || complain "find --all: it doesn't say that there is nothing more"
! "$(dirname "$assemble")/../run.sh" --find --everything 2>/dev/null || complain "run.sh takes any word"

# A clean start for what follows.
anew again

# Again: nothing changes, and no program is written anew.
places() { (cd "$program" && stat -c '%i %n' Zembrolix zembro Cvtgif15.exe Cvtcap.exe); }
before=$(state)
where=$(places)
run again
[ "$(state)" = "$before" ] || complain "again: something has changed"
[ "$(places)" = "$where" ] || complain "again: a program was written that was there"
[ ! -s "$work/said" ] || complain "again: it says something"

# Again with one emulator more: the catalogue is the user's.
PATH=$plain
rm "$work/bin/bigpemu"
anew "without emulators"
before=$(state)
printf '#!/bin/sh\n' >"$work/bin/bigpemu"
chmod +x "$work/bin/bigpemu"
PATH=$work/bin:$plain
run "one more"
[ "$(state)" = "$before" ] || complain "one more: something has changed"

# A newer build renews what is as it was delivered, and the programs.
anew newer
catalogue=$(sha256sum <"$program/Zembro.emu")
make_build version2
run newer
for name in Zembrolix Cvtgif15.exe Cvtcap.exe zembro Zembro.cfg Zembro.txt Zembro.faq Zembro.rom Zembro.sye LNG/ZB-ESP.LNG demo/GAME.A26; do
    expect "$name" version2 newer
done
[ "$(sha256sum <"$program/Zembro.emu")" = "$catalogue" ] || complain "newer: the catalogue has changed"
make_build version3
run "newer still"
expect Zembro.txt version3 "newer still"

# Killed at whichever of its steps, it has lost nothing, and the next time it is whole: a new directory and a renewal.
cut_at() { # tool, which of its calls
    rm -rf "$work/cut"
    : >"$work/calls"
    mkdir "$work/cut"
    # A file is half written then.
    printf '#!/bin/sh\necho >>"%s"\n[ $(wc -l <"%s") = %s ] || exec %s "$@"\n[ %s != install ] || echo half >"$4"\nkill -KILL $PPID\n' \
        "$work/calls" "$work/calls" "$2" "$(command -v "$1")" "$1" >"$work/cut/$1"
    chmod +x "$work/cut/$1"
}
rm -rf "$work/My Programs"
make_build version1
run whole
cp -a "$work/My Programs" "$work/first"
printf 'mine\r\n' | tee -a "$work/first/zembrolix/LNG/ZB-ESP.LNG" >>"$work/first/zembrolix/Zembro.emu"
users=$(sha256sum <"$work/first/zembrolix/LNG/ZB-ESP.LNG"; sha256sum <"$work/first/zembrolix/Zembro.emu")
make_build version2
cuts=0
for begun in none first; do
    for tool in install mv; do
        for ((nth = 1; ; nth++)); do
            rm -rf "$work/My Programs"
            [ "$begun" = none ] || cp -a "$work/first" "$work/My Programs"
            cut_at "$tool" "$nth"
            { PATH=$work/cut:$PATH "$assemble" "$build" "$program"; } >/dev/null 2>&1
            [ "$(wc -l <"$work/calls")" -ge "$nth" ] || break
            cuts=$((cuts + 1))
            run "killed at $tool $nth, $begun"
            for name in Zembrolix Cvtcap.exe zembro Zembro.cfg Zembro.txt Zembro.rom Zembro.sye demo/GAME.A26; do
                expect "$name" version2 "killed at $tool $nth, $begun"
            done
            [ "$begun" = none ] || [ "$(sha256sum <"$program/LNG/ZB-ESP.LNG"; sha256sum <"$program/Zembro.emu")" = "$users" ] ||
                complain "killed at $tool $nth: what the user had is gone"
            [ "$begun" = first ] || grep -q '^+Stella' "$program/Zembro.emu" || complain "killed at $tool $nth: no catalogue"
            [ -z "$(find "$program" -name '.*.new')" ] || complain "killed at $tool $nth, $begun: something is left over"
        done
    done
done
[ "$cuts" -ge 40 ] || complain "only $cuts steps were cut"
# A line that was cut short, as on a full disk, spoils only itself.
anew "cut line"
printf 'abc' >>"$program/.delivered"
make_build version2
run "cut line"
make_build version3
run "cut line"
for name in Zembro.cfg Zembro.txt; do
    expect "$name" version3 "cut line"
done
make_build version1

# Several at once leave what one does.
anew together
run "alone"
alone=$(state)
make_build version1
rm -rf "$work/My Programs"
for _ in 1 2 3 4; do
    "$assemble" "$build" "$program" >>"$work/several" 2>&1 &
done
wait
[ "$(state)" = "$alone" ] && [ ! -s "$work/several" ] || complain "together: $(state | diff - <(echo "$alone")) $(cat "$work/several")"

# What the user changed stays, and so does a link; what he deleted is there again.
anew changed
for name in Zembro.cfg LNG/ZB-ESP.LNG demo/GAME.A26 Zembro.emu; do
    echo mine >>"$program/$name"
done
mv "$program/Zembro.faq" "$work/elsewhere"
ln -s "$work/elsewhere" "$program/Zembro.faq"
rm "$program/Zembro.txt"
before=$(sha256sum "$program"/Zembro.{cfg,emu} "$program/LNG/ZB-ESP.LNG" "$program/demo/GAME.A26" "$work/elsewhere")
make_build version2
run changed
after=$(sha256sum "$program"/Zembro.{cfg,emu} "$program/LNG/ZB-ESP.LNG" "$program/demo/GAME.A26" "$work/elsewhere")
[ "$after" = "$before" ] || complain "changed: something that the user changed is gone"
[ -L "$program/Zembro.faq" ] || complain "changed: the link is gone"
expect Zembro.txt version2 changed
expect Zembro.sye version2 changed

# A game of the demonstration that he deleted stays away, whatever else is renewed or new, until the catalogue is written anew.
anew deleted
rm "$program/demo/GAME.A26"
run deleted
make_build version2
cp "$build/data/demo/games/GAME.A26" "$build/data/demo/games/NEW.A26"
run deleted
[ ! -e "$program/demo/GAME.A26" ] || complain "deleted: the game is there again"
expect demo/NEW.A26 version2 deleted
expect Zembro.txt version2 deleted
rm -r "$program/demo"
run "all deleted"
[ ! -e "$program/demo" ] || complain "all deleted: the directory is there again"
rm "$program/Zembro.emu"
run "new catalogue"
expect demo/GAME.A26 version2 "new catalogue"
rm "$build/data/demo/games/NEW.A26"

# The database and the notes are renewed together or not at all.
for mine in Zembro.rom Zembro.sye; do
    anew pair
    echo mine >>"$program/$mine"
    make_build version2
    run pair
    expect Zembro.rom version1 "pair, $mine changed"
    expect Zembro.sye version1 "pair, $mine changed"
    expect Zembro.txt version2 "pair, $mine changed"
done
rm "$program/Zembro.rom"
run "pair with one missing"
expect Zembro.rom version2 "pair with one missing"
expect Zembro.sye version1 "pair with one missing"

# A directory from the time before sums were kept: known from the build that it came from.
anew old
rm "$program/.delivered"
run old
make_build version2
run old
expect Zembro.txt version2 old
anew older
rm "$program/.delivered"
make_build version2
run older
expect Zembro.txt version1 older

# A portable directory keeps its own programs, and says how they are renewed.
anew portable
touch "$program/qt.conf"
make_build version2
"$assemble" "$build" "$program" >"$work/said" 2>"$work/errors" && complain "portable: it is renewed"
grep -q 'My Programs/zembrolix is a portable one: start.sh --renew' "$work/errors" || complain "portable: no word about it"
expect Zembrolix version1 portable
rm "$program/qt.conf"

# What can't be written whole leaves nothing behind.
anew full
make_build version2
(ulimit -f 0; trap '' XFSZ; "$assemble" "$build" "$program" >/dev/null 2>&1) && complain "full: it doesn't fail"
expect Zembrolix version1 full
[ -z "$(find "$program" -name '*.new')" ] || complain "full: something is left over"

# Without the finder the demonstration is there all the same.
rm -rf "$work/My Programs"
make_build version1
printf '#!/bin/sh\nexit 1\n' >"$build/finder/BuscaEmuladores"
run "no finder"
grep -q '^+Stella' "$program/Zembro.emu" || complain "no finder: no catalogue"
grep -q "aren't configured" "$work/errors" || complain "no finder: not a word about it"

exit "$bad"
