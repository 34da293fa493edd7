#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs every benchmark program of a build folder, one after the other.
set -euo pipefail
build=${1:-build}
status=0
for program in "$build"/bench/lmfp_bench_*; do
    # Programs only: the build also leaves folders (moc's) under these names.
    [ -f "$program" ] && [ -x "$program" ] || continue
    echo "== $(basename "$program")"
    "$program" --benchmark_counters_tabular=true || status=1
done
exit $status
