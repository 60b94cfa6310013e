#!/bin/bash
# What can be seen of the program under a Wayland compositor that draws everything twice as large: wayland_pictures_test.sh
# BUILD. At sizes whose pixels are parts of the compositor's no black line shows in lists, open lists and menus, and the
# window is painted to its end; and the tip of a control comes up beside it, also where another's was on show. Status 77
# where there is no compositor to try.
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
    echo "wayland pictures: $*" >&2
    tail -n 10 "$work/weston.log" "$work/wire.log" >&2
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

# A ground of a colour that the program doesn't have.
export XDG_RUNTIME_DIR=$work/run HOME=$work
mkdir -m 700 "$XDG_RUNTIME_DIR"
printf '%s\n' '[shell]' 'panel-position=none' 'background-color=0xff00ff00' 'animation=none' 'startup-animation=none' >"$work/weston.ini"
xdotool mousemove 0 0
weston --config="$work/weston.ini" --backend=x11-backend.so --use-pixman --scale=2 --socket=wayland-test --idle-time=0 \
    --width=600 --height=480 >"$work/weston.log" 2>&1 &
compositor=$!
comes test -S "$XDG_RUNTIME_DIR/wayland-test" || fail "no compositor"
screen=
is_shown() {
    screen=$(xdotool search --onlyvisible --class weston)
    [ -n "$screen" ]
}
comes is_shown || fail "no screen of the compositor"
xdotool windowactivate --sync "$screen"
# The pointer in the last corner of all; the compositor only takes its place from where it comes in.
xdotool mousemove --window "$screen" 1197 957

mkdir -p "$work/program/games"
for name in First Second "Agjpqy, a name that is longer than the list is wide"; do touch "$work/program/games/$name.bin"; done
printf '%s\r\n' "' Sistemas y emuladores configurados" '-Atari 2600' 'WEB1=' '*.ZIP' '*.A26' '*.BIN' \' '+Emulator' 'WEB2=' \
    "EXE=/bin/true" 'XDI=0' "ROM=$work/program/games/" "IMG=$work/program/games/" 'PAR1=' 'PAR2=' \
    \'---------- '[EOF]' >"$work/program/Zembro.emu"
"$sources/packaging/assemble.sh" "$build" "$work/program" >/dev/null || fail "no program directory"
printf '%s\r\n' \' \' \' \' \' \' \' \' \' '' '[General]' 'LastSisUsed = 0' 'LastEmuUsed = 0' 'SaveLastEmu&Sis = 1' \
    'TypeOfEditor = 1' 'MsgEndDOS = Finalizado' 'LanguageFile = ZB-ESP.LNG' 'DebugMode = 0' '' '[Filters]' CFG ROMS '' '[EOF]' \
    >"$work/program/Zembro.cfg"

# What the compositor shows, once it stands still, and where the program's window is in it.
shot() {
    import -window "$screen" "$work/all.png"
    convert "$work/all.png" -fill '#00ff00' -draw 'rectangle 1170,930 1199,959' "$work/seen.png"
}
look() {
    local before= now
    shot
    for _ in $(seq 10); do
        now=$(convert "$work/seen.png" -format '%#' info:)
        [ "$now" = "$before" ] && break
        before=$now
        sleep 0.2
        shot
    done
    read -r width height left top < <(convert "$work/seen.png" -bordercolor '#00ff00' -border 1 -trim -format '%w %h %X %Y' info:)
    left=$((left - 1)) top=$((top - 1))
}
window_is() { # width height
    look
    [ "$width" -eq "$1" ] && [ "$height" -eq "$2" ]
}
start() { # size, width and height in pixels
    printf 'Size = %s\r\n' "$1" >"$work/program/Zembro.tam"
    env -u DISPLAY -u QT_SCALE_FACTOR WAYLAND_DISPLAY=wayland-test WAYLAND_DEBUG=1 QT_QPA_PLATFORM=wayland TMPDIR="$work" \
        "$work/program/Zembrolix" 2>"$work/wire.log" &
    program=$!
    size=$1
    tries=60 comes window_is "$2" "$3" || fail "size $1: no window of $2 by $3, but one of $width by $height"
}
leave() {
    kill -TERM "$program"
    wait "$program"
    program=
}

# The longest unbroken black line in a picture, in pixels, across or down.
longest() { # picture
    { convert "$1" -depth 8 txt:-; convert "$1" -transpose -depth 8 txt:-; } |
        awk 'NR > 1 { line = $1; sub(/.*,/, "", line); black = /#000000/ && line == last; last = line
                      length_ = black ? length_ + 1 : 0; if (length_ > most) most = length_ }
             END { print most + 0 }'
}
# Left of the set, whose screen is black. The stems of letters are shorter.
no_lines() { # what shows
    look
    convert "$work/seen.png" -crop "$((width * 39 / 100))x$height+$left+$top" +repage "$work/part.png"
    local most
    most=$(longest "$work/part.png")
    [ "$most" -lt 20 ] || fail "size $size: a black line of $most pixels in $1"
}

popups() { grep -cE -- '-> xdg_surface@[0-9]+\.get_popup' "$work/wire.log"; }
shut() { grep -cE -- '-> xdg_popup@[0-9]+\.destroy' "$work/wire.log"; }
more() { [ "$($1)" -gt "$2" ]; }
opens() { # what, key
    local open
    open=$(popups)
    xdotool key "$2"
    comes more popups "$open" || fail "size $size: $1 doesn't open"
    no_lines "$1"
    local closed
    closed=$(shut)
    xdotool key Escape
    comes more shut "$closed" || fail "size $size: $1 stays"
}
lines() {
    no_lines "the window"
    opens "the list's menu" shift+F10
    for _ in 1 2 3 4; do xdotool key Tab; sleep 0.2; done
    opens "the drop-down list" alt+Down
}

# The last column: where the window ends within a pixel of the compositor's, the rest shows the same.
ends_whole() {
    local last
    last=$(for column in 2 1; do
        convert "$work/seen.png" -crop "1x$height+$((left + width - column))+$top" +repage -format '%#\n' info:
    done)
    [ "$(uniq <<<"$last" | wc -l)" -eq 1 ] || fail "the window's last column is another"
}

start 1.75 720 666
ends_whole
no_lines "the window"
leave
start 1.5 616 572
lines
leave
start 1.25 514 476
lines

# From one control to the next while the tip of the first shows: the compositor is asked for another.
point() { # place in the window at size 1
    xdotool mousemove --window "$screen" $((left + $1 * 5 / 4)) $((top + $2 * 5 / 4))
}
open=$(popups)
point 19 291
comes more popups "$open" || fail "no tip"
sleep 0.5
open=$(popups)
point 19 314
comes more popups "$open" || fail "the tip of one control stays where another's came up"
leave
echo "no lines, whole windows, and each tip in its place"
