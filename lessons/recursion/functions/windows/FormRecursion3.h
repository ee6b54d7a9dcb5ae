// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/Pasos.h"
#include "shell/frame/FormLeccion.h"

#include <array>

class QTabWidget;

/// The lesson on classical recursive functions: Ackermann's, the hailstone sequence, and the search
/// for palindromes, on the tabs of `SSTab1`. The three share one stop flag,
/// and one panel of steps: it shows those of the tab in front.
class FormRecursión3 : public FormLeccion
{
public:
    explicit FormRecursión3(QWidget *padre = nullptr);

private:
    template <typename Ficha>
    void agregaFicha(Ficha *ficha, const QString &rotulo);
    void ponPasos(int ficha, const Pasos &pasos);
    void SSTab1_Click(int ficha);

    QTabWidget *m_pestanas;
    PanelDePasos *m_panelDePasos;
    std::array<Pasos, 3> m_pasos; ///< of each tab
};
