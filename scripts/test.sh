#!/usr/bin/env bash
# Sets up the machine, builds, and runs the whole test suite (offscreen, no display needed).
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
"$repo/scripts/build.sh" "$@"
build=${KO_BUILD_DIR:-$repo/build}
cd "$build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel "$(nproc)"
