#!/bin/bash
# Pictures of all screens, for docs/pictures: pictures.sh DIRECTORY-OF-THE-PROGRAM PICTURES. Needs a display of its own
# (tests/with_screen.sh) and the demonstration's emulator; builds nothing, and works on a copy of the program.
set -euo pipefail

pictures=$2
mkdir -p "$pictures"
work=$(mktemp -d)
program=$work/zembrolix
running=
finish() {
    [ -z "$running" ] || kill "$running" 2>/dev/null || true
    rm -rf "$work"
}
trap finish EXIT

fail() { echo "pictures: $*" >&2; exit 1; }

# The demonstration with an emulator that brings a help text, and with a game that has no capture.
cp -a "$1" "$program"
emulator=$(sed -n 's/\r$//; s/^EXE=\(.*stella\)$/\1/p' "$program/Zembro.emu" | head -n 1)
[ -n "$emulator" ] || fail "the catalogue has no Stella"
mkdir "$work/stella"
ln -s "$emulator" "$work/stella/stella"
cat >"$work/stella/readme.txt" <<'END'
Los juegos de la demostración
=============================

Son tres, para Atari 2600. Los cursores son la palanca,
la barra espaciadora es el botón, y F2 empieza de nuevo.

Hedgerow: un jardinero entre los setos recoge las flores
de cada jardín. Las abejas vuelan por encima; con el botón
corre.

Prisma: barras de luz que giran, y una mariposa que vuela
con la palanca, o sola si nadie la toca. El botón cambia
los colores.

Con el interruptor de dificultad en A va todo más rápido.
END
sed -i -e "s|^EXE=$emulator|EXE=$work/stella/stella|" -e "s|$(cd "$1" && pwd)/demo|$program/demo|" "$program/Zembro.emu"
rm "$program/demo/Star Catcher.gif"

# What there is to browse and to fill in, whatever emulators the machine has.
mkdir -p "$work"/emuladores/{docs,roms} "$program"/{arranque/MAME,roms/Arcade,capturas/Arcade}
for name in "$work"/emuladores/{fceux,mame,mednafen,mgba-qt,nestopia,stella} "$program/arranque/MAME/mame"; do
    [ -e "$name" ] || install -m 755 /dev/null "$name"
done

# The first visible window with this title.
window() { # title pattern
    local id
    for _ in $(seq 100); do
        id=$(xdotool search --onlyvisible --name "$1" 2>/dev/null | head -n 1) || true
        [ -n "$id" ] && { echo "$id"; return; }
        sleep 0.1
    done
    return 1
}
begin() { # scale, kind of the editor's colours
    scale=$1
    sed -i "s/^\(TypeOfEditor *= *\)[0-9]/\1$2/" "$program/Zembro.cfg"
    QT_SCALE_FACTOR=$scale "$program/Zembrolix" &
    running=$!
}
mainscreen() {
    screen=$(window '^Zembrolix v2\.0$') || fail "no main screen"
    sleep 0.7
}
end() {
    xdotool key ctrl+q
    wait "$running" || fail "the program ended with status $?"
    running=
}
to() { # x, y in design pixels of the window
    xdotool mousemove --window "$screen" "$(awk "BEGIN { printf \"%d\", $1 * $scale }")" \
        "$(awk "BEGIN { printf \"%d\", $2 * $scale }")"
    sleep 0.3
}
click() { # x, y, button
    to "$1" "$2"
    xdotool click "${3:-1}"
    sleep 0.4
}
aside() { to 205 70; }
# Waits for the window that a key or a click brings up, which is the one of the clicks and pictures that follow.
opened() {
    local id
    for _ in $(seq 100); do
        id=$(xdotool getactivewindow 2>/dev/null) || true
        [ -n "$id" ] && [ "$id" != "$screen" ] && { screen=$id; sleep 0.7; return; }
        sleep 0.1
    done
    fail "no window comes up"
}
# Closes it, for the one below.
closed() {
    xdotool key alt+F4
    opened
}
fill() { # x, y of the box, text
    click "$1" "$2"
    xdotool key ctrl+a
    xdotool type -- "$3"
    xdotool key Home
}
choose() { # y of the list of choice, what its entry begins with
    click 90 "$1"
    xdotool type "$2"
    xdotool key Return
    sleep 0.6
}
picture() { # name, window
    local place
    # Where it is under its frame, which xdotool counts twice.
    place=$(xwininfo -id "${2:-$screen}" | awk '/Absolute upper-left X/ { x = $NF } /Absolute upper-left Y/ { y = $NF }
        /Width:/ { width = $NF } /Height:/ { print width "x" $NF "+" x "+" y }')
    sleep 0.3
    import -window root -crop "$place" +repage "$work/picture.png"
    [ "$(identify -format %k "$work/picture.png")" -gt 2 ] || fail "$1 shows nothing"
    convert "$work/picture.png" -strip -define png:compression-level=9 "$pictures/$1.png"
    echo "pictures: $pictures/$1.png"
}
game() { # row of the list, from 0
    click 60 $((95 + 11 * $1))
    aside
}
# Rows of the list.
withCapture=0 withoutCapture=2

first_run() {
    begin 2 1
    screen=$(window '^Zembrolix$') || fail "no first run"
    sleep 0.7
    picture first-run
    click 135 77
    mainscreen
    choose 291 ata
    choose 315 st
    end
}
sizes() {
    local size
    for size in 1 1.5 2; do
        begin "$size" 1
        mainscreen
        game $withCapture
        picture "main-screen-${size}x"
        end
    done
}
states() {
    begin 2 1
    mainscreen
    game $withoutCapture
    picture no-capture
    game $withCapture
    click 60 150 3
    picture list-menu
    xdotool key Escape
    click 230 150 3
    picture capture-menu
    xdotool key Escape
    xdotool key ctrl+4
    to 285 160
    xdotool mousedown 1
    picture enlarged
    xdotool mouseup 1
    xdotool key ctrl+0
    aside
    picture set-off
    xdotool key ctrl+2
    end
}
# The button isn't let go over it: that would play.
button_down() {
    begin 2 1
    mainscreen
    game $withCapture
    to 184 341
    xdotool mousedown 1
    picture button-down
    kill "$running"
    wait "$running" || true
    running=
    xdotool mouseup 1
}
tip() {
    local name="Una noche entre las estrellas (versión larga).bin"
    cp "$program/demo/prisma.bin" "$program/demo/$name"
    begin 2 1
    mainscreen
    game $withCapture
    to 60 131 # the fourth row
    picture tip
    end
    rm "$program/demo/$name"
}
editors() {
    local kind
    for kind in 0 1; do
        begin 2 $kind
        mainscreen
        game $withCapture
        xdotool key F2
        sleep 0.6
        aside
        picture "text-$([ $kind = 0 ] && echo console || echo system)"
        xdotool key ctrl+w
        sleep 0.4
        end
    done
}
configuring() {
    begin 2 1
    mainscreen
    xdotool key F5
    opened
    click 40 78 # the list of systems
    xdotool type arcade
    click 150 78
    xdotool type mame
    picture configuration-1
    click 27 277
    opened
    fill 60 97 "$work/emuladores/mame"
    click 200 98
    opened
    picture browser
    closed
    fill 60 97 arranque/MAME/mame
    fill 60 143 roms/Arcade/
    fill 60 190 capturas/Arcade/
    fill 70 233 '-rompath roms'
    click 224 335 # all games compressed in one directory, and the emulator opens those
    click 224 360
    aside
    picture configuration-2
    closed
    closed
    end
}
options() {
    begin 2 1
    mainscreen
    xdotool key F6
    opened
    picture options
    click 88 232
    opened
    picture advanced-options
    closed
    closed
    xdotool key F7
    opened
    picture utilities
    closed
    xdotool key F8
    opened
    picture about
    closed
    end
}

first_run
sizes
states
button_down
tip
editors
configuring
options
