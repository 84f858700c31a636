#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Compares the binary interface of the built library with the baseline in abi/.
#
#   scripts/abi-check.sh [DIR]            check; DIR is a build folder or an install prefix
#   scripts/abi-check.sh --update [DIR]   write the current interface to the baseline
#
# DIR defaults to $KO_BUILD_DIR or build/. A build folder is installed into a temporary prefix
# first. Only what the installed headers declare counts: types defined elsewhere (the private
# classes, Qt's own) are left out of the dump.
#
# Exit status: 0 when the interface is unchanged or only grew (new functions or variables; the
# baseline should then be refreshed with --update in the same commit), 1 when it changed in any
# other way (a symbol removed, a class resized, a virtual table reordered, a signature changed),
# 2 when the check itself could not run.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
baseline="$repo/abi/ko_qtToolkit_cxx.abi.gz"
library=libko_qtToolkit_cxx.so.2

update=
if [ "${1:-}" = --update ]; then update=1; shift; fi
dir=${1:-${KO_BUILD_DIR:-$repo/build}}
[ -d "$dir" ] || { echo "abi-check: no folder $dir" >&2; exit 2; }
for tool in abidw abidiff; do
  command -v "$tool" >/dev/null || { echo "abi-check: $tool missing (Debian: abigail-tools; scripts/setup.sh installs it)" >&2; exit 2; }
done

work=$(mktemp -d)
trap 'rm -rf "$work"' EXIT

if [ -f "$dir/CMakeCache.txt" ]; then
  prefix="$work/prefix"
  cmake --install "$dir" --prefix "$prefix" >/dev/null
else
  prefix=$dir
fi
lib=$(find "$prefix" -name "$library" \( -type f -o -type l \) -print -quit)
headers="$prefix/include/ko"
[ -n "$lib" ] || { echo "abi-check: no $library under $prefix" >&2; exit 2; }
[ -d "$headers" ] || { echo "abi-check: no installed headers in $headers" >&2; exit 2; }
# Without debug information abidw sees symbols only, and every type would look changed.
if ! readelf -S "$lib" | grep -q '\.debug_info'; then
  echo "abi-check: $lib has no debug information; build it as RelWithDebInfo (the default) or Debug" >&2
  exit 2
fi

# Internal classes and functions (those of the `_p.h` headers) are exported for the tests but are
# no part of the interface: their symbols are dropped from the dump, by their mangled names.
mangle() { local out= part; for part in "$@"; do out+="${#part}$part"; done; echo "$out"; }
{
  root="$repo/src/ko/qtToolkit"
  while IFS= read -r header; do
    folder=$(dirname "${header#"$root"/}")
    scope=(ko qtToolkit)
    if [ "$folder" != . ]; then IFS=/ read -r -a parts <<<"$folder"; scope+=("${parts[@]}"); fi
    for class in $(sed -nE 's/^class KO_QTTOOLKIT_EXPORT (\w+).*/\1/p' "$header"); do
      # Members, const ones (NK...) among them, thunks, virtual tables and type information.
      printf '[suppress_function]\n  symbol_name_regexp = N[KVRO]*%s\n  drop = true\n' "$(mangle "${scope[@]}" "$class")"
      printf '[suppress_variable]\n  symbol_name_regexp = N[KVRO]*%s\n  drop = true\n' "$(mangle "${scope[@]}" "$class")"
    done
    for function in $(sed -nE 's/^KO_QTTOOLKIT_EXPORT .*[^A-Za-z0-9_](\w+)\(.*/\1/p' "$header"); do
      printf '[suppress_function]\n  symbol_name_regexp = ^_ZN%sE\n  drop = true\n' "$(mangle "${scope[@]}" "$function")"
    done
  done < <(find "$root" -name '*_p.h' | sort)
} >"$work/internal.suppr"
[ -z "${KO_ABI_SHOW_SUPPRESSIONS:-}" ] || cat "$work/internal.suppr"

# No paths or source locations in the dump, and type ids taken from hashes: the baseline is the
# same wherever it is built, and a refresh shows only what changed.
milliseconds() { echo $(( $(date +%s%N) / 1000000 )); }
elapsed() { printf '%d.%01d s' $(( ($2 - $1) / 1000 )) $(( ($2 - $1) % 1000 / 100 )); }
start=$(milliseconds)
abidw --headers-dir "$headers" --drop-private-types --suppressions "$work/internal.suppr" \
  --no-corpus-path --no-comp-dir-path --no-show-locs --type-id-style hash \
  --out-file "$work/current.abi" "$lib"
dumped=$(milliseconds)
echo "abi-check: abidw $(elapsed "$start" "$dumped")"

if [ -n "$update" ]; then
  mkdir -p "$(dirname "$baseline")"
  if [ -f "$baseline" ]; then
    gzip -d -c "$baseline" >"$work/baseline.abi"
    abidiff --stat "$work/baseline.abi" "$work/current.abi" || true
  fi
  gzip -9 -n -c "$work/current.abi" >"$baseline"
  echo "abi-check: baseline ${baseline#"$repo"/} refreshed; commit it with the change"
  exit 0
fi
[ -f "$baseline" ] || { echo "abi-check: no baseline ${baseline#"$repo"/}; create it with --update" >&2; exit 2; }
# The baseline is kept compressed: the dump is some megabytes of XML.
gzip -d -c "$baseline" >"$work/baseline.abi"

status=0
abidiff "$work/baseline.abi" "$work/current.abi" >"$work/report" 2>&1 || status=$?
compared=$(milliseconds)
echo "abi-check: abidiff $(elapsed "$dumped" "$compared")"

# abidiff's status is a bit set: 1 and 2 are its own errors, 4 any change of the interface,
# 8 a change it knows to be incompatible (a removed symbol, a moved virtual function).
if (( status & 3 )); then
  cat "$work/report" >&2
  echo "abi-check: abidiff failed (status $status)" >&2
  exit 2
fi
if (( status == 0 )); then
  echo "abi-check: the interface matches the baseline"
  exit 0
fi
if (( status & 8 )); then
  cat "$work/report"
  echo "abi-check: incompatible change of the interface (abidiff status $status)" >&2
  exit 1
fi
# Known gap (abigail-tools 2.2): the dump links no debug information to the member functions a
# Q_OBJECT class defines in its own .cpp, only to the moc-generated ones. Their symbols are still
# compared (a removal fails) and so is their class's layout, but a changed return type of such a
# function goes unnoticed.
# Bit 4 alone also covers a class that changed size or a function whose types changed, which
# break applications just as surely: only a change that is nothing but additions passes. With
# the added functions and variables left out, such a change leaves nothing behind.
remaining=0
abidiff --no-added-syms "$work/baseline.abi" "$work/current.abi" >/dev/null 2>&1 || remaining=$?
if (( remaining & 3 )); then
  echo "abi-check: abidiff failed (status $remaining)" >&2
  exit 2
fi
cat "$work/report"
if (( remaining != 0 )); then
  echo "abi-check: incompatible change of the interface: more than additions (abidiff status $status)" >&2
  exit 1
fi
echo "abi-check: additions only; refresh the baseline in the same commit: scripts/abi-check.sh --update"
