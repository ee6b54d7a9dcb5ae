// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/DelegadoDePasos.h"

#include "shell/look/Aspecto.h"
#include "shell/steps/ModeloDePasos.h"

#include <QListView>
#include <QPainter>
#include <cmath>

namespace {

constexpr int Guardados = 400;

int anchoUtil(const QStyleOptionViewItem &opcion)
{
    const auto *lista = qobject_cast<const QListView *>(opcion.widget);
    const int ancho = lista ? lista->viewport()->width() : opcion.rect.width();
    return std::max(60, ancho - 2 * Aspecto::Espacio);
}

} // namespace

DelegadoDePasos::DelegadoDePasos(QObject *padre)
    : QStyledItemDelegate(padre), m_compuestos(Guardados)
{
}

void DelegadoDePasos::olvida()
{
    m_compuestos.clear();
}

const PasoCompuesto &DelegadoDePasos::compuesto(const QStyleOptionViewItem &opcion,
                                                const QModelIndex &indice) const
{
    if (const int ancho = anchoUtil(opcion); ancho != m_ancho) {
        m_compuestos.clear();
        m_ancho = ancho;
    }
    if (PasoCompuesto *hecho = m_compuestos.object(indice.row()))
        return *hecho;
    const auto *modelo = static_cast<const ModeloDePasos *>(indice.model());
    auto *nuevo = new PasoCompuesto(modelo->paso(indice.row()), indice.row(), opcion.font, m_ancho);
    m_compuestos.insert(indice.row(), nuevo);
    return *nuevo;
}

void DelegadoDePasos::paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
                            const QModelIndex &indice) const
{
    const TintasDePaso tintas = TintasDePaso::dePantalla();
    pintor->save();
    pintor->setClipRect(opcion.rect);
    if (opcion.state.testFlag(QStyle::State_Selected)) {
        // A tint and a bar, on which the colours of the text can still be read.
        QColor fondo = tintas.acento;
        fondo.setAlphaF(0.12F);
        pintor->fillRect(opcion.rect, fondo);
        pintor->fillRect(QRect(opcion.rect.topLeft(), QSize(3, opcion.rect.height())),
                         tintas.acento);
    }
    compuesto(opcion, indice)
        .pinta(*pintor, opcion.rect.topLeft() + QPointF(Aspecto::Espacio, Aspecto::Espacio / 2),
               tintas);
    pintor->restore();
}

QSize DelegadoDePasos::sizeHint(const QStyleOptionViewItem &opcion, const QModelIndex &indice) const
{
    const qreal alto = compuesto(opcion, indice).alto();
    return {anchoUtil(opcion), static_cast<int>(std::ceil(alto)) + Aspecto::Espacio};
}
