#!/bin/bash
# What can be seen of the program under a Wayland compositor that draws everything twice as large: wayland_pictures_test.sh
# BUILD. At sizes whose pixels are parts of the compositor's no black line shows in lists, open lists and menus, and the
# window is painted to its end; and the tip of a control comes up beside it, also where another's was on show. Status 77
# where there is no compositor to try.
set -u

# shellcheck source=compositor.sh
. "$(dirname "$0")/compositor.sh"

# A ground of a colour that the program doesn't have.
printf '%s\n' '[shell]' 'panel-position=none' 'background-color=0xff00ff00' 'animation=none' 'startup-animation=none' >"$work/weston.ini"
xdotool mousemove 0 0
compose --config="$work/weston.ini" --scale=2 --width=600 --height=480
# The pointer in the last corner of all; the compositor only takes its place from where it comes in.
xdotool mousemove --window "$screen" 1197 957

mkdir -p "$work/program/games"
for name in First Second "Agjpqy, a name that is longer than the list is wide"; do touch "$work/program/games/$name.bin"; done
furnish /bin/true "$work/program/games/"

# What the compositor shows, once it stands still, and where the program's window is in it.
shot() {
    import -window "$screen" "$work/all.png"
    convert "$work/all.png" -fill '#00ff00' -draw 'rectangle 1170,930 1199,959' "$work/seen.png"
}
look() {
    local before='' now
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
unset QT_SCALE_FACTOR
start() { # size, width and height in pixels
    printf 'Size = %s\r\n' "$1" >"$work/program/Zembro.tam"
    launch
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
