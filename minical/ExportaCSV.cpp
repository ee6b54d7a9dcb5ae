#include "minical/ExportaCSV.h"

#include "minical/HojaDeCalculo.h"
#include "shell/core/TextoDeRejilla.h"

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
