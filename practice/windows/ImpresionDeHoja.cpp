// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/ImpresionDeHoja.h"

#include "practice/sheets/HojaDeEjercicios.h"
#include "shell/steps/PintorDeLamina.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <QPdfWriter>
#include <QPrinter>
#include <QTextDocument>

using namespace Qt::Literals::StringLiterals;

namespace {

/// In the colours of paper, twice as fine as it is shown.
ImagenDePagina pintada(const Lamina &lamina)
{
    constexpr QSizeF Mayor(360, 190);
    constexpr int Finura = 2;
    const QSize tamano = lamina.marco().size().scaled(Mayor, Qt::KeepAspectRatio).toSize();
    QImage imagen((tamano + QSize(8, 8)) * Finura, QImage::Format_RGB32);
    imagen.fill(Qt::white);
    {
        QPainter pintor(&imagen);
        pintor.scale(Finura, Finura);
        pintaLamina(pintor, lamina, QRectF(QPointF(4, 4), tamano), TintasDePaso::dePapel());
    }
    ImagenDePagina pagina{{}, imagen.size() / Finura};
    QBuffer bytes(&pagina.png);
    imagen.save(&bytes, "PNG");
    return pagina;
}

void preparaDocumento(QTextDocument &documento, const EncargoDeHoja &encargo, bool conSoluciones)
{
    // On paper text is black whatever the colours on the screen.
    documento.setDefaultStyleSheet(u"body, p, li, td, th, h1 { color: #000000; }"_s);
    documento.setHtml(hojaEnHtml(encargo, conSoluciones, pintada));
}

} // namespace

void imprimeHojaDeEjercicios(QPrinter &impresora, const EncargoDeHoja &encargo, bool conSoluciones)
{
    QTextDocument documento;
    preparaDocumento(documento, encargo, conSoluciones);
    documento.print(&impresora);
}

QByteArray hojaEnPagina(const EncargoDeHoja &encargo, bool conSoluciones)
{
    return hojaEnHtml(encargo, conSoluciones, pintada).toUtf8();
}

QByteArray hojaEnPdf(const EncargoDeHoja &encargo, bool conSoluciones)
{
    QBuffer bytes;
    bytes.open(QIODevice::WriteOnly);
    QTextDocument documento;
    preparaDocumento(documento, encargo, conSoluciones);
    {
        QPdfWriter pdf(&bytes);
        pdf.setPageSize(QPageSize(QPageSize::A4));
        // The document keeps two centimetres of its own.
        pdf.setPageMargins({}, QPageLayout::Millimeter);
        pdf.setTitle(tituloDeHoja(encargo));
        documento.print(&pdf);
    }
    return bytes.data();
}
