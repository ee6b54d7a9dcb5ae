#!/usr/bin/env bash
# Makes the packages twice and compares them byte by byte: in two folders of different depth, with another
# mask of file modes and another number of jobs, and without a compiler cache. Needs two whole release builds,
# and a gigabyte in the folder for temporary files. Usage:
#   scripts/reproducible.sh
set -euo pipefail
proyecto=$(cd "$(dirname "$0")/.." && pwd)
lugar=$(mktemp -d)
trap 'rm -rf "$lugar"' EXIT

# construye FOLDER MASK JOBS: what is in the working tree, built in FOLDER/src.
construye() {
    mkdir -p "$1/src"
    (cd "$proyecto" && git ls-files -z | tar c --null -T - | tar x -C "$1/src")
    (umask "$2" && cd "$1/src" && CMAKE_BUILD_PARALLEL_LEVEL=$3 CCACHE_DISABLE=1 \
        scripts/package.sh "$1/packages" >"$1/log" 2>&1) || {
        tail -20 "$1/log" >&2
        return 1
    }
}
construye "$lugar/one" 022 2
construye "$lugar/two/in/another/folder" 077 1

cat "$lugar/one/packages/SHA256SUMS"
(cd "$lugar/two/in/another/folder/packages" && sha256sum --check "$lugar/one/packages/SHA256SUMS")
