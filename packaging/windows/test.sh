#!/usr/bin/env bash
# Runs the tests of the program for Windows under Wine, without a display. Those that cannot be run there stand in
# packaging/windows/sin_wine.txt with the reason, and are shown. Usage: packaging/windows/test.sh [words for ctest]
set -euo pipefail
cd "$(dirname "$0")/../.."
lista=packaging/windows/sin_wine.txt
packaging/windows/wine.sh cmd /c exit
fuera=$(sed -n 's/^\(tst_[A-Za-z]*\|[a-z][A-Za-z_]*\): .*/\1/p' "$lista" | paste -sd'|')
ctest --test-dir build/windows/programa --output-on-failure ${fuera:+-E "^($fuera)$"} "$@"
echo "Not run:"
grep -v '^#' "$lista"
