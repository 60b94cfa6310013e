#!/bin/bash
# Installs what is missing, builds the release, makes or renews the directory ~/Zembrolix, and starts the program there.
#   --directory DIR  that directory instead
#   --build          stops behind the build, with a directory of its own in build/zembrolix
#   --find           configures the emulators of this machine for the systems that have games by now in the
#                    directory's roms, beside what is configured, and stops
#   --find --all     those of all systems
set -euo pipefail
. "$(dirname "$0")/packaging/words.sh"

usage() {
    echo "usage: ./run.sh [--directory DIR] [--build | --find [--all]]" >&2
    exit 2
}
directory=
if [ "${1:-}" = --directory ]; then
    [ -n "${2:-}" ] || usage
    case $2 in
    /*) directory=$2 ;;
    *) directory=$PWD/$2 ;;
    esac
    shift 2
fi
case "$*" in
"" | --build | --find | "--find --all") ;;
*) usage ;;
esac
if [ -z "$directory" ] && [ "${1:-}" != --build ]; then
    [ -n "${HOME:-}" ] || { say no-home-named >&2; exit 1; }
    directory=$HOME/Zembrolix
fi

cd "$(dirname "$0")"
# So that another clone finds in the cache what this one has compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

packaging/install.sh build play
mkdir -p build
cmake --preset release >build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }
cmake --build --preset release
if [ -n "$*" ] || [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    exec packaging/use.sh build/release build/zembrolix "$directory" "$@"
fi

packaging/use.sh build/release build/zembrolix "$directory" --make
say no-display
packaging/install.sh screen
rm -rf build/tour
packaging/assemble.sh build/release build/tour/zembrolix
exec tests/with_screen.sh packaging/tour.sh build/tour/zembrolix build/tour
