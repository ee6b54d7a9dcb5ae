#!/usr/bin/env bash
# Installs what is missing, builds and runs every test: formatting, the release build with warnings
# as errors, the same under AddressSanitizer and UBSan, what has threads under ThreadSanitizer, and a short
# run of the fuzz targets.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/paquetes.sh
instala_paquetes test fuzz

scripts/formato.sh --check

scripts/fuzz.sh "${NUMORA_FUZZ_SECONDS:-5}"

cmake --preset asan
cmake --build --preset asan
ctest --preset asan --parallel "$(nproc)"

cmake --preset tsan
cmake --build --preset tsan
ctest --preset tsan --parallel "$(nproc)"

cmake --preset ci
cmake --build --preset ci
scripts/tidy.sh
ctest --preset ci --parallel "$(nproc)"
