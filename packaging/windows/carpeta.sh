#!/usr/bin/env bash
# Puts the program for Windows together as a folder that is unpacked and started. Sourced by build.sh.
#   haz_carpeta FOLDER

# copia_dll FOLDER: the libraries that what is in the folder names, and those that they name; what none of our
# folders has is Windows' own.
copia_dll() {
    local carpeta=$1 nueva=si nombre lugar
    while [ "$nueva" = si ]; do
        nueva=no
        while read -r nombre; do
            [ -e "$carpeta/$nombre" ] && continue
            for lugar in "$PROGRAMA/bin" "$LIBS_WINDOWS/bin"; do
                [ -e "$lugar/$nombre" ] || continue
                install -m 644 "$lugar/$nombre" "$carpeta"
                nueva=si
                break
            done
        done < <(find "$carpeta" \( -name '*.exe' -o -name '*.dll' \) -exec $TRIPLETE-objdump -p {} + |
            sed -n 's/^\tDLL Name: //p' | sort -u)
    done
}

haz_carpeta() {
    local carpeta=$1 clase modulo
    rm -rf "$carpeta"
    mkdir -p "$carpeta/translations" "$carpeta/licencias"
    install -m 755 "$PROGRAMA/bin/numora.exe" "$carpeta"
    cp -r "$PROGRAMA/bin/ClipArt" "$PROGRAMA/bin/Doc" "$PROGRAMA/bin/Numora.txt" "$carpeta"
    for modulo in platforms/qwindows styles/qwindowsvistastyle sqldrivers/qsqlite; do
        clase=${modulo%/*}
        mkdir -p "$carpeta/plugins/$clase"
        install -m 644 "$LIBS_WINDOWS/plugins/$modulo.dll" "$carpeta/plugins/$clase"
    done
    copia_dll "$carpeta"
    $TRIPLETE-strip --strip-unneeded "$carpeta"/*.dll "$carpeta"/numora.exe
    cp "$LIBS_WINDOWS/translations/qtbase_es.qm" "$carpeta/translations"
    # The frames of windows are dark where the desktop's are.
    printf '%s\n' '[Paths]' 'Prefix=.' 'Plugins=plugins' 'Translations=translations' \
        '[Platforms]' 'WindowsArguments=darkmode=1' >"$carpeta/qt.conf"
    cp LICENSE "$carpeta/licencias/Numora.txt"
    local fuente
    for fuente in qtbase gmp sqlite3; do
        cp "$BASE_WINDOWS/fuentes/$fuente/debian/copyright" "$carpeta/licencias/$fuente.txt"
    done
    cp /usr/share/doc/gcc-mingw-w64-base/copyright "$carpeta/licencias/gcc-mingw-w64.txt"
    cp /usr/share/doc/mingw-w64-common/copyright "$carpeta/licencias/mingw-w64.txt"
    find "$carpeta" -type d -exec chmod 755 {} + -o -type f ! -name '*.exe' -exec chmod 644 {} +
}

# haz_zip FOLDER FILE: the same bytes whenever the same folder is packed. Names with accents are told to be UTF-8, which
# the program "zip" does not do for what it reads from a list.
haz_zip() {
    SOURCE_DATE_EPOCH=${SOURCE_DATE_EPOCH:-$(git log -1 --format=%ct)} python3 - "$1" "$2" <<'FIN'
import os, pathlib, sys, time, zipfile
folder, file = map(pathlib.Path, sys.argv[1:])
when = time.gmtime(int(os.environ["SOURCE_DATE_EPOCH"]))[:6]
with zipfile.ZipFile(file, "w", zipfile.ZIP_DEFLATED, compresslevel=9) as packed:
    for path in sorted(p for p in folder.rglob("*") if p.is_file()):
        entry = zipfile.ZipInfo(str(path.relative_to(folder.parent)), when)
        entry.external_attr = path.stat().st_mode << 16
        entry.compress_type = zipfile.ZIP_DEFLATED
        packed.writestr(entry, path.read_bytes())
FIN
}
