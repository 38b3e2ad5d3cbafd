#!/usr/bin/env bash
# Fails where a source file is not formatted as .clang-format says.
set -euo pipefail
cd "$(dirname "$0")/.."
git ls-files -z '*.h' '*.cpp' | xargs -0 clang-format-14 --dry-run --Werror
echo "The format is right."
