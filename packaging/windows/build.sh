#!/usr/bin/env bash
# Builds the program for Windows on Debian 12 and leaves build/windows/Numora-VERSION-win64.zip (to unpack and
# start) and build/windows/Numora-VERSION-win64.exe (an installer for one account). Usage:
#   packaging/windows/build.sh [bibliotecas|programa|pruebas|zip|instalador]
# With a word it stops after that step ("pruebas" builds the tests too; packaging/windows/test.sh runs them);
# without, it makes what is given away. What stands already is not built again. NUMORA_JOBS: compilers at once.
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/paquetes.sh
. scripts/fuentes.sh
. scripts/una_vez.sh
. packaging/windows/bibliotecas.sh
. packaging/windows/carpeta.sh
hasta=${1:-instalador}
case $hasta in
    bibliotecas | programa | pruebas | zip | instalador) ;;
    *) sed -n '2,6s/^# //p' "$0" >&2; exit 2 ;;
esac
PROGRAMA=$BASE_WINDOWS/programa

instala_paquetes windows
construye_bibliotecas
[ "$hasta" = bibliotecas ] && exit 0

cmake --preset windows >/dev/null
objetivos=(numora carpeta_de_trabajo)
[ "$hasta" = pruebas ] && objetivos=(all)
cmake --build "$PROGRAMA" -j"$TRABAJOS" --target "${objetivos[@]}"
case $hasta in programa | pruebas) exit 0 ;; esac

version=$(sed -n 's/^project(Numora VERSION \([0-9.]*\).*/\1/p' CMakeLists.txt)
haz_carpeta "$BASE_WINDOWS/Numora"
haz_zip "$BASE_WINDOWS/Numora" "$BASE_WINDOWS/Numora-$version-win64.zip"
[ "$hasta" = zip ] && exit 0

packaging/windows/lista.sh "$BASE_WINDOWS/Numora" >"$BASE_WINDOWS/lista.nsh"
makensis -V2 -INPUTCHARSET UTF8 "-DVERSION=$version" "-DCARPETA=$BASE_WINDOWS/Numora" "-DICONO=$PROGRAMA/packaging/windows/numora.ico" \
    "-DLISTA=$BASE_WINDOWS/lista.nsh" "-DSALIDA=$BASE_WINDOWS/Numora-$version-win64.exe" packaging/windows/instalador.nsi
ls -l "$BASE_WINDOWS"/Numora-*-win64.*
