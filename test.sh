#!/usr/bin/env bash
# Installs what is missing, builds and runs every test: formatting, a short run of the fuzz targets, all tests
# under AddressSanitizer and UBSan, what has threads under ThreadSanitizer, and the program as it is given away,
# with warnings as errors, and with it the tests that are not of windows, which try ten times as many inputs then.
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
cmake --build --preset ci --target numora bignum benchmarks logic_tests fuzz_targets
scripts/tidy.sh
ctest --preset ci --label-exclude windows --parallel "$(nproc)"
