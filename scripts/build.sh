#!/usr/bin/env bash
# Configures and builds one preset: scripts/build.sh [PRESET] [NINJA ARGUMENT...]
set -euo pipefail
cd "$(dirname "$0")/.."

preset=${1:-dev}
cmake --preset "$preset" >"/tmp/korvane-configure-$$.log" || { cat "/tmp/korvane-configure-$$.log"; exit 1; }
rm -f "/tmp/korvane-configure-$$.log"
cmake --build "build/$preset" -- "${@:2}"
