// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcImpresion.h"

#include "minical/TextosDeHoja.h"
#include "minical/windows/FormCalcAspecto.h"
#include "shell/core/ModGlobal.h"

#include <QFileInfo>
#include <QFontMetrics>
#include <QPainter>
#include <QPrinter>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Puntos = 10;
constexpr int MinimoDeCaracteres = 20;
/// Lines of a page for the title, the number and the space beside the two.
constexpr int LineasDeMargen = 4;

/// Whether the file of a printer that prints into one can be written.
bool puedeEscribir(const QPrinter &impresora)
{
    const QFileInfo archivo(impresora.outputFileName());
    return archivo.filePath().isEmpty() || QFileInfo(archivo.absolutePath()).isWritable();
}

void imprimePagina(QPainter &pintor, const QStringList &lineas, const QString &titulo,
                   const QString &numero)
{
    const QRect hoja = pintor.viewport();
    const int alto = pintor.fontMetrics().lineSpacing();
    pintor.drawText(hoja, Qt::AlignTop | Qt::AlignHCenter, titulo);
    pintor.drawText(hoja, Qt::AlignBottom | Qt::AlignHCenter, numero);
    int y = 2 * alto + pintor.fontMetrics().ascent();
    for (const QString &linea : lineas) {
        pintor.drawText(0, y, linea);
        y += alto;
    }
}

} // namespace

bool imprimeHoja(QPrinter &impresora, const HojaDeCalculo &hoja, const QString &titulo)
{
    QPainter pintor;
    if (!puedeEscribir(impresora) || !pintor.begin(&impresora))
        return false;
    QFont letra = letraDeHoja();
    letra.setPointSize(Puntos);
    pintor.setFont(letra);
    const QFontMetrics medidas = pintor.fontMetrics();
    const int ancho = pintor.viewport().width() / std::max(1, medidas.horizontalAdvance(u'0'));
    const QStringList lineas = lineasDeHoja(hoja, std::max(MinimoDeCaracteres, ancho));
    const int porPagina =
        std::max(1, pintor.viewport().height() / medidas.lineSpacing() - LineasDeMargen);
    const int paginas = std::max(1, (static_cast<int>(lineas.size()) + porPagina - 1) / porPagina);

    const int primera = std::max(1, impresora.fromPage());
    const int ultima = impresora.toPage() > 0 ? std::min(paginas, impresora.toPage()) : paginas;
    for (int pagina = primera; pagina <= ultima; ++pagina) {
        if (pagina > primera && !impresora.newPage())
            return false;
        imprimePagina(pintor, lineas.mid((pagina - 1) * porPagina, porPagina), titulo,
                      Traduce(u"Página %1 de %2"_s).arg(pagina).arg(paginas));
    }
    return true;
}
