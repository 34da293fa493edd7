#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs every GoogleTest program of a build whole, all its cases in one process,
# as a developer runs one from the shell. ctest runs each case in a process of
# its own; this lane shows that no case depends on running alone or first.
#   scripts/run-test-programs.sh BUILD_DIR
set -euo pipefail
build_dir=$(cd "${1:?usage: run-test-programs.sh BUILD_DIR}" && pwd)
export QT_QPA_PLATFORM=${QT_QPA_PLATFORM:-offscreen}

failed=()
count=0
while IFS= read -r program; do
  count=$((count + 1))
  log="$build_dir/Testing/whole-$(basename "$program").log"
  mkdir -p "$(dirname "$log")"
  if (cd "$(dirname "$program")" && "$program" --gtest_brief=1) >"$log" 2>&1 &&
    ! grep -q '^\[  SKIPPED \]' "$log"; then
    echo "run-test-programs: $(basename "$program"): $(grep -E '^\[  PASSED  \]' "$log" | head -1)"
  else
    echo "run-test-programs: $(basename "$program") FAILED or skipped cases; see $log"
    grep -E '^\[  (FAILED|SKIPPED) +\]' "$log" | head -20 || true
    failed+=("$(basename "$program")")
  fi
done < <(find "$build_dir/tests" -maxdepth 2 -type f -executable -name 'lmfp_*_tests' | sort)

if [ "$count" -eq 0 ]; then
  echo "run-test-programs: no test programs under $build_dir/tests" >&2
  exit 1
fi
if [ ${#failed[@]} -gt 0 ]; then
  echo "run-test-programs: ${#failed[@]} of $count programs failed run whole: ${failed[*]}" >&2
  exit 1
fi
echo "run-test-programs: all $count programs pass run whole"
