// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/CopiaDeCeldas.h"

#include <QLocale>
#include <QPointer>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A table that is read over a while, during which it may change or go.
class Lector
{
public:
    Lector(const QAbstractItemModel *modelo, Billete billete)
        : m_modelo(modelo), m_billete(std::move(billete))
    {
        const auto cambia = [this] { m_haCambiado = true; };
        QObject::connect(modelo, &QAbstractItemModel::modelReset, &m_contexto, cambia);
        QObject::connect(modelo, &QAbstractItemModel::layoutChanged, &m_contexto, cambia);
        QObject::connect(modelo, &QAbstractItemModel::dataChanged, &m_contexto, cambia);
        QObject::connect(modelo, &QAbstractItemModel::rowsInserted, &m_contexto, cambia);
        QObject::connect(modelo, &QAbstractItemModel::rowsRemoved, &m_contexto, cambia);
        QObject::connect(modelo, &QAbstractItemModel::columnsInserted, &m_contexto, cambia);
        QObject::connect(modelo, &QAbstractItemModel::columnsRemoved, &m_contexto, cambia);
    }

    bool sigue() const { return m_modelo && !m_haCambiado && !m_billete.detenida(); }
    Billete::Cesion cede() const { return m_billete.ceder(); }

    QString celda(int fila, int columna) const
    {
        return m_modelo->index(fila, columna).data().toString();
    }
    QString rotulo(int seccion, Qt::Orientation sentido) const
    {
        return m_modelo->headerData(seccion, sentido).toString();
    }

private:
    QPointer<const QAbstractItemModel> m_modelo;
    Billete m_billete;
    QObject m_contexto;
    bool m_haCambiado = false;
};

/// The last row that is not empty; the first where all are.
Tarea<int> ultimaConContenido(const Lector &lector, CeldasPorCopiar celdas)
{
    for (int fila = celdas.ultimaFila; fila > celdas.primeraFila; --fila) {
        for (int c = celdas.primeraColumna; c <= celdas.ultimaColumna; ++c) {
            if (!lector.sigue() || !lector.celda(fila, c).isEmpty())
                co_return fila;
            co_await lector.cede();
        }
    }
    co_return celdas.primeraFila;
}

QStringList cabecera(const Lector &lector, const CeldasPorCopiar &celdas)
{
    QStringList rotulos(celdas.conRotulos ? 1 : 0);
    for (int c = celdas.primeraColumna; c <= celdas.ultimaColumna; ++c)
        rotulos << lector.rotulo(c, Qt::Horizontal);
    return rotulos;
}

} // namespace

Tarea<Copia> copiaCeldas(const QAbstractItemModel *modelo, CeldasPorCopiar celdas,
                         FormaDeCopia forma, AvanceDeFilas avance, Billete billete)
{
    if (celdas.cuantas() > Copia::MaximoDeCeldas)
        co_return Copia{Copia::NoCabe, {}};
    const Lector lector(modelo, billete);
    if (celdas.sinFinal)
        celdas.ultimaFila = co_await ultimaConContenido(lector, celdas);
    const int columnas = celdas.ultimaColumna - celdas.primeraColumna + 1;
    EscritorDeRejilla escritor(forma, columnas + (celdas.conRotulos ? 1 : 0),
                               QLocale().decimalPoint() == u","_s);
    if (celdas.conCabecera && lector.sigue())
        escritor.agrega(cabecera(lector, celdas));
    qint64 caracteres = 0;
    for (int f = celdas.primeraFila; f <= celdas.ultimaFila && lector.sigue(); ++f) {
        QStringList fila;
        if (celdas.conRotulos)
            fila << lector.rotulo(f, Qt::Vertical);
        for (int c = celdas.primeraColumna; c <= celdas.ultimaColumna && lector.sigue(); ++c) {
            fila << lector.celda(f, c);
            caracteres += fila.last().size() + 1;
            if (caracteres > Copia::MaximoDeCaracteres)
                co_return Copia{Copia::NoCabe, {}};
            co_await lector.cede();
        }
        escritor.agrega(fila);
        avance(f - celdas.primeraFila + 1);
    }
    if (!lector.sigue())
        co_return Copia{Copia::Detenida, {}};
    co_return Copia{Copia::Entera, escritor.termina()};
}
