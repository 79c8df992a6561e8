#!/usr/bin/env bash
# Sets up a Debian 12 machine, builds everything and runs every test; exits non-zero when a test fails.
set -euo pipefail
cd "$(dirname "$0")/.."
tools/setup-debian.sh
werror=OFF
if [ "${CI:-}" = "true" ]; then
    werror=ON
    # Unformatted code fails CI, as warnings do.
    git ls-files '*.cpp' '*.h' | xargs clang-format --dry-run --Werror
fi
BUILD_DIR="${BUILD_DIR:-build}" tools/build.sh -DBV_WERROR=$werror
export QT_QPA_PLATFORM=offscreen
ctest --test-dir "${BUILD_DIR:-build}" --output-on-failure --parallel "$(nproc)" --timeout 600
