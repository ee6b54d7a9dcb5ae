// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/Buzon.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/rsa/key/FicheroDeClave.h"
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/ArchivoProvisional.h"
#include "shell/core/system/CarpetaCompartida.h"

#include <QSet>
#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

QString rutaDe(const QString &carpeta, const QString &nombre)
{
    return carpeta + u'\\' + nombre;
}

QString nombreDeMensaje(qint64 numero)
{
    return u"RSA"_s + QString::number(numero, 16).toUpper() + u".msg"_s;
}

bool esNombreDeMensaje(const QString &nombre)
{
    return nombre.startsWith(u"RSA"_s, Qt::CaseInsensitive) &&
           nombre.endsWith(u".msg"_s, Qt::CaseInsensitive);
}

/// Shorter names first, so that the numbers in them rise.
bool vaAntes(const QString &a, const QString &b)
{
    return a.size() != b.size() ? a.size() < b.size() : a.compare(b, Qt::CaseInsensitive) < 0;
}

/// The folder of a user with the names of the messages in it.
struct CarpetaDeUsuario
{
    CarpetaCompartida carpeta;
    QStringList mensajes;
};

/// Nothing when somebody has locked the folder or taken it away meanwhile.
std::optional<CarpetaDeUsuario> abreUsuario(const CarpetaCompartida &buzon, const QString &usuario)
{
    try {
        const CarpetaCompartida carpeta = buzon.subcarpeta(usuario);
        QStringList nombres = carpeta.entradas();
        nombres.removeIf([](const QString &nombre) { return !esNombreDeMensaje(nombre); });
        std::sort(nombres.begin(), nombres.end(), vaAntes);
        return CarpetaDeUsuario{carpeta, nombres};
    } catch (const ErrorEjecucion &) {
        return {};
    }
}

/// Nothing for a file that is locked, damaged, not wholly there or gone.
std::optional<ContenidoMensaje> cabeceraDe(const CarpetaCompartida &carpeta, const QString &nombre)
{
    try {
        return ArchivoMensaje::interpretaCabecera(
            carpeta.leePrincipio(nombre, ArchivoMensaje::MaximoDeCabecera));
    } catch (const ErrorEjecucion &) {
        return {};
    }
}

} // namespace

QString dejaMensaje(const QString &dirMensajes, const QString &destinatario,
                    const QByteArray &contenido)
{
    const CarpetaCompartida carpeta = CarpetaCompartida(dirMensajes).subcarpetaCreada(destinatario);
    ArchivoProvisional archivo(carpeta, contenido);
    const QStringList entradas = carpeta.entradas();
    archivo.quitaAbandonados(entradas);
    QSet<QString> ocupados;
    for (const QString &nombre : entradas)
        ocupados.insert(nombre.toUpper());
    qint64 numero = 1;
    // Somebody else may take a name between the look and the link: then the next one is tried.
    while (ocupados.contains(nombreDeMensaje(numero).toUpper()) ||
           !archivo.nombraSiLibre(nombreDeMensaje(numero)))
        ++numero;
    return rutaDe(rutaDe(dirMensajes, destinatario), nombreDeMensaje(numero));
}

QByteArray leeMensaje(const QString &ruta)
{
    const QString limpia = rutaDePlataforma(ruta);
    const CarpetaCompartida buzon(limpia.section(u'/', 0, -3));
    return buzon.subcarpeta(limpia.section(u'/', -2, -2))
        .lee(limpia.section(u'/', -1), ArchivoMensaje::MaximoDeBytes);
}

ClavePublica leeClavePublica(const QString &dirMensajes, const QString &usuario)
{
    try {
        const CarpetaCompartida carpeta = CarpetaCompartida(dirMensajes).subcarpeta(usuario);
        Perfil fichero;
        fichero.leeBytes(carpeta.lee(FicheroClavePublica, Perfil::TamanoMaximo));
        return {fichero.valor(u"RSA"_s, u"q"_s), fichero.valor(u"RSA"_s, u"s"_s)};
    } catch (const ErrorEjecucion &) {
        return {};
    }
}

QStringList usuariosDelBuzon(const QString &dirMensajes)
{
    return dirMensajes.isEmpty() ? QStringList() : CarpetaCompartida(dirMensajes).subcarpetas();
}

Tarea<RevisionDeBuzon> revisaBuzon(QString dirMensajes, Billete billete)
{
    RevisionDeBuzon revision;
    if (dirMensajes.isEmpty())
        co_return revision;
    const CarpetaCompartida buzon(dirMensajes);
    const QStringList usuarios = buzon.subcarpetas();
    for (const QString &usuario : usuarios) {
        const auto suya = abreUsuario(buzon, usuario);
        if (!suya) {
            ++revision.ilegibles;
            continue;
        }
        const QString ruta = rutaDe(dirMensajes, usuario);
        for (const QString &nombre : suya->mensajes) {
            if (const auto cabecera = cabeceraDe(suya->carpeta, nombre))
                revision.mensajes.Anota(cabecera->remitente, usuario, cabecera->asunto,
                                        rutaDe(ruta, nombre));
            else
                ++revision.ilegibles;
            co_await billete.ceder();
            if (billete.detenida())
                co_return revision;
        }
    }
    co_return revision;
}
