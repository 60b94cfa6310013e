#!/bin/bash
# The whole of what goes wrong: every call to the system of every operation, failing in every way, and a long race.
# Usage: run.sh [BUILD [DIRECTORY]]. The build's tests must have been built; the directory is where the files are made,
# best on a disk, where flushing, access lists and attributes are real.
set -euo pipefail
cd "$(dirname "$0")/../.."
build=${1:-build/dev}
export TEST_TMPDIR=${2:-${TMPDIR:-/tmp}}/
export FAULTS=whole RACES=${RACES:-1000} QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8
"$build/tests/faults/faults_tests" --gtest_brief=1
