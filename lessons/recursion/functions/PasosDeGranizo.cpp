// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/PasosDeGranizo.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/recursion/functions/Granizo.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qint64 MaximoDePasos = 1000;
/// Of values with thousands of digits fewer: all are computed for the first step already.
constexpr qint64 MaximoDeCifras = 400'000;
constexpr qint64 MenosPasos = 60;

qint64 cuantosSeVen(const QString &inicio, qint64 pasos)
{
    return std::min({pasos, MaximoDePasos, std::max(MenosPasos, MaximoDeCifras / inicio.size())});
}
constexpr qsizetype PorFila = 20;

bool esImpar(const QString &h)
{
    return h.back().digitValue() % 2 == 1;
}

QString entreParentesis(const QString &h)
{
    return h.startsWith(u'-') ? u'(' + h + u')' : h;
}

/// The values in their order, computed as they are asked for; those that lie behind from the start
/// again.
class Recorrido
{
public:
    explicit Recorrido(const QString &inicio) : m_inicio(inicio), m_valor(inicio) {}

    QString valor(qint64 paso)
    {
        if (paso < m_paso) {
            m_paso = 0;
            m_valor = m_inicio;
        }
        for (; m_paso < paso; ++m_paso)
            m_valor = siguienteGranizo(m_valor);
        return m_valor;
    }

private:
    QString m_inicio;
    QString m_valor;
    qint64 m_paso = 0;
};

/// How the value of a step depends on the start: 2^mitades · h(k) = 3^triples · h(0) + sobra.
struct Dependencia
{
    qint64 k = 0;
    int mitades = 0;
    int triples = 0;
    QString sobra = u"0"_s;
    QString valor;
};

void avanza(Dependencia &d)
{
    if (esImpar(d.valor)) {
        QString suma = u"3*%1+2^%2"_s.arg(d.sobra).arg(d.mitades);
        d.sobra = Evalua(suma);
        ++d.triples;
    } else {
        ++d.mitades;
    }
    d.valor = siguienteGranizo(d.valor);
    ++d.k;
}

bool menor(const QString &a, const QString &b)
{
    return a.size() != b.size() ? a.size() < b.size() : a < b;
}

QString paridades(const QString &inicio, qint64 pasos)
{
    Recorrido recorrido(inicio);
    QString bits;
    for (qint64 k = 0; k <= pasos; ++k)
        bits += esImpar(recorrido.valor(k)) ? u'1' : u'0';
    return bits;
}

Paso pasoDeParidad(const QString &inicio, qint64 pasos)
{
    const QString bits = paridades(inicio, pasos);
    const auto impares = bits.count(u'1');
    Paso paso{Traduce(u"Vector de paridad: 1 donde el valor es impar, 0 donde es par. Valores "
                      "vistos: %1. Impares: %2."_s)
                  .arg(bits.size())
                  .arg(impares),
              {u"%1 + %2 = %3"_s.arg(impares).arg(bits.size() - impares).arg(bits.size())},
              Traduce(u"Detrás de un impar viene siempre un par: 3 h + 1 es par."_s)};
    paso.lamina = Lamina(Traduce(u"Vector de paridad: %1"_s).arg(bits));
    for (qsizetype i = 0; i < bits.size(); ++i) {
        const bool impar = bits[i] == u'1';
        paso.lamina.rectangulo(QRectF(static_cast<qreal>(i % PorFila),
                                      static_cast<qreal>(i / PorFila) * 1.3, 0.94, 0.94),
                               impar ? Tono{Tono::Acento} : Tono{Tono::Suave}, impar,
                               QString(bits[i]));
    }
    return paso;
}

/// The first value below the start, and why it lies there.
Paso pasoDePlaneo(const QString &inicio, qint64 pasos)
{
    Dependencia d;
    d.valor = inicio;
    bool baja = false;
    while (d.k < pasos && !baja) {
        avanza(d);
        baja = menor(d.valor, inicio);
    }
    if (!baja)
        return {
            Traduce(u"Hasta el paso %1 ningún valor baja del inicial: no hay planeo."_s).arg(d.k),
            {u"h_{%1} = %2 >= %3"_s.arg(d.k).arg(d.valor, inicio)}};
    return {
        Traduce(
            u"El primer valor menor que el inicial es el del paso %1: ese es el planeo (glide). "
            "Mitades hasta él: %2. Triples: %3."_s)
            .arg(d.k)
            .arg(d.mitades)
            .arg(d.triples),
        {u"h_{%1} = %2 < %3 = h_0"_s.arg(d.k).arg(d.valor, inicio),
         u"2^%1*%2 = 3^%3*%4 + %5"_s.arg(d.mitades).arg(d.valor).arg(d.triples).arg(inicio,
                                                                                    d.sobra),
         u"3^%1 < 2^%2"_s.arg(d.triples).arg(d.mitades)},
        Traduce(u"Baja cuando las mitades pueden más que los triples."_s)};
}

Paso pasoDeValor(const QString &h, qint64 k)
{
    const bool impar = esImpar(h);
    const QString siguiente = siguienteGranizo(h);
    const QString cuenta = impar ? u"3*%1 + 1"_s.arg(entreParentesis(h)) : u"%1/2"_s.arg(h);
    return {impar ? Traduce(u"%1 es impar: tres veces él, más uno."_s).arg(h)
                  : Traduce(u"%1 es par: su mitad."_s).arg(h),
            {u"h_{%1} = %2 = %3"_s.arg(k + 1).arg(cuenta, siguiente)}};
}

} // namespace

Pasos pasosDeGranizo(const QString &inicio, qint64 pasos)
{
    const qint64 vistos = cuantosSeVen(inicio, pasos);
    // The glide is told of a positive start only: negative ones rise as they fall.
    const qsizetype previos = inicio.startsWith(u'-') ? 1 : 2;
    const auto recorrido = std::make_shared<Recorrido>(inicio);
    return Pasos(previos + vistos, [inicio, vistos, previos, recorrido](qsizetype i) {
        if (i == 0)
            return pasoDeParidad(inicio, vistos);
        if (i < previos)
            return pasoDePlaneo(inicio, vistos);
        return pasoDeValor(recorrido->valor(i - previos), i - previos);
    });
}
