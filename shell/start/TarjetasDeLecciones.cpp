// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/TarjetasDeLecciones.h"

#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/start/MenuLecciones.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyledItemDelegate>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Columnas = 3;
/// The least width of a card, in letters.
constexpr int LetrasAlMenos = 38;
constexpr int Separacion = Aspecto::Margen;
constexpr int Relleno = Aspecto::Margen;

/// Paints a card. The picture stands on a round button, the texts beside it.
class PintorDeTarjetas : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void ponTamano(QSize tamano) { m_tamano = tamano; }
    QSize sizeHint(const QStyleOptionViewItem &, const QModelIndex &) const override
    {
        return m_tamano;
    }

    /// A card already says what its tooltip in the menu does.
    bool helpEvent(QHelpEvent *, QAbstractItemView *, const QStyleOptionViewItem &,
                   const QModelIndex &) override
    {
        return false;
    }

    void paint(QPainter *pintor, const QStyleOptionViewItem &opcion,
               const QModelIndex &indice) const override
    {
        const bool activa = opcion.state & QStyle::State_Enabled;
        const bool senalada = opcion.state & QStyle::State_MouseOver && activa;
        const bool enfocada = opcion.state & QStyle::State_HasFocus;
        const QPalette &paleta = opcion.palette;
        const auto grupo = activa ? QPalette::Normal : QPalette::Disabled;
        pintor->save();
        pintor->setRenderHint(QPainter::Antialiasing);

        const QRect tarjeta = opcion.rect.adjusted(0, 0, -Separacion, -Separacion);
        const bool marcada = senalada || enfocada;
        pintor->setPen(
            QPen(marcada ? Aspecto::acento() : paleta.color(QPalette::Mid), enfocada ? 2 : 1));
        pintor->setBrush(paleta.color(senalada ? QPalette::Base : QPalette::Button));
        pintor->drawRoundedRect(QRectF(tarjeta).adjusted(1, 1, -1, -1), 8, 8);

        const int lado = ladoDelBoton(opcion);
        const QRect boton(tarjeta.left() + Relleno, tarjeta.top() + Relleno, lado, lado);
        const auto modo = activa ? QIcon::Normal : QIcon::Disabled;
        m_boton.paint(pintor, boton, Qt::AlignCenter, modo);
        const int margen = lado / 5;
        indice.data(Qt::DecorationRole)
            .value<QIcon>()
            .paint(pintor, boton.adjusted(margen, margen, -margen, -margen), Qt::AlignCenter, modo);

        QRect letrero = tarjeta.adjusted(lado + 2 * Relleno, Relleno, -Relleno, -Relleno);
        pintor->setPen(paleta.color(grupo, QPalette::Text));
        pintor->setFont(letraDelNombre(opcion));
        QRect ocupado;
        pintor->drawText(letrero, Qt::TextWordWrap, nombre(indice), &ocupado);
        letrero.setTop(ocupado.bottom() + Aspecto::Espacio / 2);
        pintor->setFont(opcion.font);
        pintor->drawText(letrero, Qt::TextWordWrap, descripcion(indice));
        pintor->restore();
    }

    /// The height of a card of this width, its distance to the next included.
    int alto(const QStyleOptionViewItem &opcion, const QModelIndex &indice, int ancho) const
    {
        const int lado = ladoDelBoton(opcion);
        const QRect hueco(0, 0, ancho - Separacion - lado - 3 * Relleno, 10'000);
        const auto altoDe = [&hueco](const QFont &letra, const QString &texto) {
            return QFontMetrics(letra).boundingRect(hueco, Qt::TextWordWrap, texto).height();
        };
        const int textos = altoDe(letraDelNombre(opcion), nombre(indice)) + Aspecto::Espacio / 2 +
                           altoDe(opcion.font, descripcion(indice));
        return std::max(textos, lado) + 2 * Relleno + Separacion;
    }

private:
    static QString nombre(const QModelIndex &indice) { return indice.data().toString(); }
    static QString descripcion(const QModelIndex &indice)
    {
        return indice.data(MenuLecciones::PapelDescripcion).toString();
    }
    static int ladoDelBoton(const QStyleOptionViewItem &opcion)
    {
        return 3 * opcion.fontMetrics.height();
    }
    static QFont letraDelNombre(const QStyleOptionViewItem &opcion)
    {
        QFont letra = opcion.font;
        letra.setPointSizeF(letra.pointSizeF() * 1.15);
        letra.setBold(true);
        return letra;
    }

    QIcon m_boton = Icono(u"BOTONREDONDO"_s);
    QSize m_tamano;
};

} // namespace

TarjetasDeLecciones::TarjetasDeLecciones(QWidget *padre) : QListView(padre)
{
    setItemDelegate(new PintorDeTarjetas(this));
    setViewMode(IconMode);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollMode(ScrollPerPixel);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    viewport()->setCursor(Cursor(u"MANO"_s, {10, 3}));
    conecta(this, &QListView::clicked, this,
            [this](const QModelIndex &indice) { Q_EMIT elegida(indice.row()); });
}

void TarjetasDeLecciones::keyPressEvent(QKeyEvent *suceso)
{
    const int tecla = suceso->key();
    const bool elige = tecla == Qt::Key_Return || tecla == Qt::Key_Enter || tecla == Qt::Key_Space;
    if (elige && currentIndex().flags().testFlag(Qt::ItemIsEnabled))
        evento(this, [this] { Q_EMIT elegida(currentIndex().row()); });
    else
        QListView::keyPressEvent(suceso);
}

void TarjetasDeLecciones::resizeEvent(QResizeEvent *suceso)
{
    reparte();
    QListView::resizeEvent(suceso);
}

void TarjetasDeLecciones::changeEvent(QEvent *suceso)
{
    QListView::changeEvent(suceso);
    if (suceso->type() == QEvent::FontChange || suceso->type() == QEvent::StyleChange)
        reparte();
}

void TarjetasDeLecciones::reparte()
{
    if (!model())
        return;
    QStyleOptionViewItem opcion;
    initViewItemOption(&opcion);
    const int letra = opcion.fontMetrics.averageCharWidth();
    // The view keeps the width of its scroll bar free whether or not it shows.
    const int libre =
        maximumViewportSize().width() - style()->pixelMetric(QStyle::PM_ScrollBarExtent) - 1;
    const int columnas = std::clamp(libre / (LetrasAlMenos * letra), 1, Columnas);
    const int ancho = std::max(libre / columnas, 1);
    auto *pintor = static_cast<PintorDeTarjetas *>(itemDelegate());
    int alto = 0;
    for (int fila = 0; fila < model()->rowCount(); ++fila)
        alto = std::max(alto, pintor->alto(opcion, model()->index(fila, 0), ancho));
    pintor->ponTamano({ancho, alto});
    setGridSize({ancho, alto});
    const int filas = (model()->rowCount() + columnas - 1) / columnas;
    setMaximumHeight(filas * alto + 1);
}
