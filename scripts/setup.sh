#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Installs everything the library, its tests, benchmarks, gallery and API reference need on
# Debian 12, and stages the Qt Charts private headers of the installed Qt Charts version. With
# --fuzz it also installs clang and its libFuzzer runtime, which only scripts/fuzz.sh needs.
# Idempotent and non-interactive: a second run only checks and returns.
#
# KO_QT_MAJOR=6 sets up for Qt 6 instead of Qt 5.15 (the default).
set -euo pipefail

repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cache="$repo/.cache"
export DEBIAN_FRONTEND=noninteractive

if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo -n); fi

packages=(
  g++ cmake ninja-build pkg-config dpkg-dev file
  qtbase5-dev qtbase5-private-dev libqt5charts5-dev libqt5svg5-dev
  # the Designer plugin and QUiLoader in its tests
  qttools5-dev
  libbenchmark-dev fonts-dejavu-core xvfb xauth
  # the binary-interface check (scripts/abi-check.sh) and the licence check (reuse lint)
  abigail-tools reuse
  # the API reference (the docs target): Doxygen, Qt's help generator and Qt's tag files
  doxygen qhelpgenerator-qt5 qtbase5-doc-dev
  # benchmark-only peers; the build works without them
  libqcustomplot-dev libqwt-qt5-dev
)
if [ "${1:-}" = "--fuzz" ]; then
  packages+=(clang libclang-rt-14-dev)
fi

qt_major=${KO_QT_MAJOR:-5}
case "$qt_major" in
  5) ;;
  6)
    # Qt 6 in place of Qt 5; QCustomPlot's development package carries both builds, and Debian
    # ships Qwt for Qt 5 only, so the benchmarks compare with it on Qt 5 alone.
    packages=(
      g++ cmake ninja-build pkg-config dpkg-dev file
      qt6-base-dev qt6-base-private-dev qt6-charts-dev qt6-svg-dev libqt6opengl6-dev
      qt6-tools-dev
      libbenchmark-dev fonts-dejavu-core xvfb xauth
      abigail-tools reuse
      # Debian ships Qt's tag files for Qt 5 only; the Qt 6 reference links Qt 6's pages with them
      doxygen qt6-documentation-tools qtbase5-doc-dev
      libqcustomplot-dev
    ) ;;
  *) echo "setup: KO_QT_MAJOR must be 5 or 6, not $qt_major" >&2; exit 2 ;;
esac

missing=()
for p in "${packages[@]}"; do
  dpkg-query -W -f='${Status}' "$p" 2>/dev/null | grep -q 'install ok installed' || missing+=("$p")
done

apt_updated=
apt_update() {
  [ -n "$apt_updated" ] && return
  "${sudo[@]}" apt-get update -qq
  apt_updated=1
}

if [ ${#missing[@]} -gt 0 ]; then
  echo "setup: installing ${missing[*]}"
  apt_update
  "${sudo[@]}" apt-get install -y -qq --no-install-recommends "${missing[@]}" >/dev/null
fi

if [ "$qt_major" = 6 ]; then
  exec "$repo/scripts/stage-qt6-charts-private.sh"
fi

# Qt Charts ships no private headers in Debian: take them from the source package of exactly
# the installed version and lay them out as an official Qt install does.
charts_version=$(dpkg-query -W -f='${Version}' libqt5charts5-dev)   # e.g. 5.15.8-2
qt_version=${charts_version%%-*}; qt_version=${qt_version#*:}       # e.g. 5.15.8
staged="$cache/qt-private/QtCharts/$qt_version/QtCharts/private"
stamp="$cache/qt-private/.staged-$charts_version"

if [ ! -f "$stamp" ]; then
  if ! grep -rqsE '^(Types:.*deb-src|deb-src )' /etc/apt/sources.list /etc/apt/sources.list.d/; then
    echo "setup: adding a deb-src entry for Debian's source packages"
    "${sudo[@]}" tee /etc/apt/sources.list.d/ko-qttoolkit-deb-src.sources >/dev/null <<SRC
Types: deb-src
URIs: http://deb.debian.org/debian
Suites: bookworm bookworm-updates
Components: main
Signed-By: /usr/share/keyrings/debian-archive-keyring.gpg
SRC
    apt_updated=
  fi
  apt_update
  src="$cache/qtcharts-src"
  rm -rf "$src"; mkdir -p "$src"
  echo "setup: fetching the Qt Charts $charts_version sources"
  (cd "$src" && apt-get source -qq "qtcharts-opensource-src=$charts_version" >/dev/null)
  tree=$(find "$src" -maxdepth 1 -mindepth 1 -type d | head -n 1)
  rm -rf "$cache/qt-private"; mkdir -p "$staged"
  find "$tree/src/charts" -name '*_p.h' -exec cp {} "$staged/" \;
  touch "$stamp"
  rm -rf "$src"
fi
