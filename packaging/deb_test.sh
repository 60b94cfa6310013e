#!/bin/bash
# Tries the package in a new system: deb_test.sh PACKAGE. Installs an older one, plays the demonstration as an ordinary user,
# upgrades to this one over what the user has changed, plays again, removes, and finds the user's directory whole.
set -euo pipefail
package=$(realpath "$1")
cd "$(dirname "$0")/.."
. packaging/root.sh

fail() { echo "deb_test: $*" >&2; exit 1; }
passed() { echo "deb_test: $*"; }
suite=${SUITE:-bookworm}
pictures=${PICTURES:-$work}
mkdir -p "$pictures"
new_root "$suite"

# The older one has other texts.
dpkg-deb -R "$package" "$work/older"
sed -i 's/^Version: .*/Version: 1.9-1/' "$work/older/DEBIAN/control"
for name in Zembro.txt LNG/ZB-ESP.LNG LNG/ZB-ITA.LNG; do
    printf "' older\r\n" >>"$work/older/usr/share/zembrolix/$name"
done
dpkg-deb --root-owner-group -b "$work/older" "$root/root/older.deb" >/dev/null
cp "$package" "$root/root/newer.deb"

inside apt-get update -qq
inside apt-get install -y -qq /root/older.deb >"$work/log" 2>&1 || { tail "$work/log"; fail "the older package can't be installed"; }
new_user ana es_ES.UTF-8
passed "installed $(inside dpkg-query -W -f '${Package} ${Version}' zembrolix) on Debian $(cat "$root/etc/debian_version")"

mine=$home/Zembrolix
play "first start" /home/ana/Zembrolix zembrolix
[ "$(sed -n 's/\r$//; s/^LanguageFile = //p' "$mine/Zembro.cfg")" = ZB-ESP.LNG ] || fail "it doesn't speak the language of the user"
[ "$(chroot "$root" stat -c %U /home/ana/Zembrolix/Zembro.emu)" = ana ] || fail "the directory isn't the user's"
[ -s "$home/.local/state/zembrolix/log" ] || fail "no line on the launch"
"$user" zembro why | grep -q hedgerow || fail "zembro why: $("$user" zembro why)"
"$user" zembro check >"$work/said" || fail "zembro check: $(cat "$work/said")"
passed "zembro check and zembro why answer"

# What a user does.
printf "' mine\r\n" >>"$mine/LNG/ZB-ESP.LNG"
printf 'PRISMA.BIN,"Mi prisma"\r\n' >"$work/line"
sed -i "/^Atari 2600/r $work/line" "$mine/Zembro.rom"
cp "$mine/demo/prisma.bin" "$mine/demo/Otro prisma.bin"
kept() { (cd "$mine" && sha256sum LNG/ZB-ESP.LNG Zembro.rom Zembro.emu Zembro.cfg "demo/Otro prisma.bin"); }
users=$(kept)

inside apt-get install -y -qq /root/newer.deb >"$work/log" 2>&1 || { tail "$work/log"; fail "it can't be upgraded"; }
passed "upgraded to $(inside dpkg-query -W -f '${Package} ${Version}' zembrolix)"
play "after the upgrade" /home/ana/Zembrolix zembrolix
[ "$(kept)" = "$users" ] || fail "something that the user changed is gone: $(kept | diff - <(echo "$users"))"
for name in Zembro.txt LNG/ZB-ITA.LNG; do
    cmp "$mine/$name" "$root/usr/share/zembrolix/$name" || fail "$name isn't renewed"
done
"$user" zembro list atari | grep -q 'Mi prisma' || fail "the description is gone"
passed "renewed what the user hasn't changed, and nothing else"

# Without the emulator the play button says how to get it, and so do check and why; what a starter can't do it shows.
inside apt-get purge -y -qq stella >"$work/log" 2>&1 || { tail "$work/log"; fail "the emulator can't be removed"; }
tests/with_screen.sh packaging/absent.sh "$pictures/absent-deb.png" "$user" zembrolix >"$work/log" 2>&1 || { cat "$work/log"; fail "no box"; }
for command in check why; do
    ! "$user" zembro "$command" >"$work/said" || fail "zembro $command finds nothing amiss without an emulator"
    grep -q 'sudo apt install stella' "$work/said" || fail "zembro $command: $(cat "$work/said")"
done
passed "without an emulator the play button shows how to get it, and zembro check and zembro why tell it"
tests/with_screen.sh packaging/box.sh "$pictures/locked.png" "$user" env HOME=/root zembrolix >"$work/log" 2>&1 || { cat "$work/log"; fail "no box"; }
passed "where it can't start, a box says why"

before=$(cd "$home" && find . -type f -exec sha256sum {} + | sort -k 2)
inside apt-get purge -y -qq zembrolix >"$work/log" 2>&1 || { tail "$work/log"; fail "it can't be removed"; }
[ -z "$(find "$root"/usr/games "$root"/usr/lib/zembrolix "$root"/usr/share/zembrolix -name '*embro*' 2>/dev/null)" ] || fail "something is left in /usr"
[ "$(cd "$home" && find . -type f -exec sha256sum {} + | sort -k 2)" = "$before" ] || fail "the user's directory has changed"
passed "removed; the user's directory is whole, with $(find "$mine" -type f | wc -l) files"
