// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "bignum/gateway/Moneda.h"

#include <QWidget>
#include <memory>

class ModeloEuclides;
class PanelDePasos;
class QToolButton;
class TablaPorRellenar;

namespace Ui {
class FormEuclidesTabla;
}

/// The topic "Algoritmo de Euclides": the table of divisions of two numbers, which are typed in its
/// first row, and the switch between the two algorithms in the status bar.
class FormEuclidesTabla : public QWidget
{
    Q_OBJECT

public:
    explicit FormEuclidesTabla(QWidget *leccion);
    ~FormEuclidesTabla() override;

    PanelDePasos *pasos() const { return m_pasos; }

    bool RestosReducidos() const { return m_restosReducidos; }
    void ponRestosReducidos(bool reducidos);

private:
    void preparaStatusBar();
    void creaHuecos();
    void rehazTabla(Moneda dividendo, Moneda divisor);

    void FlexEuclides_AfterEdit(int columna, const QString &texto);
    void StatusBar_PanelClick();
    void cmdRellenar_Click(bool rellenar);

    std::unique_ptr<Ui::FormEuclidesTabla> ui;
    ModeloEuclides *m_modelo;
    PanelDePasos *m_pasos;
    TablaPorRellenar *m_huecos = nullptr; ///< made when it is first asked for
    QToolButton *m_panelAlgoritmo;
    bool m_restosReducidos = false;
};
