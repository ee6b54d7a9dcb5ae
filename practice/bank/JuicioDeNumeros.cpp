// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/JuicioDeNumeros.h"

#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <limits>

using namespace Qt::Literals::StringLiterals;

namespace {

QStringList ordenados(QStringList numeros)
{
    std::sort(numeros.begin(), numeros.end());
    return numeros;
}

Juicio juicioComo(const std::function<QStringList(const QStringList &)> &forma,
                  const QString &esperados, const QList<ErrorTipico> &errores, const QString &otra)
{
    return [forma, esperados, errores, otra](const RespuestaLeida &respuesta) {
        const auto son = [&](const QString &numeros) {
            return forma(respuesta.numeros) == forma(numeros.split(u' '));
        };
        if (son(esperados))
            return acierto();
        for (const ErrorTipico &error : errores) {
            if (son(error.numeros))
                return Fallo::mal(error.palabra, error.nota);
        }
        return Fallo::mal(otra);
    };
}

} // namespace

Fallo acierto()
{
    return Fallo::bien(Traduce(u"¡Correcto!"_s));
}

Juicio juicioDe(const QString &esperados, const QList<ErrorTipico> &errores, const QString &otra)
{
    return juicioComo([](const QStringList &numeros) { return numeros; }, esperados, errores, otra);
}

Juicio juicioSinOrden(const QString &esperados, const QList<ErrorTipico> &errores,
                      const QString &otra)
{
    return juicioComo(ordenados, esperados, errores, otra);
}

qint64 numeroDe(const RespuestaLeida &respuesta, qsizetype lugar)
{
    bool cabe = false;
    const qint64 numero = respuesta.numeros.value(lugar).toLongLong(&cabe);
    return cabe ? numero : std::numeric_limits<qint64>::min();
}
