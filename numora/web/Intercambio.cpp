// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/web/Intercambio.h"

#include "lessons/rsa/key/FicheroDeClave.h"
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "lessons/rsa/mailbox/Buzon.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/CarpetaCompartida.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

bool esMensaje(const QString &nombre)
{
    static const QRegularExpression forma(u"^RSA[0-9A-F]+\\.msg$"_s,
                                          QRegularExpression::CaseInsensitiveOption);
    return forma.match(nombre).hasMatch();
}

bool esClave(const Perfil &fichero)
{
    return fichero.tieneSeccion(u"RSA"_s);
}

bool esPublica(const Perfil &fichero)
{
    return !fichero.valor(u"RSA"_s, u"q"_s).isEmpty() &&
           !fichero.valor(u"RSA"_s, u"s"_s).isEmpty() &&
           fichero.valor(u"RSA"_s, u"q(1)"_s).isEmpty() &&
           fichero.valor(u"RSA"_s, u"t"_s).isEmpty();
}

bool esUnMensaje(const QByteArray &contenido)
{
    const auto cabecera =
        ArchivoMensaje::interpretaCabecera(contenido.left(ArchivoMensaje::MaximoDeCabecera));
    return cabecera && esNombreSimple(cabecera->remitente);
}

} // namespace

QStringList intercambiables(const QString &buzon)
{
    QStringList halladas;
    for (const QString &usuario : usuariosDelBuzon(buzon)) {
        const QStringList entradas = CarpetaCompartida(buzon).subcarpeta(usuario).entradas();
        QStringList suyas;
        for (const QString &nombre : entradas) {
            if (nombre == FicheroClavePublica || esMensaje(nombre))
                suyas << usuario + u'/' + nombre;
        }
        suyas.sort();
        halladas << suyas;
    }
    return halladas;
}

QByteArray leeIntercambiable(const QString &buzon, const QString &cual)
{
    return CarpetaCompartida(buzon)
        .subcarpeta(cual.section(u'/', 0, 0))
        .lee(cual.section(u'/', 1), MayorIntercambiable);
}

QString nombreDeBajada(const QString &cual)
{
    return QString(cual).replace(u'/', u'-');
}

QString usuarioDeBajada(const QString &archivo)
{
    static const QRegularExpression forma(
        u"^(.+)-(?:RSA[0-9A-F]+(?: ?\\(\\d+\\))?\\.msg|Clave(?: ?\\(\\d+\\))?\\.RSA)$"_s,
        QRegularExpression::CaseInsensitiveOption);
    return forma.match(archivo).captured(1);
}

QString recibeIntercambiable(const QString &buzon, const QString &usuario,
                             const QByteArray &contenido)
{
    Perfil fichero;
    const bool legible = fichero.leeBytes(contenido) == Perfil::Lectura::Correcta;
    if (legible && esClave(fichero) ? !esPublica(fichero) : !esUnMensaje(contenido))
        return {};
    if (!legible || !esClave(fichero))
        return usuario + u'/' +
               rutaDePlataforma(dejaMensaje(buzon, usuario, contenido)).section(u'/', -1);
    CarpetaCompartida(buzon).subcarpetaCreada(usuario).sustituye(FicheroClavePublica, contenido);
    return usuario + u'/' + FicheroClavePublica;
}
