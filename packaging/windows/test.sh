#!/usr/bin/env bash
# Runs the tests of the program for Windows under Wine, without a display. Those that are not among them stand in
# packaging/windows/sin_wine.txt with the reason, and are shown. Usage:
#   packaging/windows/test.sh [words for ctest]
set -euo pipefail
cd "$(dirname "$0")/../.."
lista=packaging/windows/sin_wine.txt
# Wine's own programs (the desktop's among them) start with the first of an account's and end after its last, and
# hold the output that they were started with: a test that started them would not seem to end while others run. So a
# program that does nothing is there before the first and until the end.
packaging/windows/wine.sh notepad </dev/null >/dev/null 2>&1 &
compania=$!
registro=$(mktemp)
trap 'rm -f "$registro"; kill "$compania" 2>/dev/null || true' EXIT
packaging/windows/wine.sh rundll32 user32.dll,MessageBeep </dev/null >/dev/null 2>&1
resultado=0
ctest --test-dir build/windows/programa --no-tests=error --output-on-failure --parallel "$(nproc)" "$@" | tee "$registro" || resultado=1
echo "Not run under Wine:"
grep -v '^#' "$lista"
printf 'under Wine: %s; not run there: %d\n' \
    "$(sed -n 's/.* tests passed, \([0-9]*\) tests failed out of \([0-9]*\).*/\1 of \2 tests failed/p' "$registro")" \
    "$(grep -vc '^#' "$lista")"
exit $resultado
