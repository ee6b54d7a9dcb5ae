#!/usr/bin/env bash
# Runs a program for Windows under Wine. Usage:
#   packaging/windows/wine.sh [--ventanas] [--suelto] PROGRAM.exe [WORD…]
# In an account of its own (build/windows/wine) that has no display: windows are there, but nobody sees them. CTest
# runs the tests so. With --ventanas, in another account (build/windows/wine-ventanas) and on the display that there
# is. The program finds the libraries that it was linked to; with --suelto only those beside it.
set -e
base=$(realpath "$(dirname "$0")/../../build/windows")
wine=$(command -v wine64 || echo /usr/lib/wine/wine64)
cuenta=$base/wine suelto=
for palabra in "$@"; do
    case $palabra in
        --ventanas) cuenta=$base/wine-ventanas ;;
        --suelto) suelto=si ;;
        *) break ;;
    esac
    shift
done
export LC_ALL=${LC_ALL:-C.UTF-8} WINEDEBUG=${WINEDEBUG:--all}
# Neither .NET nor a browser nor a debugger that waits for somebody, nor entries in the menus of this machine.
export WINEDLLOVERRIDES="mscoree,mshtml=;winemenubuilder.exe,winedbg.exe=d"
if [ "$cuenta" = "$base/wine" ]; then
    unset DISPLAY
fi
export WINEPREFIX=${WINEPREFIX:-$cuenta}
# A new account: its windows go nowhere where there is no display, and the font of Windows' windows, which is not
# here, has a stand-in of about its width.
apunta() { "$wine" reg add "HKCU\\Software\\Wine\\$1" /v "$2" /d "$3" /f >/dev/null 2>&1; }
if [ ! -e "$WINEPREFIX/preparada" ]; then
    mkdir -p "$(dirname "$WINEPREFIX")"
    (
        flock 9
        if [ ! -e "$WINEPREFIX/preparada" ]; then
            [ -n "${DISPLAY:-}" ] || apunta Drivers Graphics null
            apunta 'Fonts\Replacements' 'MS Shell Dlg' 'DejaVu Sans'
            touch "$WINEPREFIX/preparada"
        fi
    ) 9>"$WINEPREFIX.cerrojo"
fi
deWindows() { printf 'Z:%s' "${1//\//\\}"; }
if [ -z "$suelto" ]; then
    WINEPATH="$(deWindows "$base/libs/bin");$(deWindows "$base/programa/bin");${WINEPATH:-}"
    export WINEPATH
    # Wine gives its programs Qt's variables under these names only. Tests draw as they do elsewhere: of what Windows'
    # own windows ask for, Wine lacks much, and Qt complains of each.
    export WINEQT_QPA_PLATFORM=${NUMORA_WINE_PLATFORM:-offscreen} WINEQT_QPA_FONTDIR='Z:\usr\share\fonts\truetype\dejavu'
fi
exec "$wine" "$@"
