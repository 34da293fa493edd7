#!/usr/bin/env bash
# SPDX-License-Identifier: MIT
# Installs every Debian package the build, the tests, the benchmarks and the
# demo need; with --fuzz, what the fuzz build needs on top (clang, libFuzzer and
# llvm-symbolizer). Safe to run again: packages already present are skipped, and
# the package index is refreshed at most once per run.
set -euo pipefail

packages=(
  build-essential cmake ninja-build pkg-config clang-format clang-tidy ccache
  qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-tools-dev qt6-tools-dev-tools
  qt6-l10n-tools linguist-qt6 libgl-dev libsimdjson-dev
  libgtest-dev libgmock-dev googletest libbenchmark-dev
  ffmpeg
  fonts-dejavu-core fonts-noto-core fonts-noto-cjk
  xauth xvfb openbox xdotool
  dbus at-spi2-core python3-pyatspi
)
if [ "${1:-}" = "--fuzz" ]; then
  packages=(clang libclang-rt-dev llvm)
fi

missing=()
for pkg in "${packages[@]}"; do
  if ! dpkg-query -W -f='${Status}' "$pkg" 2>/dev/null | grep -q "install ok installed"; then
    missing+=("$pkg")
  fi
done

if [ ${#missing[@]} -eq 0 ]; then
  echo "install-deps: all ${#packages[@]} packages present"
  exit 0
fi

echo "install-deps: installing ${missing[*]}"
SUDO=""
if [ "$(id -u)" -ne 0 ]; then SUDO="sudo"; fi
export DEBIAN_FRONTEND=noninteractive
$SUDO apt-get update -qq
$SUDO apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
echo "install-deps: done"
