// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcExpresion.h"

#include "minical/windows/FormCalcAspecto.h"
#include "minical/windows/FormCalcCampo.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

FormCalcExpresion::FormCalcExpresion(QWidget *padre)
    : QWidget(padre), m_lblCelda(new QLabel(this)), m_txtExpresion(new FormCalcCampo(this))
{
    m_lblCelda->setObjectName(u"lblCelda"_s);
    m_lblCelda->setAccessibleDescription(Traduce(u"Celda actual"_s));
    m_lblCelda->setAlignment(Qt::AlignCenter);
    m_lblCelda->setFont(letraDeHoja());
    m_lblCelda->setMinimumWidth(m_lblCelda->fontMetrics().horizontalAdvance(u"  Y99  "_s));
    m_txtExpresion->setObjectName(u"txtExpresión"_s);
    m_txtExpresion->setAccessibleName(Traduce(u"Expresión de la celda"_s));
    m_txtExpresion->setToolTip(Traduce(u"La expresión de la celda actual"_s));
    m_txtExpresion->setPlaceholderText(
        Traduce(u"Elija una celda y escriba, como 2^64 o (A1+A2)/2"_s));
    m_txtExpresion->setFont(letraDeHoja());
    m_txtExpresion->installEventFilter(this);
    auto *fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(Aspecto::Espacio / 2);
    fila->addWidget(m_lblCelda);
    fila->addWidget(m_txtExpresion);
    conecta(m_txtExpresion, &FormCalcCampo::returnPressed, this, [this] { acepta(true); });
    conecta(m_txtExpresion, &FormCalcCampo::editingFinished, this, [this] { acepta(false); });
    muestra({}, {});
}

void FormCalcExpresion::muestra(Celda celda, const QString &expresion)
{
    m_celda = celda;
    m_lblCelda->setText(celda.esDeDatos() ? NombreCelda(celda) : QString());
    m_txtExpresion->setEnabled(celda.esDeDatos());
    m_txtExpresion->setText(expresion);
    m_txtExpresion->setCursorPosition(0);
}

void FormCalcExpresion::termina()
{
    acepta(false);
}

/// Enter counts even for a text that is as it was: the cell shows its result again.
void FormCalcExpresion::acepta(bool conIntro)
{
    if (!m_celda.esDeDatos() || !(conIntro || m_txtExpresion->isModified()))
        return;
    // The focus leaves the field while this is being carried out, which must not repeat it.
    m_txtExpresion->setModified(false);
    Q_EMIT editada(m_celda, m_txtExpresion->text(), conIntro);
}

bool FormCalcExpresion::eventFilter(QObject *objeto, QEvent *suceso)
{
    const bool tecla = suceso->type() == QEvent::KeyPress;
    if (tecla && m_txtExpresion->teclaDeLaLista(*static_cast<QKeyEvent *>(suceso)))
        return true;
    if (tecla && static_cast<QKeyEvent *>(suceso)->key() == Qt::Key_Escape) {
        m_txtExpresion->setModified(false);
        Q_EMIT abandonada();
        return true;
    }
    return QWidget::eventFilter(objeto, suceso);
}
