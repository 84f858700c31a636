#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Stages the Qt Charts 6 private headers of exactly the installed Qt Charts version under
# .cache/qt6-private, in the layout of an official Qt install. Run by scripts/setup.sh.
#
# Debian ships none. They come from Debian's source package of the installed version when it
# can be fetched, and otherwise from ../shared/qtcharts-<version>/, a copy of the private headers
# of Qt's source at that version's tag, whose version must match the installed one. A Qt whose
# own install has them (the official installer's) needs nothing staged: the build finds them.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
cache="$repo/.cache"
if [ "$(id -u)" -eq 0 ]; then sudo=(); else sudo=(sudo -n); fi

charts_version=$(dpkg-query -W -f='${Version}' qt6-charts-dev)   # e.g. 6.4.2-3
qt_version=${charts_version%%-*}; qt_version=${qt_version#*:}     # e.g. 6.4.2
root="$cache/qt6-private"
staged="$root/QtCharts/$qt_version/QtCharts/private"
stamp="$root/.staged-$charts_version"
[ -f "$stamp" ] && exit 0

# Where the private headers come from: the source package, or the shared copy.
src="$cache/qt6charts-src"
rm -rf "$src"; mkdir -p "$src"
tree=
if grep -rqsE '^(Types:.*deb-src|deb-src )' /etc/apt/sources.list /etc/apt/sources.list.d/ \
   && (cd "$src" && timeout 300 apt-get source -qq "qt6-charts=$charts_version" >/dev/null 2>&1); then
  tree=$(find "$src" -maxdepth 1 -mindepth 1 -type d | head -n 1)
  echo "setup: Qt Charts $qt_version private headers from Debian's source package $charts_version"
else
  shared=$(cd "$repo/.." && pwd)/shared/qtcharts-$qt_version
  if [ ! -d "$shared/src/charts" ]; then
    echo "setup: Debian's source of Qt Charts $charts_version cannot be fetched, and there is no" \
         "copy of its private headers in $shared" >&2
    exit 1
  fi
  tree=$shared
  echo "setup: Qt Charts $qt_version private headers from $shared"
fi

# The copy must be of the installed version: Qt Charts' private classes change with any release.
found=
if [ -f "$tree/.cmake.conf" ]; then
  found=$(sed -nE 's/^set\(QT_REPO_MODULE_VERSION "([0-9.]+)"\).*/\1/p' "$tree/.cmake.conf")
elif [ -f "$tree/README" ]; then
  found=$(sed -nE '1s/^Qt Charts ([0-9.]+):.*/\1/p' "$tree/README")
fi
if [ "$found" != "$qt_version" ]; then
  echo "setup: the Qt Charts private headers in $tree are of version '${found:-unknown}'," \
       "but Qt Charts $qt_version is installed" >&2
  exit 1
fi

rm -rf "$root"; mkdir -p "$staged"
find "$tree/src/charts" -name '*_p.h' -exec cp {} "$staged/" \;
# Qt's build generates two private headers that its source lacks: the module's private features
# (Qt Charts has none) and the private export macro.
: >"$staged/qtcharts-config_p.h"
# The generated header is Qt's and keeps Qt's licence notice.
# REUSE-IgnoreStart
cat >"$staged/qtchartsexports_p.h" <<'HEADER'
// Copyright (C) 2021 The Qt Company Ltd.
// SPDX-License-Identifier: LicenseRef-Qt-Commercial OR LGPL-3.0-only OR GPL-2.0-only OR GPL-3.0-only

#ifndef QTCHARTSEXPORTS_P_H
#define QTCHARTSEXPORTS_P_H

//
//  W A R N I N G
//  -------------
//
// This file is not part of the Qt API.  It exists purely as an
// implementation detail.  This header file may change from version to
// version without notice, or even be removed.
//
// We mean it.
//

#include <QtCharts/qtchartsexports.h>

#define Q_CHARTS_PRIVATE_EXPORT Q_CHARTS_EXPORT

#endif // QTCHARTSEXPORTS_P_H
HEADER
# REUSE-IgnoreEnd
if [ -d "$tree/LICENSES" ]; then cp -r "$tree/LICENSES" "$root/QtCharts/$qt_version/"; fi
touch "$stamp"
rm -rf "$src"
