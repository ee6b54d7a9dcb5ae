// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/RotulosEnteros.h"

#include <QEvent>
#include <QLabel>

namespace {

class RotuloEntero : public QObject
{
public:
    explicit RotuloEntero(QLabel *rotulo) : QObject(rotulo), m_rotulo(rotulo)
    {
        rotulo->installEventFilter(this);
        rotulo->parentWidget()->installEventFilter(this);
    }

    bool eventFilter(QObject *objeto, QEvent *suceso) override
    {
        // The parent is asked for a new layout whenever the text has changed.
        if (suceso->type() == QEvent::LayoutRequest || suceso->type() == QEvent::FontChange ||
            (objeto == m_rotulo && suceso->type() == QEvent::Resize))
            ajusta();
        return QObject::eventFilter(objeto, suceso);
    }

private:
    void ajusta()
    {
        const bool vacio = m_rotulo->text().isEmpty() || !m_rotulo->wordWrap();
        m_rotulo->setMinimumHeight(vacio ? 0 : m_rotulo->heightForWidth(m_rotulo->width()));
    }

    QLabel *m_rotulo;
};

} // namespace

void mantieneEntero(QLabel *rotulo)
{
    new RotuloEntero(rotulo);
}
