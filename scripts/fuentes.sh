#!/usr/bin/env bash
# Unpacks the source packages from which the libraries of another platform are built. Usage:
#   trae_fuente PACKAGE FOLDER
# Sourced by the scripts in packaging/; asks the same archives as the machine's own packages come from, with
# lists of their own, so that the machine's are left as they are.

trae_fuente() {
    local paquete=$1 carpeta=$2
    [ -d "$carpeta" ] && return 0
    command -v dpkg-source >/dev/null || {
        echo "dpkg-dev is missing: instala_paquetes package brings it." >&2
        return 1
    }
    local apt
    apt=$(mktemp -d)
    mkdir -p "$apt/lists/partial" "$apt/parts" "$apt/unpacked"
    local lista
    for lista in /etc/apt/sources.list.d/debian*.sources; do
        [ -f "$lista" ] && sed 's/^Types:.*/Types: deb-src/' "$lista" >"$apt/parts/$(basename "$lista")"
    done
    if [ -f /etc/apt/sources.list ]; then
        sed -n 's/^deb /deb-src /p' /etc/apt/sources.list >"$apt/parts/sources.list"
    fi
    local como=(-q -o Dir::Etc::SourceList=/dev/null -o "Dir::Etc::SourceParts=$apt/parts"
        -o "Dir::State::Lists=$apt/lists" -o "Dir::Cache=$apt" -o APT::Sandbox::User=root)
    # Not by `set -e`, which does not hold where somebody asks whether this has worked.
    local bien=0
    (
        cd "$apt/unpacked" &&
            apt-get "${como[@]}" update >/dev/null &&
            apt-get "${como[@]}" source --only-source "$paquete" >/dev/null &&
            mkdir -p "$(dirname "$carpeta")" &&
            mv "$(find . -mindepth 1 -maxdepth 1 -type d)" "$carpeta"
    ) || bien=1
    rm -rf "$apt"
    [ $bien -eq 0 ] || echo "The source package $paquete could not be had." >&2
    return $bien
}
