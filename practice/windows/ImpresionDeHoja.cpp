// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/windows/ImpresionDeHoja.h"

#include "practice/sheets/HojaDeEjercicios.h"

#include <QBuffer>
#include <QPdfWriter>
#include <QPrinter>
#include <QTextDocument>

using namespace Qt::Literals::StringLiterals;

namespace {

void preparaDocumento(QTextDocument &documento, const EncargoDeHoja &encargo, bool conSoluciones)
{
    // On paper text is black whatever the colours on the screen.
    documento.setDefaultStyleSheet(u"body, p, li, td, th, h1 { color: #000000; }"_s);
    documento.setHtml(hojaEnHtml(encargo, conSoluciones));
}

} // namespace

void imprimeHojaDeEjercicios(QPrinter &impresora, const EncargoDeHoja &encargo, bool conSoluciones)
{
    QTextDocument documento;
    preparaDocumento(documento, encargo, conSoluciones);
    documento.print(&impresora);
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
        pdf.setPageMargins({20, 18, 20, 18}, QPageLayout::Millimeter);
        pdf.setTitle(tituloDeHoja(encargo));
        documento.print(&pdf);
    }
    return bytes.data();
}
