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
    # Some answers are to be on their way: from the first one on it may be killed at any moment.
    for _ in $(seq 200); do
        grep -q '^kept' "$work/out" && break
        sleep 0.05
    done
    sleep "$(awk -v s="$RANDOM" 'BEGIN { printf "%.3f", s / 32768 * 0.6 }')"
    kill -KILL "$pid"
    wait "$pid" 2>/dev/null || true
    found=$(awk '$1 == "found" { print $2 }' "$work/out")
    if grep -q '^told' "$work/out"; then
        cat "$work/out"
        exit 1
    fi
    [ -n "$found" ] || { echo "kill $i: it had not begun" && continue; }
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
    confirmed=$(awk '$1 == "kept" { n = $2 } END { print n + 0 }' "$work/out")
    word=$(grep -m 1 '^told' "$work/out" || echo "nothing was told")
    timeout 10 "$program" "$work/small/data" >"$work/out" 2>&1 || true
    echo "full disk: $confirmed answers, then \"$word\"; at the next start: $(grep -m 1 -E '^(found|told)' "$work/out")"
else
    echo "full disk: not tried, nothing can be mounted here"
fi
[ "$lost" -eq 0 ]
