#!/usr/bin/env bash
# Captures the record fuzzer's seed corpus: the reply of every endpoint of
# every fixture, as spacemgm-cloud gives it (also each service's refusal and
# the replies under a wrongTypes fault), into fuzz/corpus/fuzz_record_reader/,
# which it replaces. Run it after changing the fixtures or the emulator's
# replies.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/build.sh default capture_replies
rm -rf fuzz/corpus/fuzz_record_reader
build/tests/support/capture_replies fuzz/corpus/fuzz_record_reader
