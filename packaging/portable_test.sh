#!/bin/bash
# Tries the portable archive in a newer system without the toolkit and without a network: portable_test.sh ARCHIVE. Starts it
# where there is nothing at all, plays the demonstration as an ordinary user, from another place and from a medium that can't
# be written too, and brings an older directory up to date.
set -euo pipefail
archive=$(realpath "$1")
cd "$(dirname "$0")/.."
. packaging/root.sh

fail() { echo "portable_test: $*" >&2; exit 1; }
passed() { echo "portable_test: $*"; }
pictures=${PICTURES:-$work}
mkdir -p "$pictures"
new_root "${SUITE:-trixie}"
new_user ana fr_FR.UTF-8 "unshare --net"
unpack() { # directory in the root
    mkdir -p "$root$1"
    tar -C "$root$1" --strip-components=1 --zstd -xf "$archive"
    inside chown -R ana:ana "$1"
}
no_toolkit() { [ -z "$(find "$root"/usr -name 'libQt*' -o -name 'libGraphicsMagick*')" ] || fail "the toolkit is installed"; }
setting() { sed -n "s/\r$//; s/^$1 = //p" "$root$2/Zembro.cfg"; }
glance() { # what is said, picture, command
    local said=$1 picture=$2
    shift 2
    tests/with_screen.sh packaging/glance.sh "$pictures/$picture" "$user" "$@" >"$work/log" 2>&1 || { cat "$work/log"; fail "$said"; }
    # What it keeps showing: the letters of the list and of the buttons, too.
    [ "$(identify -format %k "$pictures/$picture")" -gt 200 ] || fail "$said: $picture shows nothing"
    passed "$said"
}

# Nothing but the base system: no toolkit, no fonts, no libraries of a desktop.
place=/home/ana/Memoria\ USB/zembrolix
unpack "$place"
passed "unpacked $(stat -c %s "$archive") bytes on Debian $(cat "$root/etc/debian_version"), where $(inside dpkg-query -W | wc -l) packages are installed"
no_toolkit
[ -z "$(find "$root/usr/share/fonts" -name '*.ttf' 2>/dev/null)" ] || fail "there are fonts"
glance "starts in the base system, without fonts" bare.png "$place/start.sh"
[ "$(setting LanguageFile "$place")" = ZB-FRA.LNG ] || fail "it doesn't speak the language of the user"
"$user" "$place/Cvtgif15.exe" >/dev/null 2>"$work/said" || [ "$(cat "$work/said")" ] || fail "the converter says nothing"
! grep -i 'shared\|libr' "$work/said" || fail "the converter lacks a library"

# Without the emulator the play button says how to get it, and so does the check.
! "$user" "$place/zembro" check >"$work/said" || fail "zembro check finds nothing amiss without an emulator"
grep -q 'sudo apt install stella' "$work/said" || fail "zembro check: $(cat "$work/said")"
tests/with_screen.sh packaging/absent.sh "$pictures/absent.png" "$user" "$place/start.sh" >"$work/log" 2>&1 || { cat "$work/log"; fail "no box"; }
! "$user" "$place/zembro" why >"$work/said" || fail "zembro why finds nothing amiss without an emulator"
grep -q 'sudo apt install stella' "$work/said" || fail "zembro why: $(cat "$work/said")"
passed "without an emulator the play button shows how to get it, and zembro check and zembro why tell it"

inside apt-get update -qq
inside apt-get install -y -qq --no-install-recommends stella libgl1 libgl1-mesa-dri libegl1 >"$work/log" 2>&1 || { tail "$work/log"; fail "no emulator"; }
no_toolkit
play "in $place" "$place" "$place/start.sh"
"$user" "$place/zembro" check >"$work/said" || fail "zembro check: $(cat "$work/said")"
passed "zembro check answers"

# Elsewhere, with all that the user has done.
mv "$root$place" "$root/home/ana/otro sitio"
place="/home/ana/otro sitio"
play "moved" "$place" "$place/start.sh"

# An older directory, in which a language, the descriptions and a library are of another time.
old=$root$place
for name in Zembro.txt LNG/ZB-ITA.LNG; do
    printf "' older\r\n" >>"$old/$name"
    (cd "$old" && sha256sum "$name") >>"$old/.delivered"
done
printf "' mine\r\n" >>"$old/LNG/ZB-FRA.LNG"
printf 'PRISMA.BIN,"Mon prisma"\r\n' >"$work/line"
sed -i "/^Atari 2600/r $work/line" "$old/Zembro.rom"
cp "$old/demo/prisma.bin" "$old/demo/un autre.bin"
echo old >"$old/lib/libold.so.1"
(cd "$old" && sha256sum lib/libold.so.1) >>"$old/delivered/manifest"
echo mine >"$old/plugins/mine"
echo mine >>"$old/licenses/README"
kept() { (cd "$old" && sha256sum LNG/ZB-FRA.LNG Zembro.rom Zembro.emu Zembro.cfg "demo/un autre.bin"); }
users=$(kept)
unpack /home/ana/newer
"$user" /home/ana/newer/start.sh --renew "$place" || fail "it can't be renewed"
[ "$(kept)" = "$users" ] || fail "something that the user changed is gone: $(kept | diff - <(echo "$users"))"
for name in Zembro.txt LNG/ZB-ITA.LNG; do
    cmp "$old/$name" "$root/home/ana/newer/$name" || fail "$name isn't renewed"
done
diff -r "$old/lib" "$root/home/ana/newer/lib" || fail "the libraries aren't renewed"
[ "$(cat "$old/plugins/mine")" = mine ] && [ "$(tail -n 1 "$old/antes/licenses/README")" = mine ] || fail "something that the user had among its own files is gone"
passed "renewed what the user hasn't changed, and nothing else"
play "after the renewal" "$place" "$place/start.sh"
"$user" "$place/zembro" list atari | grep -q 'Mon prisma' || fail "the description is gone"

# A medium that can't be written, as new and as it is left.
unpack /mnt/new
mkdir -p "$root/mnt/left"
cp -a "$root$place/." "$root/mnt/left"
for medium in /mnt/new /mnt/left; do
    mount --bind "$root$medium" "$root$medium"
    mount -o remount,bind,ro "$root$medium"
    ! "$user" touch "$medium/file" 2>/dev/null || fail "$medium can be written"
    play "from $medium, which can't be written" "$medium" "$medium/start.sh"
    umount "$root$medium"
done
