// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/engine/Banco.h"

#include "practice/bank/Complejidad.h"
#include "practice/bank/Congruencias.h"
#include "practice/bank/Euclides.h"
#include "practice/bank/Fibonacci.h"
#include "practice/bank/Funciones.h"
#include "practice/bank/MiniCal.h"
#include "practice/bank/Modular.h"
#include "practice/bank/Primos.h"
#include "practice/bank/RSA.h"
#include "practice/bank/Unidades.h"

#include <algorithm>

const QList<TipoDeEjercicio> &banco()
{
    static const QList<TipoDeEjercicio> todos =
        ejerciciosDeEuclides() + ejerciciosDePrimos() + ejerciciosDeUnidades() +
        ejerciciosDeCongruencias() + ejerciciosDeRSA() + ejerciciosDeFibonacci() +
        ejerciciosDeComplejidad() + ejerciciosDeModular() + ejerciciosDeFunciones() +
        ejerciciosDeMiniCal();
    return todos;
}

const TipoDeEjercicio *tipoDeEjercicio(const QString &clave)
{
    const auto &todos = banco();
    const auto hallado = std::find_if(todos.begin(), todos.end(), [&](const TipoDeEjercicio &tipo) {
        return tipo.clave == clave;
    });
    return hallado == todos.end() ? nullptr : &*hallado;
}
