// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/MenuLecciones.h"

#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QApplication>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What a lesson teaches, and on a line of its own what it builds on.
QString descripcionDe(const Leccion &leccion)
{
    QStringList antes;
    for (const QString &rotulo : leccion.antes)
        antes << Traduce(rotulo);
    const QString descripcion = Traduce(leccion.descripcion);
    return antes.isEmpty() ? descripcion
                           : descripcion + u'\n' +
                                 Traduce(u"Conviene ver antes: %1."_s).arg(antes.join(u", "_s));
}

} // namespace

MenuLecciones::MenuLecciones(const QList<Leccion> &lecciones, QObject *padre)
    : QAbstractListModel(padre),
      m_lecciones(lecciones),
      m_resaltadas(lecciones.size(), false),
      m_marcas(lecciones.size(), Cerrada)
{
}

int MenuLecciones::rowCount(const QModelIndex &padre) const
{
    return padre.isValid() ? 0 : static_cast<int>(m_lecciones.size());
}

QVariant MenuLecciones::data(const QModelIndex &indice, int papel) const
{
    if (!checkIndex(indice, CheckIndexOption::IndexIsValid))
        return {};
    const Leccion &leccion = m_lecciones[indice.row()];
    switch (papel) {
    case Qt::DisplayRole:
        return Traduce(leccion.rotulo);
    case Qt::AccessibleTextRole:
        return m_marcas[indice.row()] == Cerrada
                   ? Traduce(leccion.rotulo)
                   : Traduce(m_marcas[indice.row()] == Activa ? u"%1, en primer plano"_s
                                                              : u"%1, abierta"_s)
                         .arg(Traduce(leccion.rotulo));
    case Qt::DecorationRole:
        return Icono(leccion.icono);
    case Qt::ToolTipRole:
        return (Traduce(leccion.rotulo) + u'\n' + descripcionDe(leccion)).trimmed();
    case PapelDescripcion:
        return descripcionDe(leccion);
    case PapelResaltado:
        return m_resaltadas[indice.row()];
    case PapelMarca:
        return m_marcas[indice.row()];
    default:
        return {};
    }
}

Qt::ItemFlags MenuLecciones::flags(const QModelIndex &indice) const
{
    const bool disponible = indice.isValid() && m_lecciones[indice.row()].crea;
    return disponible ? Qt::ItemIsEnabled | Qt::ItemIsSelectable : Qt::NoItemFlags;
}

void MenuLecciones::ponResaltado(int fila, bool resaltado)
{
    if (fila < 0 || fila >= rowCount() || m_resaltadas[fila] == resaltado)
        return;
    m_resaltadas[fila] = resaltado;
    Q_EMIT dataChanged(index(fila), index(fila), {PapelResaltado});
}

void MenuLecciones::ponMarca(int fila, Marca marca)
{
    if (fila < 0 || fila >= rowCount() || m_marcas[fila] == marca)
        return;
    m_marcas[fila] = marca;
    Q_EMIT dataChanged(index(fila), index(fila), {PapelMarca, Qt::AccessibleTextRole});
}

void PintorDeMenu::pintaMarca(QPainter &pintor, const QRect &cuadro, MenuLecciones::Marca marca)
{
    if (marca == MenuLecciones::Cerrada)
        return;
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(Aspecto::acento());
    if (marca == MenuLecciones::Activa)
        pintor.drawRoundedRect(QRect(cuadro.left(), cuadro.top() + 6, 4, cuadro.height() - 12), 2,
                               2);
    else
        pintor.drawEllipse(QPoint(cuadro.right() - 8, cuadro.center().y()), 3, 3);
}

void MenuLecciones::ponDescripcion(int fila, const QString &descripcion)
{
    m_lecciones[fila].descripcion = descripcion;
    Q_EMIT dataChanged(index(fila), index(fila), {PapelDescripcion, Qt::ToolTipRole});
}

void PintorDeMenu::paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
                         const QModelIndex &indice) const
{
    const bool activo = opcion.state & QStyle::State_Enabled;
    const bool resaltado = indice.data(MenuLecciones::PapelResaltado).toBool() && activo;
    const bool enfocado = opcion.state & QStyle::State_HasFocus;
    const QRect cuadro = opcion.rect.adjusted(4, 2, -4, -2);

    pintor->save();
    pintor->setRenderHint(QPainter::Antialiasing);
    // A veil of the accent colour: on the colour itself the outlines of the pictures would be lost.
    QColor velo = Aspecto::acento();
    velo.setAlphaF(resaltado ? 0.22F : 0);
    pintor->setPen(enfocado ? QPen(Aspecto::acento(), 1.5) : QPen(Qt::NoPen));
    pintor->setBrush(velo);
    pintor->drawRoundedRect(cuadro, 6, 6);
    pintaMarca(*pintor, cuadro,
               static_cast<MenuLecciones::Marca>(indice.data(MenuLecciones::PapelMarca).toInt()));

    const int lado = opcion.decorationSize.height();
    const QRect icono(cuadro.left() + 8, cuadro.center().y() - lado / 2 + 1, lado, lado);
    indice.data(Qt::DecorationRole)
        .value<QIcon>()
        .paint(pintor, icono, Qt::AlignCenter, activo ? QIcon::Normal : QIcon::Disabled);

    const auto grupo = activo ? QPalette::Normal : QPalette::Disabled;
    pintor->setPen(opcion.palette.color(grupo, QPalette::Text));
    const QRect letrero = cuadro.adjusted(lado + 18, 0, -16, 0);
    const QString texto =
        opcion.fontMetrics.elidedText(indice.data().toString(), Qt::ElideRight, letrero.width());
    pintor->drawText(letrero, Qt::AlignVCenter | Qt::AlignLeft, texto);
    pintor->restore();
}

QSize PintorDeMenu::sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const
{
    const int alto = std::max(opcion.decorationSize.height(), opcion.fontMetrics.height()) + 16;
    const int ancho = opcion.fontMetrics.horizontalAdvance(indice.data().toString());
    return {ancho + opcion.decorationSize.width() + 50, alto};
}
