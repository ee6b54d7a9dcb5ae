// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Estilo.h"

#include "shell/look/Aspecto.h"

#include <QApplication>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOptionButton>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The marks of message boxes: a letter in a ring, as sober as the text beside it.
QIcon senal(const QString &letra, const QColor &color)
{
    constexpr int lado = 96; // as large as any screen wants it
    QPixmap dibujo(lado, lado);
    dibujo.fill(Qt::transparent);
    QPainter pintor(&dibujo);
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(color, 6));
    pintor.drawEllipse(QRectF(8, 8, lado - 16, lado - 16));
    QFont tipo = pintor.font();
    tipo.setPixelSize(56);
    tipo.setBold(true);
    pintor.setFont(tipo);
    pintor.drawText(dibujo.rect(), Qt::AlignCenter, letra);
    return QIcon(dibujo);
}

/// How wide the border is that tells where the keyboard is, in pixels.
constexpr int AnchoDelFoco = 2;

bool esMarco(QStyle::PrimitiveElement elemento)
{
    return elemento == QStyle::PE_Frame || elemento == QStyle::PE_FrameLineEdit;
}

/// Whether an accent border tells that the keyboard is in it: fields of one line and of several,
/// lists, grids and pages.
bool muestraElFoco(const QStyleOption &opcion, const QWidget *control)
{
    return opcion.state & QStyle::State_HasFocus &&
           (control && (control->inherits("QLineEdit") || control->inherits("QAbstractSpinBox") ||
                        control->inherits("QComboBox") ||
                        (control->inherits("QAbstractScrollArea") &&
                         !control->window()->windowFlags().testFlag(Qt::Popup))));
}

void dibujaFoco(QPainter &pintor, const QRect &sitio)
{
    pintor.save();
    pintor.setRenderHint(QPainter::Antialiasing);
    pintor.setPen(QPen(Aspecto::acento(), AnchoDelFoco));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawRoundedRect(QRectF(sitio).adjusted(1, 1, -1, -1), 2, 2);
    pintor.restore();
}

/// Whether the keyboard is in a list, or in the editor or the drop-down that it stands in.
bool tieneElTeclado(const QWidget &vista)
{
    return vista.hasFocus() || vista.isAncestorOf(QApplication::focusWidget()) ||
           vista.window()->windowFlags().testFlag(Qt::Popup);
}

} // namespace

Estilo::Estilo() : QProxyStyle(QStyleFactory::create(u"Fusion"_s)) {}

QSize Estilo::sizeFromContents(ContentsType tipo, const QStyleOption *opcion,
                               const QSize &contenido, const QWidget *control) const
{
    QSize tamano = QProxyStyle::sizeFromContents(tipo, opcion, contenido, control);
    if (tipo == CT_PushButton)
        tamano += QSize(16, 8);
    else if (tipo == CT_LineEdit || tipo == CT_SpinBox || tipo == CT_ComboBox)
        tamano += QSize(0, 6);
    else if (tipo == CT_TabBarTab)
        tamano += QSize(8, 6);
    return tamano;
}

/// Six or seven pixels on either side of what stands in a cell and above it; room for the border
/// that tells where the keyboard is.
int Estilo::pixelMetric(PixelMetric medida, const QStyleOption *opcion,
                        const QWidget *control) const
{
    if (medida == PM_FocusFrameHMargin)
        return 6;
    if (medida == PM_HeaderMargin)
        return 6;
    if (medida == PM_DefaultFrameWidth && control && control->inherits("QAbstractScrollArea"))
        return AnchoDelFoco;
    return QProxyStyle::pixelMetric(medida, opcion, control);
}

int Estilo::styleHint(StyleHint consejo, const QStyleOption *opcion, const QWidget *control,
                      QStyleHintReturn *vuelta) const
{
    if (consejo == SH_DialogButtonBox_ButtonsHaveIcons)
        return 0;
    return QProxyStyle::styleHint(consejo, opcion, control, vuelta);
}

QIcon Estilo::standardIcon(StandardPixmap cual, const QStyleOption *opcion,
                           const QWidget *control) const
{
    switch (cual) {
    case SP_MessageBoxInformation:
        return senal(u"i"_s, Aspecto::acento());
    case SP_MessageBoxQuestion:
        return senal(u"?"_s, Aspecto::acento());
    case SP_MessageBoxWarning:
    case SP_MessageBoxCritical:
        return senal(u"!"_s, Aspecto::error());
    default:
        return QProxyStyle::standardIcon(cual, opcion, control);
    }
}

void Estilo::drawPrimitive(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                           const QWidget *control) const
{
    // Fusion shows it only once the Tab key was used; Ctrl and a digit, or the start, put it there
    // as well.
    if (elemento == PE_FrameFocusRect && control && control->inherits("QTabBar")) {
        dibujaFoco(*pintor, opcion->rect);
        return;
    }
    if (Aspecto::esOscuro())
        dibujaAclarado(elemento, opcion, pintor, control);
    else
        QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
    if (esMarco(elemento) && muestraElFoco(*opcion, control))
        dibujaFoco(*pintor, opcion->rect);
}

/// Fusion outlines marks, fields and frames darker than the window, which nobody sees on a dark
/// one: these get an outline that can be seen.
void Estilo::dibujaAclarado(PrimitiveElement elemento, const QStyleOption *opcion, QPainter *pintor,
                            const QWidget *control) const
{
    const auto dibuja = [&](auto aclarada) {
        aclarada.palette.setColor(QPalette::Window, Aspecto::atenuado());
        QProxyStyle::drawPrimitive(elemento, &aclarada, pintor, control);
    };
    const bool esMarca = elemento == PE_IndicatorRadioButton || elemento == PE_IndicatorCheckBox;
    const auto *boton = qstyleoption_cast<const QStyleOptionButton *>(opcion);
    const auto *marco = qstyleoption_cast<const QStyleOptionFrame *>(opcion);
    if (esMarca && boton)
        dibuja(*boton);
    else if ((elemento == PE_PanelLineEdit || esMarco(elemento)) && marco)
        dibuja(*marco);
    else
        QProxyStyle::drawPrimitive(elemento, opcion, pintor, control);
}

/// What is chosen in a list without the keyboard is grey, as in a window that is not in front.
void Estilo::drawControl(ControlElement elemento, const QStyleOption *opcion, QPainter *pintor,
                         const QWidget *control) const
{
    const auto *celda = qstyleoption_cast<const QStyleOptionViewItem *>(opcion);
    const bool esDeLista = elemento == CE_ItemViewItem && celda && control;
    if (!esDeLista || tieneElTeclado(*control)) {
        QProxyStyle::drawControl(elemento, opcion, pintor, control);
        return;
    }
    QStyleOptionViewItem apagada(*celda);
    apagada.state &= ~State_Active;
    QProxyStyle::drawControl(elemento, &apagada, pintor, control);
}
