#!/usr/bin/env bash
# Builds the benchmarks and prints every table of ratios, one after the other.
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/paquetes.sh
instala_paquetes bench

cmake --preset release
cmake --build --preset release
for programa in build/release/bench/bench_*; do
    if [ -f "$programa" ] && [ -x "$programa" ]; then
        echo "== $(basename "$programa")"
        "$programa"
    fi
done
