// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Lectura.h"
#include "shell/core/Rutas.h"
#include "shell/core/Traduccion.h"

#include <QFileInfo>
#include <QRegularExpression>
#include <cmath>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

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

QString Traduce(const QString &texto)
{
    const QString clave = texto.trimmed();
    if (clave.isEmpty() || Idioma().isEmpty())
        return texto;
    const QString hallado = entradaDeNumora(Idioma(), clave);
    if (hallado.isNull())
        return texto;
    const qsizetype inicio = texto.indexOf(clave);
    return texto.left(inicio) + hallado + texto.sliced(inicio + clave.size());
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

/// Not by std::round, which on Windows adds a half and so rounds up what is just below one.
std::int32_t Redondea(double valor)
{
    const double entero = std::trunc(valor);
    const bool sube = std::abs(valor - entero) >= 0.5;
    return comprobado(sube ? entero + std::copysign(1, valor) : entero);
}

std::int32_t Techo(double valor)
{
    return comprobado(std::ceil(valor));
}
