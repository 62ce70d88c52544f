#!/usr/bin/env bash
# Sets up, builds and runs the tests: scripts/test.sh [PRESET] [CTEST ARGUMENT...]; presets dev (default), asan, tsan, coverage.
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
scripts/setup.sh
scripts/build.sh "$preset"

export ASAN_OPTIONS="detect_leaks=1:${ASAN_OPTIONS:-}"
export LSAN_OPTIONS="suppressions=$PWD/scripts/lsan.supp:${LSAN_OPTIONS:-}"
export UBSAN_OPTIONS="print_stacktrace=1:halt_on_error=1:${UBSAN_OPTIONS:-}"
export TSAN_OPTIONS="ignore_noninstrumented_modules=1:die_after_fork=0:suppressions=$PWD/scripts/tsan.supp:${TSAN_OPTIONS:-}"
ctest --test-dir "build/$preset" --output-on-failure --no-tests=error -j 2 "${@:2}"
