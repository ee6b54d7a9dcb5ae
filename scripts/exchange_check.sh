#!/usr/bin/env bash
# A native program and the one for Windows (under Wine) at one mailbox: eight senders at once, four of each, each
# killed in the midst of its work and started again, while a reader of each looks on. Nothing that a sender has called sent
# may be missing or be another's, and no reader may meet half a message or half a key. Usage:
#   scripts/exchange_check.sh [FOLDER_OF_NATIVE_TESTS [FOLDER_OF_WINDOWS_TESTS [ROUNDS]]]
# The folders hold rsa_remitente and rsa_lectora (build/release/tests and build/windows/programa/tests at first).
set -euo pipefail
cd "$(dirname "$0")/.."
nativas=${1:-build/release/tests} ajenas=${2:-build/windows/programa/tests} vueltas=${3:-6}
lugar=$(mktemp -d)
trap 'rm -rf "$lugar"' EXIT
mkdir -p "$lugar/buzon/ana"
buzon=$lugar/buzon

# orden SYSTEM TOOL: the words that start a tool, into the array `palabras`, the mailbox last.
orden() {
    case $1 in
        linux) palabras=("$nativas/$2" "$buzon") ;;
        windows) palabras=(packaging/windows/wine.sh "$ajenas/$2.exe" "Z:${buzon//\//\\}") ;;
    esac
}

# remite SYSTEM NUMBER: sends until its rounds are over; all but the last are killed after some of the messages.
remite() {
    local vuelta palabras proceso dichos bastan
    orden "$1" rsa_remitente
    for ((vuelta = 1; vuelta <= vueltas; vuelta++)); do
        dichos=$lugar/enviados-$1$2v$vuelta
        : >"$dichos" # counted before the sender may have begun
        "${palabras[@]}" ana "$1$2v$vuelta" 60 claves >"$dichos" 2>>"$lugar/errores" &
        proceso=$!
        if [ "$vuelta" -lt "$vueltas" ]; then
            bastan=$((RANDOM % 55))
            while kill -0 "$proceso" 2>/dev/null && [ "$(wc -l <"$dichos")" -lt "$bastan" ]; do sleep 0.01; done
            sleep "0.0$((RANDOM % 100))"
            kill -KILL "$proceso" 2>/dev/null && echo x >>"$lugar/matados"
            wait "$proceso" 2>/dev/null || true
        elif ! wait "$proceso"; then
            echo "$1$2 could not send" >>"$lugar/fallos"
        fi
    done
}

# lee SYSTEM: reads over and over while somebody sends.
lee() {
    local palabras
    orden "$1" rsa_lectora
    while [ -e "$lugar/enviando" ]; do
        "${palabras[@]}" ana >/dev/null 2>>"$lugar/errores" || echo "the reader under $1 met half a thing" >>"$lugar/fallos"
        echo x >>"$lugar/leidas-$1"
    done
}

touch "$lugar/enviando" "$lugar/fallos" "$lugar/errores" "$lugar/matados" "$lugar/leidas-linux" "$lugar/leidas-windows"
lee linux & lectores=($!)
lee windows & lectores+=($!)
remitentes=()
for sistema in linux windows; do
    for numero in 1 2 3 4; do
        remite "$sistema" "$numero" & remitentes+=($!)
    done
done
wait "${remitentes[@]}"
rm "$lugar/enviando"
wait "${lectores[@]}"

for sistema in linux windows; do
    orden "$sistema" rsa_lectora
    "${palabras[@]}" ana 2>>"$lugar/errores" | tr -d '\r' | LC_ALL=C sort >"$lugar/vistos-$sistema" ||
        echo "the last reading under $sistema failed" >>"$lugar/fallos"
done
# A sender that was killed in the midst of a line had said nothing.
for archivo in "$lugar"/enviados-*; do
    while read -r linea; do echo "$linea"; done <"$archivo"
done | tr -d '\r' | LC_ALL=C sort >"$lugar/enviados"
cmp "$lugar/vistos-linux" "$lugar/vistos-windows" >>"$lugar/fallos" 2>&1 || true
LC_ALL=C comm -23 "$lugar/enviados" "$lugar/vistos-linux" | sed 's/^/lost: /' >>"$lugar/fallos"
printf '%-44s %s\n' \
    "messages called sent, by Linux" "$(grep -c ' linux' "$lugar/enviados")" \
    "messages called sent, by Windows" "$(grep -c ' windows' "$lugar/enviados")" \
    "messages in the mailbox" "$(wc -l <"$lugar/vistos-linux")" \
    "senders killed" "$(wc -l <"$lugar/matados")" \
    "readings meanwhile, Linux and Windows" "$(wc -l <"$lugar/leidas-linux") and $(wc -l <"$lugar/leidas-windows")" \
    "drafts that the killed left" "$(find "$buzon/ana" -name '.numora-*' | wc -l)"
if [ -s "$lugar/fallos" ]; then
    sort "$lugar/fallos" | uniq -c | head -20
    head -5 "$lugar/errores"
    exit 1
fi
echo "well"
