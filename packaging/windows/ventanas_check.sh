#!/usr/bin/env bash
# Uses the packed program for Windows as a student does who has unpacked it somewhere, with windows that can be seen
# (Xvfb) and in a new account of Wine's: it starts from a folder with blanks and accents, a screen reader
# is told of its window, it follows the desktop's colours and scale, starts the calculator, gives pages to the browser, and
# writes where Windows keeps such things and nowhere else. Also measures how long it takes to start. Usage:
#   packaging/windows/ventanas_check.sh [ZIP [FOLDER_FOR_PICTURES]]
set -euo pipefail
cd "$(dirname "$0")/../.."
. scripts/paquetes.sh
. packaging/windows/pantalla.sh
instala_paquetes windows
zip=$(realpath "${1:-$(ls build/windows/Numora-*-win64.zip)}")
fotos=$(realpath -m "${2:-build/windows/fotos}")
base=$(realpath build/windows)
lugar=$(mktemp -d)
export WINEPREFIX=$lugar/cuenta
servidor=$(command -v wineserver64 || ls /usr/lib/wine/wineserver64 /usr/lib/wine/wineserver 2>/dev/null | head -n 1)
procesos=()
limpia() {
    "$servidor" -k || true
    [ ${#procesos[@]} -eq 0 ] || kill "${procesos[@]}" 2>/dev/null || true
    cierra_pantalla
    rm -rf "$lugar"
}
trap limpia EXIT
mkdir -p "$fotos" "$lugar/ruta"

fallos=0
# veredicto NAME COMMAND…: a line of the summary.
veredicto() {
    local nombre=$1 dicho=well
    shift
    "$@" || { dicho=FAILED; fallos=$((fallos + 1)); }
    printf '%-58s %s\n' "$nombre" "$dicho"
}

abre_pantalla 2732x1536
trap limpia EXIT
openbox >/dev/null 2>&1 & procesos+=($!)

# What the account's browser is, and its calculator.
cat >"$lugar/ruta/xdg-open" <<FIN
#!/bin/sh
printf '%s\n' "\$@" >>"$lugar/navegador"
FIN
chmod +x "$lugar/ruta/xdg-open"
export PATH=$lugar/ruta:$PATH TESTIGO=$lugar/calculadora
compila() {
    x86_64-w64-mingw32-g++-posix -std=c++20 -O1 -static -Wall -Wextra "packaging/windows/checks/$1.cpp" -o "$lugar/$1.exe" "${@:2}"
}
compila nombre -municode -lole32 -loleaut32
compila testigo
x86_64-w64-mingw32-g++-posix -std=c++20 -O2 -isystem build/windows/libs/include \
    -isystem build/windows/libs/include/QtCore -isystem build/windows/libs/include/QtGui -isystem build/windows/libs/include/QtWidgets \
    packaging/windows/checks/vacio.cpp -o "$lugar/vacio.exe" -Lbuild/windows/libs/lib -lQt6Widgets -lQt6Gui -lQt6Core

carpeta="$lugar/Mis programas, 2º año/Numora"
mkdir -p "$(dirname "$carpeta")"
unzip -q "$zip" -d "$(dirname "$carpeta")"
cp "$lugar/vacio.exe" "$carpeta"
find "$carpeta" | LC_ALL=C sort >"$lugar/antes"
wine() { packaging/windows/wine.sh --ventanas --suelto "$@"; }
wine cmd /c exit
"$servidor" -w
cp "$lugar/testigo.exe" "$WINEPREFIX/drive_c/windows/system32/calc.exe"
usuario=$WINEPREFIX/drive_c/users/$(id -un)
# Which program opens pages is the account's, and Wine without its own browser has none.
wine reg add 'HKLM\Software\Classes\.html' /ve /d PaginaDeLaCuenta /f >/dev/null
wine reg add 'HKLM\Software\Classes\PaginaDeLaCuenta\shell\open\command' /ve \
    /d '"C:\windows\system32\winebrowser.exe" "%1"' /f >/dev/null

# espera_ventana TITLE: until a window of that title is there, a minute at most. Not by xdotool's own waiting, which
# ends where another window goes meanwhile.
espera_ventana() {
    local hasta=$((SECONDS + 60))
    until xdotool search --onlyvisible --name "^$1" >/dev/null 2>&1; do
        [ $SECONDS -lt $hasta ] || { echo "no window: $1" >&2; return 1; }
        sleep 0.02
    done
}
# arranca PROGRAM TITLE [WORD…]: starts it and waits for its window; milliseconds into the variable `tardo`.
arranca() {
    local programa=$1 titulo=$2 antes
    shift 2
    antes=$(date +%s%N)
    wine "$carpeta/$programa" "$@" >/dev/null 2>>"$lugar/errores" &
    programa_en_marcha=$!
    espera_ventana "$titulo"
    tardo=$((($(date +%s%N) - antes) / 1000000))
}
# acaba: closes the window in front as its frame does; the program's own end is the result.
acaba() {
    xdotool key --clearmodifiers alt+F4
    for _ in {1..200}; do
        kill -0 "$programa_en_marcha" 2>/dev/null || break
        sleep 0.1
    done
    kill "$programa_en_marcha" 2>/dev/null && echo "it does not end" >&2
    wait "$programa_en_marcha"
}
teclea() { xdotool key --clearmodifiers "$@"; sleep 1; }
escribe() { xdotool type --delay 40 "$1"; sleep 1; }
foto() { import -window root "$fotos/$1.png"; }
# From what is shown first to the window itself.
a_la_principal() {
    teclea Escape
    espera_ventana 'Matemática Discreta'
    sleep 2
}
abre_principal() {
    arranca numora.exe 'Acerca de Numora' "$@"
    a_la_principal
}

# How long it takes, against a program of the same libraries that shows nothing; the first start of each is not counted.
mediana() { sort -n | sed -n 3p; }
mide() {
    local i
    for i in 0 1 2 3 4 5; do
        arranca "$1" "$2"
        [ "$i" -eq 0 ] || echo "$tardo"
        [ "$1" = vacio.exe ] || a_la_principal
        acaba || true
        "$servidor" -w
    done
}
vacio=$(mide vacio.exe 'Ventana vacía' | mediana)
numora=$(mide numora.exe 'Acerca de Numora' | mediana)
rm -f "$carpeta/vacio.exe"
printf 'start, median of five: %s ms, an empty program %s ms\n' "$numora" "$vacio"

abre_principal
foto principal
se_nombra() { [ "$(timeout 60 packaging/windows/wine.sh --ventanas --suelto "$lugar/nombre.exe" 'Matemática Discreta' | cut -d' ' -f1)" = 50032 ]; }
veredicto "a screen reader is told of the window (UI Automation)" se_nombra

teclea ctrl+k
escribe Calculadora
teclea Return
sleep 2
veredicto "\"Calculadora\" starts calc" grep -qi 'calc' "$lugar/calculadora"
teclea ctrl+1
teclea F1
sleep 2
veredicto "a page goes to the browser" grep -q '^file:.*/Doc/[A-Za-z0-9%]*\.html' "$lugar/navegador"
foto leccion
# Something to remember: of a window that nobody has moved nothing is.
teclea ctrl+plus
veredicto "it ends as it should when its window is closed" acaba

ajustes=$usuario/AppData/Roaming/Numora
find "$carpeta" | LC_ALL=C sort >"$lugar/despues"
sed -i '/vacio\.exe$/d' "$lugar/antes"
veredicto "settings where Windows keeps them" test -s "$ajustes/Numora.ini"
veredicto "nothing written beside the program" cmp "$lugar/antes" "$lugar/despues"

# luz PICTURE: how light the window is, 0 to 100.
luz() { convert "$fotos/$1.png" -gravity center -crop 300x300+0+0 -colorspace Gray -format '%[fx:round(100*mean)]' info:; }
COLORES='HKCU\Software\Microsoft\Windows\CurrentVersion\Themes\Personalize'
wine reg add "$COLORES" /v AppsUseLightTheme /t REG_DWORD /d 0 /f >/dev/null
abre_principal
foto oscura
acaba || true
wine reg delete "$COLORES" /v AppsUseLightTheme /f >/dev/null
es_oscura() { [ "$(luz oscura)" -lt 35 ] && [ "$(luz principal)" -gt 65 ]; }
veredicto "dark where the desktop is" es_oscura

# ancho_con PERCENT: of what is shown first, in pixels, at that scale of the desktop.
ancho_con() {
    wine reg add 'HKCU\Control Panel\Desktop' /v LogPixels /t REG_DWORD /d $((96 * $1 / 100)) /f >/dev/null
    "$servidor" -w
    arranca numora.exe 'Acerca de Numora'
    xdotool search --onlyvisible --name '^Acerca de Numora$' getwindowgeometry | sed -n 's/.*Geometry: \([0-9]*\)x.*/\1/p'
    a_la_principal >&2
    foto "escala-$1"
    acaba || true
}
ancho=$(ancho_con 100)
for porciento in 150 200; do
    suyo=$(ancho_con $porciento)
    como() { [ $((100 * suyo)) -ge $((ancho * (porciento - 5))) ] && [ $((100 * suyo)) -le $((ancho * (porciento + 5))) ]; }
    veredicto "at $porciento % of the desktop's scale ($suyo pixels for $ancho)" como
done
[ "$fallos" -eq 0 ] && echo "the packed program in its windows: all well; start $numora ms, an empty program $vacio ms" && exit 0
echo "the packed program in its windows: $fallos FAILED (pictures in ${fotos#"$PWD"/})"
cat "$lugar/errores"
exit 1
