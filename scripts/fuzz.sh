#!/usr/bin/env bash
# Builds the libFuzzer targets with clang and runs each one for a short time.
# Usage: scripts/fuzz.sh [seconds per target, default 20]
#
# A fuzzer starts from its seeds where it has them: the JSON files (up to
# 64 KiB each) of fuzz/corpus/<fuzzer>/ and of its extra seed folder below
# are copied into build-fuzz/seeds/<fuzzer>, fuzz/corpus/<fuzzer>.dict is
# passed with -dict, and -max_len grows to the largest seed. What the fuzzer
# finds worth keeping goes to build-fuzz/corpus/<fuzzer>.
set -euo pipefail
cd "$(dirname "$0")/.."
seconds="${1:-20}"

# Seeds that live elsewhere in the tree.
extra_seeds() {
  case "$1" in
    fuzz_fixture_reader) echo cloud/fixtures ;;
  esac
}

bash scripts/install-deps.sh
cmake --preset fuzz >/dev/null
cmake --build --preset fuzz --target fuzzers -j "$(nproc)"
status=0
for fuzzer in build-fuzz/fuzz/*/fuzz_*; do
  [ -x "$fuzzer" ] || continue
  name=$(basename "$fuzzer")
  corpus="build-fuzz/corpus/$name"
  seeds="build-fuzz/seeds/$name"
  mkdir -p "$corpus"
  rm -rf "$seeds"
  mkdir -p "$seeds"
  options=(-max_total_time="$seconds" -print_final_stats=1)
  max_len=4096
  for from in "fuzz/corpus/$name" $(extra_seeds "$name"); do
    [ -d "$from" ] && find "$from" -maxdepth 1 -name '*.json' -size -65537c -exec cp {} "$seeds/" \;
  done
  largest=$(find "$seeds" -type f -printf '%s\n' | sort -n | tail -n 1)
  if [ -n "$largest" ] && [ "$largest" -gt "$max_len" ]; then
    max_len=$largest
  fi
  options+=(-max_len="$max_len")
  dict="fuzz/corpus/$name.dict"
  [ -f "$dict" ] || dict=""
  [ -n "$dict" ] && options+=(-dict="$dict")
  echo "fuzz: $name for ${seconds}s ($(find "$seeds" -type f | wc -l) seeds, -max_len=$max_len${dict:+, $dict})"
  if ! "$fuzzer" "${options[@]}" "$corpus" "$seeds" >"build-fuzz/$name.log" 2>&1; then
    echo "fuzz: $name FAILED; its log follows" >&2
    tail -n 60 "build-fuzz/$name.log" >&2
    status=1
  fi
  grep -E '^(#[0-9]+ +DONE|stat::number_of_executed_units|stat::peak_rss_mb)' "build-fuzz/$name.log" | sed "s/^/fuzz: $name: /" || true
done
exit $status
