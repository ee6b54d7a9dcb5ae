#!/usr/bin/env bash
# Tries the page in Chromium without a window, and in Firefox where firefox-esr and xvfb-run are installed. Usage:
#   packaging/web/check.sh [FOLDER FOR PICTURES]
# Ends with a line for each group of checks, its name and "ok", "FAILED" or "skipped". NUMORA_ALL=1 tries every task of the
# course's pages instead of one for each topic of a page; NUMORA_PARTS="guardado dedos" only these parts of checks/.
set -euo pipefail
cd "$(dirname "$0")/../.."
packaging/web/build.sh pruebas
[ $# -eq 0 ] || mkdir -p "$1"

# corre COMMAND…: in a group of its own, so that a signal to this script ends it with the browsers that it has begun.
set -m
grupo=
corre() {
    "$@" &
    grupo=$!
    wait "$grupo"
}
trap 'kill -TERM -- "-${grupo:?}"; wait; exit 143' INT TERM HUP

export NODE_PATH=/usr/share/nodejs
bien=0
corre node packaging/web/checks/check.js build/web-checks build/web-empty "$@" || bien=1
if command -v firefox-esr >/dev/null && command -v xvfb-run >/dev/null; then
    corre xvfb-run -a -s "-screen 0 1366x768x24" node packaging/web/checks/firefox.js build/web-checks ${1:+"$1/firefox.png"} || bien=1
else
    echo "Firefox skipped"
fi
exit $bien
