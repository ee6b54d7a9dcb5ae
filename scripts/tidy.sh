#!/usr/bin/env bash
# Looks with clang-tidy for what compilers do not tell (.clang-tidy). Usage:
#   scripts/tidy.sh [--build DIR] [REF]   sources that differ from REF, HEAD~1 unless told
#   scripts/tidy.sh [--build DIR] --all   every source: some ten minutes on two cores
# DIR is a build with its compile_commands.json and its generated headers; build/release unless told.
set -euo pipefail
cd "$(dirname "$0")/.."
carpeta=build/release
if [ "${1:-}" = --build ]; then
    carpeta=$2
    shift 2
fi
if [ "${1:-}" = --all ]; then
    mapfile -t fuentes < <(git ls-files -- '*.cpp')
else
    mapfile -t fuentes < <(git diff --name-only --diff-filter=d "${1:-HEAD~1}" -- '*.cpp')
fi
# Precompiled headers are g++'s own, which clang cannot read.
sin_pch=$(mktemp -d)
trap 'rm -rf "$sin_pch"' EXIT
sed -E 's/-Winvalid-pch|-include [^ ]*cmake_pch\.hxx//g' "$carpeta/compile_commands.json" >"$sin_pch/compile_commands.json"
# What another configuration builds (fuzz targets, benchmarks) is not in the list of this one.
conocidas=()
for fuente in "${fuentes[@]}"; do
    grep -qF "\"$PWD/$fuente\"" "$carpeta/compile_commands.json" || continue
    # Nor is a source whose own generated part is not there: its target has not been built.
    propia=$(basename "$fuente" .cpp).moc
    if grep -qF "#include \"$propia\"" "$fuente" && [ -z "$(find "$carpeta" -name "$propia" -print -quit)" ]; then
        echo "not built here: $fuente"
        continue
    fi
    conocidas+=("$fuente")
done
echo "clang-tidy: ${#conocidas[@]} sources"
[ ${#conocidas[@]} -eq 0 ] && exit 0
# g++'s own warnings mean nothing to clang, whose 14th version does not say that it knows coroutines.
printf '%s\0' "${conocidas[@]}" | xargs -0 -n 1 -P "$(nproc)" clang-tidy-14 -p "$sin_pch" --quiet \
    --extra-arg=-Wno-unknown-warning-option --extra-arg=-D__cpp_impl_coroutine=201902L
