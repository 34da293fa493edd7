#!/usr/bin/env bash
# `make demo`: runs the demo host. With a display it opens the demo window; on a
# machine without one (or with DEMO_TOUR=1) it walks through the popup offscreen
# on a 1440 x 900 screen and writes a PNG of every step to <build>/screenshots/.
set -euo pipefail
build=${1:-build}
host="$build/examples/demo-host/lmfp-demo-host"
shots="$build/screenshots"

if [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" && -z "${DEMO_TOUR:-}" ]]; then
    exec "$host"
fi

mkdir -p "$shots"
screen_config="$build/offscreen-screen.json"
cat > "$screen_config" <<'JSON'
{ "screens": [ { "name": "demo", "x": 0, "y": 0, "width": 1440, "height": 900,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1 } ] }
JSON
rm -f "$shots"/*.png
QT_QPA_PLATFORM="offscreen:configfile=$screen_config" "$host" --tour "$shots"
