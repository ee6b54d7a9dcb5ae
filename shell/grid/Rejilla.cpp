// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/grid/Rejilla.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Interlocutor.h"
#include "shell/grid/AvanceDeCopia.h"
#include "shell/look/Aspecto.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QMenu>
#include <QPainter>
#include <array>
#include <utility>

using namespace Qt::Literals::StringLiterals;

Rejilla::Rejilla(QWidget *padre) : QTableView(padre)
{
    setAlternatingRowColors(true);
    setSelectionMode(QAbstractItemView::ContiguousSelection);
    setEditTriggers(QAbstractItemView::NoEditTriggers);
    setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    setWordWrap(false);
    setCornerButtonEnabled(false);
    setTabKeyNavigation(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
}

void Rejilla::ponTextoVacio(const QString &texto)
{
    m_textoVacio = texto;
    viewport()->update();
}

Tarea<Copia> Rejilla::seleccion(FormaDeCopia forma, AvanceDeFilas avance, Billete billete)
{
    if (!model() || model()->rowCount() == 0)
        co_return Copia();
    Copia hecha =
        co_await copiaCeldas(model(), elegidas(), forma, std::move(avance), std::move(billete));
    co_return hecha;
}

/// The selected cells; not valid when there are none.
QItemSelectionRange Rejilla::elegido() const
{
    return selectionModel() ? selectionModel()->selection().value(0) : QItemSelectionRange();
}

CeldasPorCopiar Rejilla::elegidas() const
{
    const QItemSelectionRange rango = elegido();
    const bool todas = !rango.isValid() || (rango.width() == 1 && rango.height() == 1);
    const bool enteras = todas || rango.height() == model()->rowCount();
    CeldasPorCopiar celdas{rango.top(), rango.bottom(), rango.left(), rango.right()};
    if (todas)
        celdas = {0, model()->rowCount() - 1, 0, model()->columnCount() - 1};
    celdas.conCabecera = enteras && !horizontalHeader()->isHidden();
    celdas.conRotulos = m_rotulosDeFila;
    celdas.sinFinal = todas;
    return celdas;
}

Tarea<> Rejilla::copia(FormaDeCopia forma)
{
    if (!model())
        co_return;
    // A later copy takes the place of the one that is on.
    m_tareas.detener();
    if (!m_avance)
        m_avance = new AvanceDeCopia(this);
    const auto marcha = m_avance->empieza(model()->rowCount(), m_tareas.billete());
    const Copia hecha = co_await seleccion(
        forma, [avance = m_avance](int filas) { avance->ponHechas(filas); }, marcha.billete());
    if (hecha.fin == Copia::NoCabe)
        interlocutor().avisa(
            this, Interlocutor::Icono::Informacion,
            Traduce(
                u"Es demasiado para copiarlo de una vez: caben %1 celdas y %2 caracteres. Elija "
                u"menos filas o menos columnas."_s)
                .arg(formatoEntero(Copia::MaximoDeCeldas),
                     formatoEntero(Copia::MaximoDeCaracteres)),
            Traduce(u"No se ha copiado"_s));
    if (hecha.fin == Copia::Detenida && !marcha.billete().detenida())
        interlocutor().avisa(this, Interlocutor::Icono::Informacion,
                             Traduce(u"La tabla ha cambiado mientras se copiaba."_s),
                             Traduce(u"No se ha copiado"_s));
    if (!hecha.texto.isEmpty())
        QApplication::clipboard()->setText(hecha.texto);
}

void Rejilla::closeEditor(QWidget *editor, QAbstractItemDelegate::EndEditHint consejo)
{
    const bool sigue = consejo == QAbstractItemDelegate::EditNextItem;
    const bool vuelve = consejo == QAbstractItemDelegate::EditPreviousItem;
    const QModelIndex actual = currentIndex();
    const QModelIndex destino = sigue    ? moveCursor(MoveNext, Qt::NoModifier)
                                : vuelve ? moveCursor(MovePrevious, Qt::NoModifier)
                                         : actual;
    // The view would go round, from its last cell to its first.
    const bool sale = (sigue && !(actual < destino)) || (vuelve && !(destino < actual));
    QTableView::closeEditor(editor, sale ? QAbstractItemDelegate::NoHint : consejo);
    if (sale)
        focusNextPrevChild(sigue);
}

void Rejilla::keyPressEvent(QKeyEvent *suceso)
{
    if (!suceso->matches(QKeySequence::Copy)) {
        QTableView::keyPressEvent(suceso);
        return;
    }
    const QItemSelectionRange rango = elegido();
    if (rango.isValid() && rango.width() == 1 && rango.height() == 1)
        QApplication::clipboard()->setText(rango.topLeft().data().toString());
    else
        m_tareas.lanza(copia(FormaDeCopia::Texto));
}

void Rejilla::contextMenuEvent(QContextMenuEvent *suceso)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const std::array<std::pair<QString, FormaDeCopia>, 3> formas{
        {{u"&Copiar"_s, FormaDeCopia::Texto},
         {u"Copiar como C&SV"_s, FormaDeCopia::CSV},
         {u"Copiar como &TeX"_s, FormaDeCopia::TeX}}};
    for (const auto &[rotulo, forma] : formas) {
        conecta(menu->addAction(Traduce(rotulo)), &QAction::triggered, this,
                [this, forma = forma] { m_tareas.lanza(copia(forma)); });
    }
    menu->addSeparator();
    conecta(menu->addAction(Traduce(u"Seleccionar &todo"_s)), &QAction::triggered, this,
            &QTableView::selectAll);
    menu->setEnabled(model() && model()->rowCount() > 0);
    menu->popup(suceso->globalPos());
}

void Rejilla::paintEvent(QPaintEvent *suceso)
{
    QTableView::paintEvent(suceso);
    if (m_textoVacio.isEmpty() || (model() && model()->rowCount() > 0))
        return;
    QPainter pintor(viewport());
    pintor.setPen(Aspecto::atenuado());
    pintor.drawText(viewport()->rect().adjusted(Aspecto::Margen, 0, -Aspecto::Margen, 0),
                    Qt::AlignCenter | Qt::TextWordWrap, m_textoVacio);
}
