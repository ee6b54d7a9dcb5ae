// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/FormRecursion2Cuestiones.h"

#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion2Cuestiones.h"

FormRecursion2Cuestiones::FormRecursion2Cuestiones(QWidget *leccion)
    : QWidget(leccion), ui(std::make_unique<Ui::FormRecursion2Cuestiones>())
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblCuestion1, 1.15);
    Aspecto::destaca(ui->lblCuestion2, 1.15);
}

FormRecursion2Cuestiones::~FormRecursion2Cuestiones() = default;
