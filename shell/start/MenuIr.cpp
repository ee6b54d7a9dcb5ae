// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/MenuIr.h"

#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

#include <QAction>
#include <QMenu>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int ConTecla = 9;

/// The n-th key of a row of digits, counted from 0; none beyond the ninth.
QKeySequence teclaDeCifra(Qt::KeyboardModifier con, int n)
{
    return n < ConTecla ? QKeySequence(static_cast<int>(con) | (Qt::Key_1 + n)) : QKeySequence();
}

} // namespace

MenuIr::MenuIr(QMenu *lecciones, QMenu *temas, const QList<Leccion> &contenido)
    : QObject(lecciones), m_menuDeTemas(temas)
{
    for (const Leccion &leccion : contenido) {
        const int fila = static_cast<int>(m_lecciones.size());
        QAction *accion = lecciones->addAction(Icono(leccion.icono), Traduce(leccion.rotulo));
        accion->setShortcut(teclaDeCifra(Qt::ControlModifier, fila));
        accion->setEnabled(static_cast<bool>(leccion.crea));
        connect(accion, &QAction::triggered, this, [this, fila] { Q_EMIT leccionElegida(fila); });
        m_lecciones << accion;
    }
    preparaTemas();
}

void MenuIr::preparaTemas()
{
    const auto vecino = [this](const QString &rotulo, Qt::Key tecla, int sentido) {
        QAction *accion = m_menuDeTemas->addAction(Traduce(rotulo));
        accion->setShortcut(Qt::CTRL | tecla);
        connect(accion, &QAction::triggered, this, [this, sentido] { Q_EMIT temaVecino(sentido); });
    };
    vecino(u"Tema &siguiente"_s, Qt::Key_PageDown, 1);
    vecino(u"Tema &anterior"_s, Qt::Key_PageUp, -1);
    m_menuDeTemas->addSeparator();
    for (int i = 0; i < ConTecla; ++i) {
        QAction *accion = m_menuDeTemas->addAction(QString());
        accion->setShortcut(teclaDeCifra(Qt::AltModifier, i));
        accion->setCheckable(true);
        connect(accion, &QAction::triggered, this, [this, i] { Q_EMIT temaElegido(i); });
        m_temas << accion;
    }
    muestraTemas({}, -1);
}

void MenuIr::muestraTemas(const QStringList &rotulos, int alFrente)
{
    const auto acciones = m_menuDeTemas->actions();
    for (QAction *accion : acciones)
        accion->setEnabled(!rotulos.isEmpty());
    m_menuDeTemas->menuAction()->setEnabled(!rotulos.isEmpty());
    for (int i = 0; i < ConTecla; ++i) {
        m_temas[i]->setText(rotulos.value(i));
        m_temas[i]->setVisible(i < rotulos.size());
        m_temas[i]->setChecked(i == alFrente);
    }
}
