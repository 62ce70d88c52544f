#!/usr/bin/env bash
# Configures and builds one preset: scripts/build.sh [PRESET] [NINJA ARGUMENT...]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
log=$(mktemp)
trap 'rm -f "$log"' EXIT
cmake --preset "$preset" >"$log" || { cat "$log"; exit 1; }
cmake --build "build/$preset" -- "${@:2}"
