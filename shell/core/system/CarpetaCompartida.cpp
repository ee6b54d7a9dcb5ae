// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/CarpetaCompartida.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/ArchivoProvisional.h"

using namespace Qt::Literals::StringLiterals;

/// The name of an entry but for case; a name as written is preferred, and given back when there is
/// none at all.
QString CarpetaCompartida::nombreReal(const QString &nombre) const
{
    if (!esNombreSimple(nombre))
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido, nombre.left(255));
    if (m_carpeta.tiene(nombre))
        return nombre;
    QString real = nombre;
    const auto entradas = m_carpeta.entradas();
    for (const auto &entrada : entradas) {
        if (entrada.nombre.compare(nombre, Qt::CaseInsensitive) == 0)
            real = entrada.nombre;
    }
    return real;
}

CarpetaCompartida CarpetaCompartida::subcarpeta(const QString &nombre) const
{
    return CarpetaCompartida(m_carpeta.subcarpeta(nombreReal(nombre)));
}

CarpetaCompartida CarpetaCompartida::subcarpetaCreada(const QString &nombre) const
{
    return CarpetaCompartida(m_carpeta.subcarpetaCreada(nombreReal(nombre)));
}

QStringList CarpetaCompartida::nombres(bool deCarpetas) const
{
    QStringList lista;
    const auto entradas = m_carpeta.entradas();
    for (const auto &entrada : entradas) {
        if (entrada.esCarpeta == deCarpetas && esNombreSimple(entrada.nombre))
            lista << entrada.nombre;
    }
    return lista;
}

QStringList CarpetaCompartida::subcarpetas() const
{
    QStringList lista = nombres(true);
    lista.sort(Qt::CaseInsensitive);
    return lista;
}

QStringList CarpetaCompartida::entradas() const
{
    return nombres(false);
}

QByteArray CarpetaCompartida::leePrincipio(const QString &nombre, qint64 maximo) const
{
    return m_carpeta.lee(nombreReal(nombre), maximo);
}

QByteArray CarpetaCompartida::lee(const QString &nombre, qint64 maximo) const
{
    QByteArray bytes = leePrincipio(nombre, maximo + 1);
    if (bytes.size() > maximo)
        throw ErrorEjecucion(ErrorEjecucion::ErrorDeArchivo,
                             rutaDePlataforma(m_carpeta.rutaDe(nombre)) + u'\n' +
                                 Traduce(u"El archivo es demasiado grande."_s));
    return bytes;
}

void CarpetaCompartida::sustituye(const QString &nombre, const QByteArray &contenido) const
{
    const QString real = nombreReal(nombre);
    ArchivoProvisional archivo(*this, contenido);
    archivo.quitaAbandonados(entradas());
    archivo.nombra(real);
}
