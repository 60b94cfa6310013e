#!/bin/bash
# Installs what is missing, builds the sanitized preset and runs every test; with arguments of ctest (-R NAME) those that
# they choose. Where all of these are programs, or look at the sources alone, nothing else is built.
set -euo pipefail
cd "$(dirname "$0")"
# So that another clone finds in the cache what this one has compiled.
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1

packaging/install.sh build play screen test

# The programs to build for the tests chosen; fails where one needs more than its own.
programs() {
    local known name
    known=$(ninja -C build/sanitize -t targets all | sed -n 's/: phony$//p')
    ctest --preset sanitize -N "$@" | sed -n 's/^ *Test *#[0-9]*: //p' | while read -r name; do
        case $name in
        measures | controls | mutants_tests) ;;
        *) grep -xF "$name" <<<"$known" || return 1 ;;
        esac
    done
}
if [ $# -gt 0 ]; then
    cmake --preset sanitize
    if chosen=$(programs "$@"); then
        # shellcheck disable=SC2086 # several names
        [ -z "$chosen" ] || ninja -C build/sanitize $chosen
        exec ctest --preset sanitize "$@"
    fi
fi

# On the release that a user gets the journey plays, too, and calls to the system go wrong.
cmake --preset release -DZEMBROLIX_FAULTS=ON
cmake --build --preset release
cmake --preset sanitize
cmake --build --preset sanitize
ctest --preset sanitize "$@"
