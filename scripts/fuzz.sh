#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each one for a short time.
# Usage: scripts/fuzz.sh [seconds per target, default 20]
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-20}"
bash scripts/install-deps.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzzers -j "$(nproc)"
status=0
for fuzzer in build-fuzz/fuzz/*/fuzz_*; do
  [ -x "$fuzzer" ] || continue
  name=$(basename "$fuzzer")
  corpus="build-fuzz/corpus/$name"
  mkdir -p "$corpus"
  echo "fuzz: $name for ${seconds}s"
  if ! "$fuzzer" -max_total_time="$seconds" -max_len=4096 -print_final_stats=0 "$corpus" \
       >"build-fuzz/$name.log" 2>&1; then
    echo "fuzz: $name FAILED; its log follows" >&2
    tail -n 60 "build-fuzz/$name.log" >&2
    status=1
  fi
done
exit $status
