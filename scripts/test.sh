#!/usr/bin/env bash
# Builds and runs every test (labels unit, integration, ui, smoke).
# Usage: scripts/test.sh [--sanitize] [ctest arguments...]
set -euo pipefail
cd "$(dirname "$0")/.."
preset=default
if [ "${1:-}" = "--sanitize" ]; then
  preset=sanitize
  shift
fi
bash scripts/build.sh "$preset"
ctest --preset "$preset" -j "$(nproc)" "$@"
