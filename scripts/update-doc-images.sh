#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Refreshes the pictures in docs/images/ from the demo's headless tour
# (`make demo` on a machine without a display writes them to <build>/screenshots/).
set -euo pipefail
build=${1:-build}
for shot in 02-category-hover 03-search 03-search-keyboard 04-recent 05-custom 06-french 08-editor \
    09-name-prompt 12-twelve-categories 13-converted 14-dark-popup 15-dark-editor 16-preset-manager; do
    cp "$build/screenshots/$shot.png" "docs/images/$shot.png"
done
