// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "lessons/rsa/mailbox/Buzon.h"

#include <QCoreApplication>

using namespace Qt::Literals::StringLiterals;

/// A sender in a process of its own: remitente MAILBOX RECIPIENT NAME HOW_MANY.
int main(int argc, char *argv[])
{
    const QCoreApplication aplicacion(argc, argv);
    const QStringList palabras = QCoreApplication::arguments();
    if (palabras.size() != 5)
        return 2;
    // Long enough to be written in more than one piece if it could be.
    const QStringList bloques(500, QString(20, u'7'));
    for (int i = 0; i < palabras[4].toInt(); ++i)
        dejaMensaje(
            palabras[1], palabras[2],
            ArchivoMensaje::compone({palabras[3], QString::number(i), bloques}, {}).completa());
    return 0;
}
