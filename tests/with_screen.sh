#!/bin/bash
# Runs one command under an X server and a window manager of its own, and passes its exit status on. With ONE_PROCESSOR
# in the environment all of them share one; SCREEN_SIZE makes it another screen than 1280x1024x24; with NO_MANAGER there is
# no window manager.
# Server, manager and command are bound to the life of this script, so that nothing is left when it is interrupted.
set -u

if [ $# -eq 0 ]; then
    echo "usage: $0 command [argument...]" >&2
    exit 2
fi

if [ -n "${ONE_PROCESSOR-}" ]; then
    allowed=$(taskset -cp $$)
    allowed=${allowed##*: }
    taskset -cp "${allowed%%[,-]*}" $$ >/dev/null || exit 2
fi

bound() { exec setpriv --pdeathsig "$@"; }

# The server picks a free display and tells its number.
exec {display_number}< <(bound TERM Xvfb -displayfd 1 -screen 0 "${SCREEN_SIZE:-1280x1024x24}" -nolisten tcp -noreset 2>/dev/null)
server=$!
end_screen() {
    kill $manager "$server" 2>/dev/null
    wait $manager "$server" 2>/dev/null
}
manager=
trap end_screen EXIT
if ! read -r -t 60 number <&"$display_number" || [ -z "$number" ]; then
    echo "$0: no X server" >&2
    exit 2
fi
export DISPLAY=:$number
unset WAYLAND_DISPLAY

if [ -z "${NO_MANAGER-}" ]; then
    (bound TERM openbox --sm-disable >/dev/null 2>&1) &
    manager=$!
fi

# A window manager is up once the window that the root names names itself.
manager_is_up() {
    local window
    window=$(xprop -root _NET_SUPPORTING_WM_CHECK 2>/dev/null | sed -n 's/.*# \(0x[0-9a-f]*\).*/\1/p')
    [ -n "$window" ] && xprop -id "$window" _NET_SUPPORTING_WM_CHECK 2>/dev/null | grep -q "$window"
}
for _ in $(seq 600); do
    [ -n "$manager" ] || break
    manager_is_up && break
    kill -0 "$manager" 2>/dev/null || break
    sleep 0.1
done
if [ -n "$manager" ] && ! manager_is_up; then
    echo "$0: no window manager" >&2
    exit 2
fi

(bound TERM -- "$@" {display_number}<&-)
