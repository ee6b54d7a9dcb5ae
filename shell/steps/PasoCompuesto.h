// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"
#include "shell/steps/FormulaCompuesta.h"
#include "shell/steps/TintasDePaso.h"

#include <QTextLayout>
#include <memory>
#include <vector>

class QPainter;

/// A step set in a column: its number and sentence, the formulas, the rule, the table. The drawing
/// is not part of it.
class PasoCompuesto
{
public:
    PasoCompuesto(const Paso &paso, qsizetype numero, const QFont &fuente, qreal ancho);
    ~PasoCompuesto();

    qreal alto() const { return m_alto; }

    void pinta(QPainter &pintor, QPointF esquina, const TintasDePaso &tintas) const;

private:
    struct Texto;
    struct Celda
    {
        QRectF lugar;
        QString texto;
        bool cabecera = false;
        bool marcada = false;
    };

    void agregaTexto(const QString &texto, const QFont &fuente, bool atenuado);
    void agregaFormula(const Formula &formula);
    void agregaTabla(const TablaDePaso &tabla);
    void pintaCelda(QPainter &pintor, const Celda &celda, const TintasDePaso &tintas) const;

    QFont m_fuente;
    QFont m_fuenteDeTabla;
    qreal m_ancho;
    qreal m_sangria; ///< where everything but the number begins
    qreal m_alto = 0;
    QString m_numero;
    std::vector<std::unique_ptr<Texto>> m_textos;
    std::vector<std::pair<QPointF, FormulaCompuesta>> m_formulas;
    QList<Celda> m_celdas;
};
