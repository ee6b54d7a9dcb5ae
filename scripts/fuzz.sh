#!/usr/bin/env bash
# Runs every fuzz target for some seconds, one after the other. Usage:
#   scripts/fuzz.sh SECONDS [TARGET...]
# Prints a line of figures for each. An offending input is kept in build/fuzz/findings/ and makes
# the script fail; the seed corpus is not touched, what was learnt stays in build/fuzz/corpus/.
set -euo pipefail
cd "$(dirname "$0")/.."
segundos=${1:?usage: scripts/fuzz.sh SECONDS [TARGET...]}
shift
source scripts/paquetes.sh
instala_paquetes fuzz

cmake --preset asan >/dev/null
cmake --build --preset asan --target fuzz_targets

objetivos=("$@")
if [ ${#objetivos[@]} -eq 0 ]; then
    for carpeta in tests/fuzz/corpus/*/; do
        objetivos+=("$(basename "$carpeta")")
    done
fi

hallazgos=build/fuzz/findings
mkdir -p "$hallazgos"
fallo=0
printf '%-12s %12s %10s %8s %8s  %s\n' target executions per_second edges corpus verdict
for objetivo in "${objetivos[@]}"; do
    corpus=build/fuzz/corpus/$objetivo
    informe=build/fuzz/$objetivo.log
    mkdir -p "$corpus"
    cp -n tests/fuzz/corpus/"$objetivo"/* "$corpus"
    veredicto=ok
    programa=(build/asan/tests/fuzz_"$objetivo" -timeout=30 -rss_limit_mb=2048
        -artifact_prefix="$hallazgos/$objetivo-")
    ASAN_OPTIONS=detect_leaks=0 "${programa[@]}" -max_total_time="$segundos" -max_len=600 \
        -print_final_stats=1 "$corpus" >"$informe" 2>&1 || veredicto=FINDING
    # Leaks are looked for in all inputs of the corpus at the end: to tell our own from a library's
    # takes whole stacks, which would slow the search.
    ASAN_OPTIONS=fast_unwind_on_malloc=0 LSAN_OPTIONS=suppressions=tests/fuzz/leaks.supp:print_suppressions=0 \
        "${programa[@]}" -runs=0 "$corpus" >>"$informe" 2>&1 || veredicto=FINDING
    [ "$veredicto" = ok ] || fallo=1
    awk -v objetivo="$objetivo" -v veredicto="$veredicto" '
        / cov: / { for (i = 1; i < NF; i++) { if ($i == "cov:") edges = $(i+1); if ($i == "corp:") { split($(i+1), c, "/"); corpus = c[1] } } }
        /stat::number_of_executed_units/ { executions = $2 }
        /stat::average_exec_per_sec/ { rate = $2 }
        END { printf "%-12s %12d %10d %8d %8d  %s\n", objetivo, executions, rate, edges, corpus, veredicto }' "$informe"
    [ "$veredicto" = ok ] || tail -n 40 "$informe"
done
exit $fallo
