#!/bin/bash
# Builds the fuzzers and runs them one after the other: run.sh [SECONDS [TOPIC...]], 60 seconds each if nothing else is
# said. What they find lies in build/fuzz/findings, what they have learnt in build/fuzz/corpus. Says at the end of
# each how many inputs it tried, how much of the code they reached, and how much was found. Status 1 if anything was.
set -euo pipefail
cd "$(dirname "$0")/../.."
export CCACHE_BASEDIR=$PWD CCACHE_NOHASHDIR=1
seconds=${1:-60}
shift || true

packaging/install.sh build fuzz
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz

here=tests/fuzz
build=build/fuzz
topics=("$@")
[ ${#topics[@]} -gt 0 ] || mapfile -t topics < <(cd "$here/seeds" && ls)
export LC_ALL=C.UTF-8 QT_QPA_PLATFORM=offscreen QT_SCALE_FACTOR=1
# A fuzzer that finds something, or is ended, leaves its directory; in memory where there is such a place.
corner=$(mktemp -d "$([ -w /dev/shm ] && echo /dev/shm || echo "${TMPDIR:-/tmp}")/zembrolix-fuzz-XXXXXX")
trap 'rm -rf "$corner"' EXIT
export TMPDIR=$corner
found=0
for topic in "${topics[@]}"; do
    corpus=$build/corpus/$topic findings=$build/findings/$topic log=$build/$topic.log
    kept=("$here/seeds/$topic")
    [ ! -d "$here/found/$topic" ] || kept+=("$here/found/$topic")
    mkdir -p "$corpus" "$findings"
    # Without leaks at each input: what the toolkit keeps for good looks like one.
    nice -n 19 "$build/tests/fuzz/fuzz_$topic" "$corpus" "${kept[@]}" -max_total_time="$seconds" -max_len=4096 \
        -timeout=25 -rss_limit_mb=2048 -dict="$here/dictionary" -artifact_prefix="$findings/" \
        -print_final_stats=1 >"$log" 2>&1 || true
    executions=$(sed -n 's/^stat::number_of_executed_units: *//p' "$log")
    coverage=$(sed -n 's/.*cov: \([0-9]*\).*/\1/p' "$log" | tail -1)
    here_found=$(find "$findings" -type f | wc -l)
    echo "$topic: ${executions:-0} executions, coverage ${coverage:-0}, $here_found findings"
    found=$((found + here_found))
done
[ "$found" -eq 0 ]
