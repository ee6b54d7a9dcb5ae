// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/ReglasDeGrafica.h"

#include "shell/core/Formatos.h"
#include "shell/plot/EjeDeGrafica.h"

#include <QLabel>
#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

template <typename Control>
Control *adorno(Control *control, const QString &nombre)
{
    control->setObjectName(nombre);
    control->setAttribute(Qt::WA_TransparentForMouseEvents);
    control->hide();
    return control;
}

QFrame *regla(QWidget *grafica, QFrame::Shape forma, const QString &nombre)
{
    auto *linea = adorno(new QFrame(grafica), nombre);
    linea->setFrameStyle(forma | QFrame::Plain);
    return linea;
}

QLabel *rotulo(QWidget *grafica, const QString &nombre)
{
    auto *label = adorno(new QLabel(grafica), nombre);
    label->setMargin(2);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::ToolTipBase);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setFrameStyle(QFrame::Box | QFrame::Plain);
    return label;
}

} // namespace

ReglasDeGrafica::ReglasDeGrafica(const Encuadre &encuadre, QWidget *grafica)
    : m_encuadre(encuadre),
      m_grafica(grafica),
      m_horizontal(regla(grafica, QFrame::HLine, u"ReglaHorizontal"_s)),
      m_vertical(regla(grafica, QFrame::VLine, u"ReglaVertical"_s)),
      m_labelX(rotulo(grafica, u"LabelX"_s)),
      m_labelY(rotulo(grafica, u"LabelY"_s))
{
}

void ReglasDeGrafica::sigue(QPointF pixel)
{
    const QPointF mundo = m_encuadre.aMundo(pixel);
    m_labelX->setText(formatoEntero(std::llround(mundo.x())));
    m_labelY->setText(formatoEntero(std::llround(mundo.y())));
    m_labelX->adjustSize();
    m_labelY->adjustSize();
    coloca(pixel.toPoint());
    m_horizontal->show();
    m_vertical->show();
    m_labelX->show();
    m_labelY->show();
}

void ReglasDeGrafica::oculta()
{
    m_horizontal->hide();
    m_vertical->hide();
    m_labelX->hide();
    m_labelY->hide();
}

/// The labels stand over the axes, as far as the plot reaches.
void ReglasDeGrafica::coloca(QPoint pixel)
{
    const QRect lienzo = m_encuadre.lienzo().toRect();
    m_horizontal->setGeometry(lienzo.left(), pixel.y(), lienzo.width(), 1);
    m_vertical->setGeometry(pixel.x(), lienzo.top(), 1, lienzo.height());
    m_labelX->move(
        std::min(pixel.x() - m_labelX->width() / 2, m_grafica->width() - m_labelX->width()),
        lienzo.bottom() + EjeDeGrafica::Muesca);
    m_labelY->move(std::max(0, lienzo.left() - EjeDeGrafica::Muesca - m_labelY->width()),
                   pixel.y() - m_labelY->height() / 2);
}
