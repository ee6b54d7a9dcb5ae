// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/PasoCompuesto.h"

#include "shell/core/steps/NumerosEnPantalla.h"

#include <QFontMetricsF>
#include <QPainter>
#include <algorithm>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal CuerpoDeRegla = 0.9; ///< to the sentence
constexpr qreal CuerpoDeFormula = 1.15;

QFont escalada(QFont fuente, qreal factor)
{
    if (fuente.pointSizeF() > 0)
        fuente.setPointSizeF(fuente.pointSizeF() * factor);
    else
        fuente.setPixelSize(std::max(1, qRound(fuente.pixelSize() * factor)));
    return fuente;
}

/// What each column needs: its widest cell, the header in bold, and a margin.
QList<qreal> anchosDe(const TablaDePaso &tabla, const QFont &fuente)
{
    QFont negrita = fuente;
    negrita.setBold(true);
    const QFontMetricsF medidas(fuente), deCabecera(negrita);
    QList<qreal> anchos(tabla.cabecera.size(), 0);
    const auto mide = [&](const QStringList &fila, const QFontMetricsF &metrica) {
        for (qsizetype i = 0; i < std::min(fila.size(), anchos.size()); ++i)
            anchos[i] =
                std::max(anchos[i], metrica.horizontalAdvance(conNumerosEnPantalla(fila[i])) +
                                        std::max(12.0, medidas.height()));
    };
    mide(tabla.cabecera, deCabecera);
    for (const QStringList &fila : tabla.filas)
        mide(fila, medidas);
    return anchos;
}

qreal suma(const QList<qreal> &anchos)
{
    return std::accumulate(anchos.begin(), anchos.end(), 0.0);
}

} // namespace

struct PasoCompuesto::Texto
{
    QTextLayout lineas;
    QPointF lugar;
    bool atenuado = false;
};

PasoCompuesto::PasoCompuesto(const Paso &paso, qsizetype numero, const QFont &fuente, qreal ancho)
    : m_fuente(fuente), m_ancho(ancho), m_numero(u"%1."_s.arg(numero + 1))
{
    const QFontMetricsF medidas(fuente);
    m_sangria = std::max(medidas.horizontalAdvance(m_numero + u' '), 1.6 * medidas.height());
    agregaTexto(paso.frase, fuente, false);
    for (const Formula &formula : paso.formulas)
        agregaFormula(formula);
    if (!paso.tabla.filas.isEmpty())
        agregaTabla(paso.tabla);
    if (!paso.regla.isEmpty())
        agregaTexto(paso.regla, escalada(fuente, CuerpoDeRegla), true);
}

PasoCompuesto::~PasoCompuesto() = default;

void PasoCompuesto::agregaTexto(const QString &texto, const QFont &fuente, bool atenuado)
{
    auto nuevo = std::make_unique<Texto>();
    nuevo->lineas.setText(conNumerosEnPantalla(texto));
    nuevo->lineas.setFont(fuente);
    QTextOption opcion;
    opcion.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    nuevo->lineas.setTextOption(opcion);
    nuevo->lugar = QPointF(m_sangria, m_alto);
    nuevo->atenuado = atenuado;
    qreal y = 0;
    nuevo->lineas.beginLayout();
    for (QTextLine linea = nuevo->lineas.createLine(); linea.isValid();
         linea = nuevo->lineas.createLine()) {
        linea.setLineWidth(std::max(1.0, m_ancho - m_sangria));
        linea.setPosition(QPointF(0, y));
        y += linea.height();
    }
    nuevo->lineas.endLayout();
    m_alto += y;
    m_textos.push_back(std::move(nuevo));
}

void PasoCompuesto::agregaFormula(const Formula &formula)
{
    const QFont fuente = escalada(m_fuente, CuerpoDeFormula);
    const qreal sangria = m_sangria + QFontMetricsF(m_fuente).height();
    const qreal aire = QFontMetricsF(fuente).height() * 0.25;
    const FormulaCompuesta compuesta(formula, fuente, std::max(1.0, m_ancho - sangria));
    m_formulas.emplace_back(QPointF(sangria, m_alto + aire), compuesta);
    m_alto += compuesta.tamano().height() + 2 * aire;
}

void PasoCompuesto::agregaTabla(const TablaDePaso &tabla)
{
    // A wide table is set smaller, and its columns made narrower when that does not help.
    const qreal hueco = m_ancho - m_sangria;
    m_fuenteDeTabla = m_fuente;
    QList<qreal> anchos = anchosDe(tabla, m_fuenteDeTabla);
    for (const qreal cuerpo : {0.9, 0.8, 0.7}) {
        if (suma(anchos) <= hueco)
            break;
        m_fuenteDeTabla = escalada(m_fuente, cuerpo);
        anchos = anchosDe(tabla, m_fuenteDeTabla);
    }
    const qreal apretado = std::min(1.0, hueco / suma(anchos));
    for (qreal &ancho : anchos)
        ancho *= apretado;
    const QFontMetricsF medidas(m_fuenteDeTabla);
    const qreal alto = medidas.height() * 1.4;
    m_alto += medidas.height() * 0.3;
    const auto agrega = [&](const QStringList &fila, bool cabecera, bool marcada) {
        qreal x = m_sangria;
        for (qsizetype i = 0; i < anchos.size(); ++i) {
            m_celdas.append({QRectF(x, m_alto, anchos[i], alto),
                             conNumerosEnPantalla(fila.value(i)), cabecera, marcada});
            x += anchos[i];
        }
        m_alto += alto;
    };
    agrega(tabla.cabecera, true, false);
    for (qsizetype i = 0; i < tabla.filas.size(); ++i)
        agrega(tabla.filas[i], false, tabla.marcadas.contains(i));
    m_alto += medidas.height() * 0.3;
}

void PasoCompuesto::pintaCelda(QPainter &pintor, const Celda &celda,
                               const TintasDePaso &tintas) const
{
    if (celda.marcada) {
        QColor fondo = tintas.acento;
        fondo.setAlphaF(0.18F);
        pintor.fillRect(celda.lugar, fondo);
    }
    pintor.setPen(tintas.atenuado);
    pintor.drawLine(celda.lugar.bottomLeft(), celda.lugar.bottomRight());
    QFont fuente = m_fuenteDeTabla;
    fuente.setBold(celda.cabecera);
    pintor.setFont(fuente);
    pintor.setPen(tintas.texto);
    const QRectF dentro = celda.lugar.adjusted(4, 0, -6, 0);
    const QString texto =
        QFontMetricsF(fuente).elidedText(celda.texto, Qt::ElideMiddle, dentro.width());
    pintor.drawText(dentro, Qt::AlignRight | Qt::AlignVCenter, texto);
}

void PasoCompuesto::pinta(QPainter &pintor, QPointF esquina, const TintasDePaso &tintas) const
{
    pintor.save();
    pintor.translate(esquina);
    QFont negrita = m_fuente;
    negrita.setBold(true);
    pintor.setFont(negrita);
    pintor.setPen(tintas.acento);
    pintor.drawText(QPointF(0, QFontMetricsF(negrita).ascent()), m_numero);
    for (const auto &texto : m_textos) {
        pintor.setPen(texto->atenuado ? tintas.atenuado : tintas.texto);
        texto->lineas.draw(&pintor, texto->lugar);
    }
    pintor.setPen(tintas.texto);
    for (const auto &[lugar, formula] : m_formulas)
        formula.pinta(pintor, lugar);
    for (const Celda &celda : m_celdas)
        pintaCelda(pintor, celda, tintas);
    pintor.restore();
}
