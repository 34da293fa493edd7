#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs every libFuzzer target of a fuzz build (configured with -DLMFP_FUZZ=ON,
# see `make fuzz`) for a while each, one after the other, and says what it found.
#   scripts/run-fuzzers.sh BUILD_DIR SECONDS
# A target starts from a copy of its seeds in fuzz/corpus/<target>/: the copy in
# BUILD_DIR/fuzz-work/ grows, the committed seeds stay small. A crash, leak,
# timeout or runaway memory use leaves its input in BUILD_DIR/findings/ and fails
# the run; reproduce it with BUILD_DIR/fuzz/<target> <that file>.
set -euo pipefail
usage="usage: run-fuzzers.sh BUILD_DIR SECONDS"
root=$(cd "$(dirname "$0")/.." && pwd)
build=$(cd "${1:?$usage}" && pwd)
seconds=${2:?$usage}
targets=(lmfp_fuzz_catalogue lmfp_fuzz_stored_list lmfp_fuzz_preset_file lmfp_fuzz_base64 lmfp_fuzz_icfg)

dictionary() {
  case $1 in
    lmfp_fuzz_catalogue | lmfp_fuzz_stored_list | lmfp_fuzz_preset_file) echo "$root/fuzz/format.dict" ;;
    lmfp_fuzz_icfg) echo "$root/fuzz/icfg.dict" ;;
  esac
}

work=$build/fuzz-work
findings=$build/findings
rm -rf "$work"
mkdir -p "$work" "$findings"
# Findings of earlier runs stay; only files newer than this one are this run's.
marker=$work/started
touch "$marker"
# The targets write their inputs to scratch files (the stored-list target goes
# rewrites a settings file several times per input): in memory when the
# machine offers it, which makes those runs several times faster.
if [ -d /dev/shm ] && [ -w /dev/shm ]; then
  scratch=$(mktemp -d /dev/shm/lmfp-fuzz-XXXXXX)
else
  scratch=$(mktemp -d "$work/scratch-XXXXXX")
fi
trap 'rm -rf "$scratch"' EXIT

export UBSAN_OPTIONS=${UBSAN_OPTIONS:-print_stacktrace=1:halt_on_error=1}
if [ -z "${ASAN_SYMBOLIZER_PATH:-}" ] && command -v llvm-symbolizer >/dev/null; then
  export ASAN_SYMBOLIZER_PATH=$(command -v llvm-symbolizer)
fi

failed=0
report=()
for target in "${targets[@]}"; do
  exe=$build/fuzz/$target
  if [ ! -x "$exe" ]; then
    echo "run-fuzzers: $exe is missing; build the target lmfp_fuzzers first" >&2
    exit 2
  fi
  dir=$work/$target
  mkdir -p "$dir/corpus" "$scratch/$target"
  cp "$root/fuzz/corpus/$target/"* "$dir/corpus/"
  args=(-max_total_time="$seconds" -timeout=10 -rss_limit_mb=4096 -print_final_stats=1
    -artifact_prefix="$findings/$target-")
  dict=$(dictionary "$target")
  if [ -n "$dict" ]; then args+=(-dict="$dict"); fi

  echo "run-fuzzers: $target for ${seconds}s"
  status=0
  TMPDIR=$scratch/$target "$exe" "${args[@]}" "$dir/corpus" >"$dir/log" 2>&1 || status=$?

  runs=$(sed -n 's/^stat::number_of_executed_units: *\([0-9]*\).*/\1/p' "$dir/log" | tail -n 1)
  if [ -z "$runs" ]; then
    runs=$(sed -n 's/^Done \([0-9]*\) runs.*/\1/p' "$dir/log" | tail -n 1)
  fi
  mapfile -t found < <(find "$findings" -maxdepth 1 -name "$target-*" -newer "$marker")
  line=$(printf '%-24s %12s runs  %d findings' "$target" "${runs:-?}" "${#found[@]}")
  if [ "$status" -ne 0 ] || [ "${#found[@]}" -ne 0 ]; then
    failed=1
    line+="  FAILED (exit $status)"
    echo "---- $target: end of $dir/log"
    tail -n 60 "$dir/log"
    for file in "${found[@]}"; do echo "finding: $file"; done
    echo "----"
  fi
  report+=("$line")
done

echo
echo "run-fuzzers: ${seconds}s per target"
printf '%s\n' "${report[@]}"
exit "$failed"
