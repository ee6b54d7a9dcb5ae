// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/ExplicacionDeCelda.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Expresiones.h"
#include "minical/HojaDeCalculo.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString &expresionDe(const HojaDeCalculo &hoja, Celda celda)
{
    return hoja.Expresiones(celda.fila, celda.columna);
}

const QString &resultadoDe(const HojaDeCalculo &hoja, Celda celda)
{
    return hoja.Resultados(celda.fila, celda.columna);
}

/// The first cell name in a text, by the rule of the sheet: a letter and the digits behind it.
QString primerNombre(const QString &texto)
{
    static const QRegularExpression nombre(u"[A-Y][1-9][0-9]?"_s);
    return nombre.match(texto).captured();
}

/// A name in small letters that is no part of a longer word.
QString nombreEnMinusculas(const QString &texto)
{
    static const QRegularExpression nombre(u"(?<![\\p{L}0-9])[a-y][1-9][0-9]?(?![\\p{L}0-9])"_s);
    return nombre.match(texto).captured();
}

/// What is wrong with the brackets; empty when each has its partner.
QString motivoDeParentesis(const QString &texto)
{
    constexpr QStringView abren = u"([{";
    constexpr QStringView cierran = u")]}";
    QString abiertos;
    for (const QChar c : texto) {
        if (abren.contains(c))
            abiertos += c;
        const qsizetype clase = cierran.indexOf(c);
        if (clase < 0)
            continue;
        if (abiertos.isEmpty() || abiertos.back() != abren[clase])
            return Traduce(u"Sobra «%1», o falta el signo que lo abre."_s).arg(c);
        abiertos.chop(1);
    }
    if (abiertos.isEmpty())
        return {};
    return Traduce(u"Falta cerrar «%1»."_s).arg(abiertos.back());
}

/// Whether the arguments of a function seem to be separated by commas, which make decimals here.
bool separaConComas(const QString &texto)
{
    static const QRegularExpression funcion(u"\\p{L}\\s*\\([^();,]*,[^();]*\\)"_s);
    return funcion.match(texto).hasMatch();
}

/// Why a name was left in the text that is evaluated.
QString motivoDeNombre(const HojaDeCalculo &hoja, Celda celda, const QString &nombre)
{
    const auto usada = celdaDeNombre(nombre);
    if (!usada)
        return {};
    if (*usada == celda)
        return Traduce(u"La celda se usa a sí misma y no tiene valor todavía."_s);
    return esError(resultadoDe(hoja, *usada)) ? Traduce(u"%1 tiene un error."_s).arg(nombre)
                                              : Traduce(u"%1 está vacía."_s).arg(nombre);
}

/// Signs that other programs use, and what is written here.
QString motivoDeCostumbre(const QString &texto)
{
    static const QRegularExpression conMillares(u"[0-9]+([.,][0-9]+){2,}"_s);
    if (const QString numero = conMillares.match(texto).captured(); !numero.isEmpty())
        return Traduce(u"«%1» no es un número: el punto y la coma separan los decimales."_s)
            .arg(numero);
    if (texto.contains(u"**"_s))
        return Traduce(u"La potencia se escribe «^», no «**»."_s);
    return {};
}

/// The sign or the operation for which the service gives no value.
QString motivoDelFallo(const QString &texto)
{
    using Clase = FalloDeExpresion::Clase;
    const FalloDeExpresion fallo = falloDeExpresion(texto);
    switch (fallo.clase) {
    case Clase::Ninguno:
        return Traduce(u"Con los valores de ahora ya no falla: recalcule esta (F9)."_s);
    case Clase::FaltaNumero:
    case Clase::FaltaOperacion:
        if (const QString motivo = motivoDeCostumbre(texto); !motivo.isEmpty())
            return motivo;
        if (fallo.donde.isEmpty())
            return Traduce(u"Falta un número al final."_s);
        return (fallo.clase == Clase::FaltaNumero
                    ? Traduce(u"Falta un número delante de «%1»."_s)
                    : Traduce(u"Falta una operación delante de «%1»."_s))
            .arg(fallo.donde);
    case Clase::FueraDeLugar:
        return Traduce(u"«%1» no puede ir en ese lugar."_s).arg(fallo.donde);
    case Clase::Desconocido:
        return Traduce(u"No se entiende «%1»: no es número, celda, función ni operación."_s)
            .arg(fallo.donde);
    case Clase::Argumentos:
        return Traduce(u"«%1» lleva sus argumentos entre paréntesis, y no más de los debidos."_s)
            .arg(fallo.donde);
    case Clase::DivisionPorCero:
        return Traduce(u"Divide entre 0."_s);
    case Clase::NoEsEntero:
        return Traduce(u"El resto, el factorial, el exponente y casi todas las funciones piden "
                       "números enteros."_s);
    case Clase::FueraDeDominio:
        return Traduce(u"El factorial o la función no está definido para ese número."_s);
    case Clase::DemasiadoGrande:
        return Traduce(u"Da un número demasiado largo."_s);
    case Clase::DemasiadoTrabajo:
        return Traduce(u"Calcularlo llevaría demasiado tiempo."_s);
    }
    return {};
}

QString cifras(QStringView numero)
{
    return formatoEntero(qint64{numero.size() - (numero.startsWith(u'-') ? 1 : 0)});
}

/// How long a value is, where the eye can no longer tell.
QString longitud(const QString &valor)
{
    constexpr int seVe = 12;
    const QStringList partes = valor.split(u'/');
    if (valor.size() <= seVe || valor.contains(u','))
        return {};
    if (partes.size() == 1)
        return Traduce(u"Cifras: %1"_s).arg(cifras(valor));
    return Traduce(u"Cifras del numerador: %1 · del denominador: %2"_s)
        .arg(cifras(partes.constFirst()), cifras(partes.constLast()));
}

} // namespace

QString motivoDeError(const HojaDeCalculo &hoja, Celda celda)
{
    if (hoja.Variables().busca(NombreCelda(celda)) != hoja.Variables().end())
        return Traduce(u"La forma decimal tiene demasiadas cifras."_s);
    return motivoSinValor(hoja, celda);
}

QString motivoSinValor(const HojaDeCalculo &hoja, Celda celda)
{
    QString texto;
    try {
        texto = hoja.SustituirVariables(expresionDe(hoja, celda)).trimmed();
    } catch (const ErrorEjecucion &) {
        return Traduce(u"Con los valores de las celdas, la expresión es demasiado larga."_s);
    }
    if (texto.startsWith(u"mod"_s, Qt::CaseInsensitive))
        return Traduce(u"«mod» necesita un número delante, como en 17 mod 5."_s);
    if (const QString motivo = motivoDeNombre(hoja, celda, primerNombre(texto)); !motivo.isEmpty())
        return motivo;
    if (const QString nombre = nombreEnMinusculas(texto); !nombre.isEmpty())
        return Traduce(u"Las celdas se escriben con mayúscula: %1."_s).arg(nombre.toUpper());
    if (const QString motivo = motivoDeParentesis(texto); !motivo.isEmpty())
        return motivo;
    if (separaConComas(texto))
        return Traduce(u"Los argumentos se separan con punto y coma, como en mcd(12;18)."_s);
    return motivoDelFallo(texto);
}

QString explicacionDeCelda(const HojaDeCalculo &hoja, Celda celda)
{
    if (!celda.esDeDatos())
        return {};
    const QString &resultado = resultadoDe(hoja, celda);
    return esError(resultado) ? motivoDeError(hoja, celda) : longitud(resultado);
}
