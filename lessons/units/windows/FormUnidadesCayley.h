// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>

class ModeloCayley;

namespace Ui {
class FormUnidadesCayley;
}

/// The topic "Tabla de Cayley": the operations of Z_n at one glance, in colours.
class FormUnidadesCayley : public QWidget
{
    Q_OBJECT

public:
    explicit FormUnidadesCayley(QWidget *leccion);
    ~FormUnidadesCayley() override;

protected:
    void changeEvent(QEvent *suceso) override;

private:
    void cmdCayley_Click();
    void FlexCayley_CurrentChange(const QModelIndex &actual);

    std::unique_ptr<Ui::FormUnidadesCayley> ui;
    ModeloCayley *m_modelo;
};
