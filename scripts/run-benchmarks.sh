#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs every benchmark program of a build folder, one after the other.
set -euo pipefail
build=${1:-build}
status=0
for program in "$build"/bench/lmfp_bench_*; do
    [ -x "$program" ] || continue
    echo "== $(basename "$program")"
    "$program" --benchmark_counters_tabular=true || status=1
done
exit $status
