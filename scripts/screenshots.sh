#!/usr/bin/env bash
# Makes docs/screenshots/*.png: the space window rendered offscreen by
# `spacemgm window --png` against the emulator's fixtures, in each language
# and at scale 2.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh default spacemgm_app spacemgm-cloud >/dev/null

out=docs/screenshots
mkdir -p "$out"
work="$(mktemp -d)"
cloud_pid=""
stop_cloud() {
  if [ -n "$cloud_pid" ]; then
    kill "$cloud_pid" 2>/dev/null || true
    wait "$cloud_pid" 2>/dev/null || true
  fi
  cloud_pid=""
}
trap 'stop_cloud; rm -rf "$work"' EXIT

# Starts the emulator with a fixture; its configuration is $work/spacemgm.json.
start_cloud() {
  stop_cloud
  rm -f "$work/cloud.log" "$work/spacemgm.json"
  ./build/bin/spacemgm-cloud --port 0 --fixture "cloud/fixtures/$1.json" \
    --write-config "$work/spacemgm.json" >"$work/cloud.log" 2>&1 &
  cloud_pid=$!
  for _ in $(seq 1 100); do
    grep -q '^ready' "$work/cloud.log" 2>/dev/null && return 0
    kill -0 "$cloud_pid" 2>/dev/null || break
    sleep 0.1
  done
  cat "$work/cloud.log" >&2
  exit 1
}

# shot NAME [OPTIONS...]: the window against the running emulator.
shot() {
  local name="$1"
  shift
  XDG_DATA_HOME="$work/data" ./build/bin/spacemgm window --config "$work/spacemgm.json" \
    --png "$out/$name.png" "$@"
  echo "screenshots: $out/$name.png"
}

start_cloud sample
shot sample
shot sample-gallery --select Gallery
shot sample-messages --select Message
shot zh-CN --lang zh-CN
shot ru-RU --lang ru-RU
shot ru-RU-messages --lang ru-RU --select Message
shot th-TH --lang th-TH
shot scale2 --scale 2
# The failed page: the load ends while the host reports no network.
sed 's/"mode" : "online"/"mode" : "offline"/' "$work/spacemgm.json" >"$work/offline.json"
grep -q '"offline"' "$work/offline.json"
XDG_DATA_HOME="$work/data" ./build/bin/spacemgm window --config "$work/offline.json" --png "$out/failed.png"
echo "screenshots: $out/failed.png"

start_cloud full
shot full
start_cloud empty
shot empty
