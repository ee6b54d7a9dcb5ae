#!/usr/bin/env bash
# Installs what is missing, builds the program and starts it. With no display it leaves pictures of
# the program's windows in build/gallery/ instead. Arguments go to the program (try --help).
set -euo pipefail
cd "$(dirname "$0")"
source scripts/paquetes.sh
instala_paquetes run

cmake --preset release
cmake --build --preset release --target numora

if [ -n "${DISPLAY:-}${WAYLAND_DISPLAY:-}" ] || [ $# -gt 0 ]; then
    exec build/release/bin/numora "$@"
fi
echo "There is no display: instead of a window, its pictures go to build/gallery/."
QT_QPA_PLATFORM=offscreen build/release/bin/numora --galeria build/gallery
ls build/gallery
