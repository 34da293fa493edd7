#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# `make demo`: runs the demo host. With a display it opens the demo converter; on
# a machine without one (or with DEMO_TOUR=1) the demo's tour (tools/demo-tour)
# walks through the popup, the editor and a conversion offscreen on a 1440 x 900
# screen and writes a PNG of every step to <build>/screenshots/, then the popup
# and editor steps once more at twice the pixel density to <build>/screenshots/2x/.
set -euo pipefail
build=${1:-build}
host="$build/examples/demo-host/lmfp-demo-host"
tour="$build/tools/demo-tour/lmfp_demo_tour"
shots="$build/screenshots"

if [[ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" && -z "${DEMO_TOUR:-}" ]]; then
    exec "$host"
fi

screen_config() { # <file> <device pixel ratio>
    cat > "$1" <<JSON
{ "screens": [ { "name": "demo", "x": 0, "y": 0, "width": 1440, "height": 900,
                 "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": $2 } ] }
JSON
}

mkdir -p "$shots/2x"
rm -rf "$shots"/*.png "$shots"/2x/*.png "$shots"/*.mp4 "$shots"/media
screen_config "$build/offscreen-1x.json" 1
screen_config "$build/offscreen-2x.json" 2
# The offscreen platform cannot raise windows and says so for every popup.
export QT_LOGGING_RULES="${QT_LOGGING_RULES:-qt.qpa.*=false}"
# A tour that fails says what it could not do and fails `make demo`.
run_tour() { # <screen config> <tour arguments...>
    local config=$1
    shift
    QT_QPA_PLATFORM="offscreen:configfile=$config" "$tour" "$@" 2>&1 |
        { grep -v "does not support" || true; } ||
        { echo "run-demo: the tour failed: $*" >&2; exit 1; }
}
run_tour "$build/offscreen-1x.json" "$shots"
# A catalogue of twelve categories, in a session of its own: its tabs scroll.
run_tour "$build/offscreen-1x.json" "$shots" --twelve-categories
run_tour "$build/offscreen-2x.json" "$shots/2x" --without-conversion
ls "$shots"/*.png "$shots"/2x/*.png > /dev/null
