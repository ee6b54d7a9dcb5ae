#!/usr/bin/env bash
# Shows build/web at the loopback address, to nobody else. Usage:
#   packaging/web/serve.sh [PORT [FOLDER]]
set -euo pipefail
cd "$(dirname "$0")/../.."
puerto=${1:-8321}
carpeta=${2:-build/web}
[ -e "$carpeta/index.html" ] || {
    echo "$carpeta is missing: packaging/web/build.sh makes it." >&2
    exit 1
}
echo "http://127.0.0.1:$puerto/"
exec python3 -m http.server "$puerto" --bind 127.0.0.1 --directory "$carpeta"
