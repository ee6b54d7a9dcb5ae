// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/PanelesDeTemas.h"
#include "shell/steps/PanelDePasos.h"
#include "shell/steps/SeparadorDePasos.h"

#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolButton>

// The topics of a lesson: its strip of tabs and the panels that it brings to the front.

using namespace Qt::Literals::StringLiterals;

namespace {

const QString TemaDeCuestiones = u"cuestiones"_s;

} // namespace

void FormLeccion::agregaTema(const QString &rotulo, const QString &clave, QWidget *panel,
                             PanelDePasos *pasos)
{
    const int indice =
        m_paneles->agrega(pasos ? new SeparadorDePasos(panel, pasos, m_paneles) : panel);
    if (pasos)
        conecta(pasos, &PanelDePasos::pedido, this, [this] {
            m_cmdPasos->setChecked(true);
            cmdPasos_Click(true);
        });
    panel->setObjectName(u"PanelFicha_%1"_s.arg(indice));
    m_tsTema->addTab(Traduce(rotulo));
    m_tsTema->setTabData(indice, clave);
    Q_EMIT cambianTemas();
}

void FormLeccion::quitaTema(const QString &clave)
{
    const int indice = indiceDeTema(clave);
    if (indice < 0)
        return;
    // The panel goes first: the strip tells which topic comes to the front once the tab is gone.
    QWidget *panel = m_paneles->panel(indice);
    m_paneles->quita(panel);
    panel->hide();
    m_tsTema->removeTab(indice);
    Q_EMIT cambianTemas();
}

int FormLeccion::indiceDeTema(const QString &clave) const
{
    for (int i = 0; i < m_tsTema->count(); ++i) {
        if (m_tsTema->tabData(i).toString() == clave)
            return i;
    }
    return -1;
}

void FormLeccion::tsTema_Click(int indice)
{
    m_paneles->ponAlFrente(indice);
    m_cmdPracticas->setVisible(m_hayPracticas &&
                               m_tsTema->tabData(indice).toString() == TemaDeCuestiones);
    muestraPasos();
    Q_EMIT cambianTemas();
}

QStringList FormLeccion::temas() const
{
    QStringList rotulos;
    for (int i = 0; i < m_tsTema->count(); ++i)
        rotulos << m_tsTema->tabText(i);
    return rotulos;
}

int FormLeccion::temaAlFrente() const
{
    return m_tsTema->currentIndex();
}

QString FormLeccion::claveAlFrente() const
{
    return m_tsTema->tabData(m_tsTema->currentIndex()).toString();
}

void FormLeccion::vaATema(int indice)
{
    if (indice < 0 || indice >= m_tsTema->count())
        return;
    m_tsTema->setCurrentIndex(indice);
    m_paneles->enfoca();
}

void FormLeccion::vaATemaVecino(int sentido)
{
    const int cuantos = m_tsTema->count();
    if (cuantos == 0)
        return;
    const int destino = (m_tsTema->currentIndex() + sentido + cuantos) % cuantos;
    if (m_tsTema->hasFocus())
        m_tsTema->setCurrentIndex(destino);
    else
        vaATema(destino);
}

bool FormLeccion::abrePestana(int indice)
{
    auto *pestanas = m_paneles->alFrente()->findChild<QTabWidget *>();
    if (!pestanas || indice >= pestanas->count())
        return false;
    pestanas->setCurrentIndex(indice);
    m_paneles->enfoca();
    return true;
}

/// Splitters stand where the user left them; the one between a tool and its steps has a memory of
/// its own. Done when the window is first seen, which has its name by then.
void FormLeccion::recuerdaDivisores()
{
    for (QSplitter *divisor : m_paneles->findChildren<QSplitter *>()) {
        if (qobject_cast<SeparadorDePasos *>(divisor))
            continue;
        const QString clave = u"Divisores/%1_%2"_s.arg(objectName(), divisor->objectName());
        divisor->restoreState(Sesión().recuerda(clave).toByteArray());
        connect(divisor, &QSplitter::splitterMoved, this,
                [divisor, clave] { Sesión().anota(clave, divisor->saveState()); });
    }
}
