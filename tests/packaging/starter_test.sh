#!/bin/bash
# The installed starter with a home of its own: starter_test.sh BUILD. What is installed comes from the build; only the
# program itself is one that says how it was started.
set -u
build=$1
sources=$(cd "$(dirname "$0")/../.." && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bad=0
complain() { echo "starter: $*" >&2; bad=1; }

umask 022
cmake --install "$build" --prefix "$work/usr" >/dev/null || { complain "what is built can't be installed"; exit 1; }
files=$work/usr/share/zembrolix
cat >"$work/usr/lib/zembrolix/Zembrolix" <<'END2'
#!/bin/sh
echo "started $0 log ${ZEMBRO_LOG-none}"
END2

unset LC_ALL LC_MESSAGES DISPLAY WAYLAND_DISPLAY XDG_STATE_HOME ZEMBRO_LOG TERMINAL
export HOME=$work/home LANG=fr_FR.UTF-8
mkdir "$HOME"
cd "$work" || exit 1
mine=$HOME/Zembrolix
start() { # expected status, arguments
    local expected=$1
    shift
    said=$("$work/usr/games/zembrolix" "$@" 2>"$work/errors")
    local status=$?
    [ "$status" = "$expected" ] || complain "zembrolix $*: status $status: $said $(cat "$work/errors")"
}
setting() { sed -n "s/\r$//; s/^$1 = //p" "${2:-$mine}/Zembro.cfg"; }
# Without the copies of the text files, of which a start makes one where something has changed.
state() { (cd "$mine" && find . -path ./copias -prune -o -type f -exec sha256sum {} + | sort -k 2); }

# The first start makes the directory, and asks nothing.
start 0
[ "$said" = "started $mine/Zembrolix log $HOME/.local/state/zembrolix/log" ] || complain "first: it says $said"
[ -d "$HOME/.local/state/zembrolix" ] || complain "first: no directory for the log"
[ "$(setting LanguageFile) $(setting LastSisUsed) $(setting LastEmuUsed)" = "ZB-FRA.LNG 0 0" ] || complain "first: the settings: $(cat "$mine/Zembro.cfg")"
for name in Zembro.emu Zembro.rom Zembro.sye Zembro.txt Zembro.faq LNG/ZB-CAT.LNG demo/prisma.bin demo/prisma.gif zembro Cvtgif15.exe Cvtcap.exe; do
    [ -s "$mine/$name" ] || complain "first: no $name"
done
[ "$(ls "$mine/copias" | wc -l)" = 1 ] || complain "first: no copy of the text files"
! grep -q @ "$mine/Zembro.emu" || complain "first: the catalogue has places left to fill in"
# The emulator of the demonstration is that of the machine, whenever it comes; where there is none, it and the check tell.
grep -q '^EXE=delivered/stella' "$mine/Zembro.emu" || complain "first: the emulator: $(cat "$mine/Zembro.emu")"
[ -x "$mine/delivered/stella" ] && [ -x "$mine/Aviso" ] || complain "first: nothing tells of a missing emulator"
sed 's/^# Stands for .*/# Stands for No Such: no-such-emulator/' "$work/usr/lib/zembrolix/stella" >"$mine/delivered/stella"
said=$("$work/usr/games/zembro" check) && complain "no emulator: the check finds nothing"
grep -q 'Atari 2600 / Stella.*: No Such .*: sudo apt install no-such-emulator' <<<"$said" || complain "no emulator: the check says $said"
said=$(cd / && DISPLAY=:none "$mine/delivered/stella" game 2>&1)
[ "$? $said" = "127 No Such isn't installed on this machine." ] || complain "no emulator: it says $said"
cp "$work/usr/lib/zembrolix/stella" "$mine/delivered/stella"

# Another one changes nothing, in whatever language.
before=$(state)
LANG=de_DE.UTF-8 ZEMBRO_LOG=$work/log start 0
[ "$said" = "started $mine/Zembrolix log $work/log" ] || complain "again: it says $said"
[ "$(state)" = "$before" ] || complain "again: $(state | diff - <(echo "$before"))"
ZEMBRO_LOG='' start 0
[ "$said" = "started $mine/Zembrolix log " ] || complain "without a log: it says $said"

# A newer version renews what the user hasn't changed.
printf 'changed\r\n' >>"$mine/LNG/ZB-FRA.LNG"
printf 'changed\r\n' >>"$mine/Zembro.faq"
printf 'changed\r\n' >>"$mine/Zembro.rom"
echo game >"$mine/demo/mine.bin"
users=$(cd "$mine" && sha256sum LNG/ZB-FRA.LNG Zembro.faq Zembro.rom Zembro.cfg Zembro.emu demo/mine.bin)
for name in LNG/ZB-FRA.LNG LNG/ZB-ITA.LNG Zembro.faq Zembro.txt Zembro.emu Zembro.rom; do
    printf 'newer\r\n' >>"$files/$name"
done
echo '# newer' >>"$work/usr/lib/zembrolix/Zembrolix"
start 0
[ "$(cd "$mine" && sha256sum LNG/ZB-FRA.LNG Zembro.faq Zembro.rom Zembro.cfg Zembro.emu demo/mine.bin)" = "$users" ] || complain "newer: what the user changed is gone"
for name in LNG/ZB-ITA.LNG Zembro.txt Zembrolix; do
    grep -q newer "$mine/$name" || complain "newer: $name is old"
done

# In a directory that is named, also by a path from here.
export LANG=en_US.UTF-8
LANG=fr_FR.UTF-8 start 0 --directory "an other/place"
[ "$said" = "started $work/an other/place/Zembrolix log $HOME/.local/state/zembrolix/log" ] || complain "directory: it says $said"
[ "$(setting LanguageFile "$work/an other/place")" = ZB-FRA.LNG ] || complain "directory: the language"
start 2 --directory
start 2 --everything

# zembro is about the user's directory, unless another one is named.
zembro() { "$work/usr/games/zembro" "$@" 2>&1; }
rm "$work/an other/place/demo/prisma.bin"
zembro list atari | grep -qi prisma || complain "zembro: $(zembro list atari)"
zembro --directory "an other/place" list atari | grep -qi hedgerow || complain "zembro elsewhere: $(zembro --directory "an other/place" list atari)"
! zembro list atari --directory "an other/place" | grep -qi prisma || complain "zembro lists the wrong directory"

# The check shows itself in a terminal.
printf '#!/bin/sh\nprintf "%%s|" "$@"\n' >"$work/terminal"
chmod +x "$work/terminal"
TERMINAL="$work/terminal --wait" start 0 --check
case $said in
"--wait|-e|bash|-c|"*"|zembro|$mine/zembro|") ;;
*) complain "check: the terminal gets $said" ;;
esac

# Without a terminal a box says what is wrong, with nothing but what is installed.
mv "$work/usr/lib/zembrolix/Aviso" "$work/box"
printf '#!/bin/sh\n[ $# = 1 ] && echo "$1" >"%s/shown"\n' "$work" >"$work/usr/lib/zembrolix/Aviso"
chmod +x "$work/usr/lib/zembrolix/Aviso"
PATH=/usr/bin:/bin DISPLAY=:none HOME='' start 1 </dev/null
[ "$(cat "$work/shown" 2>/dev/null)" = 'There is no home directory ($HOME) to keep its directory in.' ] || complain "box: it says $(cat "$work/shown")"
rm -f "$work/shown"
PATH=/usr/bin:/bin DISPLAY=:none HOME='' LANG=ca_ES.UTF-8 start 1 </dev/null
[ "$(cat "$work/shown" 2>/dev/null)" = 'No hi ha directori personal ($HOME) on desar el seu directori.' ] || complain "box in Catalan: it says $(cat "$work/shown")"
rm -f "$work/shown"
PATH=/usr/bin:/bin HOME='' start 1
[ ! -e "$work/shown" ] || complain "box: without a screen it says $(cat "$work/shown")"
mv "$work/box" "$work/usr/lib/zembrolix/Aviso"
"$work/usr/lib/zembrolix/Aviso" words && complain "box: one without a screen"

# Where no directory can be made it says so in plain words, and starts nothing; where only the line on a launch can't be
# kept, it says that and starts.
as_user() { # command...
    if [ "$(id -u)" -eq 0 ]; then setpriv --reuid=65534 --regid=65534 --clear-groups -- "$@"; else "$@"; fi
}
chmod 755 "$work"
chmod -R a+rX "$work/usr"
mkdir "$work/locked"
chmod 555 "$work/locked"
said=$(HOME=$work/locked as_user "$work/usr/games/zembrolix" 2>&1) && complain "locked: it starts"
[ "$said" = "zembrolix: Its directory can't be made. $work/locked can't be written." ] || complain "locked: it says $said"
said=$(HOME=$work/locked LANG=pt_BR.UTF-8 as_user "$work/usr/games/zembrolix" 2>&1) && complain "locked: it starts"
[ "$said" = "zembrolix: Não se pode criar o seu diretório. Não se pode escrever em $work/locked." ] || complain "locked, in Portuguese: it says $said"
# What can't be read and entered isn't called one that can't be written.
mkdir -p "$work/closed" "$work/room/Zembrolix"
chmod 700 "$work/closed"
[ "$(id -u)" -eq 0 ] || chmod 0 "$work/closed"
said=$(HOME=$work/closed as_user "$work/usr/games/zembrolix" 2>&1) && complain "closed: it starts"
[ "$said" = "zembrolix: Its directory can't be made. $work/closed can't be entered." ] || complain "closed: it says $said"
chmod 0 "$work/room/Zembrolix"
said=$(HOME=$work/room as_user "$work/usr/games/zembrolix" 2>&1) && complain "closed directory: it starts"
[ "$said" = "zembrolix: $work/room/Zembrolix can't be entered." ] || complain "closed directory: it says $said"
cp -a "$mine" "$work/open"
# A directory made or renewed in part isn't called one that stays as it is.
mkdir -p "$work/half/LNG"
chmod 777 "$work/half"
chmod 555 "$work/half/LNG"
said=$(HOME=$work/locked as_user "$work/usr/games/zembrolix" --directory "$work/half" 2>&1) && complain "half: it starts"
case $said in
"zembrolix: Its directory can't be made. "*) ;;
*) complain "half: it says $said" ;;
esac
cp -a "$mine" "$work/old"
chmod -R a+rwX "$work/old"
chmod 555 "$work/old/LNG"
printf 'newest\r\n' >>"$files/LNG/ZB-ITA.LNG"
said=$(HOME=$work/locked as_user "$work/usr/games/zembrolix" --directory "$work/old" 2>&1) || complain "old: it doesn't start: $said"
case $said in
"zembrolix: Not all of its directory can be renewed. "*"started $work/old/Zembrolix"*) ;;
*) complain "old: it says $said" ;;
esac
# Where no program may be run, that is said.
cp -a "$work/open" "$work/unable"
chmod -R a+rX,a-x+X "$work/unable"
find "$work/unable" -type f -exec chmod a-x {} +
chmod 555 "$work/unable"
said=$(HOME=$work/locked as_user "$work/usr/games/zembrolix" --directory "$work/unable" 2>&1) && complain "unable: it starts"
[ "$said" = "zembrolix: Programs in $work/unable can't be run." ] || complain "unable: it says $said"
chmod -R a+rwX "$work/open"
said=$(HOME=$work/locked as_user "$work/usr/games/zembrolix" --directory "$work/open" 2>&1) || complain "no log: it doesn't start: $said"
[ "$said" = "Zembrolix: no line is kept on what is played: $work/locked/.local/state/zembrolix can't be made.
started $work/open/Zembrolix log " ] || complain "no log: it says $said"
chmod 555 "$work/open"
said=$("$sources/packaging/renew.sh" "$work/usr/lib/zembrolix" "$files" "$work/usr/lib/zembrolix/zembro" 2>&1) && complain "a file: it is renewed"
[ "$said" = "$work/usr/lib/zembrolix/zembro is no directory." ] || complain "a file: it says $said"

rm -rf "$HOME"
echo >"$HOME"
start 1
[ -z "$said" ] && grep -q "directory can't be made" "$work/errors" || complain "no room: $said $(cat "$work/errors")"
HOME='' start 1
grep -q 'no home directory' "$work/errors" || complain "no home: $(cat "$work/errors")"
rm "$HOME"
zembro --version | grep -q '^zembro ' || complain "zembro without a directory: $(zembro --version)"
for command in check list "describe atari"; do
    # shellcheck disable=SC2086
    said=$(zembro $command) && complain "zembro $command without a directory: it finds nothing amiss"
    [ "$said" = "zembro: $work/usr/lib/zembrolix is no directory of the program. Start Zembrolix once, which makes its directory, or name that one with --directory." ] ||
        complain "zembro $command without a directory: $said"
done

# One version everywhere.
version=$(sed -n 's/^project(Zembrolix VERSION \([0-9.]*\).*/\1/p' "$sources/CMakeLists.txt")
[ "$(zembro --version)" = "zembro $version" ] || complain "version of zembro: $(zembro --version)"
start 0 --version
[ "$said" = "zembrolix $version" ] || complain "version of zembrolix: $said"
grep -q "\"Zembrolix $version\"" "$work/usr/share/man/man6/zembrolix.6" || complain "version of the page zembrolix"
grep -q "\"Zembrolix $version\"" "$work/usr/share/man/man1/zembro.1" || complain "version of the page zembro"
grep -q "<release version=\"$version\" " "$work/usr/share/metainfo/zembrolix.metainfo.xml" || complain "version of the description"
[ "$(sed -n 's/^## \([0-9.]*\).*/\1/p' "$sources/CHANGELOG.md" | head -n 1)" = "$version" ] || complain "version of the changes"

desktop-file-validate "$work/usr/share/applications/zembrolix.desktop" || complain "the desktop entry"
appstreamcli validate --no-net --strict "$work/usr/share/metainfo/zembrolix.metainfo.xml" >"$work/said" || complain "$(cat "$work/said")"
# It names no address that isn't known; with one it has the pictures, as large as they are.
address() { grep -iE 'https?://|<image' "$1"; }
! address "$work/usr/share/metainfo/zembrolix.metainfo.xml" || complain "the description names addresses"
ZEMBROLIX_HOMEPAGE=https://zembrolix.test/x cmake -DOUT="$work/zembrolix.metainfo.xml" -DPROJECT_VERSION="$version" \
    -DRELEASE_DATE=2026-01-01 -P "$sources/packaging/desktop/metainfo.cmake"
appstreamcli validate --no-net --strict "$work/zembrolix.metainfo.xml" >"$work/said" || complain "with a homepage: $(cat "$work/said")"
grep -q '<url type="homepage">https://zembrolix.test/x</url>' "$work/zembrolix.metainfo.xml" || complain "with a homepage: there is none"
pictures=0
while read -r width height picture; do
    pictures=$((pictures + 1))
    file -b "$sources/docs/pictures/$picture" | grep -q "PNG image data, $width x $height," || complain "with a homepage: $picture isn't as large"
done < <(sed -n 's|.*<image type="source" width="\(.*\)" height="\(.*\)">https://zembrolix.test/x/pictures/\(.*\)</image>|\1 \2 \3|p' "$work/zembrolix.metainfo.xml")
[ "$pictures" = 4 ] || complain "with a homepage: there are $pictures pictures"
# Nor does the package, but for that of its maintainer, which has to be there.
package_files() { SOURCE_DATE_EPOCH=1000000000 "$sources/packaging/debian_files.sh" "$version" "$1"; }
package_files "$work/debian"
! grep -rniE 'example|@(VERSION|DATE|HOMEPAGE)@|^Homepage|^$' "$work/debian/control" "$work/debian/copyright" "$work/debian/changelog" |
    grep -v -e 'zembrolix@example.org>' -e ':$' || complain "the package names addresses, or has something left to fill in"
! grep -E 'https?://' "$work/debian/copyright" | grep -v '^Format: ' || complain "the copyright names an address"
grep -qx "Source: Made from the source archive of the same release, zembrolix-$version.tar.xz." "$work/debian/copyright" || complain "the copyright doesn't name its source"
grep -q "^zembrolix ($version-1) " "$work/debian/changelog" || complain "the package's changes are of another version"
ZEMBROLIX_HOMEPAGE='https://zembrolix.test/x?a&b|c' package_files "$work/addressed"
diff "$work/debian" "$work/addressed" >"$work/said"
[ "$(grep '^>' "$work/said")" = '> Homepage: https://zembrolix.test/x?a&b|c
> Source: https://zembrolix.test/x?a&b|c' ] || complain "the package with a homepage: $(cat "$work/said")"

# Completions of the starter know all of its options and no others.
options=$(sed -n 's/^    \(--[a-z]*\)).*/\1/p' "$sources/packaging/starter/zembrolix" | sort | paste -sd' ')
[ "$options" = "--check --directory --help --version" ] || complain "options: $options"
for completion in bash-completion/completions/zembrolix zsh/vendor-completions/_zembrolix fish/vendor_completions.d/zembrolix.fish; do
    known=$(sed 's/ -l / --/g; /compgen -d/d; /= --directory/d' "$work/usr/share/$completion" | grep -oE -- '--[a-z]+' | sort | paste -sd' ')
    [ "$known" = "$options" ] || complain "$completion: $known"
done
complete_bash() { # words...
    bash -c '. "$0"; COMP_WORDS=(zembrolix "$@"); COMP_CWORD=$#; _zembrolix; printf "%s\n" "${COMPREPLY[@]}"' \
        "$work/usr/share/bash-completion/completions/zembrolix" "$@" | paste -sd' '
}
[ "$(complete_bash --c)" = --check ] || complain "completion: $(complete_bash --c)"
[ "$(complete_bash --directory "$work/an o")" = "$work/an other" ] || complain "completion of a directory: $(complete_bash --directory "$work/an o")"

for side in 16 22 24 32 48 64 96 128 256 512; do
    [ "$(file -b "$work/usr/share/icons/hicolor/${side}x$side/apps/zembrolix.png" | grep -o "$side x $side")" ] || complain "no icon of $side pixels"
done
for page in man1/zembro.1 man6/zembrolix.6; do
    warnings=$(LC_ALL=C.UTF-8 man --warnings -l "$work/usr/share/man/$page" 2>&1 >/dev/null)
    [ -z "$warnings" ] || complain "$page: $warnings"
done
exit "$bad"
