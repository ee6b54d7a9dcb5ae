// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"

using namespace Qt::Literals::StringLiterals;

ErrorEjecucion::ErrorEjecucion(Numero numero, const QString &detalle)
    : std::runtime_error(nombre(numero).toStdString()), m_numero(numero), m_detalle(detalle)
{
}

QString ErrorEjecucion::nombre(Numero numero)
{
    switch (numero) {
    case ArgumentoNoValido:
        return u"Argumento no válido"_s;
    case Desbordamiento:
        return u"Desbordamiento"_s;
    case MemoriaInsuficiente:
        return u"Memoria insuficiente"_s;
    case IndiceFueraDeRango:
        return u"El índice está fuera del intervalo"_s;
    case DivisionPorCero:
        return u"División por cero"_s;
    case TipoNoCoincide:
        return u"No coinciden los tipos"_s;
    case ErrorInterno:
        return u"Error interno"_s;
    case ArchivoNoEncontrado:
        return u"No se encontró el archivo"_s;
    case ErrorDeArchivo:
        return u"Error al leer o escribir el archivo"_s;
    case ArchivoYaExiste:
        return u"El archivo ya existe"_s;
    case DiscoLleno:
        return u"Disco lleno"_s;
    case PermisoDenegado:
        return u"Permiso denegado"_s;
    case RutaNoEncontrada:
        return u"No se encontró la ruta de acceso"_s;
    }
    return u"Error desconocido"_s;
}

QString ErrorEjecucion::texto() const
{
    const QString cabecera = nombre(m_numero) + u'.';
    return m_detalle.isEmpty() ? cabecera : cabecera + u'\n' + m_detalle;
}
