#include "shell/core/ModGlobal.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"

#include <QDateTime>
#include <QFileInfo>
#include <QRegularExpression>
#include <cmath>
#include <limits>

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

std::int32_t comprobado(double entero)
{
    if (!(entero <= std::numeric_limits<std::int32_t>::max() &&
          entero >= std::numeric_limits<std::int32_t>::min()))
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return static_cast<std::int32_t>(entero);
}

} // namespace

QString &Idioma()
{
    static QString idioma = IdiomaPropio.toString();
    return idioma;
}

bool HayTraduccion()
{
    return Idioma() != IdiomaPropio && tablaDeTextos().tieneSeccion(Idioma());
}

QString Traduce(const QString &texto)
{
    const QString clave = texto.trimmed();
    if (clave.isEmpty() || Idioma().isEmpty())
        return texto;
    QString entrada = clave;
    // A key ends at the first "=" of its line.
    entrada.replace(u"\n"_s, u"\\n"_s).replace(u"="_s, u"\\e"_s);
    QString hallado = tablaDeTextos().valor(Idioma(), entrada, {}, 1024);
    if (hallado.isEmpty())
        return texto;
    hallado.replace(u"\\n"_s, u"\n"_s);
    const qsizetype inicio = texto.indexOf(clave);
    return texto.left(inicio) + hallado + texto.sliced(inicio + clave.size());
}

bool EsNumerico(const QString &texto)
{
    static const QRegularExpression forma(
        u"^\\s*[+-]?(\\d+([.,]\\d*)?|[.,]\\d+)([eEdD][+-]?\\d+)?\\s*$"_s);
    return forma.match(texto).hasMatch() &&
           std::isfinite(QString(texto)
                             .replace(u',', u'.')
                             .replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive)
                             .trimmed()
                             .toDouble());
}

double NumVal(const QString &texto)
{
    static const QRegularExpression prefijo(u"^[+-]?(\\d+\\.?\\d*|\\.\\d+)([eEdD][+-]?\\d+)?"_s);
    if (!EsNumerico(texto))
        return 0;
    QString numero = prefijo.match(texto.trimmed()).captured();
    return numero.replace(QChar(u'd'), QChar(u'e'), Qt::CaseInsensitive).toDouble();
}

bool ExisteFichero(const QString &ruta)
{
    return !ruta.isEmpty() && QFileInfo::exists(rutaExistente(ruta));
}

std::int32_t Redondea(double valor)
{
    // Not by adding a half: that sum carries the greatest double below 0.5 to 1.
    const double entero = std::trunc(valor);
    const bool sube = std::abs(valor - entero) >= 0.5;
    return comprobado(sube ? entero + std::copysign(1, valor) : entero);
}

std::int32_t Techo(double valor)
{
    return comprobado(std::ceil(valor));
}
