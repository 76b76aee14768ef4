#!/usr/bin/env bash
# Makes data/expected_hashes.txt from the release build, for a change that is meant to alter what a run writes.
# update_run_hashes.sh [BUILD_TREE]: build/release by default, or another tree that is configured as a release.
set -euo pipefail
folder=$(cd "$(dirname "${BASH_SOURCE[0]}")" && pwd)
tree=${1:-$folder/../../build/release}

if [[ $# -eq 0 ]]; then
    (cd "$folder/../.." && cmake --preset release >/dev/null)
fi
if ! grep -q '^CMAKE_BUILD_TYPE:[^=]*=Release$' "$tree/CMakeCache.txt"; then
    echo "$tree is not a release build" >&2
    exit 1
fi
cmake --build "$tree" --target veln veln_run_hashes
"$tree/tests/cli/veln_run_hashes" >"$folder/data/expected_hashes.txt.new"
mv "$folder/data/expected_hashes.txt.new" "$folder/data/expected_hashes.txt"
