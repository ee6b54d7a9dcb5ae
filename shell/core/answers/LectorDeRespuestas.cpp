// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/answers/LectorDeRespuestas.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Expresiones.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/answers/ComoExpresion.h"
#include "shell/core/answers/PalabraRespondida.h"
#include "shell/core/answers/PartesDeRespuesta.h"

#include <QMap>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// An answer is a few numbers; what is longer was pasted.
constexpr qsizetype MasLetras = 4000;
constexpr qsizetype MasNumeros = 200;

RespuestaLeida noEntendida(const QString &parte)
{
    return {RespuestaLeida::NoEntendida, {}, {}, Traduce(u"no entiendo «%1»"_s).arg(parte)};
}

/// The same of a part that may be blank, where something is missing: then the whole is named.
RespuestaLeida noEntendida(const QString &parte, const QString &todo)
{
    const QString suya = parte.trimmed();
    return noEntendida(suya.isEmpty() ? todo.trimmed() : suya);
}

RespuestaLeida leida(const QStringList &numeros, const QString &como)
{
    return {RespuestaLeida::Leida, numeros, {}, Traduce(u"leo %1"_s).arg(como)};
}

/// Names as the library calls them, of what stands in an expression as a name.
QStringList nombresEn(const QString &expresion)
{
    static const QRegularExpression palabra(u"\\p{L}+"_s);
    QStringList nombres;
    for (auto i = palabra.globalMatch(expresion); i.hasNext();) {
        QString nombre = i.next().captured().toLower();
        for (const FuncionDeExpresiones &funcion : funcionesDeExpresiones()) {
            if (nombre == funcion.internacional)
                nombre = funcion.nombre;
        }
        nombres << nombre;
    }
    return nombres;
}

bool esLaPregunta(const QString &expresion, const QStringList &preguntadas)
{
    const QStringList nombres = nombresEn(expresion);
    const auto usa = [&](const QString &cosa) {
        if (cosa == u"mod"_s)
            return nombres.contains(cosa) || expresion.contains(u'%');
        return cosa.front().isLetter() ? nombres.contains(cosa) : expresion.contains(cosa);
    };
    return std::any_of(preguntadas.begin(), preguntadas.end(), [&](const QString &preguntada) {
        const QStringList cosas = preguntada.split(u' ');
        return std::all_of(cosas.begin(), cosas.end(), usa);
    });
}

/// The whole number of an expression; nothing where it has none.
std::optional<QString> entero(const QString &expresion)
{
    try {
        const auto leido = leeEntero(expresion);
        return leido ? std::optional(*leido) : std::nullopt;
    } catch (const ErrorEjecucion &) {
        return {};
    }
}

QString enParentesis(const QStringList &numeros)
{
    return u'(' + numeros.join(u"; "_s) + u')';
}

QString abreviado(const QString &numero)
{
    constexpr qsizetype Enteras = 24;
    return numero.size() <= Enteras ? numero : formatoAbreviado(numero);
}

RespuestaLeida leeUno(const QString &expresion, const QString &texto)
{
    const auto valor = entero(sinBlancosDeGrupo(expresion));
    return valor ? leida({*valor}, abreviado(*valor)) : noEntendida(texto.trimmed());
}

RespuestaLeida leeLista(const QString &expresion)
{
    QStringList numeros;
    for (const QString &tramo : partesDeLista(expresion)) {
        for (const QString &parte : partesSueltas(tramo.trimmed())) {
            const auto valor = entero(parte);
            if (!valor)
                return noEntendida(parte.trimmed());
            numeros << *valor;
            if (numeros.size() > MasNumeros)
                return noEntendida(u"…"_s);
        }
    }
    if (numeros.isEmpty())
        return noEntendida(expresion.trimmed());
    return leida(numeros, enParentesis(numeros));
}

RespuestaLeida leeSuma(const QString &expresion)
{
    QStringList numeros;
    QString sumando;
    int hondo = 0;
    for (const QChar c : QString(expresion + u'+')) {
        hondo += c == u'(' ? 1 : c == u')' ? -1 : 0;
        if (hondo > 0 || c != u'+') {
            sumando += c;
            continue;
        }
        const auto valor = entero(sinBlancosDeGrupo(sumando));
        if (!valor || numeros.size() == MasNumeros)
            return noEntendida(sumando, expresion);
        numeros << *valor;
        sumando.clear();
    }
    return leida(numeros, numeros.join(u" + "_s));
}

bool menorEnCifras(const QString &a, const QString &b)
{
    return a.size() != b.size() ? a.size() < b.size() : a < b;
}

RespuestaLeida leeProducto(const QString &expresion)
{
    static const QRegularExpression entreFactores(u"[*,;]|(?<=\\d)\\s*[xX]\\s*(?=\\d)"_s);
    static const QRegularExpression potencia(
        u"^\\s*\\(?\\s*(\\d+)\\s*(?:\\^\\s*(\\d{1,6}))?\\s*\\)?\\s*$"_s);
    QMap<QString, qint64> exponentes;
    for (const QString &tramo : expresion.split(entreFactores)) {
        if (tramo.trimmed().isEmpty()) // a sign without a factor behind it
            return noEntendida(expresion.trimmed());
        for (const QString &factor : partesSueltas(tramo)) {
            const auto hallada = potencia.match(factor);
            if (!hallada.hasMatch())
                return noEntendida(factor.trimmed());
            const QString exponente = hallada.captured(2);
            exponentes[entero(hallada.captured(1)).value_or(QString())] +=
                exponente.isEmpty() ? 1 : exponente.toLongLong();
        }
    }
    QStringList primos = exponentes.keys();
    if (primos.isEmpty() || primos.contains(QString()))
        return noEntendida(expresion.trimmed());
    std::sort(primos.begin(), primos.end(), menorEnCifras);
    QStringList numeros;
    QStringList escritos;
    for (const QString &primo : primos) {
        const QString exponente = QString::number(exponentes.value(primo));
        numeros << primo << exponente;
        escritos << primo + (exponente == u"1"_s ? QString() : enSuperindice(exponente));
    }
    return leida(numeros, escritos.join(u" · "_s));
}

/// What an expression in K is worth where K is that number.
std::optional<QString> con(QString expresion, const QString &k)
{
    return entero(expresion.replace(u'K', u'(' + k + u')'));
}

/// The beginning and the step of "3 + 5k" or "3 − 5·k", whatever the letter is; nothing of what is
/// no line, as "3 + 5k²".
std::optional<QStringList> rectaDe(QString lado)
{
    static const QRegularExpression letra(u"\\*?\\s*[ktnmsλ]\\b\\s*\\*?"_s,
                                          QRegularExpression::UseUnicodePropertiesOption |
                                              QRegularExpression::CaseInsensitiveOption);
    lado.replace(letra, u"*K"_s).remove(u' ');
    lado.replace(u"+*K"_s, u"+1*K"_s).replace(u"-*K"_s, u"-1*K"_s).replace(u"(*K"_s, u"(1*K"_s);
    if (lado.startsWith(u"*K"_s))
        lado.prepend(u'1');
    const auto cero = con(lado, u"0"_s), uno = con(lado, u"1"_s);
    if (!cero || !uno)
        return {};
    const QString paso = entero(u"(%1)-(%2)"_s.arg(*uno, *cero)).value_or(u"0"_s);
    for (const QString &k : {u"-1"_s, u"2"_s, u"7"_s}) {
        if (con(lado, k) != entero(u"(%1)+(%2)*(%3)"_s.arg(*cero, paso, k)))
            return {};
    }
    return QStringList{*cero, paso};
}

RespuestaLeida leeSolucion(const QString &expresion)
{
    QStringList numeros;
    QString primera;
    for (const QString &lado : partesDeLista(conComaEntreIncognitas(expresion))) {
        const qsizetype igual = lado.indexOf(u'=');
        const auto recta = rectaDe(lado.sliced(igual + 1));
        if (!recta)
            return noEntendida(lado, expresion);
        if (numeros.isEmpty())
            primera = lado.first(std::max<qsizetype>(igual, 0)).trimmed().toLower();
        numeros << *recta;
    }
    if (numeros.size() != 4)
        return noEntendida(expresion.trimmed());
    if (primera == u"y")
        numeros = numeros.sliced(2) + numeros.first(2);
    return leida(numeros, u"x = %1 + (%2)k, y = %3 + (%4)k"_s.arg(numeros[0], numeros[1],
                                                                  numeros[2], numeros[3]));
}

/// Why an expression has no value; one that begins with "mod" lacks a number before it.
FalloDeExpresion falloDe(const QString &expresion)
{
    try {
        return falloDeExpresion(expresion);
    } catch (const ErrorEjecucion &) {
        return {FalloDeExpresion::Clase::FaltaNumero, u"mod"_s};
    }
}

RespuestaLeida leeFraccion(const QString &expresion, const QString &texto)
{
    static const QRegularExpression fraccion(
        u"^([+-]?)\\s*\\(?\\s*([+-]?)\\s*\\(?\\s*(\\d+)\\s*\\)?(?:\\s*/\\s*\\(?\\s*(\\d+)\\s*\\)?|[.,](\\d+))?\\s*\\)?$"_s);
    const QString sinGrupos = sinBlancosDeGrupo(expresion);
    const auto hallada = fraccion.match(sinGrupos);
    const bool cuadra = hallada.hasMatch() && sinGrupos.count(u'(') == sinGrupos.count(u')');
    const bool menos = (hallada.captured(1) == u"-") != (hallada.captured(2) == u"-");
    const QString decimales = hallada.captured(5);
    const auto arriba = entero((menos ? u"-"_s : QString()) + hallada.captured(3) + decimales);
    const auto abajo =
        decimales.isEmpty() ? entero(hallada.captured(4)) : u'1' + QString(decimales.size(), u'0');
    if (cuadra && arriba && abajo != u"0"_s)
        return leida({*arriba, abajo.value_or(u"1"_s)}, sinGrupos);
    // What has a value but is not written as one is left to be computed: the question itself.
    if (falloDe(expresion).clase == FalloDeExpresion::Clase::Ninguno)
        return {RespuestaLeida::EsLaPregunta, {}, {}, Traduce(u"eso es la pregunta"_s)};
    return noEntendida(texto.trimmed());
}

RespuestaLeida leeFormulaDeCelda(const QString &expresion, const QString &texto)
{
    static const QRegularExpression celda(u"(?<!\\p{L})[A-Ya-y][1-9]\\d?"_s);
    const auto fallo = falloDe(QString(expresion).replace(celda, u"(1)"_s));
    if (fallo.clase != FalloDeExpresion::Clase::Ninguno &&
        fallo.clase < FalloDeExpresion::Clase::DivisionPorCero)
        return noEntendida(fallo.donde.isEmpty() ? texto.trimmed() : fallo.donde);
    QString formula = expresion;
    for (auto i = celda.globalMatch(expresion); i.hasNext();) {
        const auto hallada = i.next();
        formula.replace(hallada.capturedStart(), 1, hallada.captured().at(0).toUpper());
    }
    return leida({formula}, formula);
}

RespuestaLeida leeSegun(const FormaDeRespuesta &forma, const QString &texto)
{
    const QString expresion = comoExpresion(texto);
    if (esLaPregunta(expresion, forma.preguntadas))
        return {RespuestaLeida::EsLaPregunta, {}, {}, Traduce(u"eso es la pregunta"_s)};
    switch (forma.clase) {
    case FormaDeRespuesta::Entero:
        return leeUno(expresion, texto);
    case FormaDeRespuesta::Lista:
        return leeLista(expresion);
    case FormaDeRespuesta::Suma:
        return leeSuma(expresion);
    case FormaDeRespuesta::Producto:
        return leeProducto(expresion);
    case FormaDeRespuesta::Solucion:
        return leeSolucion(expresion);
    case FormaDeRespuesta::Fraccion:
        return leeFraccion(expresion, texto);
    case FormaDeRespuesta::FormulaDeCelda:
        return leeFormulaDeCelda(expresion, texto);
    case FormaDeRespuesta::Palabra:
        break;
    }
    return noEntendida(texto.trimmed());
}

} // namespace

RespuestaLeida leeRespuesta(const QString &texto, const FormaDeRespuesta &forma)
{
    if (texto.trimmed().isEmpty())
        return {};
    if (texto.size() > MasLetras)
        return noEntendida(texto.left(20) + u'…');
    const QString palabra = palabraRespondida(texto, forma.palabras);
    if (!palabra.isEmpty())
        return {RespuestaLeida::Leida, {}, palabra, Traduce(u"leo %1"_s).arg(Traduce(palabra))};
    return leeSegun(forma, texto);
}

RespuestaLeida leeExpresion(const QString &texto)
{
    if (texto.trimmed().isEmpty())
        return {};
    try {
        if (const auto valor = sinError(Evalua(QString(texto)))) {
            QStringList partes = valor->split(u'/');
            for (QString &parte : partes)
                parte = abreviado(parte);
            return leida({*valor}, partes.join(u'/'));
        }
    } catch (const ErrorEjecucion &) {
        // Told below, as what has no value.
    }
    return noEntendida(texto.trimmed());
}
