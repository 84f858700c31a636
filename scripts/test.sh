#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Sets up the machine, builds, and runs the whole test suite (offscreen, no display needed).
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# KO_QT_MAJOR=6 builds against Qt 6 instead of Qt 5.15, in build-qt6/ unless KO_BUILD_DIR says
# otherwise, so that both builds live side by side.
if [ "${KO_QT_MAJOR:-5}" = 6 ]; then export KO_BUILD_DIR=${KO_BUILD_DIR:-$repo/build-qt6}; fi
"$repo/scripts/build.sh" "$@"
build=${KO_BUILD_DIR:-$repo/build}
cd "$build"
QT_QPA_PLATFORM=offscreen ctest --output-on-failure --parallel "$(nproc)"
