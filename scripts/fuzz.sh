#!/usr/bin/env bash

# SPDX-FileCopyrightText: 2026 The ko_qtToolkit_cxx authors
#
# SPDX-License-Identifier: MIT

# Builds the fuzz targets of tests/fuzz with clang, libFuzzer, AddressSanitizer and
# UndefinedBehaviorSanitizer in build-fuzz/ (or $KO_FUZZ_BUILD_DIR), replays each target's corpus,
# then fuzzes each target and prints one line per target: the inputs it ran and the slowest one.
#
#   scripts/fuzz.sh [target|all] [seconds]     all targets, 30 s each, by default
#
# Fuzzing starts from the seed-* inputs of tests/fuzz/corpus/<target>/ in a scratch folder, so the
# repository's corpus never changes; an input that breaks a rule is kept in
# build-fuzz/crashes/<target>/. Exits non-zero when a corpus input or a fuzzing run fails.
set -euo pipefail
repo=$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)
only=${1:-all}
seconds=${2:-30}
build=${KO_FUZZ_BUILD_DIR:-$repo/build-fuzz}

"$repo/scripts/setup.sh" --fuzz
start=$SECONDS
CC=clang CXX=clang++ KO_BUILD_DIR="$build" "$repo/scripts/build.sh" \
    -DKO_QTTOOLKIT_FUZZ=ON -DKO_QTTOOLKIT_TESTS=OFF -DKO_QTTOOLKIT_GALLERY=OFF -DKO_QTTOOLKIT_EXAMPLES=OFF \
    -DKO_QTTOOLKIT_BENCHMARKS=OFF
echo "fuzz: clang build took $((SECONDS - start)) s"

export QT_QPA_PLATFORM=offscreen
# Qt's offscreen platform never frees some of what it allocates; the rules, not leaks, are the
# subject here.
export ASAN_OPTIONS=detect_leaks=0
export UBSAN_OPTIONS=print_stacktrace=1:halt_on_error=1

targets=()
for binary in "$build"/tests/fuzz/fuzz_*; do
  name=${binary##*/fuzz_}
  if [ "$only" = all ] || [ "$only" = "$name" ]; then targets+=("$name"); fi
done
if [ ${#targets[@]} -eq 0 ]; then
  echo "fuzz: no target named $only" >&2; exit 2
fi

status=0
echo "== replaying the corpora"
filter=()
if [ "$only" != all ]; then filter=(-R "^fuzz\\.$only\$"); fi
(cd "$build" && ctest --output-on-failure -L fuzz "${filter[@]}") || status=1

summary=()
for name in "${targets[@]}"; do
  echo "== fuzzing $name for $seconds s"
  scratch=$(mktemp -d)
  crashes="$build/crashes/$name"
  log="$build/fuzz-logs/$name.log"
  mkdir -p "$crashes" "$(dirname "$log")"
  result=ok
  # Fuzzing starts from the seeds, in a scratch folder that receives the inputs libFuzzer finds;
  # the regression inputs stop a target at once until their defect is fixed, and CTest has
  # replayed them above.
  find "$repo/tests/fuzz/corpus/$name" -name 'seed-*' -exec cp {} "$scratch/" \;
  # A fixed seed makes a run repeatable: CI fuzzes the same inputs every time, and a new finding
  # comes with a change, not with the luck of a run. KO_FUZZ_SEED=0 lets libFuzzer choose.
  # An input may lay out thousands of ticks under the sanitizers, seconds on a loaded machine;
  # only one that runs for a minute counts as a hang.
  if ! "$build/tests/fuzz/fuzz_$name" -seed="${KO_FUZZ_SEED:-1}" -max_total_time="$seconds" -max_len=2048 -timeout=60 -report_slow_units=1 -print_final_stats=1 \
      -artifact_prefix="$crashes/" "$scratch" >"$log" 2>&1; then
    result="FAILED: $(grep -m1 -E 'rule broken|runtime error|ERROR: (AddressSanitizer|libFuzzer)' "$log" || echo "see $log")"
    grep -m1 -A1 'rule broken' "$log" | tail -n 1 || true
    grep -m1 'Test unit written to' "$log" || true
    status=1
  fi
  executions=$(awk '/stat::number_of_executed_units/ {print $2}' "$log")
  slowest=$(awk '/stat::slowest_unit_time_sec/ {print $2}' "$log")
  # libFuzzer counts whole seconds (from 1 s on, with -report_slow_units=1); replaying every
  # input it kept gives milliseconds.
  longest=$(find "$scratch" -type f -print0 \
      | xargs -0 -r -n 200 "$build/tests/fuzz/fuzz_$name" -timeout=60 2>&1 \
      | awk '/^Executed .* in [0-9]+ ms/ {ms = $(NF - 1); if (ms > max) max = ms} END {print max + 0}' || true)
  rm -rf "$scratch"
  summary+=("$(printf '%-12s %9s executions, slowest unit %s s, longest kept input %s ms: %s' \
      "$name" "${executions:-?}" "${slowest:-?}" "${longest:-?}" "$result")")
done

echo "== fuzz summary ($seconds s a target)"
printf 'fuzz: %s\n' "${summary[@]}"
exit $status
