// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/primes/CuestionDosPrimos.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <array>
#include <memory>
#include <optional>

class CampoLargo;
namespace Ui {
class FormPrimosCuestiones;
}

/// The topic "Cuestiones": the exercise on two primes of a given product length.
class FormPrimosCuestiones : public QWidget
{
    Q_OBJECT

public:
    explicit FormPrimosCuestiones(QWidget *padre);
    ~FormPrimosCuestiones() override;

private:
    void cmdProblema_Click();
    void txtPrimo_Change();

    std::optional<QString> primoDe(CampoLargo *campo);
    QString binarioDelProducto(const QString &primo1, const QString &primo2);
    void muestraJuicio(CuestionDosPrimos::Juicio juicio, qsizetype digitos);

    std::unique_ptr<Ui::FormPrimosCuestiones> ui;
    std::array<CampoLargo *, 2> m_txtPrimo{};
    CuestionDosPrimos m_cuestion;
    ModeloFilas m_intentos;
};
