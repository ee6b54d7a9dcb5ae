#!/usr/bin/env bash
# Runs the checks of every platform, one after the other, and prints one table of them. Usage:
#   scripts/everywhere.sh [linux|bare|windows|web]...
# Without a word all four: Linux, Linux without what may be missing, Windows under Wine, the browser. From nothing
# it takes some hours, most of them for Qt of the last two. A step that fails is told in the table and ends its own
# platform; what each has printed stays in build/everywhere/, and so does the table.
set -uo pipefail
cd "$(dirname "$0")/.."
source scripts/paquetes.sh
lugar=build/everywhere
mkdir -p "$lugar"
tabla=$lugar/table.md
fallos=0

# resumen VERDICT LOG: how many tests have passed in all of a step's programs, or else its last words.
resumen() {
    local pruebas
    pruebas=$(awk '/tests passed, 0 tests failed out of/ { n += $NF } END { if (n) print n " tests passed" }' "$2")
    if [ "$1" = passed ] && [ -n "$pruebas" ]; then
        echo "$pruebas"
    else
        grep -av '^[[:space:]]*$' "$2" | tail -n 1
    fi
}

# paso PLATFORM STEP COMMAND…: a row of the table; fails where the command does.
paso() {
    local plataforma=$1 nombre=$2 registro=$lugar/$1-$2.log antes=$SECONDS veredicto=passed
    shift 2
    echo "$plataforma: $nombre … ($registro)" >&2
    "$@" >"$registro" 2>&1 </dev/null || veredicto=FAILED
    printf '| %s | %s | %s | %d:%02d | %s |\n' "$plataforma" "$nombre" "$veredicto" $(((SECONDS - antes) / 60)) \
        $(((SECONDS - antes) % 60)) "$(resumen $veredicto "$registro" | tr -d '\r|' | cut -c 1-110)" >>"$tabla"
    [ $veredicto = passed ] || { fallos=1; return 1; }
}

linux() {
    paso linux tests ./test.sh
}

bare() {
    instala_paquetes bare &&
        paso bare build sh -c 'cmake --preset bare && cmake --build --preset bare' &&
        paso bare tests ctest --preset bare --parallel "$(nproc)"
}

windows() {
    paso windows package packaging/windows/build.sh &&
        paso windows installer packaging/windows/instalador_check.sh &&
        paso windows build packaging/windows/build.sh pruebas &&
        paso windows tests packaging/windows/test.sh &&
        paso windows native sh -c 'cmake --preset release && cmake --build --preset release --target rsa_remitente rsa_lectora' &&
        paso windows exchange scripts/exchange_check.sh
}

web() {
    paso web page packaging/web/build.sh &&
        paso web checks packaging/web/check.sh "$lugar/web"
}

[ $# -gt 0 ] || set -- linux bare windows web
for plataforma in "$@"; do
    case $plataforma in
        linux | bare | windows | web) ;;
        *) sed -n '2,7s/^# //p' "$0" >&2; exit 2 ;;
    esac
done
printf '| platform | step | verdict | min:s | last words |\n|---|---|---|---|---|\n' >"$tabla"
for plataforma in "$@"; do
    "$plataforma"
done
cat "$tabla"
exit $fallos
