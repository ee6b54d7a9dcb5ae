#!/usr/bin/env bash
# Builds the program for the browser on Debian 12 and leaves build/web/, a folder of static files for any web server.
# Usage:
#   packaging/web/build.sh [bibliotecas]
# With the word it stops after the libraries. What stands already is not built again.
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/paquetes.sh
. scripts/fuentes.sh
. packaging/web/bibliotecas.sh
hasta=${1:-todo}

instala_paquetes web
prepara_emscripten
construye_bibliotecas
[ "$hasta" = bibliotecas ] && exit 0
