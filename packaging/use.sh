#!/bin/bash
# The user's directory, from a build: use.sh BUILD FRESH DIRECTORY [--build | --make | --find [--all]]. FRESH is the
# directory within the build, which --build makes or renews, and nothing else; all others make or renew DIRECTORY, and
# move there once what a user has in FRESH. Without a further word it starts the program.
set -euo pipefail

packaging=$(cd "$(dirname "$0")" && pwd)
. "$packaging/words.sh"
build=$1
fresh=$2
directory=$3
mode=${4:-}

if [ "$mode" = --build ]; then
    "$packaging/assemble.sh" "$build" "$fresh"
    exit
fi

"$packaging/own_directory.sh" "$fresh" "$directory"
"$packaging/assemble.sh" "$build" "$directory"
directory=$(cd "$directory" && pwd)

# What was written by whole paths while it lay elsewhere.
if [ -f "$directory/.moved-from" ]; then
    while IFS= read -r place; do
        "$directory/zembro" move --old "$place" --new "$directory" --write >/dev/null ||
            { say old-paths "$place" >&2; exit 1; }
        while IFS= read -r -d '' link; do
            target=$(readlink "$link")
            [ "${target#"$place/"}" = "$target" ] || ln -sfn "../../${target#"$place/"}" "$link"
        done < <(find "$directory/arranque" -mindepth 2 -maxdepth 2 -type l -print0 2>/dev/null)
    done <"$directory/.moved-from"
    rm "$directory/.moved-from"
fi

case $mode in
--make) ;;
--find) exec "$packaging/find.sh" "$build" "$directory" "${@:5}" ;;
*) exec "$packaging/start.sh" "$directory" ;;
esac
