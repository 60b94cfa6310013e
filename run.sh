#!/bin/bash
# Installs what is missing, builds the release, assembles build/zembrolix and starts it.
#   --build        stops before the start
#   --find         configures the emulators of this machine for the systems that have games by now in
#                  build/zembrolix/roms, beside what is configured, and stops
#   --find --all   those of all systems
set -euo pipefail
cd "$(dirname "$0")"
# So that another clone finds in the cache what this one has compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

case "$*" in
"" | --build | --find | "--find --all") ;;
*)
    echo "usage: ./run.sh [--build | --find [--all]]" >&2
    exit 2
    ;;
esac

packaging/install.sh build play
mkdir -p build
cmake --preset release >build/configure.log 2>&1 || { cat build/configure.log >&2; exit 1; }
cmake --build --preset release
packaging/assemble.sh build/release build/zembrolix
[ "${1:-}" != --build ] || exit 0
[ "${1:-}" != --find ] || exec packaging/find.sh build/release build/zembrolix "${@:2}"

# Should an editor, or anything else, spoil one of the text files: as they are now. A start goes on without it.
build/zembrolix/zembro save >/dev/null || true

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
    # What becomes of each launch; build/zembrolix/zembro why reads it.
    export ZEMBRO_LOG=${ZEMBRO_LOG-${XDG_STATE_HOME:-${HOME:-}/.local/state}/zembrolix/log}
    mkdir -p "$(dirname "$ZEMBRO_LOG")" || true
    exec build/zembrolix/Zembrolix
fi

echo "There is no display here: playing the demonstration game on a screen in memory instead."
packaging/install.sh screen
rm -rf build/tour
packaging/assemble.sh build/release build/tour/zembrolix
exec tests/with_screen.sh packaging/tour.sh build/tour/zembrolix build/tour
