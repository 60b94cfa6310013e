#!/bin/bash
# Takes the captures of the demonstration games: plays each for some seconds in the real emulator, on a screen
# of its own and as a new user, and keeps one picture of 320x228 pixels.
#
#   take_captures.sh GAMES [CAPTURES]
#
# GAMES is where the build puts the games (data/demo/games in the build tree).
# Needs stella, Xvfb, openbox, xdotool, xwininfo and ImageMagick.
set -eu

games=$(realpath "$1")
captures=$(realpath "${2:-$(dirname "$0")/captures}")
home=$(mktemp -d)
started=()

cleanup() {
    for process in "${started[@]}"; do
        kill "$process" 2>/dev/null || true
    done
    rm -rf "$home"
}
trap cleanup EXIT

start_screen() {
    Xvfb -displayfd 3 -screen 0 1024x768x24 -nolisten tcp 3>"$home/display" 2>/dev/null &
    started+=($!)
    until [ -s "$home/display" ]; do sleep 0.05; done
    DISPLAY=:$(cat "$home/display")
    export DISPLAY
    openbox >/dev/null 2>&1 &
    started+=($!)
    until xprop -root _NET_SUPPORTING_WM_CHECK | grep -q '#'; do sleep 0.05; done
}

# start_game FILE: the emulator's window is in $window afterwards. Without the correction of the aspect each
# pixel of the console is exactly two by four of the screen at this zoom.
start_game() {
    HOME=$home SDL_AUDIODRIVER=dummy stella -audio.enabled 0 -fullscreen 0 -tia.zoom 2 \
        -tia.correct_aspect 0 "$1" >/dev/null 2>&1 &
    emulator=$!
    started+=("$emulator")
    window=$(xdotool search --sync --onlyvisible --pid "$emulator" --name Stella | head -n 1)
    sleep 1
}

end_game() {
    kill "$emulator"
    wait "$emulator" || true
}

# hold SECONDS KEY...: the arrows are the stick, the space bar the button.
hold() {
    local seconds=$1
    shift
    xdotool keydown "$@"
    sleep "$seconds"
    xdotool keyup "$@"
}

# The window itself can't be grabbed where the emulator draws through OpenGL, its place on the screen can.
take() {
    local place
    place=$(xwininfo -id "$window" | awk '
        /Absolute upper-left X/ { x = $4 }
        /Absolute upper-left Y/ { y = $4 }
        /Width/ { w = $2 }
        /Height/ { h = $2 }
        END { printf "%dx%d+%d+%d", w, h, x, y }')
    import -window root -crop "$place" +repage "$home/screen.png"
    convert "$home/screen.png" -sample 50% +dither -colors 256 "$captures/$1.gif"
}

mkdir -p "$captures" "$home/.config"
start_screen

start_game "$games/Star Catcher.a26"
hold 0.5 Left
hold 0.6 Up
sleep 1
take "Star Catcher"
end_game

start_game "$games/prisma.bin"
hold 0.6 Right
hold 0.2 Up
take prisma
end_game

start_game "$games/hedgerow.zip"
hold 0.5 Right
hold 0.4 Up
sleep 0.5
hold 0.5 Left
take hedgerow
end_game
