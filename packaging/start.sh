#!/bin/bash
# Starts the program that stands in a program directory: start.sh DIRECTORY. Keeps a copy of its text files ahead of
# that, and a line on each launch.
set -uo pipefail
. "$(dirname "$0")/words.sh"

# Should an editor, or anything else, spoil one of the text files: as they are now. A start goes on without it.
[ ! -w "$1" ] || "$1/zembro" save >/dev/null || true

# What becomes of each launch; zembro why reads it.
if [ -z "${ZEMBRO_LOG+set}" ]; then
    ZEMBRO_LOG=${XDG_STATE_HOME:-${HOME:-}/.local/state}/zembrolix/log
    if ! mkdir -p "$(dirname "$ZEMBRO_LOG")" 2>/dev/null; then
        echo "Zembrolix: $(say no-log "$(dirname "$ZEMBRO_LOG")")" >&2
        ZEMBRO_LOG=
    fi
    export ZEMBRO_LOG
fi
# Nor does the program keep the lock of a portable directory.
exec "$1/Zembrolix" 8<&-
