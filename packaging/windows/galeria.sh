#!/usr/bin/env bash
# Takes the gallery of the packed program for Windows under Wine (and Xvfb): every window and lesson, light, dark, in
# English and at 150 and 200 %. Fails where the program complains or where one of them lacks a picture that another has. Usage:
#   packaging/windows/galeria.sh [FOLDER [clara|oscura|ingles|150|200]…]
set -euo pipefail
cd "$(dirname "$0")/../.."
lugar=$(realpath -m "${1:-build/windows/galeria}")
shift || true
. packaging/windows/pantalla.sh
abre_pantalla 3200x1800
[ $# -gt 0 ] || set -- clara oscura ingles 150 200
fallos=0
for clase in "$@"; do
    case $clase in
        clara) palabras=() ;;
        oscura) palabras=(--oscuro) ;;
        ingles) palabras=(-i:English) ;;
        150 | 200) palabras=(--escala "$clase") ;;
        *) sed -n '2,4s/^# //p' "$0" >&2; exit 2 ;;
    esac
    rm -rf "${lugar:?}/$clase"
    mkdir -p "$lugar/$clase"
    resultado=0
    packaging/windows/wine.sh --ventanas --suelto build/windows/Numora/numora.exe --galeria "Z:${lugar//\//\\}\\$clase" \
        "${palabras[@]}" 2>"$lugar/$clase.txt" || resultado=$?
    hay=$(find "$lugar/$clase" -name '*.png' | wc -l)
    printf '%-8s %d pictures, result %d\n' "$clase" "$hay" "$resultado"
    if [ "$resultado" -ne 0 ] || [ -s "$lugar/$clase.txt" ] ||
        ! diff <(ls "$lugar/$1") <(ls "$lugar/$clase"); then
        head -n 10 "$lugar/$clase.txt"
        fallos=1
    fi
done
exit $fallos
