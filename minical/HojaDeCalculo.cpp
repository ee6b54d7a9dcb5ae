// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/HojaDeCalculo.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "minical/HojaGuardada.h"
#include "minical/Sustitucion.h"
#include "shell/core/Lectura.h"

#include <algorithm>

namespace {

/// Calls an action for every data cell, row by row.
template <typename Accion>
void recorre(Accion accion)
{
    for (int fila = 1; fila < Celda::Filas; ++fila)
        for (int columna = 1; columna < Celda::Columnas; ++columna)
            accion(Celda{fila, columna});
}

bool tieneValor(const QString &resultado)
{
    return !resultado.isEmpty() && !esError(resultado);
}

} // namespace

HojaDeCalculo::HojaDeCalculo() : m_casillas(Celda::Filas * Celda::Columnas) {}

std::size_t HojaDeCalculo::lugar(int fila, int columna)
{
    if (fila < 0 || fila >= Celda::Filas || columna < 0 || columna >= Celda::Columnas)
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeRango);
    return static_cast<std::size_t>(fila * Celda::Columnas + columna);
}

const QString &HojaDeCalculo::Expresiones(int fila, int columna) const
{
    return m_casillas[lugar(fila, columna)].expresion;
}

const QString &HojaDeCalculo::Resultados(int fila, int columna) const
{
    return m_casillas[lugar(fila, columna)].resultado;
}

const QString &HojaDeCalculo::texto(Celda celda) const
{
    const Casilla &c = casilla(celda);
    return c.muestraExpresion ? c.expresion : c.resultado;
}

QString HojaDeCalculo::SustituirVariables(const QString &expresion) const
{
    return sustituyeVariables(m_variables, expresion, LongitudMaximaSustituida);
}

bool HojaDeCalculo::EsDecimal(QStringView texto)
{
    return std::ranges::all_of(
        texto, [](QChar c) { return (c >= u'0' && c <= u'9') || c == u'.' || c == u','; });
}

/// Expressions of any kind end here, so nothing that evaluating throws goes further.
QString HojaDeCalculo::evalua(const QString &expresion) const
{
    try {
        return Evalua(SustituirVariables(expresion));
    } catch (const ErrorEjecucion &) {
        return TextoError.toString();
    }
}

CambioDeCelda HojaDeCalculo::evaluaEn(Celda celda, const QString &expresion)
{
    CambioDeCelda cambio{celda, estado(celda), {}};
    const QString resultado = evalua(expresion);
    casilla(celda) = {expresion, resultado, false};
    if (tieneValor(resultado))
        m_variables.Agregar(NombreCelda(celda), u'(' + resultado + u')');
    else
        m_variables.Remove(NombreCelda(celda));
    cambio.despues = estado(celda);
    avisa(celda);
    return cambio;
}

bool HojaDeCalculo::finDeEdicion(Celda celda, const QString &texto)
{
    if (texto == casilla(celda).expresion) {
        casilla(celda).muestraExpresion = false;
        avisa(celda);
        return false;
    }
    anota({evaluaEn(celda, texto)});
    return true;
}

bool HojaDeCalculo::Recalcular(Celda celda)
{
    if (!celda.esDeDatos())
        return false;
    const QString expresion = casilla(celda).expresion;
    anota({evaluaEn(celda, expresion)});
    return true;
}

bool HojaDeCalculo::ValorDecimal(Celda celda)
{
    if (!celda.esDeDatos())
        return false;
    Casilla &c = casilla(celda);
    // A negative decimal form is no EsDecimal, and the service reads no comma.
    if (c.resultado.trimmed().isEmpty() || EsDecimal(c.resultado) || c.resultado.contains(u','))
        return false;
    CambioDeCelda cambio{celda, estado(celda), {}};
    c.resultado = ADecimal(c.resultado);
    c.muestraExpresion = false;
    cambio.despues = estado(celda);
    anota({cambio});
    avisa(celda);
    return true;
}

void HojaDeCalculo::muestra(bool expresiones)
{
    recorre([&](Celda celda) {
        casilla(celda).muestraExpresion = expresiones;
        avisa(celda);
    });
}

void HojaDeCalculo::borra(const QList<Celda> &celdas)
{
    PasoDeEdicion paso;
    for (const Celda celda : celdas) {
        if (celda.esDeDatos() && !casilla(celda).expresion.isEmpty())
            paso << evaluaEn(celda, {});
    }
    anota(paso);
}

/// The step that a paste grows into. However the paste ends, what it has changed can be undone.
class HojaDeCalculo::Pegado
{
public:
    explicit Pegado(HojaDeCalculo &hoja) : m_hoja(hoja) { m_hoja.m_pegando = true; }
    Pegado(const Pegado &) = delete;
    Pegado &operator=(const Pegado &) = delete;
    ~Pegado()
    {
        m_hoja.m_pegando = false;
        m_hoja.anota(m_paso);
    }

    void agrega(const CambioDeCelda &cambio) { m_paso << cambio; }

private:
    HojaDeCalculo &m_hoja;
    PasoDeEdicion m_paso;
};

Tarea<bool> HojaDeCalculo::pega(Celda esquina, QList<QStringList> bloque, Billete billete)
{
    Pegado pegado(*this);
    bool todo = true;
    for (int f = 0; f < bloque.size() && !billete.detenida(); ++f) {
        for (int c = 0; c < bloque[f].size() && !billete.detenida(); ++c) {
            const Celda celda{esquina.fila + f, esquina.columna + c};
            const bool cabe = celda.esDeDatos() && bloque[f][c].size() <= LongitudMaxima;
            todo = todo && cabe;
            if (cabe && bloque[f][c] != casilla(celda).expresion)
                pegado.agrega(evaluaEn(celda, bloque[f][c]));
            co_await billete.ceder();
        }
    }
    co_return todo;
}

EstadoDeCelda HojaDeCalculo::estado(Celda celda) const
{
    const Casilla &c = casilla(celda);
    EstadoDeCelda estado{c.expresion, c.resultado, {}};
    const auto entrada = m_variables.busca(NombreCelda(celda));
    if (entrada != m_variables.end())
        estado.variable = {entrada->second.Valor(), entrada->first};
    return estado;
}

void HojaDeCalculo::repone(Celda celda, const EstadoDeCelda &estado)
{
    casilla(celda) = {estado.expresion, estado.resultado, false};
    if (estado.variable)
        m_variables.repone(NombreCelda(celda), estado.variable->valor, estado.variable->orden);
    else
        m_variables.Remove(NombreCelda(celda));
    avisa(celda);
}

void HojaDeCalculo::anota(const PasoDeEdicion &paso)
{
    PasoDeEdicion cambios;
    std::ranges::copy_if(paso, std::back_inserter(cambios),
                         [](const CambioDeCelda &c) { return c.antes != c.despues; });
    m_historial.anota(cambios);
}

QList<Celda> HojaDeCalculo::deshace()
{
    QList<Celda> celdas;
    if (!m_historial.puedeDeshacer())
        return celdas;
    for (const CambioDeCelda &cambio : m_historial.deshace()) {
        repone(cambio.celda, cambio.antes);
        celdas << cambio.celda;
    }
    return celdas;
}

QList<Celda> HojaDeCalculo::rehace()
{
    QList<Celda> celdas;
    if (!m_historial.puedeRehacer())
        return celdas;
    for (const CambioDeCelda &cambio : m_historial.rehace()) {
        repone(cambio.celda, cambio.despues);
        celdas << cambio.celda;
    }
    return celdas;
}

void HojaDeCalculo::carga(const HojaGuardada &guardada)
{
    m_casillas.assign(m_casillas.size(), {});
    m_variables = {};
    m_historial = {};
    for (const CeldaGuardada &c : guardada.celdas) {
        casilla(c.celda) = {c.expresion, c.resultado, false};
        if (c.valor)
            m_variables.Agregar(NombreCelda(c.celda), u'(' + *c.valor + u')');
    }
    recorre([this](Celda celda) { avisa(celda); });
}

Celda HojaDeCalculo::ultimaUsada() const
{
    Celda ultima;
    recorre([&](Celda celda) {
        if (casilla(celda).expresion.isEmpty())
            return;
        ultima.fila = std::max(ultima.fila, celda.fila);
        ultima.columna = std::max(ultima.columna, celda.columna);
    });
    return ultima;
}

void HojaDeCalculo::avisa(Celda celda) const
{
    if (alCambiar)
        alCambiar(celda);
}
