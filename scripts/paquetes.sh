#!/usr/bin/env bash
# Installs the Debian packages that a job needs and that are missing. Usage:
#   instala_paquetes run|test|bare|fuzz|bench|package|web|windows
# Sourced by run.sh, test.sh and the other scripts; does nothing where everything is there.

PAQUETES_BUILD=(g++ cmake ninja-build pkg-config
    qt6-base-dev qt6-base-dev-tools qt6-svg-dev qt6-multimedia-dev libgl-dev
    libgmp-dev libecm-dev libprimesieve-dev libsimpleini-dev)
PAQUETES_RUN=(qt6-translations-l10n gstreamer1.0-plugins-good libqt6svg6 libqt6sql6-sqlite fonts-dejavu-core fonts-liberation)
PAQUETES_TEST=(git clang-format-14 clang-tidy-14 python3)
PAQUETES_PACKAGE=(dpkg-dev file lintian appstream desktop-file-utils mandoc xvfb xauth x11-utils)
PAQUETES_WINDOWS=(g++-mingw-w64-x86-64-posix binutils-mingw-w64-x86-64 wine64 fonts-wine fonts-dejavu-core nsis python3 unzip librsvg2-bin pngquant icoutils make m4 tcl dpkg-dev
    xvfb openbox xdotool imagemagick)
PAQUETES_BARE=(librsvg2-bin pngquant)
PAQUETES_FUZZ=(clang-14 libclang-rt-14-dev lld-14)
PAQUETES_WEB=(emscripten dpkg-dev make m4 tcl librsvg2-bin pngquant nodejs node-ws chromium python3)
PAQUETES_BENCH=(libbenchmark-dev libpari-dev pari-gp)

instala_paquetes() {
    local quieren=("${PAQUETES_BUILD[@]}" "${PAQUETES_RUN[@]}")
    local grupo
    for grupo in "$@"; do
        case $grupo in
            test) quieren+=("${PAQUETES_TEST[@]}") ;;
            bare) quieren+=("${PAQUETES_BARE[@]}") ;;
            fuzz) quieren+=("${PAQUETES_FUZZ[@]}") ;;
            windows) quieren+=("${PAQUETES_WINDOWS[@]}") ;;
            package) quieren+=("${PAQUETES_PACKAGE[@]}") ;;
            web) quieren+=("${PAQUETES_WEB[@]}") ;;
            bench) quieren+=("${PAQUETES_BENCH[@]}") ;;
        esac
    done
    local faltan=() paquete hay
    hay=$(dpkg-query -W -f='${Package} ${Status}\n' "${quieren[@]}" 2>/dev/null) || true
    for paquete in "${quieren[@]}"; do
        grep -q "^$paquete install ok installed" <<<"$hay" || faltan+=("$paquete")
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
