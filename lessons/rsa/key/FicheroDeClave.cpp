// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/key/FicheroDeClave.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/CarpetaDeDatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/Archivos.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

const QString FicheroClavePublica = u"Clave.RSA"_s;

namespace {

/// A file is replaced by one that is made beside it, so that the folder has to be writable.
bool seEscribeEn(const QString &carpeta)
{
    const QFileInfo info(rutaExistente(carpeta));
    return info.isDir() && info.isWritable();
}

QString copiaDe(const QString &ruta)
{
    return rutaExistente(ruta + u".propia"_s);
}

/// Nobody else's primes are known, so that what has both is the user's own.
bool tieneClavePropia(const QString &ruta)
{
    Perfil fichero;
    return fichero.lee(rutaExistente(ruta)) == Perfil::Lectura::Correcta &&
           !fichero.valor(u"RSA"_s, u"q(1)"_s).isEmpty() &&
           !fichero.valor(u"RSA"_s, u"q(2)"_s).isEmpty();
}

} // namespace

QString FicheroDeClave::usuario() const
{
    return m_sesion.UserName();
}

QString FicheroDeClave::enCarpeta(const QString &carpeta) const
{
    return carpeta + u'\\' + usuario() + u".RSA"_s;
}

QString FicheroDeClave::rutaParaGuardar() const
{
    return enCarpeta(seEscribeEn(m_sesion.carpeta()) ? m_sesion.carpeta() : carpetaDeDatos());
}

QString FicheroDeClave::rutaGuardada() const
{
    const QString trabajo = enCarpeta(m_sesion.carpeta());
    const QString datos = enCarpeta(carpetaDeDatos());
    // What was saved last lies where a key is saved now.
    const bool datosPrimero = rutaParaGuardar() == datos;
    for (const QString &ruta : {datosPrimero ? datos : trabajo, datosPrimero ? trabajo : datos}) {
        if (ExisteFichero(ruta))
            return ruta;
    }
    return {};
}

bool FicheroDeClave::esLarga() const
{
    // Five of its numbers are as long as the product of the primes.
    constexpr qint64 bytes = 5000;
    const QString ruta = rutaGuardada();
    return !ruta.isEmpty() && QFileInfo(rutaExistente(ruta)).size() > bytes;
}

void FicheroDeClave::aparta() const
{
    const QString ruta = rutaGuardada();
    if (tieneClavePropia(ruta)) {
        QDir().mkpath(QFileInfo(rutaExistente(rutaParaGuardar())).absolutePath());
        escribeArchivo(copiaDe(rutaParaGuardar()),
                       leeArchivo(rutaExistente(ruta), Perfil::TamanoMaximo), /*privado*/ true);
    }
}

void FicheroDeClave::retiraCopia() const
{
    // One that cannot be taken away is told from a needed one by the file beside it.
    QFile::remove(copiaDe(rutaParaGuardar()));
}

bool FicheroDeClave::recupera() const
{
    for (const QString &carpeta : {m_sesion.carpeta(), carpetaDeDatos()}) {
        const QString ruta = enCarpeta(carpeta);
        const QString copia = copiaDe(ruta);
        if (!tieneClavePropia(ruta)) {
            if (!tieneClavePropia(copia))
                continue;
            escribeArchivo(rutaExistente(ruta), leeArchivo(copia, Perfil::TamanoMaximo),
                           /*privado*/ true);
            QFile::remove(copia);
            return true;
        }
        QFile::remove(copia);
    }
    return false;
}

QString FicheroDeClave::subcarpetaPropia() const
{
    if (!esNombreSimple(usuario()))
        throw ErrorEjecucion(
            ErrorEjecucion::ArgumentoNoValido,
            Traduce(u"La cuenta no tiene un nombre que sirva para una carpeta."_s));
    return usuario();
}
