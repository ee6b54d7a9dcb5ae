#!/usr/bin/env bash
# Runs a program for Windows under Wine with the libraries that it was linked to, in an account of its own
# (build/windows/wine) and without a display. Usage: packaging/windows/wine.sh PROGRAM.exe [WORD…]
# CTest runs the tests by it. NUMORA_WINE_PLATFORM=windows shows windows where there is a display.
set -e
base=$(realpath "$(dirname "$0")/../../build/windows")
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
export WINEPREFIX=${WINEPREFIX:-$base/wine} WINEDEBUG=${WINEDEBUG:--all}
# Neither .NET nor a browser nor entries in the menus of this machine.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe=d"
deWindows() { printf 'Z:%s' "${1//\//\\}"; }
WINEPATH="$(deWindows "$base/libs/bin");$(deWindows "$base/programa/bin");${WINEPATH:-}"
export WINEPATH QT_QPA_PLATFORM=${NUMORA_WINE_PLATFORM:-offscreen}
export QT_PLUGIN_PATH="$(deWindows "$base/libs/plugins");${QT_PLUGIN_PATH:-}"
exec "$wine" "$@"
