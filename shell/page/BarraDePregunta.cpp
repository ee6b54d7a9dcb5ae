// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/page/BarraDePregunta.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/page/JuezDePregunta.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QAccessible>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QStyle>
#include <QTextDocumentFragment>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

BarraDePregunta::BarraDePregunta(QWidget *padre)
    : QWidget(padre),
      m_enunciado(new QLabel(this)),
      m_respuesta(new QLineEdit(this)),
      m_veredicto(new QLabel(this))
{
    m_enunciado->setObjectName(u"lblPregunta"_s);
    m_enunciado->setTextFormat(Qt::RichText);
    m_enunciado->setWordWrap(true);
    m_respuesta->setObjectName(u"txtPregunta"_s);
    m_respuesta->setAccessibleName(Traduce(u"Respuesta a la pregunta de la página"_s));
    m_veredicto->setObjectName(u"lblVeredictoPregunta"_s);
    auto *comprobar = new QPushButton(Icono(u"COMPROBAR"_s), Traduce(u"Comprobar"_s), this);
    comprobar->setObjectName(u"cmdComprobarPregunta"_s);
    auto *cerrar = new QToolButton(this);
    cerrar->setObjectName(u"cmdCerrarPregunta"_s);
    cerrar->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    cerrar->setToolTip(Traduce(u"Cerrar la pregunta (Esc)"_s));
    cerrar->setAccessibleName(cerrar->toolTip());
    cerrar->setAutoRaise(true);
    cerrar->setFocusPolicy(Qt::StrongFocus);
    auto *columna = new QVBoxLayout(this);
    columna->setContentsMargins(Aspecto::Margen, Aspecto::Espacio / 2, Aspecto::Margen,
                                Aspecto::Espacio / 2);
    columna->addWidget(m_enunciado);
    auto *fila = new QHBoxLayout;
    fila->addWidget(m_respuesta, 1);
    fila->addWidget(comprobar);
    fila->addWidget(m_veredicto, 1);
    fila->addWidget(cerrar);
    columna->addLayout(fila);
    conecta(comprobar, &QPushButton::clicked, this, &BarraDePregunta::cmdComprobarPregunta_Click);
    conecta(m_respuesta, &QLineEdit::returnPressed, this,
            &BarraDePregunta::cmdComprobarPregunta_Click);
    // A verdict belongs to the answer that was judged.
    conecta(m_respuesta, &QLineEdit::textChanged, m_veredicto, &QLabel::clear);
    conecta(cerrar, &QToolButton::clicked, this, &BarraDePregunta::cerrada);
    hide();
}

void BarraDePregunta::pregunta(const PaginaPlegable::Pregunta &pregunta)
{
    m_esperada = pregunta.respuesta;
    m_enunciado->setText(pregunta.enunciado);
    m_respuesta->clear();
    m_respuesta->setAccessibleDescription(
        QTextDocumentFragment::fromHtml(pregunta.enunciado).toPlainText());
    m_veredicto->clear();
    show();
    m_respuesta->setFocus();
}

void BarraDePregunta::cmdComprobarPregunta_Click()
{
    m_respuesta->setFocus();
    const Juicio juicio = juzgaPregunta(m_esperada, m_respuesta->text());
    if (juicio.juzgada)
        muestraVeredicto(m_veredicto, juicio.acertada, juicio.palabra);
    else
        muestraNeutro(m_veredicto, juicio.palabra);
    // The focus stays in the field: a screen reader says what changes about that.
    m_respuesta->setAccessibleDescription(juicio.palabra);
    QAccessibleEvent aviso(m_veredicto, QAccessible::Alert);
    QAccessible::updateAccessibility(&aviso);
}
