#!/usr/bin/env bash
# Lets a monkey loose on the program, built with AddressSanitizer and UBSan, over several seeds. Usage:
#   scripts/monkey.sh [SECONDS a seed; 180 unless told] [SEED...; 1 to 10 unless told]
# Prints a line a seed. What it did last is told where it found something, and makes the script fail.
set -euo pipefail
cd "$(dirname "$0")/.."
segundos=${1:-180}
shift || true
source scripts/paquetes.sh
instala_paquetes test

cmake --preset asan >/dev/null
cmake --build --preset asan --target tst_Monkey carpeta_de_trabajo

semillas=("$@")
[ ${#semillas[@]} -gt 0 ] || mapfile -t semillas < <(seq 10)
fallo=0
for semilla in "${semillas[@]}"; do
    informe=$(mktemp)
    if QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8 ASAN_OPTIONS=detect_leaks=0 \
        NUMORA_MONKEY_SEED=$semilla NUMORA_MONKEY_SECONDS=$segundos QTEST_FUNCTION_TIMEOUT=$((segundos * 2000 + 600000)) \
        build/asan/tests/tst_Monkey >"$informe" 2>&1; then
        grep -o 'seed .*' "$informe"
    else
        fallo=1
        echo "seed $semilla: FINDING"
        tail -n 60 "$informe"
    fi
    rm -f "$informe"
done
exit $fallo
