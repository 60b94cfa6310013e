#!/bin/bash
# Plays the demonstration game through the play button on the display that is set, and keeps pictures of it:
# tour.sh DIRECTORY-OF-THE-PROGRAM PICTURES [COMMAND...]. The command is a starter of the program in that directory, which
# asks nothing and has selected the demonstration. Succeeds only if all of it happened.
set -euo pipefail

program=$1
pictures=$2
mkdir -p "$pictures"

fail() { echo "tour: $*" >&2; exit 1; }

# The first visible window with this title; waits for it up to so many seconds.
window() { # title pattern, seconds
    local id
    for _ in $(seq $(($2 * 10))); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) || true
        [ -n "$id" ] && { echo "$id"; return; }
        sleep 0.1
    done
    return 1
}
gone() { # window, seconds
    for _ in $(seq $(($2 * 10))); do
        xdotool getwindowname "$1" >/dev/null 2>&1 || return 0
        sleep 0.1
    done
    return 1
}
click() { # window, x, y in its pixels
    xdotool mousemove --window "$1" "$2" "$3" click 1
}
picture() { # window, name
    # Cut out of the whole screen: a window that draws by itself is black when asked for its own picture.
    eval "$(xdotool getwindowgeometry --shell "$1")"
    import -window root -crop "${WIDTH}x${HEIGHT}+${X}+${Y}" +repage "$pictures/$2"
    [ "$(identify -format %k "$pictures/$2")" -gt 2 ] || fail "$2 shows nothing"
    echo "tour: saved $pictures/$2"
}
# How far two pictures are apart, each seen from afar: 0 alike, 1000 black and white.
distance() { # picture, picture
    local rmse
    rmse=$(compare -metric RMSE \( "$1" -resize '40x30!' \) \( "$2" -resize '40x30!' \) null: 2>&1) || true
    awk -F '[()]' '{ printf "%d", $2 == "" ? 1000 : $2 * 1000 }' <<<"$rmse"
}

starter=("${@:3}")
if [ ${#starter[@]} -gt 0 ]; then
    "${starter[@]}" &
else
    "$program/Zembrolix" &
fi
zembrolix=$!
trap 'kill $zembrolix 2>/dev/null || true' EXIT

if [ ${#starter[@]} -gt 0 ]; then
    main=$(window '^Zembrolix' 30) || fail "no screen"
    [ "$(xdotool getwindowname "$main")" = "Zembrolix v2.0" ] || fail "it asks something"
elif first=$(window '^Zembrolix$' 5); then
    picture "$first" first-run.png
    click "$first" 135 77
    echo "tour: accepted the language of the first run"
fi
main=$(window '^Zembrolix v2\.0$' 10) || fail "no main screen"
sleep 0.5
# The catalogue holds the emulators of the machine too: the demonstration is for the first Atari, in Stella.
choose() { # y of the list, what its entry begins with
    click "$main" 90 "$1"
    sleep 0.5
    xdotool type "$2"
    sleep 0.5
    xdotool key Return
    sleep 0.5
}
if [ ${#starter[@]} -eq 0 ]; then
    choose 291 ata
    choose 315 st
fi
picture "$main" main-screen.png
click "$main" 184 341
echo "tour: pressed play"
# A game's window: of the emulator's others none has a name behind a colon.
game=$(window '^Stella .*: ' 15) || fail "no emulator's window"
sleep 4
picture "$game" running-game.png
apart=$(distance "$pictures/running-game.png" "$program/demo/hedgerow.gif")
[ "$apart" -lt 220 ] || fail "the emulator shows something else than the demonstration: $apart"
timeout 10 xdotool windowactivate --sync "$game" key alt+F4 || fail "the emulator's window doesn't come to the front"
gone "$game" 10 || fail "the emulator's window stays open"
echo "tour: closed the emulator"
sleep 0.5
picture "$main" back-again.png
click "$main" 391 359
gone "$main" 10 || fail "the main screen stays open"
for _ in $(seq 100); do
    kill -0 "$zembrolix" 2>/dev/null || break
    sleep 0.1
done
! kill -0 "$zembrolix" 2>/dev/null || fail "the program doesn't end"
trap - EXIT
wait "$zembrolix" || fail "the program ended with status $?"
echo "tour: left the program"
