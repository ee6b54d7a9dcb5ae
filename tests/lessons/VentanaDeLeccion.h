// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/controls/CampoLargo.h"
#include "shell/grid/Rejilla.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/shell/support/Entorno.h"

/// A lesson's window for each test to stand before, and its controls by their names.
template <typename Ventana>
class VentanaDeLeccion
{
protected:
    /// A new window on new settings, in sight and active where it is given a size.
    void abre(QSize tamano = {})
    {
        Entorno::limpia();
        m_ventana = std::make_unique<Ventana>();
        if (tamano.isEmpty())
            return;
        m_ventana->resize(tamano);
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
    }
    void abreTema(int indice) const { el<QTabBar>(u"tsTema"_s)->setCurrentIndex(indice); }

    template <typename Control>
    Control *el(const QString &nombre) const
    {
        return control<Control>(m_ventana.get(), nombre);
    }
    QPushButton *boton(const QString &nombre) const { return el<QPushButton>(nombre); }
    QLineEdit *campo(const QString &nombre) const { return el<QLineEdit>(nombre); }
    CampoLargo *largo(const QString &nombre) const { return el<CampoLargo>(nombre); }
    Rejilla *rejilla(const QString &nombre) const { return el<Rejilla>(nombre); }
    QString texto(const QString &rotulo) const { return el<QLabel>(rotulo)->text(); }
    void pulsa(const QString &nombre) const { boton(nombre)->click(); }
    void escribe(const QString &nombre, const QString &escrito) const
    {
        campo(nombre)->setText(escrito);
    }
    /// Of the tool of a topic.
    Pasos pasos(int tema) const
    {
        const QWidget *panel = el<QWidget>(u"PanelFicha_%1"_s.arg(tema));
        return panel->parentWidget()->findChild<PanelDePasos *>()->pasos();
    }
    const QAbstractItemModel *modelo(const QString &nombre) const
    {
        return el<QTableView>(nombre)->model();
    }
    QModelIndex celda(const QString &nombre, int fila, int columna) const
    {
        return modelo(nombre)->index(fila, columna);
    }

    std::unique_ptr<Ventana> m_ventana;
};
