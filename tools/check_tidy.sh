#!/usr/bin/env bash
# Runs clang-tidy over every source file, as many at a time as there are processors, in the groups that cmake/tidy.cmake
# makes. What the toolkit's tools generate must be there, so it needs the sanitize build.
set -euo pipefail
cd "$(dirname "$0")/.."
[ -f build/sanitize/build.ninja ] || cmake --preset sanitize
cmake --build --preset sanitize --target all observer_autogen
printf '%s\0' build/sanitize/tidy/*.cpp |
    xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 --quiet -p build/sanitize --extra-arg=-w 2> >(grep -v 'warnings generated' >&2)
echo "clang-tidy found nothing."
