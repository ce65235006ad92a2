#!/usr/bin/env bash
# The main job: builds the module and runs the `spacemgm` program.
# Arguments are passed to the program.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh default >/dev/null
exec ./build/bin/spacemgm "$@"
