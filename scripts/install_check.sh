#!/usr/bin/env bash
# Makes the Debian package, installs it in a clean root made by debootstrap, starts the program there as an
# ordinary user without a display, and removes the root. Needs root rights and debootstrap; takes some
# minutes and a gigabyte in the folder for temporary files. Usage:
#   scripts/install_check.sh [folder of a finished build; build/release unless told]
set -euo pipefail

proyecto=$(cd "$(dirname "$0")/.." && pwd)
construccion=$(cd "${1:-$proyecto/build/release}" && pwd)
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

echo "== Package"
(cd "$construccion" && cpack -G DEB -B "$raiz.paquete" >/dev/null)
paquete=$(ls "$raiz.paquete"/numora_*.deb)
trap 'limpia; rm -rf "$raiz.paquete"' EXIT
dpkg-deb --info "$paquete" | grep -E 'Package|Version|Installed-Size|Depends|Recommends'

echo "== Clean root"
debootstrap --variant=minbase bookworm "$raiz" >"$raiz.paquete/debootstrap.log" || {
    tail -5 "$raiz.paquete/debootstrap.log" >&2
    exit 1
}
mount -t proc proc "$raiz/proc"
cp /etc/resolv.conf "$raiz/etc/"
cp "$paquete" "$raiz/tmp/numora.deb"
en_la_raiz() {
    chroot "$raiz" env -i PATH=/usr/sbin:/usr/bin:/sbin:/bin LC_ALL=C.UTF-8 DEBIAN_FRONTEND=noninteractive "$@"
}
en_la_raiz apt-get install -y -q --no-install-recommends /tmp/numora.deb >"$raiz.paquete/apt.log" 2>&1 || {
    tail -20 "$raiz.paquete/apt.log" >&2
    exit 1
}
en_la_raiz useradd -m estudiante

echo "== Start"
como_estudiante() {
    en_la_raiz su estudiante -c "export QT_QPA_PLATFORM=offscreen LC_ALL=C.UTF-8; cd; $1"
}
como_estudiante "numora --version"
como_estudiante "numora --galeria galeria" >"$raiz.paquete/galeria.log" 2>&1 || {
    tail -5 "$raiz.paquete/galeria.log" >&2
    exit 1
}
imagenes=$(ls "$raiz/home/estudiante/galeria" | wc -l)
[ "$imagenes" -gt 10 ] || { echo "The gallery holds only $imagenes pictures." >&2; exit 1; }
echo "$imagenes pictures"
# The program itself stays open until it is told to end.
estado=0
como_estudiante "timeout 10 numora" >/dev/null 2>&1 || estado=$?
[ "$estado" -eq 124 ] || { echo "The program ended by itself with $estado." >&2; exit 1; }

echo "== Removal"
en_la_raiz apt-get purge -y -q numora >/dev/null 2>&1
[ ! -e "$raiz/usr/lib/numora" ] && [ ! -e "$raiz/usr/bin/numora" ] || { echo "Files were left behind." >&2; exit 1; }
echo "Installed, started and removed."
