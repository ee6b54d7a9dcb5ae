// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/TextosDeHoja.h"

#include "minical/HojaDeCalculo.h"
#include "shell/core/TextoDeRejilla.h"

#include <algorithm>

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

QByteArray csvDeHoja(const HojaDeCalculo &hoja, QChar signo)
{
    const Celda ultima = hoja.ultimaUsada();
    QList<QStringList> filas;
    for (int f = 1; f <= ultima.fila; ++f) {
        QStringList fila;
        for (int c = 1; c <= ultima.columna; ++c)
            fila << QString(hoja.Resultados(f, c)).replace(u',', signo);
        filas << fila;
    }
    return textoDeRejilla(filas, FormaDeCopia::CSV, signo == u',').toUtf8();
}

QString textoDeCeldas(const HojaDeCalculo &hoja, const QList<Celda> &celdas, bool expresiones)
{
    const auto texto = [&](Celda c) {
        return expresiones ? hoja.Expresiones(c.fila, c.columna)
                           : hoja.Resultados(c.fila, c.columna);
    };
    if (celdas.size() == 1)
        return texto(celdas.constFirst());
    QList<QStringList> filas;
    int fila = -1;
    for (const Celda celda : celdas) {
        if (celda.fila != fila)
            filas << QStringList();
        fila = celda.fila;
        filas.last() << texto(celda);
    }
    return textoDeRejilla(filas, FormaDeCopia::Texto);
}

QList<QStringList> bloqueParaPegar(const QString &texto, const QList<Celda> &elegidas)
{
    const QList<QStringList> bloque = filasDeTexto(texto);
    if (bloque.size() != 1 || bloque.constFirst().size() != 1)
        return bloque;
    const Celda primera = elegidas.constFirst();
    const Celda ultima = elegidas.constLast();
    const QStringList fila(ultima.columna - primera.columna + 1, bloque.constFirst().constFirst());
    return QList<QStringList>(ultima.fila - primera.fila + 1, fila);
}
