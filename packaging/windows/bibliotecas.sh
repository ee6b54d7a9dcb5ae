#!/usr/bin/env bash
# Builds the libraries of the Windows program from Debian's source packages, each once: what stands in
# build/windows/libs and has its mark in build/windows/hecho is left alone. Sourced by build.sh.
#   construye_bibliotecas
# NUMORA_JOBS is the number of compilers at once (all cores at first).

TRIPLETE=x86_64-w64-mingw32
BASE_WINDOWS=$(realpath -m build/windows)
LIBS_WINDOWS=$BASE_WINDOWS/libs
CADENA=$(realpath cmake/toolchains/mingw64.cmake)
TRABAJOS=${NUMORA_JOBS:-$(nproc)}
MARCAS=$BASE_WINDOWS/hecho
REGISTROS=$BASE_WINDOWS/registro

# con_autoconf PACKAGE SOURCE SWITCH…: the usual three steps, outside of the source.
con_autoconf() {
    local paquete=$1 fuente=$2
    shift 2
    mkdir -p "$BASE_WINDOWS/obra/$paquete"
    cd "$BASE_WINDOWS/obra/$paquete"
    "$fuente/configure" --host=$TRIPLETE --prefix="$LIBS_WINDOWS" CC=$TRIPLETE-gcc-posix CXX=$TRIPLETE-g++-posix \
        CFLAGS="-O2" CXXFLAGS="-O2" CPPFLAGS="-I$LIBS_WINDOWS/include" LDFLAGS="-L$LIBS_WINDOWS/lib" "$@"
    make -j"$TRABAJOS"
    make install
}

# con_cmake PACKAGE SOURCE SWITCH…
con_cmake() {
    local paquete=$1 fuente=$2
    shift 2
    local obra=$BASE_WINDOWS/obra/$paquete
    cmake -S "$fuente" -B "$obra" -G Ninja -DCMAKE_TOOLCHAIN_FILE="$CADENA" -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_INSTALL_PREFIX="$LIBS_WINDOWS" "$@"
    cmake --build "$obra" -j"$TRABAJOS"
    cmake --install "$obra" --strip
}

# Debian leaves GMP's manual out, whose Makefile configure asks for.
haz_gmp() {
    local fuente=$BASE_WINDOWS/fuentes/gmp
    trae_fuente gmp "$fuente"
    mkdir -p "$fuente/doc"
    [ -e "$fuente/doc/Makefile.in" ] || printf 'all install check:\n' >"$fuente/doc/Makefile.in"
    CC_FOR_BUILD=gcc con_autoconf gmp "$fuente" --enable-cxx --enable-fat --disable-static --enable-shared
}

# One file holds all of SQLite; the package's own script makes it.
haz_sqlite() {
    local fuente=$BASE_WINDOWS/fuentes/sqlite3 obra=$BASE_WINDOWS/obra/sqlite3
    trae_fuente sqlite3 "$fuente"
    mkdir -p "$obra" "$LIBS_WINDOWS/bin" "$LIBS_WINDOWS/lib" "$LIBS_WINDOWS/include"
    cd "$obra"
    "$fuente/configure" --disable-tcl --disable-readline
    make sqlite3.c
    $TRIPLETE-gcc-posix -O2 -shared -DSQLITE_THREADSAFE=1 -DSQLITE_ENABLE_COLUMN_METADATA -DSQLITE_OMIT_LOAD_EXTENSION \
        -DSQLITE_DQS=0 sqlite3.c -s -o "$LIBS_WINDOWS/bin/sqlite3.dll" -Wl,--out-implib,"$LIBS_WINDOWS/lib/libsqlite3.dll.a"
    install -m 644 sqlite3.h "$fuente/src/sqlite3ext.h" "$LIBS_WINDOWS/include"
}

# What is off: what the program has no use for (but a calendar, without which there is no print dialog), and
# what Debian's headers for Windows cannot build (OpenGL, Direct2D, DirectWrite, tablets).
haz_qtbase() {
    local fuente=$BASE_WINDOWS/fuentes/qtbase
    trae_fuente qt6-base "$fuente"
    local sin=(opengl opengl_dynamic direct2d directwrite directwrite3 tabletevent
        vulkan network dbus concurrent xml glib icu zstd brotli openssl
        sql_odbc sql_mysql sql_psql sqlmodel
        system_zlib system_png system_jpeg system_freetype system_harfbuzz system_pcre2 system_doubleconversion
        graphicsview wizard lcdnumber dial columnview datawidgetmapper keysequenceedit toolbox
        textodfwriter printpreviewwidget printpreviewdialog undocommand
        androiddeployqt qmake)
    local apagado=("${sin[@]/#/-DFEATURE_}")
    con_cmake qtbase "$fuente" -DQT_BUILD_TESTS=OFF -DQT_BUILD_EXAMPLES=OFF -DBUILD_SHARED_LIBS=ON \
        -DWARNINGS_ARE_ERRORS=OFF -DINPUT_opengl=no -DFEATURE_system_sqlite=ON "${apagado[@]/%/=OFF}"
}

# What g++ links to whatever it makes, and Qt's words in Spanish, which are the same everywhere.
haz_corredor() {
    install -D -m 644 /usr/share/qt6/translations/qtbase_es.qm "$LIBS_WINDOWS/translations/qtbase_es.qm"
    local biblioteca
    for biblioteca in libgcc_s_seh-1.dll libstdc++-6.dll libwinpthread-1.dll; do
        cp "$($TRIPLETE-g++-posix -print-file-name=$biblioteca)" "$LIBS_WINDOWS/bin"
    done
}

construye_bibliotecas() {
    una_vez gmp haz_gmp
    una_vez sqlite3 haz_sqlite
    una_vez qtbase haz_qtbase
    una_vez corredor haz_corredor
}
