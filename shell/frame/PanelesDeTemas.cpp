// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/PanelesDeTemas.h"

#include <QLayout>
#include <QStackedWidget>
#include <QTabBar>

using namespace Qt::Literals::StringLiterals;

namespace {

/// As large as its front asks to be, where Qt's own asks for the largest of all.
class Pila : public QStackedWidget
{
public:
    explicit Pila(QWidget *padre) : QStackedWidget(padre)
    {
        connect(this, &QStackedWidget::currentChanged, this, &QWidget::updateGeometry);
    }
    QSize minimumSizeHint() const override
    {
        const QWidget *frente = currentWidget();
        return frente ? frente->minimumSizeHint().expandedTo(frente->minimumSize()) : QSize();
    }
    /// What it needs at that width: a scroll area asks for this, and for what it would like to have
    /// it would scroll where nothing is cut.
    int heightForWidth(int ancho) const override
    {
        const QLayout *capa = currentWidget() ? currentWidget()->layout() : nullptr;
        return capa && capa->hasHeightForWidth() ? capa->totalMinimumHeightForWidth(ancho) : -1;
    }
};

/// Whether the keyboard may begin here: a strip of tabs only leads to what is meant.
bool recibe(const QWidget &control, const QWidget &panel)
{
    return (&control == &panel || panel.isAncestorOf(&control)) && control.isVisible() &&
           control.isEnabled() && control.focusPolicy() & Qt::TabFocus &&
           !qobject_cast<const QTabBar *>(&control);
}

} // namespace

PanelesDeTemas::PanelesDeTemas(QWidget *padre) : QScrollArea(padre), m_pila(new Pila(this))
{
    setObjectName(u"panelesDeTemas"_s);
    setFrameShape(NoFrame);
    setWidgetResizable(true);
    setFocusPolicy(Qt::NoFocus);
    m_pila->setObjectName(u"pilaDePaneles"_s);
    setWidget(m_pila);
    m_pila->setAutoFillBackground(false);
    viewport()->setAutoFillBackground(false);
}

int PanelesDeTemas::agrega(QWidget *panel)
{
    return m_pila->addWidget(panel);
}

void PanelesDeTemas::quita(QWidget *panel)
{
    m_pila->removeWidget(panel);
}

void PanelesDeTemas::ponAlFrente(int indice)
{
    m_pila->setCurrentIndex(indice);
}

QWidget *PanelesDeTemas::panel(int indice) const
{
    return m_pila->widget(indice);
}

QWidget *PanelesDeTemas::alFrente() const
{
    return m_pila->currentWidget();
}

bool PanelesDeTemas::enfoca()
{
    QWidget *panel = alFrente();
    if (!panel)
        return false;
    QWidget *destino = panel->focusWidget();
    if (!destino || !recibe(*destino, *panel))
        destino = panel;
    while (!recibe(*destino, *panel)) {
        destino = destino->nextInFocusChain();
        if (destino == panel)
            return false;
    }
    destino->setFocus(Qt::ShortcutFocusReason);
    return true;
}

QSize PanelesDeTemas::sizeHint() const
{
    return m_pila->sizeHint();
}

/// A few lines of a panel, between bars that scroll it.
QSize PanelesDeTemas::minimumSizeHint() const
{
    const int linea = fontMetrics().height();
    return {10 * linea, 4 * linea};
}
