#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs one command on an X server of its own (Xvfb, 1280 x 1024) with a window
# manager (openbox), as the xcb platform plugin of Qt: real windows, real focus
# and a real pointer. The ctest lane "xcb" starts every test case through it, so
# each case has a server of its own and cases running side by side cannot take
# each other's focus or move each other's pointer.
#   scripts/run-on-x-server.sh COMMAND [ARGS...]
# Listing a test program's cases (--gtest_list_tests, which the build does)
# needs no display and runs the command directly.
set -euo pipefail
for arg in "$@"; do
  if [ "$arg" = "--gtest_list_tests" ]; then exec "$@"; fi
done

work=$(mktemp -d)
server=""
wm=""
cleanup() {
  if [ -n "$wm" ]; then kill "$wm" 2>/dev/null || true; fi
  if [ -n "$server" ]; then kill "$server" 2>/dev/null || true; fi
  wait 2>/dev/null || true
  rm -rf "$work"
}
trap cleanup EXIT

# The server picks a free display number itself and writes it to the pipe, so
# servers started at the same moment never race for one (xvfb-run -a can).
mkfifo "$work/display"
Xvfb -displayfd 3 -screen 0 1280x1024x24 -nolisten tcp -noreset \
  3>"$work/display" >"$work/xvfb.log" 2>&1 &
server=$!
if ! read -r -t 20 number <"$work/display"; then
  echo "run-on-x-server: Xvfb did not start" >&2
  cat "$work/xvfb.log" >&2
  exit 1
fi
export DISPLAY=":$number"

# openbox runs --startup once it manages the screen; before that a window
# would be mapped without a manager and keep whatever focus it got.
openbox --sm-disable --startup "touch $work/wm-ready" >"$work/openbox.log" 2>&1 &
wm=$!
for _ in $(seq 200); do
  [ -e "$work/wm-ready" ] && break
  sleep 0.05
done
if [ ! -e "$work/wm-ready" ]; then
  echo "run-on-x-server: openbox did not start" >&2
  cat "$work/openbox.log" >&2
  exit 1
fi

export QT_QPA_PLATFORM=xcb
status=0
"$@" || status=$?
exit "$status"
