#include "lessons/units/windows/ModeloCayley.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/units/NotacionZn.h"
#include "shell/core/ModGlobal.h"

#include <numeric>

using namespace Qt::Literals::StringLiterals;

void ModeloCayley::pon(std::int32_t n, Operacion operacion)
{
    if (n < 0 || n > MayorModulo)
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido);
    beginResetModel();
    m_n = n;
    m_operacion = operacion;
    m_elementos.clear();
    for (std::int32_t a = 0; a < n; ++a) {
        if (operacion != Operacion::ProductoDeUnidades || std::gcd(a, n) == 1)
            m_elementos << a;
    }
    endResetModel();
}

void ModeloCayley::ponOscuro(bool oscuro)
{
    m_oscuro = oscuro;
    if (!m_elementos.isEmpty())
        Q_EMIT dataChanged(index(0, 0), index(rowCount() - 1, columnCount() - 1));
}

int ModeloCayley::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_elementos.size());
}

int ModeloCayley::columnCount(const QModelIndex &padre) const
{
    return rowCount(padre);
}

std::int32_t ModeloCayley::resultado(const QModelIndex &indice) const
{
    const std::int32_t a = m_elementos[indice.row()], b = m_elementos[indice.column()];
    return (m_operacion == Operacion::Suma ? a + b : a * b) % m_n;
}

std::int32_t ModeloCayley::neutro() const
{
    return m_operacion == Operacion::Suma ? 0 : 1 % m_n;
}

/// Hues go round with the values; the lightness stays where the ink of the theme reads well.
QColor ModeloCayley::fondo(std::int32_t valor) const
{
    if (valor == neutro())
        return m_oscuro ? 0xf2a541 : 0x1f6f8b;
    const int tono = valor * 360 / m_n;
    return m_oscuro ? QColor::fromHsl(tono, 110, 62) : QColor::fromHsl(tono, 150, 215);
}

QColor ModeloCayley::tinta(std::int32_t valor) const
{
    const bool clara = m_oscuro != (valor == neutro());
    return clara ? 0xffffff : 0x172226;
}

QString ModeloCayley::descripcion() const
{
    QString texto;
    switch (m_operacion) {
    case Operacion::ProductoDeUnidades:
        texto = Traduce(u"Producto de las unidades de Z%1, que son %2. Cada valor tiene su color; "
                        u"el neutro, el %3, resalta en el cruce de cada unidad con su inversa."_s);
        break;
    case Operacion::Producto:
        texto = Traduce(u"Producto en Z%1, de %2 elementos. Cada valor tiene su color; el neutro, "
                        u"el %3, resalta, y falta en las filas de los que no son unidades."_s);
        break;
    case Operacion::Suma:
        texto = Traduce(u"Suma en Z%1, de %2 elementos. Cada valor tiene su color; el neutro, el "
                        u"%3, resalta en el cruce de cada elemento con su opuesto."_s);
        break;
    }
    return texto.arg(subindice(m_n)).arg(m_elementos.size()).arg(neutro()) + u' ' +
           Traduce(u"Elija una casilla para leerla."_s);
}

QString ModeloCayley::explicacion(const QModelIndex &indice) const
{
    return u"%1 %2 %3 ≡ %4 (mod %5)"_s.arg(m_elementos[indice.row()])
        .arg(QChar(m_operacion == Operacion::Suma ? u'+' : u'·'))
        .arg(m_elementos[indice.column()])
        .arg(resultado(indice))
        .arg(m_n);
}

QVariant ModeloCayley::data(const QModelIndex &indice, int rol) const
{
    if (!indice.isValid())
        return {};
    switch (rol) {
    case Qt::DisplayRole:
        return QString::number(resultado(indice));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignCenter);
    case Qt::BackgroundRole:
        return fondo(resultado(indice));
    case Qt::ForegroundRole:
        return tinta(resultado(indice));
    case Qt::ToolTipRole:
    case Qt::AccessibleTextRole:
        return explicacion(indice);
    default:
        return {};
    }
}

QVariant ModeloCayley::headerData(int seccion, Qt::Orientation, int rol) const
{
    if (rol == Qt::DisplayRole && seccion < m_elementos.size())
        return QString::number(m_elementos[seccion]);
    return rol == Qt::TextAlignmentRole ? QVariant(Qt::AlignCenter) : QVariant();
}
