// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class FormRecursion2Cuestiones;
}

/// The topic "Cuestiones": what to think about and to prove.
class FormRecursion2Cuestiones : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion2Cuestiones(QWidget *leccion);
    ~FormRecursion2Cuestiones() override;

private:
    std::unique_ptr<Ui::FormRecursion2Cuestiones> ui;
};
