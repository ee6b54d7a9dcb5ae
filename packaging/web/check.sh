#!/usr/bin/env bash
# Tries the page in Chromium without a window. Usage:
#   packaging/web/check.sh [FOLDER FOR PICTURES]
set -euo pipefail
cd "$(dirname "$0")/../.."
packaging/web/build.sh pruebas
[ $# -eq 0 ] || mkdir -p "$1"
NODE_PATH=/usr/share/nodejs exec node packaging/web/checks/check.js build/web-checks build/web-empty "$@"
