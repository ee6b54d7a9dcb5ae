#!/usr/bin/env bash
# Long steps of a build that are made once. Sourced by the scripts in packaging/, which say where to in MARCAS (a file
# for each step that has succeeded) and REGISTROS (what each has printed). Usage:
#   una_vez NAME COMMAND…
# runs the command in a subshell unless it has succeeded before.

una_vez() {
    local nombre=$1 marca=$MARCAS/$1 registro=$REGISTROS/$1.log
    shift
    [ -e "$marca" ] && return 0
    mkdir -p "$MARCAS" "$REGISTROS"
    echo "$nombre … (${registro#"$PWD"/})"
    local antes=$SECONDS resultado
    # Not as a condition, where a failure in the middle would count for nothing.
    set +e
    (set -e; "$@") >"$registro" 2>&1
    resultado=$?
    set -e
    if [ "$resultado" -ne 0 ]; then
        tail -n 30 "$registro" >&2
        echo "$nombre could not be built." >&2
        return 1
    fi
    echo "$((SECONDS - antes)) s" >"$marca"
}
