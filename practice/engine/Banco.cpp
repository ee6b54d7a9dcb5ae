// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/engine/Banco.h"

#include "practice/bank/complexity/Complejidad.h"
#include "practice/bank/congruences/Congruencias.h"
#include "practice/bank/euclid/Euclides.h"
#include "practice/bank/fibonacci/Fibonacci.h"
#include "practice/bank/functions/Funciones.h"
#include "practice/bank/minical/MiniCal.h"
#include "practice/bank/modular/Modular.h"
#include "practice/bank/primes/Primos.h"
#include "practice/bank/rsa/RSA.h"
#include "practice/bank/units/Unidades.h"

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
