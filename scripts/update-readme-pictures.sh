#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Regenerates the pictures README.md shows from the programs' screenshot mode, so that they never
# show an old version: builds if needed, runs each program named below with `--screenshot DIR`
# offscreen, and copies the screenshots into place. Fails when README.md shows a picture under
# docs/ that no line below makes.
#
# Each line of `pictures`: the picture's path in the repository, then the screenshot it is
# copied from, as <program>/<file>. <program> is an executable target of the build that writes
# its screenshots into the folder given to `--screenshot`; <file> is one of them. A number
# before the gallery's page names (05-faders.png) may be written ?? (??-faders.png) so that
# the line survives a new page. A program named alone, without /<file>, renders one picture with
# `--screenshot FILE`, as the examples do.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)

pictures=(
  "docs/gallery.png                ko-qttoolkit-gallery/??-faders.png"
  "docs/gallery-dark.png           ko-qttoolkit-gallery/??-buttons-dark.png"
  "docs/frequency-response.png     ko-qttoolkit-gallery/??-frequency-response.png"
  "docs/example-channel-strip.png  ko-qttoolkit-channel-strip"
  "docs/example-equaliser.png      ko-qttoolkit-equaliser"
  "docs/example-settings-form.png  ko-qttoolkit-settings-form"
)

build=${KO_BUILD_DIR:-$repo/build}
if [ ! -f "$build/build.ninja" ]; then
  "$repo/scripts/build.sh"
fi

# Every picture README.md shows must come from a line above.
missing=0
while read -r shown; do
  found=0
  for line in "${pictures[@]}"; do
    read -r destination _ <<<"$line"
    [ "$destination" = "$shown" ] && found=1
  done
  if [ "$found" = 0 ]; then
    echo "README.md shows $shown, which no line of $(basename "$0") makes" >&2
    missing=1
  fi
done < <(grep -o '](docs/[^)]*\.png)' "$repo/README.md" | sed 's/^](//; s/)$//' | sort -u)
[ "$missing" = 0 ] || exit 1

scratch=$(mktemp -d)
trap 'rm -rf "$scratch"' EXIT

declare -A rendered=()
for line in "${pictures[@]}"; do
  read -r destination source <<<"$line"
  program=${source%%/*}
  file=${source#*/}
  if [ "$file" = "$source" ]; then
    cmake --build "$build" --target "$program" >/dev/null
    executable=$(find "$build" -type f -name "$program" -perm -u+x | head -n 1)
    [ -n "$executable" ] || { echo "no executable $program in $build" >&2; exit 1; }
    QT_QPA_PLATFORM=offscreen "$executable" --screenshot "$scratch/$program.png" >/dev/null 2>&1
    [ -s "$scratch/$program.png" ] || { echo "$program made no screenshot" >&2; exit 1; }
    cp "$scratch/$program.png" "$repo/$destination"
    echo "$destination <- $program"
    continue
  fi
  if [ -z "${rendered[$program]:-}" ]; then
    cmake --build "$build" --target "$program" >/dev/null
    executable=$(find "$build" -type f -name "$program" -perm -u+x | head -n 1)
    if [ -z "$executable" ]; then
      echo "no executable $program in $build" >&2
      exit 1
    fi
    QT_QPA_PLATFORM=offscreen "$executable" --screenshot "$scratch/$program" >/dev/null
    rendered[$program]=1
  fi
  # The pattern is expanded here, in the folder the program wrote.
  matches=("$scratch/$program"/$file)
  if [ "${#matches[@]}" != 1 ] || [ ! -f "${matches[0]}" ]; then
    echo "$program made no single screenshot $file" >&2
    exit 1
  fi
  cp "${matches[0]}" "$repo/$destination"
  echo "$destination <- $program/$(basename "${matches[0]}")"
done
