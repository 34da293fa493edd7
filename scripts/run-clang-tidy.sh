#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# clang-tidy 14 over the project's own .cpp files, with the checks of .clang-tidy
# (all of them errors), using the build's compile_commands.json. The build must
# have run: the sources include headers that moc and uic write into it.
# Generated sources (moc, uic, rcc) are not ours and are left out; so are files
# the build does not compile (the fuzz targets outside a fuzz build).
#   scripts/run-clang-tidy.sh [BUILD_DIR]     JOBS=<n> sets the parallel runs (2)
set -euo pipefail
cd "$(dirname "$0")/.."
build_dir=${1:-build}
db="$build_dir/compile_commands.json"
if [ ! -f "$db" ]; then
  echo "run-clang-tidy: no $db; configure and build first" >&2
  exit 1
fi
tidy=$(command -v clang-tidy-14 || command -v clang-tidy || true)
if [ -z "$tidy" ]; then
  echo "run-clang-tidy: clang-tidy 14 is not installed (scripts/install-deps.sh)" >&2
  exit 1
fi

# One compile command per file: a file that several programs compile (the test
# main, shared test helpers) is checked once, not once per program. Only files
# of the checkout count; generated ones live in the build folder.
lint_dir="$build_dir/lint"
mkdir -p "$lint_dir"
mapfile -t files < <(git ls-files '*.cpp' | python3 -c '
import json, os, sys
db, out = sys.argv[1], sys.argv[2]
ours = {os.path.abspath(line.strip()) for line in sys.stdin if line.strip()}
seen, kept = set(), []
for entry in json.load(open(db)):
    path = os.path.normpath(os.path.join(entry["directory"], entry["file"]))
    if path in ours and path not in seen:
        seen.add(path)
        kept.append(entry)
json.dump(kept, open(out, "w"), indent=1)
for path in sorted(seen):
    print(os.path.relpath(path))
' "$db" "$lint_dir/compile_commands.json")
if [ ${#files[@]} -eq 0 ]; then
  echo "run-clang-tidy: none of the sources is in $db" >&2
  exit 1
fi

# One file per run, its findings printed in one piece when it is done.
export tidy lint_dir
check() {
  local out status=0
  out=$("$tidy" -p "$lint_dir" --quiet "$1" 2>&1) || status=$?
  if [ $status -ne 0 ]; then
    printf 'run-clang-tidy: %s\n%s\n' "$1" "$out"
  fi
  return $status
}
export -f check
started=$SECONDS
if printf '%s\n' "${files[@]}" | xargs -P "${JOBS:-2}" -I{} bash -c 'check "$1"' _ {}; then
  echo "run-clang-tidy: ${#files[@]} files clean in $((SECONDS - started))s"
else
  echo "run-clang-tidy: findings above (${#files[@]} files, $((SECONDS - started))s)" >&2
  exit 1
fi
