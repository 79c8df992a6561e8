#!/usr/bin/env bash
# Configures and builds into build/ (BUILD_DIR overrides); extra arguments go to cmake's configure step.
set -euo pipefail
cd "$(dirname "$0")/.."
build="${BUILD_DIR:-build}"
generator=()
[ -f "$build/CMakeCache.txt" ] || { command -v ninja >/dev/null && generator=(-G Ninja); }
cmake -S . -B "$build" "${generator[@]}" "$@" >/dev/null
cmake --build "$build" --parallel "$(nproc)"
