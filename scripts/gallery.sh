#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Sets up the machine, builds, and starts the gallery. Without a display it renders every page
# to build/gallery-screenshots/ and prints the file names.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
# KO_QT_MAJOR=6 builds against Qt 6 instead of Qt 5.15, in build-qt6/ unless KO_BUILD_DIR says
# otherwise, so that both builds live side by side.
if [ "${KO_QT_MAJOR:-5}" = 6 ]; then export KO_BUILD_DIR=${KO_BUILD_DIR:-$repo/build-qt6}; fi
"$repo/scripts/build.sh"
gallery="${KO_BUILD_DIR:-$repo/build}/examples/gallery/ko-qttoolkit-gallery"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$gallery" "$@"
fi
echo "No display: rendering the gallery's pages instead."
QT_QPA_PLATFORM=offscreen exec "$gallery" --screenshot "${KO_BUILD_DIR:-$repo/build}/gallery-screenshots"
