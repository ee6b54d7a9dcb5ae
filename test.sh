#!/usr/bin/env bash
# Installs what is missing, builds and runs every test: formatting, all of the tree by clang under AddressSanitizer
# and UBSan with a short run of the fuzz targets, what has threads under ThreadSanitizer, and the program as it is
# given away, by g++, and with it the tests that are not of windows, which try ten times as many inputs then. Warnings
# are errors of both compilers.
set -euo pipefail
cd "$(dirname "$0")"
source scripts/paquetes.sh
instala_paquetes test fuzz

scripts/formato.sh --check

cmake --preset asan
cmake --build --preset asan
scripts/fuzz.sh "${NUMORA_FUZZ_SECONDS:-5}"
ctest --preset asan --parallel "$(nproc)"

cmake --preset tsan
cmake --build --preset tsan
ctest --preset tsan --parallel "$(nproc)"

cmake --preset ci
cmake --build --preset ci --target numora bignum benchmarks logic_tests fuzz_targets
scripts/tidy.sh
ctest --preset ci --label-exclude windows --parallel "$(nproc)"
