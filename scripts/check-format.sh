#!/usr/bin/env bash
# Fails, listing the files, when a tracked C++ file differs from what
# .clang-format makes of it. The version is pinned: another clang-format
# release formats some constructs differently.
set -euo pipefail
cd "$(dirname "$0")/.."
bash scripts/install-deps.sh
status=0
while IFS= read -r file; do
  if ! clang-format-14 --dry-run -Werror "$file" >/dev/null 2>&1; then
    echo "check-format: $file differs from .clang-format (run: clang-format-14 -i $file)" >&2
    status=1
  fi
done < <(git ls-files '*.cpp' '*.h')
[ $status -eq 0 ] && echo "check-format: every C++ file follows .clang-format"
exit $status
