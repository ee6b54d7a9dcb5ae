// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/FormulaCompuesta.h"

#include "shell/core/steps/EscrituraDeFormula.h"
#include "shell/core/steps/NumerosEnPantalla.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

using Nodo = NodoDeFormula;
using Caja = FormulaCompuesta::Caja;

constexpr qreal CuerpoMenor = 0.72;   ///< of exponents and subscripts, to what they stand on
constexpr qreal MasReduccion = 0.65;  ///< of a formula that is too wide
constexpr qsizetype Cifras = 40;      ///< of the longest number that is written whole
constexpr qsizetype PocasCifras = 20; ///< where there is no room for it
constexpr qsizetype SoloPuntas = 3;   ///< at either end, where there is hardly any room at all
constexpr qreal MenorLetra = 6;       ///< points; nothing is set smaller

QFont reducida(QFont fuente, qreal factor)
{
    if (fuente.pointSizeF() > 0)
        fuente.setPointSizeF(std::max(MenorLetra, fuente.pointSizeF() * factor));
    else
        fuente.setPixelSize(std::max(8, static_cast<int>(fuente.pixelSize() * factor)));
    return fuente;
}

/// Puts a box beside (`dx`) and under (`dy`) the base line of another one.
void junta(Caja &caja, const Caja &otra, qreal dx, qreal dy)
{
    for (const auto &letras : otra.letras)
        caja.letras.append({letras.lugar + QPointF(dx, dy), letras.texto, letras.fuente});
    for (const QLineF &raya : otra.rayas)
        caja.rayas.append(raya.translated(dx, dy));
    caja.ancho = std::max(caja.ancho, dx + otra.ancho);
    caja.alto = std::max(caja.alto, otra.alto - dy);
    caja.bajo = std::max(caja.bajo, otra.bajo + dy);
}

void sigue(Caja &caja, const Caja &otra)
{
    junta(caja, otra, caja.ancho, 0);
}

/// Sets the pieces of a formula in one size of type.
class Compositor
{
public:
    Compositor(const QFont &fuente, qsizetype masCifras)
        : m_fuente(fuente), m_medidas(fuente), m_masCifras(masCifras)
    {
    }

    Caja nodo(const Nodo &n) const
    {
        switch (n.clase) {
        case Nodo::Numero:
            return texto(numero(n.texto));
        case Nodo::Palabra:
            return texto(n.texto);
        case Nodo::Nombre:
            return nombre(n);
        case Nodo::Puntos:
            return texto(u"…"_s);
        case Nodo::Fraccion:
            return fraccion(n);
        case Nodo::Potencia:
            return potencia(n);
        case Nodo::Funcion:
            return funcion(n);
        case Nodo::Parentesis:
            return entre(u"("_s, partes(n), u")"_s);
        default:
            break;
        }
        Caja fila;
        for (const Caja &trozo : trozos(n))
            sigue(fila, trozo);
        return fila;
    }

    /// What a line may be broken into: terms, factors and sides, each with the sign before it.
    std::vector<Caja> trozos(const Nodo &n) const
    {
        switch (n.clase) {
        case Nodo::Opuesto:
            return conSigno(u"−"_s, trozosDeParte(n, 0));
        case Nodo::Operacion:
            return encadena(trozosDeParte(n, 0), n.texto, trozosDeParte(n, 1));
        case Nodo::Relacion:
        case Nodo::Lista:
            return cadena(n);
        default:
            return {nodo(n)};
        }
    }

private:
    QString numero(const QString &cifras) const
    {
        if (m_masCifras > SoloPuntas || cifras.size() <= 3 * SoloPuntas)
            return numeroEnPantalla(cifras, std::max(m_masCifras, PocasCifras));
        return cifras.first(SoloPuntas) + u'…' + cifras.last(SoloPuntas);
    }

    std::vector<Caja> trozosDeParte(const Nodo &n, std::size_t i) const
    {
        if (llevaParentesis(n, i))
            return {entre(u"("_s, nodo(n.partes[i]), u")"_s)};
        return trozos(n.partes[i]);
    }

    std::vector<Caja> conSigno(const QString &signo, std::vector<Caja> trozos) const
    {
        Caja primera = texto(signo);
        sigue(primera, trozos.front());
        trozos.front() = primera;
        return trozos;
    }

    std::vector<Caja> encadena(std::vector<Caja> izquierda, const QString &signo,
                               std::vector<Caja> derecha) const
    {
        if (signo == u","_s)
            sigue(izquierda.back(), texto(u",  "_s));
        else
            derecha = conSigno(u' ' + signoImpreso(signo) + u' ', std::move(derecha));
        izquierda.insert(izquierda.end(), derecha.begin(), derecha.end());
        return izquierda;
    }

    std::vector<Caja> cadena(const Nodo &n) const
    {
        std::vector<Caja> hechos = trozos(n.partes.front());
        for (qsizetype i = 0; i < n.signos.size(); ++i)
            hechos = encadena(std::move(hechos), n.signos[i],
                              trozos(n.partes[static_cast<std::size_t>(i) + 1]));
        if (n.conModulo) {
            Caja modulo = texto(u"  (mod "_s);
            sigue(modulo, nodo(n.partes.back()));
            sigue(modulo, texto(u")"_s));
            hechos.push_back(modulo);
        }
        return hechos;
    }

    Caja texto(const QString &escrito, bool cursiva = false) const
    {
        QFont fuente = m_fuente;
        fuente.setItalic(cursiva);
        const QFontMetricsF medidas(fuente);
        return {{{QPointF(), escrito, fuente}},
                {},
                medidas.horizontalAdvance(escrito) + (cursiva ? m_medidas.height() * 0.04 : 0),
                medidas.ascent(),
                medidas.descent()};
    }

    Caja nombre(const Nodo &n) const
    {
        Caja caja = texto(n.texto, n.texto.size() == 1);
        if (!n.partes.empty())
            junta(caja, menor().nodo(n.partes.front()), caja.ancho, m_medidas.ascent() * 0.28);
        return caja;
    }

    Caja potencia(const Nodo &n) const
    {
        Caja base =
            llevaParentesis(n, 0) ? entre(u"("_s, nodo(n.partes[0]), u")"_s) : nodo(n.partes[0]);
        const Caja exponente = menor().nodo(n.partes[1]);
        const qreal alza = std::max(m_medidas.ascent() * 0.42, base.alto - exponente.alto * 0.6);
        junta(base, exponente, base.ancho, -alza);
        return base;
    }

    Caja fraccion(const Nodo &n) const
    {
        const Caja arriba = nodo(n.partes[0]);
        const Caja abajo = nodo(n.partes[1]);
        const qreal eje = -m_medidas.ascent() * 0.36;
        const qreal aire = m_medidas.height() * 0.08;
        const qreal ancho = std::max(arriba.ancho, abajo.ancho) + 4 * aire;
        Caja caja;
        junta(caja, arriba, (ancho - arriba.ancho) / 2, eje - aire - arriba.bajo);
        junta(caja, abajo, (ancho - abajo.ancho) / 2, eje + aire + abajo.alto);
        caja.rayas.append(QLineF(aire, eje, ancho - aire, eje));
        caja.ancho = ancho;
        return caja;
    }

    Caja funcion(const Nodo &n) const
    {
        if (n.texto == u"floor"_s)
            return entre(u"⌊"_s, partes(n), u"⌋"_s);
        if (n.texto == u"ceil"_s)
            return entre(u"⌈"_s, partes(n), u"⌉"_s);
        if (n.texto == u"abs"_s)
            return entre(u"|"_s, partes(n), u"|"_s);
        if (n.texto == u"sqrt"_s)
            return raiz(partes(n));
        if (n.texto == u"factorial"_s)
            return factorial(n);
        Caja caja = texto(n.texto, n.texto.size() == 1);
        sigue(caja, entre(u"("_s, partes(n), u")"_s));
        return caja;
    }

    Caja factorial(const Nodo &n) const
    {
        const Nodo::Clase clase = n.partes.front().clase;
        Caja caja = clase == Nodo::Numero || clase == Nodo::Nombre
                        ? partes(n)
                        : entre(u"("_s, partes(n), u")"_s);
        sigue(caja, texto(u"!"_s));
        return caja;
    }

    Caja raiz(const Caja &dentro) const
    {
        Caja caja = texto(u"√"_s);
        const qreal techo = -std::max(dentro.alto, caja.alto) * 0.98;
        caja.rayas.append(QLineF(caja.ancho, techo, caja.ancho + dentro.ancho, techo));
        sigue(caja, dentro);
        return caja;
    }

    Caja partes(const Nodo &n) const
    {
        Caja caja;
        for (std::size_t i = 0; i < n.partes.size(); ++i) {
            if (i > 0)
                sigue(caja, texto(u"; "_s));
            sigue(caja, nodo(n.partes[i]));
        }
        return caja;
    }

    Caja entre(const QString &abre, const Caja &dentro, const QString &cierra) const
    {
        Caja caja = texto(abre);
        sigue(caja, dentro);
        sigue(caja, texto(cierra));
        return caja;
    }

    Compositor menor() const { return {reducida(m_fuente, CuerpoMenor), m_masCifras}; }

    QFont m_fuente;
    QFontMetricsF m_medidas;
    qsizetype m_masCifras;
};

} // namespace

FormulaCompuesta::FormulaCompuesta(const Formula &formula, const QFont &fuente, qreal ancho)
{
    if (formula.vacia())
        return;
    const qreal sangria = 1.5 * QFontMetricsF(fuente).height();
    reparte(Compositor(fuente, Cifras).trozos(formula.raiz()), ancho, sangria);
    if (m_tamano.width() <= ancho)
        return;
    // A long number is never broken: it is set somewhat smaller, or shortened as well. Type comes
    // in whole pixels, so in proportion is not quite enough.
    constexpr qreal PixelesEnteros = 0.93;
    const qreal factor = std::max(MasReduccion, PixelesEnteros * ancho / m_tamano.width());
    const QFont menor = reducida(fuente, factor);
    reparte(Compositor(menor, Cifras).trozos(formula.raiz()), ancho, sangria);
    for (const qsizetype cifras : {PocasCifras, SoloPuntas}) {
        if (m_tamano.width() > ancho)
            reparte(Compositor(menor, cifras).trozos(formula.raiz()), ancho, sangria);
    }
}

void FormulaCompuesta::reparte(const std::vector<Caja> &trozos, qreal ancho, qreal sangria)
{
    std::vector<Caja> lineas(1);
    for (const Caja &trozo : trozos) {
        const qreal hueco = lineas.size() > 1 ? ancho - sangria : ancho;
        if (lineas.back().ancho > 0 && lineas.back().ancho + trozo.ancho > hueco)
            lineas.emplace_back();
        sigue(lineas.back(), trozo);
    }
    m_caja = {};
    qreal y = 0;
    for (std::size_t i = 0; i < lineas.size(); ++i) {
        const qreal x = i > 0 ? sangria : 0;
        junta(m_caja, lineas[i], x, y + lineas[i].alto);
        y += lineas[i].alto + lineas[i].bajo;
    }
    m_tamano = QSizeF(m_caja.ancho, y);
}

void FormulaCompuesta::pinta(QPainter &pintor, QPointF esquina) const
{
    for (const Letras &letras : m_caja.letras) {
        pintor.setFont(letras.fuente);
        pintor.drawText(esquina + letras.lugar, letras.texto);
    }
    for (const QLineF &raya : m_caja.rayas)
        pintor.drawLine(raya.translated(esquina));
}
