#!/usr/bin/env bash
# Kills the practice window 50 times (or as often as the second argument says) while it puts down answers,
# and looks whether every answer that it had confirmed is there when it starts again. Usage:
#   scripts/practice_kill.sh [BUILD FOLDER [TIMES]]
# Then the same on a disk that fills up and in a folder that cannot be written, where root may mount one.
set -euo pipefail
cd "$(dirname "$0")/.."
build=${1:-build/release}
times=${2:-50}
cmake --build "$build" --target practica_sin_parar >/dev/null
program=$(find "$build" -name practica_sin_parar -type f | head -n 1)
work=$(mktemp -d)
trap 'mountpoint -q "$work/small" && umount "$work/small"; rm -rf "$work"' EXIT
export XDG_CONFIG_HOME=$work/config

confirmed=0
lost=0
for i in $(seq "$times"); do
    "$program" "$work/data" >"$work/out" 2>&1 &
    pid=$!
    sleep "$(awk -v s="$RANDOM" 'BEGIN { printf "%.3f", 0.6 + s / 32768 * 1.2 }')"
    kill -KILL "$pid"
    wait "$pid" 2>/dev/null || true
    found=$(awk '$1 == "found" { print $2 }' "$work/out")
    if grep -q '^opening' "$work/out"; then
        cat "$work/out"
        exit 1
    fi
    # Killed before it had opened its window: nothing to compare.
    [ -n "$found" ] || continue
    if [ "$found" -lt "$confirmed" ]; then
        echo "kill $i: $confirmed answers were confirmed, $found are there"
        lost=$((lost + 1))
    fi
    last=$(awk '$1 == "kept" { n = $2 } END { print n }' "$work/out")
    confirmed=${last:-$found}
done
echo "$times kills: $confirmed answers, starts that missed one: $lost"

mkdir "$work/small"
if mount -t tmpfs -o size=160k tmpfs "$work/small" 2>/dev/null; then
    timeout 20 "$program" "$work/small/data" >"$work/out" 2>&1 || true
    confirmed=$(awk '$1 == "kept" { n++ } END { print n + 0 }' "$work/out")
    echo "full disk: goes on for $confirmed answers; then $(timeout 5 "$program" "$work/small/data" 2>&1 | head -n 1)"
else
    echo "full disk: not tried, nothing can be mounted here"
fi
[ "$lost" -eq 0 ]
