#!/usr/bin/env bash
# Plants small faults, one at a time, and looks whether the tests notice. Usage:
#   scripts/mutate.sh [-j JOBS] [-f FOLDER] [-m REGEX] [-n]
# -f takes the faults of one folder of scripts/mutants.txt and those below it, -m the ones whose
# title matches REGEX; -n only looks whether each fault can be planted, in seconds. All of them take
# about an hour on two cores. Works on a copy of the sources in build/mutants, which also keeps a log
# of each fault. Fails when a fault lives that a user could notice, and when one cannot be planted.
set -euo pipefail
shopt -s extglob
cd "$(dirname "$0")/.."
lista=scripts/mutants.txt
copia=build/mutants
construccion=$copia/build/og
tareas=$(nproc)
solo_carpeta=
solo_titulo=
solo_mira=
while getopts 'j:f:m:n' opcion; do
    case $opcion in
    j) tareas=$OPTARG ;;
    f) solo_carpeta=${OPTARG%/} ;;
    m) solo_titulo=$OPTARG ;;
    n) solo_mira=1 ;;
    *) exit 2 ;;
    esac
done

# The faults, an array a field.
carpetas=() ficheros=() titulos=() originales=() cambios=() razones=()
declare -A pruebas
lee_lista() {
    local carpeta='' linea n=-1
    while IFS= read -r linea; do
        case $linea in
        '' | '#'*) ;;
        '['*)
            carpeta=${linea#\[}
            carpeta=${carpeta%%\]*}
            pruebas[$carpeta]=${linea#*\] }
            ;;
        '- '*) originales[n]+=${originales[n]:+$'\n'}${linea#- } ;;
        '+'*) cambios[n]+=${cambios[n]:+$'\n'}${linea#+?( )} ;;
        '= '*) razones[n]+=${razones[n]:+ }${linea#= } ;;
        *)
            n=$((n + 1))
            carpetas[n]=$carpeta
            ficheros[n]=$carpeta/${linea%%: *}
            titulos[n]=$linea
            originales[n]='' cambios[n]='' razones[n]=''
            ;;
        esac
    done <"$lista"
}

# Brings the copy to what the sources are now, a fault left by a killed run included.
copia_fuentes() {
    local fichero
    while IFS= read -r -d '' fichero; do
        cmp -s "$fichero" "$copia/$fichero" || cp --parents "$fichero" "$copia"
    done < <(git ls-files -z --cached --others --exclude-standard --deduplicate)
}

configura() {
    [ -f "$construccion/build.ninja" ] && return
    local mas=()
    command -v ccache >/dev/null && mas+=(-DCMAKE_C_COMPILER_LAUNCHER=ccache -DCMAKE_CXX_COMPILER_LAUNCHER=ccache)
    command -v mold >/dev/null && mas+=(-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=mold -DCMAKE_SHARED_LINKER_FLAGS=-fuse-ld=mold)
    # Without assertions, as the program is given away: the tests alone shall notice.
    cmake -S "$copia" -B "$construccion" -G Ninja -DCMAKE_BUILD_TYPE=Release \
        -DCMAKE_CXX_FLAGS_RELEASE=-Og -DNUMORA_PCH=ON -DNUMORA_BENCH=OFF "${mas[@]}" >/dev/null
}

# construye TARGETS LOG
construye() {
    # shellcheck disable=SC2086
    nice ninja -C "$construccion" -j "$tareas" $1 >"$2" 2>&1
}

# prueba TARGETS SECONDS LOG: stops at the first test that fails. 124 and 137: out of time.
prueba() (
    ulimit -v $((12 << 20)) # a fault may ask for memory without end
    nice timeout -k 5 "$2" ctest --test-dir "$construccion" --no-tests=error --stop-on-failure \
        --output-on-failure -R "^(${1// /|})\$" >"$3" 2>&1
)

# Puts the fault in its file, as long as its place is found exactly once.
planta() {
    local destino=$raiz/${ficheros[$1]} patron=${originales[$1]} tras
    [ -f "$destino" ] || return 1
    contenido=$(<"$destino")
    tras=${contenido#*"$patron"}
    [ -n "$patron" ] && [ "$tras" != "$contenido" ] && [[ $tras != *"$patron"* ]] || return 1
    [ "$patron" != "${cambios[$1]}" ] || return 1
    [ -z "$solo_mira" ] || return 0
    plantado=$destino
    printf '%s%s%s\n' "${contenido%%"$patron"*}" "${cambios[$1]}" "$tras" >"$destino"
}

restaura() {
    [ -z "$plantado" ] || printf '%s\n' "$contenido" >"$plantado"
    plantado=
}

# Sets `veredicto` for fault $1, whose tests have $2 seconds.
juzga() {
    local registro=$copia/logs/$1 codigo=0
    veredicto='not found exactly once'
    planta "$1" || return 0
    if [ -n "$solo_mira" ]; then
        veredicto='can be planted'
    elif ! construye "${pruebas[${carpetas[$1]}]}" "$registro.build"; then
        veredicto='does not compile'
    else
        prueba "${pruebas[${carpetas[$1]}]}" "$2" "$registro.test" || codigo=$?
        case $codigo in
        0) veredicto=${razones[$1]:+accepted} veredicto=${veredicto:-LIVES} ;;
        124 | 137) veredicto='killed (time)' ;;
        *) veredicto=killed ;;
        esac
    fi
    restaura
}

# The tests of the unchanged folder must pass; sets `limite`, what a fault may take.
prepara_carpeta() {
    local antes=$SECONDS registro=$copia/logs/${1//\//_} bien=
    if construye "${pruebas[$1]}" "$registro.build"; then
        antes=$SECONDS
        prueba "${pruebas[$1]}" 900 "$registro.test" && bien=1
    fi
    if [ -z "$bien" ]; then
        echo "$1: the tests of the unchanged sources fail, see $registro.*" >&2
        exit 1
    fi
    limite=$((30 + 4 * (SECONDS - antes)))
}

# Of the lines "folder<TAB>class" in file $1.
tabla() {
    awk -F '\t' '
        !($1 in all) { names[++folders] = $1 }
        { all[$1]++; n[$1, $2]++; all["in all"]++; n["in all", $2]++ }
        function row(f) {
            printf "%-28s %6d %6d %6d %8d %6d\n", f, all[f], n[f, "killed"], n[f, "lives"], n[f, "accepted"], n[f, "error"]
        }
        END {
            printf "\n%-28s %6s %6s %6s %8s %6s\n", "folder", "faults", "killed", "living", "accepted", "errors"
            for (i = 1; i <= folders; i++) row(names[i])
            row("in all")
        }' "$1"
}

# Of one fault: its line, and what it counts as.
cuenta() {
    printf '%-22s %s\n' "$veredicto" "$2/$3"
    local clase
    case $veredicto in
    killed*) clase=killed ;;
    accepted) clase=accepted ;;
    LIVES) clase=lives fallo=1 ;;
    'can be planted') clase=planted ;;
    *) clase=error fallo=1 ;;
    esac
    printf '%s\t%s\n' "$2" "$clase" >>"$1"
}

prepara_copia() {
    raiz=$copia
    mkdir -p "$copia/logs"
    exec 9>"$copia/lock"
    flock -n 9 || { echo "another run is using $copia" >&2; exit 1; }
    copia_fuentes
    configura
}

# In a function, so that the script may be edited while it runs.
principal() {
    local i anterior='' resumen
    lee_lista
    resumen=$(mktemp)
    # shellcheck disable=SC2064
    trap "restaura; rm -f '$resumen'" EXIT
    trap 'exit 130' INT TERM HUP
    [ -n "$solo_mira" ] || prepara_copia
    for i in "${!titulos[@]}"; do
        [[ -z $solo_carpeta || ${carpetas[i]} == "$solo_carpeta" || ${carpetas[i]} == "$solo_carpeta"/* ]] || continue
        [[ ${carpetas[i]}/${titulos[i]} =~ $solo_titulo ]] || continue
        if [ -z "$solo_mira" ] && [ "${carpetas[i]}" != "$anterior" ]; then
            prepara_carpeta "${carpetas[i]}"
            anterior=${carpetas[i]}
        fi
        juzga "$i" "$limite"
        cuenta "$resumen" "${carpetas[i]}" "${titulos[i]}"
    done
    [ -n "$solo_mira" ] || tabla "$resumen"
}

raiz=. plantado='' contenido='' limite=0 veredicto='' fallo=0
principal
exit $fallo
