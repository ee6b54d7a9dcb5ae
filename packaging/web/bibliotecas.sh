#!/usr/bin/env bash
# Builds the libraries of the program in the browser from Debian's source packages, each once: what has its mark in
# build/web-work/done is left alone. Sourced by build.sh.
#   prepara_emscripten   an SDK folder of the shape that Qt looks for, around Debian's emscripten
#   construye_bibliotecas
# NUMORA_JOBS is the number of compilers at once (all cores at first).

OBRA_WEB=$(realpath -m build/web-work)
LIBS_WEB=$OBRA_WEB/libs
FUENTES_WEB=$(realpath -m build/web-sources)
TRABAJOS=${NUMORA_JOBS:-$(nproc)}
MARCAS=$OBRA_WEB/done
REGISTROS=$OBRA_WEB/log

prepara_emscripten() {
    local raiz=/usr/share/emscripten
    export EMSDK=$OBRA_WEB/sdk EMSDK_PYTHON=/usr/bin/python3
    # Debian's node looks for the modules of the optimiser here; its own fetch confuses what loads the files.
    export NODE_PATH=/usr/share/nodejs NODE_OPTIONS=--no-experimental-fetch
    local aqui=$EMSDK/upstream/emscripten
    if [ ! -e "$EMSDK/.emscripten" ]; then
        mkdir -p "$aqui"
        ln -sf "$raiz"/* "$aqui"/
        local orden
        for orden in emcc em++ emar emranlib emnm emcmake emconfigure emmake; do
            printf '#!/bin/sh\nexec %s/%s "$@"\n' /usr/bin "$orden" >"$aqui/$orden"
            chmod +x "$aqui/$orden"
        done
        echo "EMSCRIPTEN_ROOT = emsdk_path + '/upstream/emscripten'" >"$EMSDK/.emscripten"
    fi
    CADENA_WEB=$aqui/cmake/Modules/Platform/Emscripten.cmake
}

# con_autoconf PACKAGE SOURCE SWITCH…: the usual three steps, outside of the source.
con_autoconf() {
    local paquete=$1 fuente=$2
    shift 2
    mkdir -p "$OBRA_WEB/$paquete"
    cd "$OBRA_WEB/$paquete"
    emconfigure "$fuente/configure" --host=none --prefix="$LIBS_WEB" --enable-static --disable-shared CFLAGS="-O3" \
        CXXFLAGS="-O3" CPPFLAGS="-I$LIBS_WEB/include" LDFLAGS="-L$LIBS_WEB/lib" "$@"
    emmake make -j"$TRABAJOS"
    emmake make install
}

# Where the machine's own Qt says what it has: its tools are used.
carpeta_de_cmake() {
    dirname "$(dirname "$(dpkg -L qt6-base-dev | grep /Qt6/Qt6Config.cmake)")"
}

# con_cmake PACKAGE SOURCE SWITCH…
con_cmake() {
    local paquete=$1 fuente=$2
    shift 2
    local obra=$OBRA_WEB/$paquete
    cmake -S "$fuente" -B "$obra" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$CADENA_WEB" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$LIBS_WEB" -DCMAKE_FIND_ROOT_PATH="$LIBS_WEB" -DQT_HOST_PATH=/usr \
        -DQT_HOST_PATH_CMAKE_DIR="$(carpeta_de_cmake)" "$@"
    cmake --build "$obra" -j"$TRABAJOS"
    cmake --install "$obra"
}

# Debian leaves GMP's manual out, whose Makefile configure asks for.
haz_gmp() {
    local fuente=$FUENTES_WEB/gmp
    trae_fuente gmp "$fuente"
    mkdir -p "$fuente/doc"
    [ -e "$fuente/doc/Makefile.in" ] || printf 'all install check:\n' >"$fuente/doc/Makefile.in"
    CC_FOR_BUILD=gcc con_autoconf gmp "$fuente" --enable-cxx --disable-assembly
}

# One file holds all of SQLite; the package's own script makes it.
haz_sqlite() {
    local fuente=$FUENTES_WEB/sqlite3 obra=$OBRA_WEB/sqlite3
    trae_fuente sqlite3 "$fuente"
    mkdir -p "$obra" "$LIBS_WEB/lib" "$LIBS_WEB/include"
    cd "$obra"
    if [ ! -e sqlite3.c ]; then
        "$fuente/configure" --disable-tcl --disable-readline
        make sqlite3.c
    fi
    emcc -Os -c -DSQLITE_THREADSAFE=0 -DSQLITE_OMIT_WAL -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_OMIT_LOAD_EXTENSION -DSQLITE_DQS=0 \
        sqlite3.c -o sqlite3.o
    emar rcs "$LIBS_WEB/lib/libsqlite3.a" sqlite3.o
    install -m 644 sqlite3.h "$fuente/src/sqlite3ext.h" "$LIBS_WEB/include"
}

# Static, for one thread, and small; what is off is what the program has no use for.
haz_qtbase() {
    local fuente=$FUENTES_WEB/qt6-base
    trae_fuente qt6-base "$fuente"
    local sin=(thread network xml testlib concurrent dbus androiddeployqt qmake sql_odbc sql_mysql sql_psql icu
        system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2 system_doubleconversion)
    local apagado=("${sin[@]/#/-DFEATURE_}")
    con_cmake qtbase "$fuente" -DQT_QMAKE_TARGET_MKSPEC=wasm-emscripten -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF \
        -DBUILD_SHARED_LIBS=OFF -DWARNINGS_ARE_ERRORS=OFF -DFEATURE_optimize_size=ON -DFEATURE_precompile_header=ON -DFEATURE_system_sqlite=ON \
        -DSQLite3_INCLUDE_DIR="$LIBS_WEB/include" -DSQLite3_LIBRARY="$LIBS_WEB/lib/libsqlite3.a" "${apagado[@]/%/=OFF}"
}

construye_bibliotecas() {
    una_vez gmp haz_gmp
    una_vez sqlite3 haz_sqlite
    una_vez qtbase haz_qtbase
}
