#include "lessons/rsa/key/FicheroDeClave.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"

#include <QFileInfo>
#include <QStandardPaths>

using namespace Qt::Literals::StringLiterals;

const QString FicheroClavePublica = u"Clave.RSA"_s;

namespace {

QString enCarpeta(const QString &carpeta)
{
    return carpeta + u'\\' + Sesión().UserName() + u".RSA"_s;
}

QString carpetaDeDatos()
{
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) + u"/Numora"_s;
}

/// A file is replaced by one that is made beside it, so that the folder has to be writable.
bool seEscribeEn(const QString &carpeta)
{
    const QFileInfo info(rutaExistente(carpeta));
    return info.isDir() && info.isWritable();
}

} // namespace

QString rutaParaGuardarClave()
{
    return enCarpeta(seEscribeEn(Sesión().carpeta()) ? Sesión().carpeta() : carpetaDeDatos());
}

QString rutaDeClaveGuardada()
{
    const QString trabajo = enCarpeta(Sesión().carpeta());
    const QString datos = enCarpeta(carpetaDeDatos());
    // What was saved last lies where a key is saved now.
    const bool datosPrimero = rutaParaGuardarClave() == datos;
    for (const QString &ruta : {datosPrimero ? datos : trabajo, datosPrimero ? trabajo : datos}) {
        if (ExisteFichero(ruta))
            return ruta;
    }
    return {};
}

QString subcarpetaPropia()
{
    const QString usuario = Sesión().UserName();
    if (!esNombreSimple(usuario))
        throw ErrorEjecucion(
            ErrorEjecucion::ArgumentoNoValido,
            Traduce(u"La cuenta no tiene un nombre que sirva para una carpeta."_s));
    return usuario;
}
