#!/usr/bin/env bash
# Builds the program for Windows on Debian 12 and leaves build/windows/Numora-VERSION-win64.zip (to unpack and
# start) and build/windows/Numora-VERSION-win64.exe (an installer for one account). Usage:
#   packaging/windows/build.sh [bibliotecas|programa|zip|instalador]
# With a word it stops after that step; without, it does all. What stands already is not built again.
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/paquetes.sh
. scripts/fuentes.sh
. packaging/windows/bibliotecas.sh
hasta=${1:-instalador}

instala_paquetes windows
construye_bibliotecas
[ "$hasta" = bibliotecas ] && exit 0
