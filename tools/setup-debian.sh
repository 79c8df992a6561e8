#!/usr/bin/env bash
# Installs what the build, the tests and the workbench need on Debian 12; does nothing when all is there.
set -euo pipefail
packages=(build-essential cmake ninja-build pkg-config
          qt6-base-dev libqt6printsupport6 libgl-dev
          libgtest-dev googletest libbenchmark-dev
          libexpat1-dev libzip-dev libsquish-dev
          xvfb xauth poppler-utils imagemagick clang-format)
missing=()
for p in "${packages[@]}"; do
    dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done
if [ ${#missing[@]} -gt 0 ]; then
    sudo=""
    [ "$(id -u)" -eq 0 ] || sudo="sudo"
    $sudo apt-get update -qq
    DEBIAN_FRONTEND=noninteractive $sudo apt-get install -y -qq "${missing[@]}"
fi
