#include "shell/controls/LineasSegunTexto.h"

#include "shell/controls/CampoLargo.h"

#include <QAbstractTextDocumentLayout>
#include <QEvent>
#include <QtMath>
#include <algorithm>

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
