#!/usr/bin/env bash
# Runs the tests of the program for Windows under Wine, without a display. Those that cannot be run there stand in
# packaging/windows/sin_wine.txt with the reason, and are shown. Usage:
#   packaging/windows/test.sh [words for ctest]
#   packaging/windows/test.sh --fuera        those that stand there, to see the reason in what they print
set -euo pipefail
cd "$(dirname "$0")/../.."
lista=packaging/windows/sin_wine.txt
nombres=$(sed -n 's/^\([A-Za-z_]*\): .*/\1/p' "$lista" | paste -sd'|')
cuales=(-E "^($nombres)\$")
if [ "${1:-}" = --fuera ]; then
    cuales=(-R "^($nombres)\$")
    shift
fi
packaging/windows/wine.sh cmd /c exit
registro=$(mktemp)
trap 'rm -f "$registro"' EXIT
resultado=0
ctest --test-dir build/windows/programa --no-tests=error --output-on-failure "${cuales[@]}" "$@" | tee "$registro" || resultado=1
echo "Not run under Wine:"
grep -v '^#' "$lista"
printf 'under Wine: %s; not run there: %d\n' "$(grep -a ' tests passed, ' "$registro")" "$(grep -vc '^#' "$lista")"
exit $resultado
