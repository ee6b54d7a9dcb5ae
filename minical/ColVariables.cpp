// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/ColVariables.h"

#include "bignum/gateway/ErrorEjecucion.h"

#include <iterator>

clsVariable &ColVariables::Agregar(const QString &nombre, const QString &valor)
{
    const auto existente = m_ordenes.constFind(nombre);
    const Orden orden = existente != m_ordenes.constEnd() ? *existente : m_siguiente++;
    m_ordenes.insert(nombre, orden);
    clsVariable &variable = m_entradas[orden];
    variable.ponNombre(nombre);
    variable.ponValor(valor);
    return variable;
}

void ColVariables::repone(const QString &nombre, const QString &valor, Orden orden)
{
    Remove(nombre);
    m_ordenes.insert(nombre, orden);
    m_entradas.insert_or_assign(orden, clsVariable(nombre, valor));
    m_siguiente = std::max(m_siguiente, orden + 1);
}

const clsVariable &ColVariables::Item(const QString &nombre) const
{
    const auto entrada = busca(nombre);
    if (entrada == end())
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido, nombre);
    return entrada->second;
}

const clsVariable &ColVariables::Item(qsizetype indice) const
{
    return enLugar(indice)->second;
}

ColVariables::Entradas::const_iterator ColVariables::busca(const QString &nombre) const
{
    const auto orden = m_ordenes.constFind(nombre);
    return orden == m_ordenes.constEnd() ? end() : m_entradas.find(*orden);
}

void ColVariables::Remove(const QString &nombre)
{
    const auto entrada = busca(nombre);
    if (entrada == end())
        return;
    m_entradas.erase(entrada);
    m_ordenes.remove(nombre);
}

void ColVariables::Remove(qsizetype indice)
{
    const auto entrada = enLugar(indice);
    m_ordenes.remove(entrada->second.Nombre());
    m_entradas.erase(entrada);
}

ColVariables::Entradas::const_iterator ColVariables::enLugar(qsizetype indice) const
{
    if (indice < 1 || indice > Count())
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeRango);
    return std::next(m_entradas.begin(), indice - 1);
}
