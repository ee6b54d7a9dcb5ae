#include "minical/BloqueDeCeldas.h"

#include "minical/HojaDeCalculo.h"
#include "shell/core/TextoDeRejilla.h"

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
