#!/bin/bash
# Installs what is missing, builds the sanitized preset and runs every test.
set -euo pipefail
cd "$(dirname "$0")"
# So that another clone finds in the cache what this one has compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

packaging/install.sh build play screen test
# The journey also plays on the release that a user gets.
cmake --preset release
cmake --build --preset release
cmake --preset sanitize
cmake --build --preset sanitize
ctest --preset sanitize "$@"
