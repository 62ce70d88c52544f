#!/usr/bin/env bash
# Sets up, builds and runs each fuzz target for a while: scripts/fuzz.sh [SECONDS [TARGET...]]. What is found stays in
# build/fuzz/findings, and fails the run; build/fuzz/bin/fuzz-TARGET FILE replays it.
set -euo pipefail
cd "$(dirname "$0")/.."

seconds=${1:-60}
targets=("${@:2}")
[ ${#targets[@]} -gt 0 ] || targets=(OAuthQuery FlickrResponse WireRecord)

scripts/setup.sh clang-14 libclang-rt-14-dev
scripts/build.sh fuzz fuzzers

export ASAN_OPTIONS="detect_leaks=1:${ASAN_OPTIONS:-}"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1:${UBSAN_OPTIONS:-}"
failed=0
for target in "${targets[@]}"; do
  corpus=build/fuzz/corpus/$target
  mkdir -p "$corpus" build/fuzz/findings
  dictionary=()
  [ ! -e "Tests/Fuzz/$target.dict" ] || dictionary=("-dict=Tests/Fuzz/$target.dict")
  echo "$target for $seconds seconds"
  "build/fuzz/bin/fuzz-$target" -max_total_time="$seconds" -timeout=10 -print_final_stats=1 \
    "${dictionary[@]}" -artifact_prefix="build/fuzz/findings/$target-" "$corpus" 2>"build/fuzz/$target.log" || failed=1
  grep -E '^(stat::number_of_executed|Wrong|SUMMARY|.*(ERROR|runtime error))' "build/fuzz/$target.log" || true
done
exit $failed
