#!/bin/bash
# Runs one command so that what it does wrong harms nothing: every file is read only, but for a fresh temporary
# directory, and the processes that it leaves end with it. For root alone, as in a container.
#
#   enclosed.sh DIRECTORY COMMAND [ARGUMENT...]     DIRECTORY stays visible, also below /tmp
set -eu

if [ "${1:-}" != --inside ]; then
    exec unshare --mount --pid --fork --kill-child --mount-proc -- "$0" --inside "$@"
fi
shift
cd "$1"
directory=$PWD
shift
# What is mounted on its own, a home or a source tree brought into a container, is closed like the rest.
while read -r place; do
    case $place in
        /proc | /proc/* | /sys | /sys/*) continue ;;
    esac
    mount -o remount,bind,ro "$place"
done < <(findmnt -rno TARGET | sed 's/\\x20/ /g')
[ ! -d /dev/shm ] || mount -t tmpfs -o mode=1777,size=1g tmpfs /dev/shm
mount -t tmpfs -o mode=1777,size=2g tmpfs /tmp
mkdir -p "$directory"
# By what it stands in: its own path leads into the fresh directory now.
mount --no-canonicalize --bind . "$directory"
mount -o remount,bind,ro "$directory"
cd "$directory"
mkdir -p /tmp/home
export HOME=/tmp/home TMPDIR=/tmp
unset XDG_DATA_HOME XDG_CONFIG_HOME XDG_CACHE_HOME XDG_RUNTIME_DIR
ulimit -v 6000000 # what never stops filling a list, fails
"$@"
