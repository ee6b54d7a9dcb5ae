#pragma once

#include "lessons/units/GrupoUnidades.h"

#include <QAbstractTableModel>
#include <QColor>

/// A Cayley table of Z_n: elements by elements, each cell on the colour of its value so that the
/// eye finds the pattern, and the neutral element on a colour of its own.
class ModeloCayley : public QAbstractTableModel
{
    Q_OBJECT

public:
    static constexpr std::int32_t MayorModulo = 60;

    enum class Operacion { ProductoDeUnidades, Producto, Suma };

    using QAbstractTableModel::QAbstractTableModel;

    /// n in 0..MayorModulo; with 0 the table is empty. Throws ArgumentoNoValido outside.
    void pon(std::int32_t n, Operacion operacion);

    /// Chooses the colours for a dark ground.
    void ponOscuro(bool oscuro);

    std::int32_t modulo() const { return m_n; }

    /// What there is to see in the table, in a line or two; for a modulus of 1 or more.
    QString descripcion() const;

    int rowCount(const QModelIndex &padre = {}) const override;
    int columnCount(const QModelIndex &padre = {}) const override;
    QVariant data(const QModelIndex &indice, int rol = Qt::DisplayRole) const override;
    QVariant headerData(int seccion, Qt::Orientation orientacion, int rol) const override;

private:
    std::int32_t resultado(const QModelIndex &indice) const;
    std::int32_t neutro() const;
    QColor fondo(std::int32_t valor) const;
    QColor tinta(std::int32_t valor) const;
    QString explicacion(const QModelIndex &indice) const;

    std::int32_t m_n = 0;
    Operacion m_operacion = Operacion::ProductoDeUnidades;
    QList<std::int32_t> m_elementos;
    bool m_oscuro = false;
};
