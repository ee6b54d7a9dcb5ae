// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/modular/SucesionModular.h"
#include "shell/core/steps/Lamina.h"

/// The states of a sequence, which are its pairs of consecutive values, as a tail that leads into a
/// circle; of them the first `vistos`, the last of which stands out. With all of them and one more
/// the circle is closed. Empty for more than MaximoDeEstados, or where no pair comes back.
class DibujoDeEstados
{
public:
    static constexpr int MaximoDeEstados = 60;

    explicit DibujoDeEstados(const SucesionModular &sucesion);

    Lamina lamina(int vistos) const;

private:
    QPointF lugar(int estado) const;
    QString rotulo(int estado) const;
    void agregaEstado(Lamina &lamina, int estado, int vistos) const;
    QString descripcion(int vistos) const;

    SucesionModular m_sucesion;
    PeriodoModular m_periodo;
    double m_radio = 0;
};
