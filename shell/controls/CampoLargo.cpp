// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/CampoLargo.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QRegularExpression>
#include <QTextOption>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

QString enUnaLinea(QString texto)
{
    static const QRegularExpression saltos(u"[\\r\\n\\x{2028}\\x{2029}]+"_s);
    return texto.remove(saltos).left(CampoLargo::LongitudMaxima);
}

} // namespace

CampoLargo::CampoLargo(QWidget *padre) : QPlainTextEdit(padre)
{
    setTabChangesFocus(true);
    setWordWrapMode(QTextOption::WrapAnywhere);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    connect(this, &QPlainTextEdit::textChanged, this, [this] { Q_EMIT textoCambiado(text()); });
}

void CampoLargo::setText(const QString &texto)
{
    const QString linea = enUnaLinea(texto);
    if (linea != text())
        setPlainText(linea);
}

void CampoLargo::setLineas(int lineas)
{
    m_lineas = lineas;
    updateGeometry();
}

int CampoLargo::alto(int lineas) const
{
    const int margenes = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
    return fontMetrics().lineSpacing() * lineas + margenes + 2;
}

QSize CampoLargo::sizeHint() const
{
    return {fontMetrics().horizontalAdvance(u'0') * 40, alto(m_lineas)};
}

QSize CampoLargo::minimumSizeHint() const
{
    return {fontMetrics().horizontalAdvance(u'0') * 12, alto(1)};
}

void CampoLargo::keyPressEvent(QKeyEvent *suceso)
{
    if (suceso->key() == Qt::Key_Return || suceso->key() == Qt::Key_Enter) {
        // A key held down counts once, so that Enter does not start and stop a run in turns.
        if (!suceso->isAutoRepeat() && !suceso->modifiers().testFlag(Qt::ShiftModifier))
            Q_EMIT returnPressed();
        return;
    }
    QPlainTextEdit::keyPressEvent(suceso);
}

void CampoLargo::focusInEvent(QFocusEvent *suceso)
{
    m_textoAlEntrar = text();
    QPlainTextEdit::focusInEvent(suceso);
    const bool porTeclado = suceso->reason() == Qt::TabFocusReason ||
                            suceso->reason() == Qt::BacktabFocusReason ||
                            suceso->reason() == Qt::ShortcutFocusReason;
    if (porTeclado)
        selectAll();
}

void CampoLargo::focusOutEvent(QFocusEvent *suceso)
{
    QPlainTextEdit::focusOutEvent(suceso);
    // As in a field of one line; another window or a menu takes the keyboard for a while only.
    const bool seVa =
        suceso->reason() != Qt::PopupFocusReason && suceso->reason() != Qt::ActiveWindowFocusReason;
    if (QTextCursor cursor = textCursor(); seVa && cursor.hasSelection()) {
        cursor.clearSelection();
        setTextCursor(cursor);
    }
    if (suceso->reason() != Qt::PopupFocusReason && text() != m_textoAlEntrar)
        Q_EMIT editingFinished();
}

void CampoLargo::insertFromMimeData(const QMimeData *datos)
{
    const QString linea = enUnaLinea(datos->text());
    const int sitio = LongitudMaxima - document()->characterCount();
    insertPlainText(linea.left(std::max(sitio, 0)));
}

LineasSegunTexto::LineasSegunTexto(CampoLargo *campo, int minimo, int maximo)
    : QObject(campo), m_campo(campo), m_minimo(minimo), m_maximo(maximo)
{
    campo->setLineas(minimo);
    campo->viewport()->installEventFilter(this);
    connect(campo->document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged,
            this, [this] { ajusta(); });
}

bool LineasSegunTexto::eventFilter(QObject *objeto, QEvent *suceso)
{
    // From the event queue, once the field itself has wrapped its text anew, of which it says
    // nothing.
    if (suceso->type() == QEvent::Resize)
        QMetaObject::invokeMethod(
            this, [this] { ajusta(); }, Qt::QueuedConnection);
    return QObject::eventFilter(objeto, suceso);
}

void LineasSegunTexto::ajusta()
{
    // A plain-text document measures its height in lines.
    const int lineas = qCeil(m_campo->document()->documentLayout()->documentSize().height());
    const int mostradas = std::clamp(lineas, m_minimo, m_maximo);
    if (mostradas != m_campo->lineas())
        m_campo->setLineas(mostradas);
}
