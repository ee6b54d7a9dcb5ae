#!/usr/bin/env bash
# A display for windows under Wine. Sourced by the checks that need one.
#   abre_pantalla WIDTHxHEIGHT      a display of that size, named by DISPLAY until the script ends
#   cierra_pantalla                 ends it; the script's own end does so too, unless it has a trap of its own

PANTALLA=
cierra_pantalla() { [ -z "$PANTALLA" ] || kill "$PANTALLA" 2>/dev/null || true; }

abre_pantalla() {
    local numero
    numero=$(mktemp)
    Xvfb -displayfd 7 -screen 0 "$1x24" >/dev/null 2>&1 7>"$numero" &
    PANTALLA=$!
    trap cierra_pantalla EXIT
    until [ -s "$numero" ]; do sleep 0.1; done
    DISPLAY=:$(cat "$numero")
    rm -f "$numero"
    export DISPLAY
}
