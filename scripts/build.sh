#!/usr/bin/env bash
# Installs what the build needs, then configures and builds one preset.
# Usage: scripts/build.sh [default|sanitize|fuzz] [extra ninja targets...]
set -euo pipefail
cd "$(dirname "$0")/.."
preset="${1:-default}"
shift || true
bash scripts/install-deps.sh
cmake --preset "$preset" >/dev/null
cmake --build --preset "$preset" -j "$(nproc)" ${1:+--target "$@"}
