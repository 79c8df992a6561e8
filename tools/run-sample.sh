#!/usr/bin/env bash
# Sets up a Debian 12 machine, builds the workbench and starts it on the sample installation.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/setup-debian.sh
BUILD_DIR="${BUILD_DIR:-build}" tools/build.sh
build="$(cd "${BUILD_DIR:-build}" && pwd)"
exec "$build/bin/brakevan" --sample "$@"
