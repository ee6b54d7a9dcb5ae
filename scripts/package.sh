#!/usr/bin/env bash
# Makes the Debian packages of this machine's architecture and their checksums in one folder: numora,
# libbignum1 and libbignum-dev. The same sources give the same bytes, wherever and whenever they are built
# with the same compiler and libraries: the time in the packages is that of the newest entry of the change log.
# Usage:
#   scripts/package.sh [folder of the packages; build/package/out unless told]
set -euo pipefail
cd "$(dirname "$0")/.."
source scripts/paquetes.sh
instala_paquetes package

salida=$(realpath -m "${1:-build/package/out}")
SOURCE_DATE_EPOCH=$(dpkg-parsechangelog -l packaging/debian/changelog -S Timestamp)
export SOURCE_DATE_EPOCH TZ=UTC LC_ALL=C.UTF-8
# Folders and what the build copies get their modes from it, in the packages too.
umask 022

cmake --preset package
cmake --build --preset package

# Only what is made now is to be found there.
mkdir -p "$salida"
rm -f "$salida"/*.deb "$salida/SHA256SUMS"
cpack --config build/package/CPackConfig.cmake -G DEB -B build/package/cpack
mv build/package/cpack/*.deb "$salida"
rm -rf build/package/cpack
(cd "$salida" && sha256sum -- *.deb >SHA256SUMS && cat SHA256SUMS)
