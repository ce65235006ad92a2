#!/usr/bin/env bash
# The main job: builds the module and runs the `spacemgm` program.
# Arguments are passed to the program; with none it opens the space window.
# Without a display it shows the usage report instead, and says how to see
# the window.
#
# With no host configuration (no --config, no $SPACEMGM_CONFIG, no
# ~/.config/spacemgm/spacemgm.json) it starts the local cloud emulator on a
# free loopback port with a fresh copy of the sample account (a deletion
# made in one run is gone in the next), lets it write a matching
# configuration, and points the program at it. The logs of such a run, the
# emulator's and the program's, are kept under
# ${XDG_STATE_HOME:-~/.local/state}/spacemgm/runs/, the newest ten runs.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh default spacemgm_app spacemgm-cloud >/dev/null

# Runs the program; when it was asked for the window by default and there
# is no display, runs the usage report instead.
run_main() {
  if [ "$window_by_default" != yes ]; then
    ./build/bin/spacemgm "$@"
    return
  fi
  local status=0 errors
  errors="$(mktemp)"
  ./build/bin/spacemgm window "$@" 2>"$errors" || status=$?
  if [ "$status" -eq 2 ] && grep -q 'no display to show the window on' "$errors"; then
    rm -f "$errors"
    echo "run.sh: no display for the window, so here is the usage report; to see the window:" \
      "bash scripts/run.sh window --png FILE, or xvfb-run bash scripts/run.sh" >&2
    ./build/bin/spacemgm usage "$@"
    return
  fi
  cat "$errors" >&2
  rm -f "$errors"
  return "$status"
}

window_by_default=no
[ $# -eq 0 ] && window_by_default=yes

user_config="${XDG_CONFIG_HOME:-$HOME/.config}/spacemgm/spacemgm.json"
if [[ " $* " == *" --config "* || -n "${SPACEMGM_CONFIG:-}" || -f "$user_config" ]]; then
  run_main "$@"
  exit
fi

runs="${XDG_STATE_HOME:-$HOME/.local/state}/spacemgm/runs"
run="$runs/$(date +%Y%m%d-%H%M%S)-$$"
mkdir -p "$run"
# Older runs beyond the newest ten are removed.
ls -1d "$runs"/*/ 2>/dev/null | sort | head -n -10 | xargs -r rm -rf

work="$(mktemp -d)"
cloud_pid=""
cleanup() {
  [ -n "$cloud_pid" ] && kill "$cloud_pid" 2>/dev/null && wait "$cloud_pid" 2>/dev/null
  rm -rf "$work"
}
trap cleanup EXIT
./build/bin/spacemgm-cloud --port 0 --fixture cloud/fixtures/sample.json \
  --state "$work/account.json" --write-config "$work/spacemgm.json" >"$run/cloud.log" 2>&1 &
cloud_pid=$!
for _ in $(seq 1 100); do
  grep -q '^ready' "$run/cloud.log" 2>/dev/null && break
  kill -0 "$cloud_pid" 2>/dev/null || { cat "$run/cloud.log" >&2; exit 1; }
  sleep 0.1
done
status=0
XDG_DATA_HOME="$run/data" run_main "$@" --config "$work/spacemgm.json" || status=$?
echo "run.sh: logs of this run: $run (cloud.log, data/spacemgm/log/)" >&2
exit "$status"
