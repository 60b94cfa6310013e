#!/bin/bash
# Installs what is missing, builds the sanitized preset and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
# So that another clone finds in the cache what this one has compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

packaging/install.sh build play screen test
# On the release that a user gets the journey plays, too, and calls to the system go wrong.
cmake --preset release -DZEMBROLIX_FAULTS=ON
cmake --build --preset release
cmake --preset sanitize
cmake --build --preset sanitize
ctest --preset sanitize "$@"
