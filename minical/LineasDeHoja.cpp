#include "minical/LineasDeHoja.h"

#include "minical/HojaDeCalculo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// A text cut into lines, the first behind `principio`, the others behind as many blanks.
void parte(QStringList &lineas, QString principio, QStringView texto, int ancho)
{
    do {
        const qsizetype cabe = ancho - principio.size();
        const qsizetype corte = std::min(cabe, texto.size());
        lineas << principio + texto.first(corte).toString();
        texto = texto.sliced(corte);
        principio.fill(u' ');
    } while (!texto.isEmpty());
}

} // namespace

QStringList lineasDeHoja(const HojaDeCalculo &hoja, int ancho)
{
    QStringList lineas;
    for (int f = 1; f < Celda::Filas; ++f) {
        for (int c = 1; c < Celda::Columnas; ++c) {
            const QString expresion = hoja.Expresiones(f, c).simplified();
            if (expresion.isEmpty())
                continue;
            parte(lineas, NombreCelda({f, c}).leftJustified(5), expresion, ancho);
            if (hoja.Resultados(f, c) != expresion)
                parte(lineas, u"   = "_s, hoja.Resultados(f, c), ancho);
        }
    }
    return lineas;
}
