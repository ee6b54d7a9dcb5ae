// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcDelegado.h"

#include "minical/windows/FormCalcCampo.h"
#include "shell/core/ModGlobal.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr auto PropiedadSalto = "salto";

/// How far a column is widened to fit its texts, in characters; a number of thousands of digits
/// would push all others out of sight.
constexpr int AnchoAjustado = 80;

/// Laying out a text of thousands of digits at each painting would make scrolling slow: of what is
/// shown, nothing beyond the width of the cell is needed.
QString loVisible(const QString &texto, int ancho, const QFontMetrics &medidas)
{
    const int cabe = ancho / std::max(1, medidas.horizontalAdvance(u'0')) + 2;
    return texto.left(cabe);
}

/// As wide as its text, so that what is typed stays in sight beyond the cell; at most to the right
/// edge of the grid.
void ensancha(QLineEdit *editor, int minimo)
{
    constexpr int margen = 12;
    const QString visible =
        loVisible(editor->text(), editor->parentWidget()->width(), editor->fontMetrics());
    const int pide = editor->fontMetrics().horizontalAdvance(visible) + margen;
    const int cabe = editor->parentWidget()->width() - editor->x();
    editor->resize(std::max(minimo, std::min(pide, cabe)), editor->height());
}

} // namespace

int FormCalcDelegado::salto(const QWidget *editor)
{
    return editor->property(PropiedadSalto).toInt();
}

QWidget *FormCalcDelegado::createEditor(QWidget *padre, const QStyleOptionViewItem &opcion,
                                        const QModelIndex &) const
{
    auto *editor = new FormCalcCampo(padre);
    editor->setObjectName(u"txtCelda"_s);
    editor->setAccessibleName(Traduce(u"Expresión de la celda"_s));
    editor->setFont(padre->font());
    editor->setAutoFillBackground(true);
    editor->setMinimumHeight(opcion.rect.height());
    QObject::connect(editor, &QLineEdit::textChanged, editor,
                     [editor, minimo = opcion.rect.width()] { ensancha(editor, minimo); });
    return editor;
}

void FormCalcDelegado::updateEditorGeometry(QWidget *editor, const QStyleOptionViewItem &opcion,
                                            const QModelIndex &) const
{
    editor->setGeometry(opcion.rect);
    ensancha(static_cast<QLineEdit *>(editor), opcion.rect.width());
}

void FormCalcDelegado::paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
                             const QModelIndex &indice) const
{
    QStyledItemDelegate::paint(pintor, opcion, indice);
    // The style's own lines cannot be seen on a dark ground.
    pintor->save();
    pintor->setPen(opcion.palette.color(QPalette::Mid));
    pintor->drawLine(opcion.rect.topRight(), opcion.rect.bottomRight());
    pintor->drawLine(opcion.rect.bottomLeft(), opcion.rect.bottomRight());
    pintor->restore();
}

QSize FormCalcDelegado::sizeHint(const QStyleOptionViewItem &opcion,
                                 const QModelIndex &indice) const
{
    QSize tamano = QStyledItemDelegate::sizeHint(opcion, indice);
    const int maximo = opcion.fontMetrics.horizontalAdvance(u'0') * AnchoAjustado;
    tamano.setWidth(std::min(tamano.width(), maximo));
    return tamano;
}

void FormCalcDelegado::initStyleOption(QStyleOptionViewItem *opcion,
                                       const QModelIndex &indice) const
{
    QStyledItemDelegate::initStyleOption(opcion, indice);
    const int ancho = opcion->rect.isValid()
                          ? opcion->rect.width()
                          : opcion->fontMetrics.horizontalAdvance(u'0') * AnchoAjustado;
    opcion->text = loVisible(opcion->text, ancho, opcion->fontMetrics);
}

bool FormCalcDelegado::eventFilter(QObject *objeto, QEvent *suceso)
{
    // A box that has something to say about the edit does not end it.
    if (suceso->type() == QEvent::FocusOut && QApplication::activeModalWidget())
        return false;
    if (suceso->type() == QEvent::KeyPress) {
        if (static_cast<FormCalcCampo *>(objeto)->teclaDeLaLista(*static_cast<QKeyEvent *>(suceso)))
            return true;
        const auto *tecla = static_cast<QKeyEvent *>(suceso);
        const bool intro = tecla->key() == Qt::Key_Return || tecla->key() == Qt::Key_Enter;
        const int sentido = tecla->modifiers() & Qt::ShiftModifier ? -1 : 1;
        objeto->setProperty(PropiedadSalto, intro ? sentido : 0);
    }
    return QStyledItemDelegate::eventFilter(objeto, suceso);
}
