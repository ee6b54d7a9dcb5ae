#!/usr/bin/env bash
# Installs the Debian packages that a job needs and that are missing. Usage:
#   instala_paquetes run|test|fuzz|bench|package
# Sourced by run.sh, test.sh and the other scripts; does nothing where everything is there.

PAQUETES_BUILD=(g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-multimedia-dev libgl-dev
    libgmp-dev libecm-dev libprimesieve-dev libsimpleini-dev)
PAQUETES_RUN=(qt6-translations-l10n gstreamer1.0-plugins-good libqt6svg6 libqt6sql6-sqlite fonts-dejavu-core fonts-liberation)
PAQUETES_TEST=(git clang-format-14 clang-tidy-14 python3)
PAQUETES_PACKAGE=(dpkg-dev file lintian appstream desktop-file-utils mandoc xvfb xauth x11-utils)
PAQUETES_FUZZ=(clang-14 libclang-rt-14-dev)
PAQUETES_BENCH=(libbenchmark-dev libpari-dev pari-gp)

instala_paquetes() {
    local quieren=("${PAQUETES_BUILD[@]}" "${PAQUETES_RUN[@]}")
    local grupo
    for grupo in "$@"; do
        case $grupo in
            test) quieren+=("${PAQUETES_TEST[@]}") ;;
            fuzz) quieren+=("${PAQUETES_FUZZ[@]}") ;;
            package) quieren+=("${PAQUETES_PACKAGE[@]}") ;;
            bench) quieren+=("${PAQUETES_BENCH[@]}") ;;
        esac
    done
    local faltan=() paquete
    for paquete in "${quieren[@]}"; do
        dpkg-query -W -f='${Status}' "$paquete" 2>/dev/null | grep -q 'install ok installed' || faltan+=("$paquete")
    done
    # A newer distribution may have renamed one: what does not exist is left to the build to miss.
    [ ${#faltan[@]} -eq 0 ] && return 0
    local como=()
    if [ "$(id -u)" -ne 0 ]; then
        command -v sudo >/dev/null || {
            echo "Missing packages: ${faltan[*]}. Install them as root and try again." >&2
            return 1
        }
        como=(sudo)
    fi
    echo "Installing: ${faltan[*]}"
    "${como[@]}" apt-get update -q
    DEBIAN_FRONTEND=noninteractive "${como[@]}" apt-get install -y -q --no-install-recommends "${faltan[@]}"
}
