#!/usr/bin/env bash
# Builds and runs the tests.
# Usage: scripts/test.sh [--sanitize | --tsan] [ctest arguments...]
#   (none)      every test (labels unit, integration, ui, smoke)
#   --sanitize  every test under AddressSanitizer and UndefinedBehaviorSanitizer
#   --tsan      the unit, integration and ui tests under ThreadSanitizer, with
#               tests/tsan.supp for races inside uninstrumented system libraries
set -euo pipefail
cd "$(dirname "$0")/.."
preset=default
case "${1:-}" in
  --sanitize) preset=sanitize; shift ;;
  --tsan) preset=tsan; shift ;;
esac
bash scripts/build.sh "$preset"
ctest --preset "$preset" -j "$(nproc)" "$@"
