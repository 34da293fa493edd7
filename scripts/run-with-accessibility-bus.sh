#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Runs one command on a D-Bus session of its own with the accessibility (AT-SPI)
# bus and its registry running, as a desktop with a screen reader has them, and
# with Qt's AT-SPI bridge switched on for every Qt program the command starts.
#   scripts/run-with-accessibility-bus.sh COMMAND [ARGS...]
set -euo pipefail
if [ "${LMFP_IN_ACCESSIBILITY_SESSION:-}" != 1 ]; then
  export LMFP_IN_ACCESSIBILITY_SESSION=1
  exec dbus-run-session -- "$0" "$@"
fi

launcher=""
for candidate in /usr/libexec/at-spi-bus-launcher /usr/lib/at-spi2-core/at-spi-bus-launcher; do
  if [ -x "$candidate" ]; then launcher=$candidate; break; fi
done
if [ -z "$launcher" ]; then
  echo "run-with-accessibility-bus: at-spi-bus-launcher not found (Debian package at-spi2-core)" >&2
  exit 1
fi
"$launcher" --launch-immediately >/dev/null 2>&1 &
bus=$!
trap 'kill "$bus" 2>/dev/null || true' EXIT

# Qt asks the session bus whether assistive technology is on; a test has no
# desktop to say so.
export QT_LINUX_ACCESSIBILITY_ALWAYS_ON=1
export NO_AT_BRIDGE=0
status=0
"$@" || status=$?
exit "$status"
