#!/usr/bin/env bash
# Runs clang-tidy over every source file, as many at a time as there are processors. It reads them in the sanitize build,
# where a folder's files are one source, so that the toolkit's headers are read once a folder.
set -euo pipefail
cd "$(dirname "$0")/.."
[ -f build/sanitize/build.ninja ] || cmake --preset sanitize
cmake --build --preset sanitize --target observer_autogen
sed -n 's/^ *"file": "\(.*\)",\{0,1\}$/\1/p' build/sanitize/compile_commands.json | grep -v -e 'mocs_compilation.cpp$' -e '/alone/' | sort -u |
    xargs -n 1 -P "$(nproc)" clang-tidy-14 --quiet -p build/sanitize --extra-arg=-Wno-unknown-warning-option 2> >(grep -v 'warnings generated' >&2)
echo "clang-tidy found nothing."
