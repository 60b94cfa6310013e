#!/bin/bash
# Writes down what a portable directory is delivered with, so that a renewal knows what the user has put there:
# manifest.sh DIRECTORY. Of the parts that start.sh exchanges.
set -euo pipefail
cd "$1"
manifest=$(mktemp)
trap 'rm -f "$manifest"' EXIT
rm -f delivered/manifest
find lib plugins fonts licenses qt.conf BuscaEmuladores PrimerosAjustes Aviso start.sh delivered -type f -print0 | LC_ALL=C sort -z |
    xargs -0 sha256sum >"$manifest"
install -m 644 "$manifest" delivered/manifest
