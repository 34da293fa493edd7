#!/usr/bin/env bash
# `make demo`: shows the framework at work. Until the popup's demo host exists
# this prints the default catalogue as a tree and the FFmpeg arguments of one
# of its presets.
set -euo pipefail
build=${1:-build}
catalogue="$(dirname "$0")/../mediaformat/catalogue/formats.json"
lmformat="$build/tools/lmformat/lmformat"
"$lmformat" validate "$catalogue"
"$lmformat" tree "$catalogue"
echo
echo "Video/MP4/HD 1080p as FFmpeg arguments:"
"$lmformat" ffmpeg "$catalogue" "Video/MP4/HD 1080p"
