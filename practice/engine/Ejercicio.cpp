// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/engine/Ejercicio.h"

#include "shell/core/steps/EscrituraDeFormula.h"
#include "shell/core/steps/NumerosEnPantalla.h"

using namespace Qt::Literals::StringLiterals;

Fallo Fallo::bien(const QString &palabra)
{
    return {true, palabra, u"bien"_s};
}

Fallo Fallo::mal(const QString &palabra, const QString &nota)
{
    return {false, palabra, nota};
}

QString respuestaEnPantalla(const Ejercicio &ejercicio)
{
    QString vista = ejercicio.esperada;
    switch (ejercicio.forma.clase) {
    case FormaDeRespuesta::FormulaDeCelda:
    case FormaDeRespuesta::Palabra:
        return vista;
    case FormaDeRespuesta::Producto:
        vista = comoTexto(Formula(vista));
        break;
    case FormaDeRespuesta::Entero:
    case FormaDeRespuesta::Lista:
    case FormaDeRespuesta::Suma:
    case FormaDeRespuesta::Solucion:
    case FormaDeRespuesta::Fraccion:
        vista.replace(u'-', u'−');
        break;
    }
    return conNumerosEnPantalla(vista);
}
