// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/PasosDeCelda.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "minical/CuentaDeTermino.h"
#include "minical/ExplicacionDeCelda.h"
#include "minical/HojaDeCalculo.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A formula of the whole expression that is longer than this shows nothing any more.
constexpr qsizetype MasLarga = 4000;

/// What is explained: the cell as it stands and, where it has one, the count of its expression.
struct Explicada
{
    QString nombre, expresion, resultado;
    QList<QStringList> usadas;         ///< names and values of the cells that stand in it
    std::optional<QString> ahora = {}; ///< what it gives with the values that they have now
    std::optional<Termino> termino = {};
    int operaciones = 0;
};

QString abreviada(const QString &texto)
{
    constexpr qsizetype extremo = 60;
    if (texto.size() <= 2 * extremo)
        return texto;
    return texto.first(extremo) + u'…' + texto.last(extremo);
}

QString sinParentesis(const QString &valor)
{
    return valor.sliced(1, valor.size() - 2);
}

/// The names that are replaced, by the rule of the sheet: one after the other, as plain text.
QList<QStringList> usadasEn(const HojaDeCalculo &hoja, QString expresion)
{
    QList<QStringList> usadas;
    for (const auto &[orden, variable] : hoja.Variables()) {
        if (!expresion.contains(variable.Nombre()))
            continue;
        usadas << QStringList{variable.Nombre(), sinParentesis(variable.Valor())};
        expresion.replace(variable.Nombre(), u"()"_s); // what stands around does not grow together
    }
    return usadas;
}

/// The expression with its values and turns; nothing where it cannot be followed.
std::optional<Termino> contado(const QString &sustituida, const QString &valor, int &operaciones)
{
    constexpr qsizetype muyLarga = 100'000;
    QString reescrita = sustituida;
    ReescribeMod(reescrita);
    std::optional<Termino> termino;
    if (reescrita.size() <= muyLarga)
        termino = leeTermino(reescrita);
    const auto cuantas = termino ? cuenta(*termino) : std::nullopt;
    if (!cuantas || termino->valor != valor)
        return {};
    operaciones = *cuantas;
    return termino;
}

Explicada explicada(const HojaDeCalculo &hoja, Celda celda)
{
    Explicada e{NombreCelda(celda),
                hoja.Expresiones(celda.fila, celda.columna).trimmed(),
                hoja.Resultados(celda.fila, celda.columna),
                {}};
    e.usadas = usadasEn(hoja, e.expresion);
    try {
        const QString sustituida = hoja.SustituirVariables(e.expresion);
        e.ahora = sinError(Evalua(QString(sustituida)));
        if (e.ahora)
            e.termino = contado(sustituida, *e.ahora, e.operaciones);
    } catch (const ErrorEjecucion &) {
        return e; // too long, or no expression at all
    }
    return e;
}

QList<Formula> siCabe(const QString &formula)
{
    return formula.size() > MasLarga ? QList<Formula>() : QList<Formula>{Formula(formula)};
}

Paso pasoDeNombres(const Explicada &e)
{
    Paso paso{Traduce(u"La celda %1 contiene %2."_s).arg(e.nombre, abreviada(e.expresion))};
    if (!e.usadas.isEmpty()) {
        paso.frase += u' ' + Traduce(u"Cada nombre se cambia por el valor de su celda."_s);
        paso.regla = Traduce(u"Un nombre vale lo que dio su celda la última vez que se calculó."_s);
        paso.tabla = {{Traduce(u"Celda"_s), Traduce(u"Valor"_s)}, e.usadas};
    }
    if (e.termino)
        paso.formulas = siCabe(escrito(*e.termino, 0));
    return paso;
}

struct Dicho
{
    QString frase, regla;
};

Dicho dichoDeSigno(const QString &signo)
{
    const QString sumas =
        Traduce(u"Las sumas y las restas se hacen al final, de izquierda a derecha."_s);
    const QString productos =
        Traduce(u"Los productos, los cocientes y los restos van antes que las "
                "sumas, de izquierda a derecha."_s);
    if (signo == u"+"_s)
        return {Traduce(u"Se suma."_s), sumas};
    if (signo == u"-"_s)
        return {Traduce(u"Se resta."_s), sumas};
    if (signo == u"*"_s)
        return {Traduce(u"Se multiplica."_s), productos};
    if (signo == u"/"_s)
        return {Traduce(u"Se divide, y la fracción se simplifica."_s), productos};
    return {
        Traduce(u"Se toma el resto de la división."_s),
        Traduce(u"El resto va de 0 al divisor, sin contar su signo ni llegar a él. De una potencia "
                "grande se calcula solo el resto, sin escribirla entera."_s)};
}

Dicho dichoDe(const Termino &operacion)
{
    switch (operacion.clase) {
    case Termino::Opuesto:
        return {Traduce(u"Se cambia el signo."_s),
                Traduce(u"La potencia va antes que el signo: −2² es −4."_s)};
    case Termino::Factorial:
        return {Traduce(u"Se calcula el factorial."_s),
                Traduce(u"El factorial va antes que cualquier otra operación."_s)};
    case Termino::Potencia:
        return {Traduce(u"Se calcula la potencia."_s),
                Traduce(u"Las potencias van antes que los productos; varias seguidas, de derecha a "
                        "izquierda."_s)};
    case Termino::Llamada:
        return {Traduce(u"Se calcula la función %1."_s).arg(operacion.texto),
                Traduce(u"Antes se calculan sus argumentos."_s)};
    default:
        return dichoDeSigno(operacion.texto);
    }
}

Paso pasoDeOperacion(const Explicada &e, int turno)
{
    const Termino &raiz = *e.termino;
    const Termino &esta = operacion(raiz, turno);
    const Dicho dicho = dichoDe(esta);
    Paso paso{dicho.frase, siCabe(u"%1 = %2"_s.arg(escrito(esta, turno), esta.valor)), dicho.regla};
    if (&esta != &raiz)
        paso.formulas << siCabe(u"%1 = %2"_s.arg(escrito(raiz, turno), escrito(raiz, turno + 1)));
    return paso;
}

/// What the cell shows, where that is another thing than its value now.
QString reglaDeLoMostrado(const QString &mostrado, const QString &valor)
{
    if (mostrado == valor)
        return {};
    if (mostrado.contains(u',') && mostrado == ADecimal(valor))
        return Traduce(u"La celda muestra su forma decimal, %1; otras celdas siguen viendo el "
                       "valor exacto."_s)
            .arg(mostrado);
    return Traduce(u"Es lo que da con los valores de ahora: la celda muestra %1 hasta que se "
                   "recalcule (F9)."_s)
        .arg(mostrado);
}

Paso pasoDelResultado(const Explicada &e)
{
    const QString &valor = e.termino->valor;
    return {Traduce(u"%1 vale %2."_s).arg(e.nombre, valor),
            siCabe(u"%1 = %2"_s.arg(escrito(*e.termino, 0), valor)),
            reglaDeLoMostrado(e.resultado, valor)};
}

Paso pasoSinOperaciones(const Explicada &e)
{
    Paso paso{Traduce(u"La cuenta es demasiado larga para verla operación por operación. El "
                      "resultado es %1."_s)
                  .arg(*e.ahora)};
    paso.regla = reglaDeLoMostrado(e.resultado, *e.ahora);
    return paso;
}

Paso pasoSinValor(const QString &motivo, const QString &mostrado)
{
    Paso paso{Traduce(u"No tiene valor: %1"_s).arg(motivo)};
    if (!esError(mostrado))
        paso.regla = Traduce(u"La celda muestra %1, que dio con otros valores, hasta que se "
                             "recalcule (F9)."_s)
                         .arg(mostrado);
    return paso;
}

} // namespace

Pasos pasosDeCelda(const HojaDeCalculo &hoja, Celda celda)
{
    if (!celda.esDeDatos() || hoja.Expresiones(celda.fila, celda.columna).trimmed().isEmpty())
        return {};
    const Explicada e = explicada(hoja, celda);
    if (!e.ahora)
        return Pasos(
            QList<Paso>{pasoDeNombres(e), pasoSinValor(motivoSinValor(hoja, celda), e.resultado)});
    if (!e.termino)
        return Pasos(QList<Paso>{pasoDeNombres(e), pasoSinOperaciones(e)});
    return Pasos(e.operaciones + 2, [e](qsizetype i) {
        if (i == 0)
            return pasoDeNombres(e);
        return i <= e.operaciones ? pasoDeOperacion(e, static_cast<int>(i) - 1)
                                  : pasoDelResultado(e);
    });
}
