#!/bin/bash
# Assembles the portable program directory from a build, or renews it: assemble.sh BUILD DIRECTORY.
set -euo pipefail

packaging=$(cd "$(dirname "$0")" && pwd)
build=$(cd "$1" && pwd)
delivery=$(mktemp -d)
trap 'rm -rf "$delivery"' EXIT

# As it is delivered, by links.
mkdir "$delivery"/{programs,files,files/demo}
ln -s "$build/Zembrolix" "$build"/converter/Cvt{gif15,cap}.exe "$build/companion/zembro" "$build/finder/BuscaEmuladores" \
    "$delivery/programs"
ln -s "$build"/data/beside/* "$packaging/../data/emuladores.tsv" "$delivery/files"
ln -s "$build"/data/demo/games/* "$packaging"/../data/demo/captures/* "$delivery/files/demo"
"$packaging/renew.sh" "$delivery/programs" "$delivery/files" "$2"
