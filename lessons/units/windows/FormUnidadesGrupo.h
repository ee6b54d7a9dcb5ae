// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>

class ModeloPotencias;
class ModeloUnidades;
class PanelDePasos;
class QSortFilterProxyModel;

namespace Ui {
class FormUnidadesGrupo;
}

/// The topic "Unidades": the units of Z_n for a chosen n, and the powers of a chosen element.
class FormUnidadesGrupo : public QWidget
{
    Q_OBJECT

public:
    explicit FormUnidadesGrupo(QWidget *leccion);
    ~FormUnidadesGrupo() override;

    PanelDePasos *pasos() const { return m_pasos; }

private:
    void preparaRejillas();
    void muestraPotencias(std::int32_t a);
    void borraPotencias();

    void cmdUnidades_Click();
    void cmdPotencias_Click();
    void FlexUnidades_CurrentChange(const QModelIndex &actual);

    std::unique_ptr<Ui::FormUnidadesGrupo> ui;
    ModeloUnidades *m_unidades;
    QSortFilterProxyModel *m_ordenadas;
    ModeloPotencias *m_potencias;
    PanelDePasos *m_pasos;
};
