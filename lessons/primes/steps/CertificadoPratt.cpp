// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/CertificadoPratt.h"

#include "bignum/gateway/FactoresHallados.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/steps/CadenaDeCuadrados.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EscrituraDeFormula.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QList<NodoDePratt::Factor> factoresDe(const QString &n)
{
    QList<NodoDePratt::Factor> factores;
    BuscaFactores(n, [&](const FactorHallado &factor) {
        factores << NodoDePratt::Factor{factor.base, static_cast<int>(factor.exponente)};
        return true;
    });
    std::ranges::sort(factores, {}, [](const auto &factor) { return factor.primo.toULongLong(); });
    return factores;
}

QString resto(const NodoDePratt &nodo, const NodoDePratt::Factor &factor)
{
    const QString exponente =
        QString::number(nodo.p.toULongLong() / factor.primo.toULongLong()); // of p − 1 as well
    return PotenciaMod(nodo.testigo, exponente, nodo.p);
}

bool tieneOrdenMaximo(const NodoDePratt &nodo)
{
    return std::ranges::none_of(
        nodo.factores, [&nodo](const auto &factor) { return resto(nodo, factor) == u"1"_s; });
}

QString producto(const QList<NodoDePratt::Factor> &factores)
{
    QStringList potencias;
    for (const auto &factor : factores)
        potencias << (factor.exponente == 1 ? factor.primo
                                            : u"%1^%2"_s.arg(factor.primo).arg(factor.exponente));
    return potencias.join(u'*');
}

bool esEvidente(const QString &p)
{
    return p.toULongLong() < CertificadoPratt::Evidentes;
}

constexpr qreal Alto = 30, Separacion = 12, Salto = 58; // of the tree

qreal anchoDeCaja(const QString &texto)
{
    return 24 + 9 * static_cast<qreal>(texto.size());
}

/// The primes that need no proof share a leaf.
QString hojaDe(const NodoDePratt &nodo)
{
    QList<NodoDePratt::Factor> evidentes;
    for (const auto &factor : nodo.factores) {
        if (esEvidente(factor.primo))
            evidentes << factor;
    }
    return comoTexto(Formula(producto(evidentes)).raiz());
}

} // namespace

CertificadoPratt::CertificadoPratt(const QString &p)
{
    agrega(p);
}

void CertificadoPratt::agrega(const QString &p)
{
    NodoDePratt nodo{p, u"2"_s, factoresDe(anterior(p))};
    for (int g = 2; !tieneOrdenMaximo(nodo); nodo.testigo = QString::number(++g)) {
    }
    m_nodos << nodo;
    for (const auto &factor : std::as_const(nodo.factores)) {
        const bool esta =
            std::ranges::find(m_nodos, factor.primo, &NodoDePratt::p) != m_nodos.end();
        if (!esta && !esEvidente(factor.primo))
            agrega(factor.primo);
    }
}

Paso CertificadoPratt::paso(qsizetype nodo) const
{
    const NodoDePratt &este = m_nodos[nodo];
    const QString menosUno = anterior(este.p);
    const QString &g = este.testigo;
    Paso paso{
        Traduce(u"Certificado de %1: el orden de %2 módulo %1 es %3, y por eso %1 es primo."_s)
            .arg(este.p, g, menosUno),
        {Formula(u"%1 - 1 = %2"_s.arg(este.p, producto(este.factores))),
         Formula(u"%1^{%2} == 1 (mod %3)"_s.arg(g, menosUno, este.p))},
        Traduce(u"Si g elevado a p − 1 da 1 módulo p, y no lo da ningún g elevado a (p − 1)/q con "
                "q primo, el orden de g es p − 1: hay p − 1 unidades, y p es primo (Lucas)."_s)};
    QStringList porCertificar;
    for (const auto &factor : este.factores) {
        const QString r = resto(este, factor);
        paso.formulas << Formula(
            u"%1^{%2/%3} == %4 (mod %5), %4 != 1"_s.arg(g, menosUno, factor.primo, r, este.p));
        if (!esEvidente(factor.primo))
            porCertificar << factor.primo;
    }
    paso.frase +=
        porCertificar.isEmpty()
            ? Traduce(u" Los primos de %1 son menores que 100."_s).arg(menosUno)
            : Traduce(u" Falta ver que son primos: %1."_s).arg(porCertificar.join(u", "_s));
    paso.lamina = arbol(nodo);
    return paso;
}

Lamina CertificadoPratt::arbol(qsizetype actual) const
{
    Lamina lamina(Traduce(u"Árbol del certificado: bajo cada primo p, los primos de p − 1. Van "
                          "comprobados %1 de %2."_s)
                      .arg(actual + 1)
                      .arg(m_nodos.size()));
    dibuja(lamina, 0, actual, {0, 0});
    return lamina;
}

qsizetype CertificadoPratt::nodoDe(const QString &p) const
{
    return std::ranges::find(m_nodos, p, &NodoDePratt::p) - m_nodos.begin();
}

/// The width of a node with all that hangs from it.
qreal CertificadoPratt::ancho(qsizetype nodo) const
{
    qreal suma = anchoDeCaja(hojaDe(m_nodos[nodo]));
    for (const auto &factor : m_nodos[nodo].factores) {
        if (!esEvidente(factor.primo))
            suma += Separacion + ancho(nodoDe(factor.primo));
    }
    return std::max(suma, anchoDeCaja(m_nodos[nodo].p));
}

/// Draws a node within its width, which begins at that corner; gives the middle of its box.
qreal CertificadoPratt::dibuja(Lamina &lamina, qsizetype nodo, qsizetype actual,
                               QPointF esquina) const
{
    const NodoDePratt &este = m_nodos[nodo];
    const QPointF abajo = esquina + QPointF(0, Salto);
    const QString hoja = hojaDe(este);
    const QRectF cajaDeHoja(abajo, QSizeF(anchoDeCaja(hoja), Alto));
    QList<qreal> centros;
    qreal x = abajo.x() + cajaDeHoja.width() + Separacion;
    for (const auto &factor : este.factores) {
        if (esEvidente(factor.primo))
            continue;
        const qsizetype rama = nodoDe(factor.primo);
        centros << dibuja(lamina, rama, actual, {x, abajo.y()});
        x += ancho(rama) + Separacion;
    }
    // A leaf of its own stands below the middle of its box.
    const qreal solo = esquina.x() + ancho(nodo) / 2;
    const QRectF lugarDeHoja =
        centros.isEmpty() ? cajaDeHoja.translated(solo - cajaDeHoja.center().x(), 0) : cajaDeHoja;
    centros.prepend(lugarDeHoja.center().x());
    lamina.elipse(lugarDeHoja, {Tono::Acierto}, false, hoja);
    const qreal centro =
        std::max((centros.first() + centros.last()) / 2, esquina.x() + anchoDeCaja(este.p) / 2);
    for (const qreal otro : std::as_const(centros))
        lamina.linea({centro, esquina.y() + Alto}, {otro, abajo.y()}, {Tono::Suave});
    lamina.rectangulo({centro - anchoDeCaja(este.p) / 2, esquina.y(), anchoDeCaja(este.p), Alto},
                      {nodo == actual ? Tono::Acento : Tono::Acierto}, nodo <= actual, este.p);
    return centro;
}
