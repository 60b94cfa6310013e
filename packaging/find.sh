#!/bin/bash
# Configures emulators of this machine in a program directory that is in use: find.sh BUILD DIRECTORY [--all]. Without
# --all those of the systems whose directory of games holds games. What is configured stays. Says what it has added.
set -euo pipefail

exec "$1/companion/zembro" find --write --directory "$2" "${@:3}"
