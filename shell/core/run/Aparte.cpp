// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/run/Aparte.h"

#include "bignum/gateway/ModBignum.h"

bool Aparte::responde()
{
    return false;
}

Tarea<FinDeFactores> Aparte::buscaFactores(QString n, RecibeFactor recibe, Billete)
{
    co_return BuscaFactores(n, recibe);
}

Tarea<Descomposicion> Aparte::descompone(QString n, Billete)
{
    co_return Descompone(n);
}

Tarea<QString> Aparte::fiEuler(QString n, Billete)
{
    co_return FiEuler(n);
}

Tarea<bool> Aparte::esPrimo(QString n, Billete)
{
    co_return EsPrimo(n);
}

Tarea<QString> Aparte::primoSiguiente(QString n, Billete)
{
    co_return PrimoSiguiente(n);
}

Tarea<QString> Aparte::primoAleatorio(std::int16_t bits, Billete)
{
    co_return PrimoAleatorio(bits);
}
