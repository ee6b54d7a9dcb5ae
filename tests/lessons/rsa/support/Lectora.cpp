// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "lessons/rsa/mailbox/Buzon.h"
#include "lessons/rsa/mailbox/ColMensajes.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

/// A reader in a process of its own: lectora MAILBOX RECIPIENT. Writes a line for each message: its
/// file, its sender, its subject. Ends with 1 when one cannot be read whole, or when the numbers of
/// the recipient's public key do not belong together (see Remitente.cpp).
int main(int argc, char *argv[])
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList palabras = QCoreApplication::arguments();
    if (palabras.size() != 3)
        return 2;
    const RevisionDeBuzon revision = revisaBuzon(palabras[1], {}).completa();
    const ClavePublica clave = leeClavePublica(palabras[1], palabras[2]);
    bool bien = revision.ilegibles == 0 && clave.q == clave.s;
    QTextStream salida(stdout);
    for (const auto &mensaje : revision.mensajes) {
        const auto contenido =
            ArchivoMensaje::interpreta(leeMensaje(mensaje->NombreFichero()), {}).completa();
        bien = bien && contenido.asunto == mensaje->Asunto() && contenido.bloques.size() == 500;
        salida << mensaje->NombreFichero().section(u'\\', -1) << u' ' << contenido.remitente << u' '
               << contenido.asunto << Qt::endl;
    }
    if (!bien)
        QTextStream(stderr) << revision.ilegibles << u" could not be read; key: "_s << clave.q
                            << u" / "_s << clave.s << Qt::endl;
    return bien ? 0 : 1;
}
