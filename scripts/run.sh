#!/usr/bin/env bash
# The main job: builds the module and runs the `spacemgm` program.
# Arguments are passed to the program ("usage" when there are none).
#
# With no host configuration (no --config, no $SPACEMGM_CONFIG, no
# ~/.config/spacemgm/spacemgm.json) it starts the local cloud emulator with
# the sample account on a free loopback port, lets it write a matching
# configuration, and points the program at it.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh default spacemgm_app spacemgm-cloud >/dev/null
[ $# -eq 0 ] && set -- usage

user_config="${XDG_CONFIG_HOME:-$HOME/.config}/spacemgm/spacemgm.json"
if [[ " $* " == *" --config "* || -n "${SPACEMGM_CONFIG:-}" || -f "$user_config" ]]; then
  exec ./build/bin/spacemgm "$@"
fi

work="$(mktemp -d)"
cloud_pid=""
cleanup() {
  [ -n "$cloud_pid" ] && kill "$cloud_pid" 2>/dev/null && wait "$cloud_pid" 2>/dev/null
  rm -rf "$work"
}
trap cleanup EXIT
./build/bin/spacemgm-cloud --port 0 --fixture cloud/fixtures/sample.json \
  --state "$work/account.json" --write-config "$work/spacemgm.json" >"$work/cloud.log" 2>&1 &
cloud_pid=$!
for _ in $(seq 1 100); do
  grep -q '^ready' "$work/cloud.log" 2>/dev/null && break
  kill -0 "$cloud_pid" 2>/dev/null || { cat "$work/cloud.log" >&2; exit 1; }
  sleep 0.1
done
XDG_DATA_HOME="$work/data" ./build/bin/spacemgm "$@" --config "$work/spacemgm.json"
