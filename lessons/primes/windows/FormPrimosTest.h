// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class FormPrimosTest;
}

/// The topic "Test de primos": is a number prime, which prime comes next, and a random prime of so
/// many bits, with a traffic light for the verdict.
class FormPrimosTest : public QWidget
{
    Q_OBJECT

public:
    /// `leccion` is the window whose mouse pointer tells that a search is going on.
    explicit FormPrimosTest(QWidget *leccion);
    ~FormPrimosTest() override;

private:
    class Espera;

    void SetSemaforo(bool primo);
    bool muestraPrimo(const QString &primo);
    void ponVeredicto(const QString &texto);

    void txtNumero_Change();
    void cmdEsPrimo_Click();
    void cmdSigPrimo_Click();
    void txtNumBits_Change();
    void cmdNumBits_Click();

    std::unique_ptr<Ui::FormPrimosTest> ui;
    QWidget *m_leccion;
};
