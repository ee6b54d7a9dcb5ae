#!/usr/bin/env bash
# Installs the packages that scripts/package.sh has made in a clean root made by debootstrap, starts the program
# there as an ordinary user without a display, builds an example on the library, and removes the root. Needs root
# rights and debootstrap; takes some minutes and a gigabyte in the folder for temporary files. Usage:
#   scripts/install_check.sh [folder of the packages; build/package/out unless told]
set -euo pipefail

proyecto=$(cd "$(dirname "$0")/.." && pwd)
paquetes=$(cd "${1:-$proyecto/build/package/out}" && pwd)
[ "$(id -u)" -eq 0 ] || { echo "Root rights are needed to make a clean root." >&2; exit 1; }
command -v debootstrap >/dev/null || { echo "debootstrap is missing." >&2; exit 1; }

raiz=$(mktemp -d)
chmod 755 "$raiz" # it will be "/" to an ordinary user
limpia() {
    # Nothing that is mounted inside may go with the folder.
    mountpoint -q "$raiz/proc" && umount "$raiz/proc"
    rm -rf --one-file-system "$raiz"
}
trap limpia EXIT

mkdir "$raiz.registro"
trap 'limpia; rm -rf "$raiz.registro"' EXIT

echo "== Packages"
(cd "$paquetes" && sha256sum --check SHA256SUMS)
for paquete in "$paquetes"/*.deb; do
    dpkg-deb --info "$paquete" | grep -E 'Package|Version|Installed-Size|Depends|Recommends'
done

echo "== Clean root"
debootstrap --variant=minbase bookworm "$raiz" >"$raiz.registro/debootstrap.log" || {
    tail -5 "$raiz.registro/debootstrap.log" >&2
    exit 1
}
mount -t proc proc "$raiz/proc"
cp /etc/resolv.conf "$raiz/etc/"
cp "$paquetes"/*.deb "$raiz/tmp/"
en_la_raiz() {
    chroot "$raiz" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}
instala() {
    en_la_raiz apt-get install -y -q --no-install-recommends "$@" >"$raiz.registro/apt.log" 2>&1 || {
        tail -20 "$raiz.registro/apt.log" >&2
        exit 1
    }
}
(cd "$raiz" && instala ./tmp/numora_*.deb ./tmp/libbignum1_*.deb)
en_la_raiz useradd -m estudiante

echo "== Start"
como_estudiante() {
    en_la_raiz su estudiante -c "export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8; cd; $1"
}
como_estudiante "numora --version"
como_estudiante "numora --galeria galeria" >"$raiz.registro/galeria.log" 2>&1 || {
    tail -5 "$raiz.registro/galeria.log" >&2
    exit 1
}
imagenes=$(ls "$raiz/home/estudiante/galeria" | wc -l)
[ "$imagenes" -gt 10 ] || { echo "The gallery holds only $imagenes pictures." >&2; exit 1; }
echo "$imagenes pictures"
# The program itself stays open until it is told to end.
estado=0
como_estudiante "timeout 10 numora" >/dev/null 2>&1 || estado=$?
[ "$estado" -eq 124 ] || { echo "The program ended by itself with $estado." >&2; exit 1; }

echo "== Library"
(cd "$raiz" && instala ./tmp/libbignum-dev_*.deb gcc libc6-dev pkg-config python3)
como_estudiante 'ejemplos=/usr/share/doc/libbignum-dev/examples
    cc $ejemplos/factors.c $(pkg-config --cflags --libs bignum) -o factores && ./factores 360 && python3 $ejemplos/congruences.py'

echo "== Removal"
en_la_raiz apt-get purge -y -q numora libbignum1 libbignum-dev >/dev/null 2>&1
resto=$(find "$raiz/usr" -name '*bignum*' -o -name '*numora*')
[ -z "$resto" ] || { echo "Files were left behind: $resto" >&2; exit 1; }
echo "Installed, started, built upon and removed."
