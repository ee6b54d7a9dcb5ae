// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Traduccion.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"

#include <QDateTime>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The table of translations, read again only when the file on disk has changed.
const Perfil &tablaDeTextos()
{
    static Perfil tabla;
    static QDateTime leida;
    static bool vacia = true;
    const QFileInfo archivo(Sesión().carpetaPrograma() + u"/Numora.txt"_s);
    const QDateTime fecha = archivo.lastModified();
    if (!archivo.exists() && !vacia) {
        tabla = Perfil();
        vacia = true;
    } else if (archivo.exists() && (vacia || fecha != leida)) {
        tabla.lee(archivo.filePath());
        leida = fecha;
        vacia = false;
    }
    return tabla;
}

} // namespace

bool HayTraduccion()
{
    return Idioma() != IdiomaPropio && tablaDeTextos().tieneSeccion(Idioma());
}

QString entradaDeNumora(const QString &idioma, const QString &texto)
{
    QString clave = texto;
    // A key ends at the first "=" of its line.
    clave.replace(u"\n"_s, u"\\n"_s).replace(u"="_s, u"\\e"_s);
    return tablaDeTextos().valor(idioma, clave, {}, 1024).replace(u"\\n"_s, u"\n"_s);
}

QString PaginaTraducida(const QString &pagina, const QString &idioma)
{
    if (idioma == IdiomaPropio || !esNombreSimple(idioma))
        return pagina;
    const qsizetype nombre = std::max(pagina.lastIndexOf(u'\\'), pagina.lastIndexOf(u'/')) + 1;
    const QString traducida = pagina.first(nombre) + idioma + u'\\' + pagina.sliced(nombre);
    return QFileInfo(rutaExistente(traducida)).isFile() ? traducida : pagina;
}
