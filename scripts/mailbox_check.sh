#!/usr/bin/env bash
# Sends a message between two accounts of this machine, through mailboxes such as classes have: a group
# folder, a mount through FUSE, with open and closed masks, among the files that synchronising services
# leave. By hand, as root; makes two accounts and a group, and takes them away again. Usage:
#   scripts/mailbox_check.sh [BUILD_FOLDER]
# The build folder (build/release at first) holds the program and the pilot of the tests (target piloto);
# both accounts must be able to read it. bindfs and sshfs are tried where they are installed.
set -euo pipefail
cd "$(dirname "$0")/.."
origen=$(realpath "${1:-build/release}")
[ "$(id -u)" -eq 0 ] || { echo "This makes accounts: run it as root." >&2; exit 2; }
autora=numora-ana lector=numora-luis grupo=numora-clase
base=$(mktemp -d /tmp/numora-buzon.XXXXXX)
chmod 755 "$base"

recoge() {
    local montado
    for montado in "$base"/*/buzon; do
        mountpoint -q "$montado" && umount "$montado"
    done
    userdel "$autora"; userdel "$lector"; groupdel "$grupo"
    rm -rf "$base"
} 2>/dev/null
trap recoge EXIT
groupadd "$grupo"
for cuenta in "$autora" "$lector"; do
    useradd --no-create-home --home-dir "$base" --groups "$grupo" "$cuenta"
done

# prepara CASE ACCOUNT SCRIPT: settings and a working folder, as a first start would find them.
prepara() {
    local suyo=$base/$1/$2
    mkdir -p "$suyo/ajustes/Numora" "$suyo/trabajo"
    ln -s "$origen/bin/ClipArt" "$origen/bin/Doc" "$suyo/trabajo/"
    printf '[Programa]\nCarpeta=%s\n[RSA]\nDirMensajes=%s\n' "$suyo/trabajo" "$base/$1/buzon" \
        >"$suyo/ajustes/Numora/Numora.ini"
    printf '%s\n' "$3" >"$suyo/guion"
    chown -R "$2:" "$suyo"
}

# corre CASE ACCOUNT MASK: the program, with the pilot at its controls, as that account.
corre() {
    local suyo=$base/$1/$2
    (
        umask "$3"
        exec timeout 120 setpriv --reuid "$2" --regid "$2" --init-groups --inh-caps=-all \
            env -i PATH="$PATH" LC_ALL=C.UTF-8 HOME="$suyo" XDG_CONFIG_HOME="$suyo/ajustes" \
            XDG_DATA_HOME="$suyo/datos" XDG_RUNTIME_DIR="$suyo" QT_QPA_PLATFORM=offscreen \
            QT_PLUGIN_PATH="$origen/tests/plugins" QT_QPA_GENERIC_PLUGINS=piloto \
            PILOTO_GUION="$suyo/guion" "$origen/bin/numora" 2>"$suyo/errores"
    )
}

# What a synchronising service leaves in a folder: a second RSA1 that it has renamed, one in other
# letters, one that is still on its way, and its own part files.
sincroniza() {
    printf 'eva\r\nCopia\r\n57666\r\n' >"$1/RSA1 (copia en conflicto de eva).msg"
    printf 'eva\r\nOtra caja\r\n57666\r\n' >"$1/rsa9.MSG"
    : >"$1/RSA8.msg"
    printf 'eva\r\nA medi' >"$1/RSA7.msg.part"
    printf 'eva\r\n' >"$1/.RSA6.msg.crdownload"
    chmod a+r "$1"/*.msg "$1"/*.MSG
}

clave() {
    printf 'pulsa cmdOK\nfila FlexMenu 4\ntema Elección de clave\nescribe txtQ_1 %s\nescribe txtQ_2 %s\nescribe txtS %s\nespera lblEstado ✓ Clave OK\n' "$@"
}

texto='Nos vemos a las 5 en la puerta.'
# prueba CASE MASK: the reader publishes and waits, the author sends, the reader reads.
prueba() {
    local buzon=$base/$1/buzon
    prepara "$1" "$lector" "$(clave 1000003 1000033 65537)
pulsa cmdPublicarClave
archivo $buzon/$lector/RSA1.msg
tema Enviar y recibir
pulsa revisar
espera lblEstadoBuzon Mensajes: 3
anota lblEstadoBuzon
fila FlexMensajes 0
pulsa recibir
espera txtDestTextoOriginal Nos
anota txtDestTextoOriginal
acaba"
    prepara "$1" "$autora" "$(clave 257 263 5)
archivo $buzon/$lector/Clave.RSA
archivo $base/$1/sincronizado
tema Enviar y recibir
escribe cmbDestinatario $lector
escribe txtAsunto Cita
escribe txtDestTextoOriginal $texto
pulsa enviar
espera lblEstadoBuzon Mensaje enviado
anota lblEstadoBuzon
acaba"
    corre "$1" "$lector" "$2" >"$base/$1/leido" &
    local leyendo=$!
    (until [ -e "$buzon/$lector/Clave.RSA" ]; do sleep 0.1; done
     sincroniza "$buzon/$lector" && touch "$base/$1/sincronizado") &
    corre "$1" "$autora" "$2" >"$base/$1/enviado" || true
    wait "$leyendo" || true
    if [ "$(cat "$base/$1/leido")" = "$(printf 'Mensajes: 3. No se han podido leer: 1\n%s' "$texto")" ] &&
        grep -q '(RSA1.msg)' "$base/$1/enviado"; then
        printf '%-28s %s  well\n' "$1" "$2"
    else
        printf '%-28s %s  FAILED\n' "$1" "$2"
        tail -n 3 "$base/$1/leido" "$base/$1/enviado" "$base/$1"/*/errores
        fallos=$((fallos + 1))
    fi
}

# carpeta PATH: a folder in which the whole group may write.
carpeta() {
    mkdir -p "$1"
    chgrp "$grupo" "$1"
    chmod 2770 "$1"
}

fallos=0
for mascara in 002 077; do
    caso=grupo-$mascara
    carpeta "$base/$caso/buzon"
    prueba "$caso" "$mascara"
    for montaje in bindfs sshfs; do
        command -v "$montaje" >/dev/null || { echo "$montaje is not installed"; continue; }
        caso=$montaje-$mascara
        carpeta "$base/$caso/servidor"
        mkdir "$base/$caso/buzon"
        case $montaje in
            bindfs) bindfs "$base/$caso/servidor" "$base/$caso/buzon" ;;
            # Over the protocol of a remote folder, to this machine, without its daemon; a server that
            # cannot link.
            sshfs)
                printf '#!/bin/sh\nexec /usr/lib/openssh/sftp-server\n' >"$base/$caso/enlace"
                chmod 755 "$base/$caso/enlace"
                sshfs -o allow_other -o disable_hardlink -o ssh_command="$base/$caso/enlace" \
                    "localhost:$base/$caso/servidor" "$base/$caso/buzon" ;;
        esac
        prueba "$caso" "$mascara"
    done
done
[ "$fallos" -eq 0 ]
