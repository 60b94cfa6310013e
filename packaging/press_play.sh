# Sourced where a screen of its own is: plays what the program of this directory has selected, by the key. The program's
# number is in $main.
press_play() {
    ./Zembrolix 2>/dev/null &
    main=$!
    for _ in $(seq 100); do
        xdotool search --onlyvisible --name "^Zembrolix" >/dev/null 2>&1 && break
        sleep 0.1
    done
    sleep 1
    xdotool key Return
}
