#!/usr/bin/env bash
# Looks at the packages that scripts/package.sh has made as a distribution and a desktop would: their form,
# the program's entry in the menu, its description with its pictures, the manual pages, and whether the window
# is known by its entry's name. Ends with 1 at the first thing that is not as it should be. Usage:
#   scripts/package_check.sh [folder of the packages; build/package/out unless told]
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/paquetes.sh
instala_paquetes package

paquetes=$(realpath "${1:-build/package/out}")
raiz=$(mktemp -d)
trap 'rm -rf "$raiz"' EXIT
for paquete in "$paquetes"/*.deb; do
    dpkg-deb -x "$paquete" "$raiz"
done
id=arpa.home.numora
entrada=$raiz/usr/share/applications/$id.desktop
ficha=$raiz/usr/share/metainfo/$id.metainfo.xml
programa=$(realpath "$raiz/usr/bin/numora")
LD_LIBRARY_PATH=$(dirname "$(find "$raiz/usr/lib" -name 'libbignum.so.1')")
export LD_LIBRARY_PATH

falla() {
    echo "$*" >&2
    exit 1
}

echo "== lintian"
lintian --allow-root --fail-on error,warning --display-info --pedantic "$paquetes"/*.deb

echo "== desktop-file-validate"
dicho=$(desktop-file-validate "$entrada" 2>&1) || falla "$dicho"
[ -z "$dicho" ] || falla "$dicho"

# The pictures are named by an address that is filled in where they are published: they are looked for here.
echo "== appstreamcli validate"
appstreamcli validate --no-net --pedantic "$ficha"
sed -n 's|.*width="\([0-9]*\)" height="\([0-9]*\)">.*/\([^/<]*\.png\)<.*|\1 \2 \3|p' "$ficha" |
    while read -r ancho alto imagen; do
        file "docs/img/$imagen" | grep -q "PNG image data, $ancho x $alto," || falla "docs/img/$imagen is not as told."
        echo "docs/img/$imagen: $ancho x $alto"
    done

echo "== Manual pages"
find "$raiz/usr/share/man" -name '*.gz' | while read -r pagina; do
    zcat "$pagina" | mandoc -T lint -W warning || falla "${pagina#"$raiz"}"
    echo "${pagina#"$raiz"}"
done

echo "== Version"
version=$(dpkg-deb -f "$paquetes"/numora_*.deb Version)
publicada=$(sed -n 's/.*<release version="\([^"]*\)".*/\1/p' "$ficha" | head -1)
dice=$(env -u DISPLAY "$programa" --version)
[ "$dice" = "Numora $version" ] && [ "$publicada" = "$version" ] ||
    falla "The package is $version, its description $publicada, and the program says $dice."
echo "$dice"

echo "== Window"
clase=$(sed -n 's/^StartupWMClass=//p' "$entrada")
[ -f "$raiz/usr/share/icons/hicolor/scalable/apps/$(sed -n 's/^Icon=//p' "$entrada").svg" ] || falla "No icon."
HOME=$raiz XDG_CONFIG_HOME=$raiz/config XDG_DATA_HOME=$raiz/data QT_QPA_PLATFORM=xcb PROGRAMA=$programa \
    xvfb-run -a bash -c '
        "$PROGRAMA" >/dev/null 2>&1 &
        # A window with a class of its own besides those that every program keeps out of sight.
        for _ in $(seq 120); do
            sleep 0.5
            ventana=$(xwininfo -root -children | sed -n "s/.*\(0x[0-9a-f]*\) \"[^\"]*\": (\"\(arpa[^\"]*\)\".*/\1/p" | head -1)
            [ -z "$ventana" ] || break
        done
        [ -z "$ventana" ] || xprop -id "$ventana" WM_CLASS
        kill $!
        wait' >"$raiz/ventana" || true
grep -q "\"$clase\"" "$raiz/ventana" || falla "No window of the class $clase was opened."
cat "$raiz/ventana"
