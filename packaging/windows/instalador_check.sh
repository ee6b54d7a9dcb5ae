#!/usr/bin/env bash
# Installs the program in an account of Wine's, without a question, once more over itself, and takes it away again:
# what is installed is what was packed, it starts there, and what stays is what was there before and what the student
# has put there. Usage:
#   packaging/windows/instalador_check.sh [INSTALLER [FOLDER_THAT_WAS_PACKED]]
set -euo pipefail
cd "$(dirname "$0")/../.."
instalador=${1:-$(ls build/windows/Numora-*-win64.exe)}
empaquetada=${2:-build/windows/Numora}
WINEPREFIX=$(mktemp -d)/cuenta
export WINEPREFIX
servidor=$(command -v wineserver64 || ls /usr/lib/wine/wineserver64 /usr/lib/wine/wineserver 2>/dev/null | head -n 1)
trap '"$servidor" -k || true; rm -rf "$(dirname "$WINEPREFIX")"' EXIT
espera() { "$servidor" -w; }

packaging/windows/wine.sh cmd /c exit
espera
usuario=$WINEPREFIX/drive_c/users/$(id -un)
hay() { (cd "$WINEPREFIX" && find drive_c -not -path '*/Temp/*' | LC_ALL=C sort); }
hay >"$WINEPREFIX.antes"

instalada=$usuario/AppData/Local/Programs/Numora
for _ in 1 2; do
    packaging/windows/wine.sh --suelto "$instalador" /S
    espera
done
diff -r "$empaquetada" "$instalada" | grep -v '^Only in .*: desinstala.exe$' && { echo "What is installed is not what was packed." >&2; exit 1; }
hoja=$(dirname "$WINEPREFIX")/hoja.pdf
packaging/windows/wine.sh --suelto "$instalada/numora.exe" --hoja 4D4-02D9 --pdf "Z:${hoja//\//\\}"
espera
[ "$(head -c 4 "$hoja")" = %PDF ] || { echo "What is installed does not start." >&2; exit 1; }
tamano=$(du -sm "$instalada" | cut -f1)
grep -q 'Uninstall..Numora' "$WINEPREFIX/user.reg"
[ -e "$usuario/AppData/Roaming/Microsoft/Windows/Start Menu/Programs/Numora.lnk" ]

mkdir -p "$usuario/AppData/Roaming/Numora"
echo "[Programa]" >"$usuario/AppData/Roaming/Numora/Numora.ini"
echo "mis apuntes" >"$instalada/Doc/apuntes.txt"
packaging/windows/wine.sh "$instalada/desinstala.exe" /S
espera
hay >"$WINEPREFIX.despues"
quedan=$(LC_ALL=C comm -13 "$WINEPREFIX.antes" "$WINEPREFIX.despues" | sed 's,.*/AppData/,,' | paste -sd' ')
esperan='Local/Programs Local/Programs/Numora Local/Programs/Numora/Doc Local/Programs/Numora/Doc/apuntes.txt Roaming/Numora Roaming/Numora/Numora.ini'
if [ "$quedan" != "$esperan" ] || grep -q 'Uninstall..Numora' "$WINEPREFIX/user.reg"; then
    printf 'left behind: %s\nexpected:    %s\n' "$quedan" "$esperan" >&2
    exit 1
fi
echo "installed ($tamano MB), over itself too, started and removed: only the student's own files stay"
