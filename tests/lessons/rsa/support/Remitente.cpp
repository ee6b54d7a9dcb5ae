// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/key/FicheroDeClave.h"
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "lessons/rsa/mailbox/Buzon.h"
#include "shell/core/system/CarpetaCompartida.h"

#include <QCoreApplication>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

/// A sender in a process of its own: remitente MAILBOX RECIPIENT NAME HOW_MANY [keys]. Writes a
/// line for each message that has arrived: its file, the name, its number. With a word more, it
/// replaces the recipient's public key meanwhile, by numbers that belong together.
int main(int argc, char *argv[])
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList palabras = QCoreApplication::arguments();
    if (palabras.size() < 5)
        return 2;
    QTextStream salida(stdout);
    // Long enough to be written in more than one piece if it could be.
    const QStringList bloques(500, QString(20, u'7'));
    for (int i = 0; i < palabras[4].toInt(); ++i) {
        const QString ruta = dejaMensaje(
            palabras[1], palabras[2],
            ArchivoMensaje::compone({palabras[3], QString::number(i), bloques}, {}).completa());
        salida << ruta.section(u'\\', -1) << u' ' << palabras[3] << u' ' << i << Qt::endl;
        if (palabras.size() == 5)
            continue;
        const QByteArray numero(200, static_cast<char>('1' + i % 9));
        CarpetaCompartida(palabras[1])
            .subcarpeta(palabras[2])
            .sustituye(FicheroClavePublica, "[RSA]\r\nq=" + numero + "\r\ns=" + numero + "\r\n");
    }
    return 0;
}
