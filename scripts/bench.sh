#!/usr/bin/env bash
# Sets up, builds and measures: scripts/bench.sh [export|hand-over|long-queue|one-stream|side-by-side|video-stream|window]. Fails where a bound is missed.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh
scripts/build.sh release korvane-bench
build/release/bin/korvane-bench "$@"
