#!/usr/bin/env bash
# Writes what the uninstaller takes away: each file of a folder by its name, and then each folder if it is empty,
# so that nothing of the student's own goes along. Usage: packaging/windows/lista.sh FOLDER
set -euo pipefail
cd "$1"
dewindows() { sed 's,^\./,,; s,/,\\,g'; }
find . -type f | LC_ALL=C sort | dewindows | sed 's/.*/Delete "$INSTDIR\\&"/'
find . -mindepth 1 -depth -type d | dewindows | sed 's/.*/RMDir "$INSTDIR\\&"/'
