// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/bank/shared/Juicios.h"

#include "practice/bank/shared/Numeros.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

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
            return correcto();
        for (const ErrorTipico &error : errores) {
            if (son(error.numeros))
                return Fallo::mal(error.palabra, error.nota);
        }
        return Fallo::mal(otra);
    };
}

} // namespace

Juicio juicioDe(const QString &esperados, const QList<ErrorTipico> &errores, const QString &otra)
{
    return juicioComo([](const QStringList &numeros) { return numeros; }, esperados, errores, otra);
}

Juicio juicioSinOrden(const QString &esperados, const QList<ErrorTipico> &errores,
                      const QString &otra)
{
    return juicioComo(ordenados, esperados, errores, otra);
}

Juicio juicioDeResto(qint64 esperado, qint64 n, const QList<ErrorTipico> &errores,
                     const QString &otra)
{
    const QString reducido = numero(esperado);
    return [=, juicio = juicioDe(reducido, errores, otra)](const RespuestaLeida &respuesta) {
        const QString &dado = respuesta.numeros[0];
        return dado != reducido && restoDe(dado, n) == esperado ? sinReducir(n) : juicio(respuesta);
    };
}

qint64 numeroDe(const RespuestaLeida &respuesta, qsizetype lugar)
{
    bool cabe = false;
    const qint64 numero = respuesta.numeros.value(lugar).toLongLong(&cabe);
    return cabe ? numero : -4'000'000'000'000'000'000;
}

std::optional<qint64> numeroCorto(const RespuestaLeida &respuesta, qsizetype i)
{
    const QString numero = respuesta.numeros.value(i);
    if (numero.isEmpty() || numero.size() > (numero.startsWith(u'-') ? 10 : 9))
        return {};
    return numero.toLongLong();
}

Fallo correcto()
{
    return Fallo::bien(Traduce(u"¡Correcto!"_s));
}

Fallo sinReducir(qint64 n)
{
    return Fallo::mal(
        Traduce(u"Es congruente con la solución, pero un resto está entre 0 y %1."_s).arg(n - 1),
        u"sin-reducir"_s);
}

Fallo faltanNumeros(qsizetype pedidos)
{
    return Fallo::mal(Traduce(u"Se piden %1 números."_s).arg(pedidos), u"cuantos"_s);
}

Fallo noEsInverso(qint64 a, qint64 dado, qint64 n)
{
    return Fallo::mal(Traduce(u"%1 · %2 = %3, que es %4 módulo %5, y tendría que ser 1."_s)
                          .arg(a)
                          .arg(dado)
                          .arg(a * dado)
                          .arg(a * dado % n)
                          .arg(n),
                      u"no-da-uno"_s);
}
