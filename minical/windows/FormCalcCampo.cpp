// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcCampo.h"

#include "minical/HojaDeCalculo.h"
#include "minical/NombreDeFuncion.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"

#include <QKeyEvent>
#include <QListWidget>

using namespace Qt::Literals::StringLiterals;

FormCalcCampo::FormCalcCampo(QWidget *padre) : QLineEdit(padre)
{
    // One more than a cell holds, for Qt cuts what is pasted without a word.
    setMaxLength(HojaDeCalculo::LongitudMaxima + 1);
    conecta(this, &QLineEdit::textChanged, this, &FormCalcCampo::limita);
    conecta(this, &QLineEdit::textEdited, this, [this] { ofrece(); });
}

void FormCalcCampo::limita(const QString &texto)
{
    if (texto.size() <= HojaDeCalculo::LongitudMaxima) {
        m_anterior = texto;
        return;
    }
    // What the program sets is only what it shows of a cell's field, which has refused it.
    const bool delUsuario = isModified();
    setText(m_anterior);
    if (!delUsuario)
        return;
    setModified(true);
    interlocutor().avisa(this, Interlocutor::Icono::Exclamacion,
                         Traduce(u"Parte de lo que se ha pegado no cabe en la hoja."_s),
                         Traduce(u"Mini hoja de cálculo"_s));
}

void FormCalcCampo::ponLista()
{
    m_lista = new QListWidget(this);
    m_lista->setObjectName(u"lstFunciones"_s);
    m_lista->setAccessibleName(Traduce(u"Funciones"_s));
    m_lista->setWindowFlags(Qt::ToolTip);
    m_lista->setAttribute(Qt::WA_ShowWithoutActivating);
    m_lista->setFocusPolicy(Qt::NoFocus);
    m_lista->setSpacing(1);
    m_lista->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_lista->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    conecta(m_lista, &QListWidget::itemClicked, this, [this] { elige(); });
}

void FormCalcCampo::ofrece()
{
    const auto funciones = sugerencias(text(), cursorPosition());
    if (funciones.isEmpty() && m_lista)
        m_lista->hide();
    if (funciones.isEmpty())
        return;
    if (!m_lista)
        ponLista();
    m_lista->clear();
    for (const SugerenciaDeFuncion &f : funciones) {
        auto *fila = new QListWidgetItem(f.nombre + u"(  "_s + f.descripcion, m_lista);
        fila->setData(Qt::UserRole, f.nombre);
    }
    constexpr int margen = 8;
    m_lista->resize(m_lista->sizeHintForColumn(0) + 3 * margen,
                    (m_lista->sizeHintForRow(0) + 2 * m_lista->spacing()) * m_lista->count() +
                        margen);
    m_lista->move(mapToGlobal(QPoint(cursorRect().left(), height())));
    m_lista->show();
}

void FormCalcCampo::elige()
{
    const int fila = std::max(0, m_lista->currentRow());
    const QString nombre = m_lista->item(fila)->data(Qt::UserRole).toString();
    qsizetype cursor = cursorPosition();
    const QString texto = conFuncion(text(), cursor, nombre);
    // As if it had been typed: it can be taken back.
    selectAll();
    insert(texto);
    setCursorPosition(static_cast<int>(cursor));
    m_lista->hide();
}

bool FormCalcCampo::teclaDeLaLista(const QKeyEvent &suceso)
{
    if (!m_lista || !m_lista->isVisible())
        return false;
    const int fila = m_lista->currentRow();
    switch (suceso.key()) {
    case Qt::Key_Down:
        m_lista->setCurrentRow(std::min(fila + 1, m_lista->count() - 1));
        return true;
    case Qt::Key_Up:
        m_lista->setCurrentRow(std::max(fila - 1, 0));
        return true;
    case Qt::Key_Tab:
        elige();
        return true;
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (fila >= 0)
            elige();
        m_lista->hide();
        return fila >= 0;
    case Qt::Key_Escape:
        m_lista->hide();
        return true;
    default:
        return false;
    }
}

void FormCalcCampo::focusOutEvent(QFocusEvent *suceso)
{
    if (m_lista)
        m_lista->hide();
    QLineEdit::focusOutEvent(suceso);
}
