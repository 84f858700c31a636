#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Configures and builds the project in build/ (or the folder given as $KO_BUILD_DIR), after the
# set-up script has installed what is missing. Extra arguments go to CMake's configure step.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# KO_QT_MAJOR=6 builds against Qt 6 instead of Qt 5.15, in build-qt6/ unless KO_BUILD_DIR says
# otherwise, so that both builds live side by side.
if [ "${KO_QT_MAJOR:-5}" = 6 ]; then export KO_BUILD_DIR=${KO_BUILD_DIR:-$repo/build-qt6}; fi
"$repo/scripts/setup.sh"

build=${KO_BUILD_DIR:-$repo/build}
flags=()
# CI and developers who ask for it get warnings as errors.
if [ -n "${CI:-}" ] || [ -n "${KO_DEVELOPER_MODE:-}" ]; then flags+=(-DKO_QTTOOLKIT_DEVELOPER_MODE=ON); fi
if [ -n "${KO_QT_MAJOR:-}" ]; then flags+=(-DKO_QTTOOLKIT_QT_MAJOR="$KO_QT_MAJOR"); fi
cmake -S "$repo" -B "$build" -G Ninja "${flags[@]}" "$@" >/dev/null
cmake --build "$build" --parallel "$(nproc)"
