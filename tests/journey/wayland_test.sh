#!/bin/bash
# The program under a Wayland compositor without a screen: wayland_test.sh BUILD. Its main window comes, with its title
# and a picture, it stays alive, and it ends when it is told to. Status 77 where there is no compositor to try.
set -u

build=$1
sources=$(cd "$(dirname "$0")/../.." && pwd)
command -v weston >/dev/null || { echo "skipped: weston isn't installed"; exit 77; }

work=$(mktemp -d)
compositor=
program=
finish() {
    kill $program $compositor 2>/dev/null
    wait $program $compositor 2>/dev/null
    rm -rf "$work"
}
trap finish EXIT
fail() {
    echo "wayland: $*" >&2
    tail -n 30 "$work/weston.log" "$work/wire.log" >&2
    exit 1
}

# Up to 30 seconds.
comes() { # command...
    for _ in $(seq 300); do
        "$@" && return
        sleep 0.1
    done
    return 1
}
alive() { kill -0 "$1" 2>/dev/null; }

export XDG_RUNTIME_DIR=$work/run HOME=$work
mkdir -m 700 "$XDG_RUNTIME_DIR"
unset DISPLAY
weston --no-config --backend=headless-backend.so --socket=wayland-test --idle-time=0 >"$work/weston.log" 2>&1 &
compositor=$!
comes test -S "$XDG_RUNTIME_DIR/wayland-test" || fail "no compositor"

# Settings as they stand behind the first run.
"$sources/packaging/assemble.sh" "$build" "$work/program" >/dev/null || fail "no program directory"
printf '%s\r\n' \' \' \' \' \' \' \' \' \' '' '[General]' 'LastSisUsed = 0' 'LastEmuUsed = 0' 'SaveLastEmu&Sis = 1' \
    'TypeOfEditor = 1' 'MsgEndDOS = Finalizado' 'LanguageFile = ZB-ESP.LNG' 'DebugMode = 0' '' '[Filters]' CFG ROMS '' '[EOF]' \
    >"$work/program/Zembro.cfg"

# The client tells each message that it sends.
WAYLAND_DISPLAY=wayland-test WAYLAND_DEBUG=1 QT_QPA_PLATFORM=wayland "$work/program/Zembrolix" 2>"$work/wire.log" &
program=$!
# A surface shows from the first commit that has a buffer attached.
has_window() {
    awk '
        /-> xdg_surface@[0-9]+\.get_toplevel/ { toplevel = 1 }
        /-> xdg_toplevel@[0-9]+\.set_title\("Zembrolix v2\.0"\)/ { title = toplevel }
        /-> wl_surface@[0-9]+\.attach\(wl_buffer@/ { buffer = title }
        /-> wl_surface@[0-9]+\.commit\(\)/ && buffer { found = 1; exit }
        END { exit !found }' "$work/wire.log"
}
comes has_window || fail "no window with the title and a picture"
# The compositor is done with what it was sent once it lets go of a buffer, or asks for the next picture.
comes grep -qE 'wl_buffer@[0-9]+\.release|wl_callback@[0-9]+\.done' "$work/wire.log" || fail "nobody looks at the window"
alive "$program" || fail "the program ended"
! grep -q 'wl_display@1.error' "$work/wire.log" || fail "a breach of the protocol"

kill -TERM "$program"
ends() { ! alive "$program"; }
comes ends || fail "the program goes on"
wait "$program"
status=$?
program=
[ "$status" -eq 143 ] || [ "$status" -eq 0 ] || fail "the program ended with status $status"
echo "the window came, and the program ended with status $status"
