#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Builds the Debian packages of a build folder (build/ unless given) with CPack, unpacks every one
# into a scratch root with dpkg -x, and builds and runs examples/consumer against that root twice:
# with CMake (CMAKE_PREFIX_PATH) and with pkg-config. Checks on the way that the runtime package
# pins the Qt Charts version and that the unpacked Designer plugin finds the unpacked library.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
build=$(cd "${1:-$repo/build}" && pwd)
work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

major=$(sed -n 's/^KO_QTTOOLKIT_QT_MAJOR:[A-Z]*=//p' "$build/CMakeCache.txt")
if [ "$major" = 6 ]; then package=ko_qtToolkit_cxx_qt6; deb=libko-qttoolkit-qt6-2
else package=ko_qtToolkit_cxx; deb=libko-qttoolkit2; fi

rm -f "$build"/*.deb
(cd "$build" && cpack -G DEB >"$work/cpack.log") || { cat "$work/cpack.log" >&2; exit 1; }

root="$work/root"
for f in "$build"/*.deb; do
  echo "packages: $(basename "$f"): $(dpkg-deb -f "$f" Depends)"
  dpkg -x "$f" "$root"
done
dpkg-deb -f "$build/${deb}_"*.deb Depends | grep -qE "libqt${major:-5}charts[0-9]* \(= " \
  || { echo "packages: $deb does not pin the Qt Charts version" >&2; exit 1; }

libdirs=$(find "$root/usr" -name "lib$package.so.*" -printf '%h\n' | sort -u | paste -sd:)
plugin=$(find "$root/usr" -path '*/plugins/designer/*.so' | head -n 1)
if [ -n "$plugin" ] && env -u LD_LIBRARY_PATH ldd "$plugin" | grep 'not found'; then
  echo "packages: the unpacked Designer plugin does not find its libraries" >&2; exit 1
fi

# With CMake, as the README shows.
cmake -S "$repo/examples/consumer" -B "$work/cmake" -G Ninja -DCMAKE_PREFIX_PATH="$root/usr" \
    -DKO_CONSUMER_QT_MAJOR="${major:-5}" >/dev/null
cmake --build "$work/cmake" >/dev/null
LD_LIBRARY_PATH="$libdirs" QT_QPA_PLATFORM=offscreen "$work/cmake/consumer"

# With pkg-config, from the unpacked .pc file (its prefix follows the file).
export PKG_CONFIG_PATH
PKG_CONFIG_PATH=$(find "$root/usr" -name "$package.pc" -printf '%h\n' | head -n 1)
flags=$(pkg-config --cflags --libs "$package")
c++ -std=c++17 -fPIC -Wall -Wextra -Werror "$repo/examples/consumer/main.cpp" -o "$work/consumer-pc" $flags
LD_LIBRARY_PATH="$libdirs" QT_QPA_PLATFORM=offscreen "$work/consumer-pc"
echo "packages: consumers built against the unpacked packages with CMake and with pkg-config ran"
