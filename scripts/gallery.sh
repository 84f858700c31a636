#!/usr/bin/env bash
# Sets up the machine, builds, and starts the gallery. Without a display it renders every page
# to build/gallery-screenshots/ and prints the file names.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
"$repo/scripts/build.sh"
gallery="${KO_BUILD_DIR:-$repo/build}/examples/gallery/ko-qttoolkit-gallery"
if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ]; then
  exec "$gallery" "$@"
fi
echo "No display: rendering the gallery's pages instead."
QT_QPA_PLATFORM=offscreen exec "$gallery" --screenshot "${KO_BUILD_DIR:-$repo/build}/gallery-screenshots"
