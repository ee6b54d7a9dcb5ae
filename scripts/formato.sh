#!/usr/bin/env bash
# Formats every C and C++ file of the project; with --check only tells which are not formatted.
set -euo pipefail
cd "$(dirname "$0")/.."
mapfile -t archivos < <(git ls-files -- '*.cpp' '*.h' '*.c')
if [ "${1:-}" = --check ]; then
    clang-format-14 --dry-run --Werror "${archivos[@]}"
else
    clang-format-14 -i "${archivos[@]}"
fi
