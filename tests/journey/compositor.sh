# What the tests under a Wayland compositor share, whose screen is a window of an X server. Sourced; BUILD is the test's first
# argument. Ends the test with status 77 where there is no compositor to try.
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
fail() { # what; KEEP_PICTURE is where the last picture goes
    echo "$(basename "$0"): $*" >&2
    tail -n 30 "$work/weston.log" "$work/wire.log" >&2
    [ -z "${KEEP_PICTURE-}" ] || cp "$work/seen.png" "$KEEP_PICTURE"
    exit 1
}

# Up to 30 seconds, and as long as the command takes.
comes() { # command...
    for _ in $(seq "${tries:-300}"); do
        "$@" && return
        sleep 0.1
    done
    return 1
}

# The compositor's window is the one that the X server's keys and pointer are for.
screen=
is_shown() {
    screen=$(xdotool search --onlyvisible --class weston)
    [ -n "$screen" ]
}
compose() { # options of the compositor...
    export XDG_RUNTIME_DIR=$work/run HOME=$work
    mkdir -m 700 "$XDG_RUNTIME_DIR"
    weston "$@" --backend=x11-backend.so --use-pixman --socket=wayland-test --idle-time=0 >"$work/weston.log" 2>&1 &
    compositor=$!
    comes test -S "$XDG_RUNTIME_DIR/wayland-test" || fail "no compositor"
    comes is_shown || fail "no screen of the compositor"
    xdotool windowactivate --sync "$screen"
}

# A program directory in $work/program whose one pair is this, with the settings of after the first run: what else this
# machine has doesn't count.
furnish() { # emulator, directory of its games
    mkdir -p "$work/program"
    printf '%s\r\n' "' Sistemas y emuladores configurados" '-Atari 2600' 'WEB1=' '*.ZIP' '*.A26' '*.BIN' \' '+Emulator' 'WEB2=' \
        "EXE=$1" 'XDI=0' "ROM=$2" "IMG=$2" 'PAR1=' 'PAR2=' \'---------- '[EOF]' >"$work/program/Zembro.emu"
    "$sources/packaging/assemble.sh" "$build" "$work/program" >/dev/null || fail "no program directory"
    printf '%s\r\n' \' \' \' \' \' \' \' \' \' '' '[General]' 'LastSisUsed = 0' 'LastEmuUsed = 0' 'SaveLastEmu&Sis = 1' \
        'TypeOfEditor = 1' 'MsgEndDOS = Finalizado' 'LanguageFile = ZB-ESP.LNG' 'DebugMode = 0' '' '[Filters]' CFG ROMS '' '[EOF]' \
        >"$work/program/Zembro.cfg"
}
# It tells each message that it sends.
launch() {
    env -u DISPLAY WAYLAND_DISPLAY=wayland-test WAYLAND_DEBUG=1 QT_QPA_PLATFORM=wayland TMPDIR="$work" \
        "$work/program/Zembrolix" 2>"$work/wire.log" &
    program=$!
}

popups() { grep -cE -- '-> xdg_surface@[0-9]+\.get_popup' "$work/wire.log"; }
shut() { grep -cE -- '-> xdg_popup@[0-9]+\.destroy' "$work/wire.log"; }
more() { [ "$($1)" -gt "$2" ]; }
