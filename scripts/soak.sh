#!/usr/bin/env bash
# Runs the long forms of the random tests of whole uploads: scripts/soak.sh [kills|weather|cuts...]
# Their short forms are part of scripts/test.sh. KORVANE_TEST_SEED replays a run.
set -euo pipefail
cd "$(dirname "$0")/.."

scripts/setup.sh
scripts/build.sh dev
export KORVANE_TEST_KILLS=${KORVANE_TEST_KILLS:-100} KORVANE_SOAK_RUNS=${KORVANE_SOAK_RUNS:-200}
export KORVANE_SOAK_CUTS=${KORVANE_SOAK_CUTS:-10} KORVANE_SOAK_CUT_SECONDS=${KORVANE_SOAK_CUT_SECONDS:-30}
export KORVANE_SOAK_CUT_MEGABYTES=${KORVANE_SOAK_CUT_MEGABYTES:-200}

filter=
[ $# -gt 0 ] || set -- kills weather cuts
for part; do
  case $part in
    kills) filter+=:VideoKill.*:Kill.Fifty* ;;
    weather) filter+=:VideoSoak.Every* ;;
    cuts) filter+=:VideoSoak.ANetwork* ;;
    *) echo "There is no part $part: kills, weather or cuts." >&2; exit 2 ;;
  esac
done
exec build/dev/bin/test-end-to-end --gtest_filter="${filter#:}"
