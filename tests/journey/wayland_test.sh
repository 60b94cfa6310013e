#!/bin/bash
# The program under a Wayland compositor whose screen is a window of an X server: wayland_test.sh BUILD. Its main window
# comes, with its title and a picture; its keys are pressed on the server's keyboard; what opens over it stands over it;
# and it ends when it is told to. Status 77 where there is no compositor to try.
set -u

# shellcheck source=compositor.sh
. "$(dirname "$0")/compositor.sh"

alive() { kill -0 "$1" 2>/dev/null; }

compose --no-config --width=1200 --height=900

# An emulator that only tells that it was started.
printf '#!/bin/sh\necho "$*" >>"%s/played"\n' "$work" >"$work/emulator"
chmod 755 "$work/emulator"
furnish "$work/emulator" "$work/program/demo/"
launch
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

# From here on by keys.
told() { grep -qE -- "$1" "$work/wire.log"; }
tell() { xdotool "$@"; sleep 0.3; }
plays() { [ "$(cat "$work/played" 2>/dev/null | wc -l)" -eq "$1" ]; }
comes told 'wl_keyboard@[0-9]+\.enter' || fail "the keyboard isn't the program's"

# Enter in an open drop-down list picks, and does no more. The next one plays.
for list in 1 2; do # the keys are where they were after each play: in the list of games
    tabs=$((2 + 2 * list))
    for _ in $(seq $tabs); do tell key Tab; done
    open=$(popups) closed=$(shut)
    tell key alt+Down
    comes more popups "$open" || fail "drop-down list $list doesn't open"
    tell key Return
    comes more shut "$closed" || fail "Enter doesn't shut drop-down list $list"
    sleep 2
    plays $((list - 1)) || fail "Enter in drop-down list $list plays"
    tell key Return
    comes plays "$list" || fail "Enter behind drop-down list $list doesn't play"
    sleep 1
done

# The enlarged capture stands in the middle of its window: by the place that the compositor gave it.
for _ in $(seq 10); do tell key Tab; done
open=$(popups) closed=$(shut)
tell keydown space
comes more popups "$open" || fail "no enlarged capture"
placed() { grep -oE 'xdg_popup@[0-9]+\.configure\([0-9, -]*\)' "$work/wire.log" | tail -n 1; }
is_centred() {
    local left top width height
    read -r left top width height < <(placed | sed 's/.*(//; s/)//; s/, */ /g')
    [ "${width:-0}" -eq 233 ] && [ $(((2 * left + width - 411) / 3)) -eq 0 ] && [ $(((2 * top + height - 381) / 3)) -eq 0 ]
}
comes is_centred || fail "the enlarged capture isn't over the middle of its window: $(placed)"
tell keyup space
comes more shut "$closed" || fail "the enlarged capture stays"

# A screen that opens over it is its child, before it shows, and of a size that can't be changed: what compositors know
# a dialog by. The place of a window with a title is theirs alone: the protocol has no word for it.
is_child() {
    awk '
        function object(line) { match(line, /xdg_toplevel@[0-9]+/); return substr(line, RSTART, RLENGTH) }
        function size(line) { sub(/.*\(/, "", line); sub(/\).*/, "", line); return line }
        /-> xdg_toplevel@[0-9]+\.set_title\("Zembrolix v2\.0"\)/ { first = object($0) }
        /-> xdg_toplevel@[0-9]+\.set_min_size\(/ { least[object($0)] = size($0) }
        /-> xdg_toplevel@[0-9]+\.set_max_size\(/ { most[object($0)] = size($0) }
        /-> xdg_toplevel@[0-9]+\.set_title\("Opciones"\)/ { second = object($0) }
        /-> xdg_toplevel@[0-9]+\.set_parent\(xdg_toplevel@/ {
            parent = $0
            sub(/.*\(/, "", parent)
            over[object($0)] = object(parent)
        }
        /-> wl_surface@[0-9]+\.attach\(wl_buffer@/ && second && !shown { shown = 1; early = over[second] == first }
        END { exit !(shown && early && least[second] != "" && least[second] == most[second]) }' "$work/wire.log"
}
tell key F6
comes is_child || fail "the second screen isn't a dialog over the first"
alive "$program" || fail "the program ended"
! grep -q 'wl_display@1.error' "$work/wire.log" || fail "a breach of the protocol"

kill -TERM "$program"
ends() { ! alive "$program"; }
comes ends || fail "the program goes on"
wait "$program"
status=$?
program=
[ "$status" -eq 143 ] || [ "$status" -eq 0 ] || fail "the program ended with status $status"
echo "the windows came, the keys worked, and the program ended with status $status"
