#!/usr/bin/env bash
# Builds the program for the browser on Debian 12 and leaves build/web/, a folder of static files for any web server.
# Usage:
#   packaging/web/build.sh [bibliotecas|programa|pruebas]
# With the first word it stops after the libraries, with the second after the program is linked; with the third it
# leaves build/web-checks/ as well, the same page with the door through which check.sh asks, and build/web-empty/, a page
# with an empty window. What stands already is not built again.
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/paquetes.sh
. scripts/fuentes.sh
. scripts/una_vez.sh
. packaging/web/bibliotecas.sh
hasta=${1:-pagina}

# construye TARGET…
construye() {
    local obra=$OBRA_WEB/numora
    [ -e "$obra/build.ninja" ] || cmake -S . -B "$obra" -G Ninja -DCMAKE_BUILD_TYPE=Release -DNUMORA_PCH=ON \
        -DCMAKE_TOOLCHAIN_FILE="$LIBS_WEB/lib/cmake/Qt6/qt.toolchain.cmake" -DCMAKE_CXX_FLAGS_RELEASE="-O2 -DNDEBUG" \
        -DQT_HOST_PATH=/usr -DQT_HOST_PATH_CMAKE_DIR="$(carpeta_de_cmake)" -DNUMORA_SVG=OFF -DNUMORA_MULTIMEDIA=OFF \
        -DNUMORA_FIGURE_PERCENTS=150 -DNUMORA_ECM=OFF -DNUMORA_PRIMESIEVE=OFF -DGMP_INCLUDE_DIR="$LIBS_WEB/include" \
        -DGMP_LIBRARY="$LIBS_WEB/lib/libgmp.a" -DGMPXX_LIBRARY="$LIBS_WEB/lib/libgmpxx.a" \
        -DSQLite3_INCLUDE_DIR="$LIBS_WEB/include" -DSQLite3_LIBRARY="$LIBS_WEB/lib/libsqlite3.a"
    cmake --build "$obra" -j"$TRABAJOS" --target "$@"
}

# pon_cifras FOLDER: writes into the page's scripts what only the build knows.
pon_cifras() {
    local carpeta=$1 nombre edicion lista
    for nombre in numora.wasm numora.data; do
        sed -i "s/\"$nombre\": 0/\"$nombre\": $(stat -c %s "$carpeta/$nombre")/" "$carpeta/arranque.js"
    done
    edicion=$(cd "$carpeta" && find . -type f ! -name servicio.js -print0 | sort -z | xargs -0 sha256sum | sha256sum | cut -c1-16)
    lista=$(cd "$carpeta" && find . -type f ! -name servicio.js ! -path './curso/*' -printf '"%P", ' | sort)
    sed -i "s|numora-0|numora-$edicion|; s|\[\"./\"\]|[${lista}\"./\"]|" "$carpeta/servicio.js"
}

# empaqueta PROGRAM FOLDER
empaqueta() {
    local programa=$OBRA_WEB/numora/bin/$1 carpeta=$2
    rm -rf "$carpeta"
    mkdir -p "$carpeta/curso"
    install -m 644 packaging/web/page/* "$carpeta"
    install -m 644 "$programa.wasm" "$carpeta/numora.wasm"
    if [ -e "$programa.data" ]; then
        install -m 644 "$programa.data" "$carpeta/numora.data"
    else
        : >"$carpeta/numora.data"
    fi
    sed "s/$1\\.data/numora.data/g; s/$1\\.wasm/numora.wasm/g" "$programa.js" >"$carpeta/numora.js"
    install -m 644 "$OBRA_WEB"/numora/bin/numora_apart.{js,wasm} "$carpeta"
    cp -r work/Doc "$carpeta/curso/Doc"
    rsvg-convert -w 64 -h 64 resources/imagenes/NUMORA.svg -o "$carpeta/numora.png"
    pon_cifras "$carpeta"
}

tamano() {
    echo "$1: $(find "$1" -type f ! -path '*/curso/*' -print0 | xargs -0 cat | wc -c) bytes," \
        "compressed $(find "$1" -type f ! -path '*/curso/*' -exec gzip -9c {} + | wc -c)"
}

instala_paquetes web
prepara_emscripten
construye_bibliotecas
[ "$hasta" = bibliotecas ] && exit 0
construye numora
[ "$hasta" = programa ] && exit 0
empaqueta numora build/web
tamano build/web
if [ "$hasta" = pruebas ]; then
    construye numora_checks numora_empty
    empaqueta numora_checks build/web-checks
    empaqueta numora_empty build/web-empty
fi
