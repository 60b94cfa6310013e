#!/bin/bash
# The command that runs tests under a screen of their own: status, display, and nothing left behind.
set -u
run=$(dirname "$0")/../with_screen.sh
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT
bad=0
complain() { echo "$*" >&2; bad=1; }

# True if the condition holds within ten seconds.
comes() {
    for _ in $(seq 200); do
        "$@" && return 0
        sleep 0.05
    done
    return 1
}
# Zombies that nobody has waited for yet don't count.
gone() {
    local state
    state=$(sed 's/.*) \(.\).*/\1/' "/proc/$1/stat" 2>/dev/null)
    [ -z "$state" ] || [ "$state" = Z ]
}
note='echo "$DISPLAY" > "$0/display"'

"$run" sh -c "$note; exit 7" "$work"
[ $? -eq 7 ] || complain "the status of the command is lost"
[ -n "$(cat "$work/display")" ] || complain "there is no display"

"$run" xprop -root _NET_SUPPORTING_WM_CHECK | grep -q 'window id' || complain "the window manager isn't up"

[ "$(echo words | "$run" cat)" = words ] || complain "the command has no input"

"$run" 2>/dev/null
[ $? -eq 2 ] || complain "no command is no failure"

for signal in TERM HUP KILL; do
    rm -f "$work/display"
    "$run" sh -c "$note; exec sleep 1000" "$work" &
    comes test -s "$work/display" || complain "the command doesn't start"
    script=$!
    mapfile -t left < <(pgrep -P "$script")
    [ "${#left[@]}" -ge 3 ] || complain "server, window manager and command are not there: ${left[*]}"
    kill "-$signal" "$script"
    for process in "$script" "${left[@]}"; do
        comes gone "$process" || complain "after $signal process $process is left"
    done
done

exit "$bad"
