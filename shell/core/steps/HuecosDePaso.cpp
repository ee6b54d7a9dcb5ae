// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/HuecosDePaso.h"

#include "shell/core/steps/NumerosEnPantalla.h"

#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A cell with the sign that answers have.
QString conSignoLlano(QString celda)
{
    return celda.replace(u'−', u'-');
}

bool esEntero(const QString &celda)
{
    static const QRegularExpression entero(u"^-?[0-9]+$"_s);
    return entero.match(conSignoLlano(celda)).hasMatch();
}

} // namespace

bool sePuedePredecir(const Paso &paso)
{
    const auto cuantas = paso.tabla.cabecera.size();
    return std::any_of(paso.tabla.filas.begin(), paso.tabla.filas.end(), [&](const auto &fila) {
        const auto fin = fila.begin() + std::min(fila.size(), cuantas);
        return std::any_of(fila.begin(), fin, esEntero);
    });
}

TablaConHuecos huecosDePaso(const Paso &paso)
{
    const qsizetype columnas = paso.tabla.cabecera.size();
    QList<QStringList> filas = paso.tabla.filas;
    for (QStringList &fila : filas) {
        fila.resize(columnas);
        for (QString &celda : fila)
            celda = esEntero(celda) ? conSignoLlano(celda) : celda;
    }
    const QString razon = conNumerosEnPantalla(paso.regla.isEmpty() ? paso.frase : paso.regla);
    TablaConHuecos huecos(paso.tabla.cabecera, filas,
                          [razon](qsizetype, qsizetype) { return QString(razon); });
    for (qsizetype i = 0; i < filas.size(); ++i) {
        for (qsizetype j = 0; j < columnas; ++j) {
            if (!esEntero(filas[i][j]))
                huecos.fija(i, j);
        }
    }
    return huecos;
}
