// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/LienzoDeLamina.h"

#include "shell/access/Papel.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/steps/PintorDeLamina.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>
#include <QPainter>

using namespace Qt::Literals::StringLiterals;

LienzoDeLamina::LienzoDeLamina(QWidget *padre) : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    ponPapel(this, QAccessible::Graphic);
}

void LienzoDeLamina::pon(const Lamina &lamina)
{
    m_lamina = lamina;
    setAccessibleName(Traduce(u"Dibujo del paso: %1"_s).arg(lamina.descripcion()));
    setToolTip(lamina.descripcion());
    update();
}

QSize LienzoDeLamina::sizeHint() const
{
    return {320, 220};
}

QSize LienzoDeLamina::minimumSizeHint() const
{
    return {80, 60};
}

void LienzoDeLamina::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    const QRectF hueco = QRectF(rect()).adjusted(Aspecto::Espacio, Aspecto::Espacio,
                                                 -Aspecto::Espacio, -Aspecto::Espacio);
    pintaLamina(pintor, m_lamina, hueco, TintasDePaso::dePantalla());
}

void LienzoDeLamina::contextMenuEvent(QContextMenuEvent *suceso)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(Traduce(u"Copiar el dibujo"_s), this, &LienzoDeLamina::copia);
    menu->popup(suceso->globalPos());
}

void LienzoDeLamina::copia() const
{
    constexpr qreal Finura = 2; // pixels of the picture to one of the screen
    QImage imagen(size() * Finura, QImage::Format_ARGB32_Premultiplied);
    imagen.setDevicePixelRatio(Finura);
    imagen.fill(Qt::white);
    QPainter pintor(&imagen);
    pintaLamina(pintor, m_lamina, QRectF(rect()).marginsRemoved({8, 8, 8, 8}),
                TintasDePaso::dePapel());
    pintor.end();
    QGuiApplication::clipboard()->setImage(imagen);
}
