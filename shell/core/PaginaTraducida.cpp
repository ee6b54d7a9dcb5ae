#include "shell/core/PaginaTraducida.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"

#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

QString PaginaTraducida(const QString &pagina, const QString &idioma)
{
    if (idioma == IdiomaPropio || !esNombreSimple(idioma))
        return pagina;
    const qsizetype nombre = std::max(pagina.lastIndexOf(u'\\'), pagina.lastIndexOf(u'/')) + 1;
    const QString traducida = pagina.first(nombre) + idioma + u'\\' + pagina.sliced(nombre);
    return QFileInfo(rutaExistente(traducida)).isFile() ? traducida : pagina;
}
