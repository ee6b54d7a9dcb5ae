// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/PasosDeFactorizacion.h"

#include "lessons/primes/DivisionTentativa.h"
#include "lessons/primes/steps/ArbolDeFactores.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <QMap>
#include <memory>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A number and all cuts, with what was left before and after each of them.
struct Historia
{
    TablaDeFactores tabla;
    QStringList restos; ///< before cut i; one more than there are cuts
};

QString escrito(const Corte &corte)
{
    return corte.exponente == 1 ? corte.factor : u"%1^%2"_s.arg(corte.factor).arg(corte.exponente);
}

QString impreso(const Corte &corte)
{
    return corte.exponente == 1 ? corte.factor
                                : corte.factor + enSuperindice(QString::number(corte.exponente));
}

Historia historiaDe(const TablaDeFactores &tabla)
{
    QString resto = tabla.numero;
    resto.remove(u'-');
    Historia historia{tabla, {resto}};
    for (const Corte &corte : tabla.cortes) {
        resto = calculaEntero(u"(%1)/(%2)"_s.arg(resto, escrito(corte))).value_or(QString());
        historia.restos << resto;
    }
    return historia;
}

Lamina arbolHasta(const Historia &historia, qsizetype corte)
{
    QList<RamaDeFactores> ramas;
    for (qsizetype i = 0; i <= corte; ++i) {
        const Corte &este = historia.tabla.cortes[i];
        const QString &queda = historia.restos[i + 1];
        // What is left over and prime is a leaf already.
        if (queda == u"1"_s && este.exponente == 1 && i > 0)
            ramas.last().primo = ramas.last().primo && este.primo;
        else
            ramas << RamaDeFactores{historia.restos[i], impreso(este), este.primo,
                                    queda == u"1"_s ? QString() : queda};
    }
    return arbolDeFactores(ramas);
}

QString fraseDelCorte(const Corte &corte, const QString &antes, const QString &despues)
{
    if (!corte.primo)
        return Traduce(u"%1 es compuesto y no se ha podido partir."_s).arg(corte.factor);
    if (despues == u"1"_s && corte.exponente == 1 && corte.esElResto)
        return Traduce(u"Lo que queda, %1, es primo."_s).arg(corte.factor);
    if (despues == u"1"_s)
        return Traduce(u"%1 se divide entre %2: queda 1, y se ha terminado."_s)
            .arg(antes, impreso(corte));
    return Traduce(u"%1 se divide entre %2: queda %3."_s).arg(antes, impreso(corte), despues);
}

Paso pasoDelCorte(const Historia &historia, qsizetype i)
{
    const Corte &corte = historia.tabla.cortes[i];
    const QString &antes = historia.restos[i];
    const QString &despues = historia.restos[i + 1];
    Paso paso{fraseDelCorte(corte, antes, despues)};
    if (corte.esElResto && !corte.alcanzado.isEmpty())
        paso.formulas << Formula(u"%1^2 > %2"_s.arg(corte.alcanzado, antes));
    else if (corte.factor != antes)
        paso.formulas << Formula(despues == u"1"_s
                                     ? u"%1 = %2"_s.arg(antes, escrito(corte))
                                     : u"%1 = %2*%3"_s.arg(antes, escrito(corte), despues));
    else if (corte.primo && !corte.alcanzado.isEmpty())
        paso.formulas << Formula(u"%1 = %2*1"_s.arg(antes, corte.factor));
    paso.regla = corte.como;
    paso.lamina = arbolHasta(historia, i);
    return paso;
}

Paso pasoDelProducto(const Historia &historia)
{
    QMap<std::pair<qsizetype, QString>, qint64> exponentes; // by size and digits: ascending
    for (const Corte &corte : historia.tabla.cortes)
        exponentes[{corte.factor.size(), corte.factor}] += corte.exponente;
    QStringList potencias;
    for (auto factor = exponentes.cbegin(); factor != exponentes.cend(); ++factor)
        potencias << escrito({factor.key().second, factor.value()});
    if (historia.restos.last() != u"1"_s)
        potencias << historia.restos.last();
    const bool detenida = historia.tabla.desenlace == TablaDeFactores::Detenida;
    const bool negativo = historia.tabla.numero.startsWith(u'-');
    Paso paso{
        detenida   ? Traduce(u"Detenida: lo último falta por descomponer."_s)
        : negativo ? Traduce(u"El producto de los factores es el número sin su signo."_s)
                   : Traduce(u"El producto de los factores es el número."_s),
        {Formula(u"%1 = %2"_s.arg(historia.restos.first(), potencias.join(u'*')))},
        Traduce(
            u"Cada número mayor que 1 es producto de primos de una sola manera, salvo el orden."_s)};
    paso.lamina = arbolHasta(historia, historia.tabla.cortes.size() - 1);
    return paso;
}

} // namespace

Pasos pasosDeFactorizacion(const TablaDeFactores &tabla, bool enMarcha)
{
    if (tabla.cortes.isEmpty())
        return {};
    // What was left is divided out when the first step is looked at.
    const auto historia = std::make_shared<std::optional<Historia>>();
    return Pasos(tabla.cortes.size() + (enMarcha ? 0 : 1), [historia, tabla](qsizetype i) {
        if (!*historia)
            *historia = historiaDe(tabla);
        return i < tabla.cortes.size() ? pasoDelCorte(**historia, i) : pasoDelProducto(**historia);
    });
}

QString fraseDelAvance(const RastroDeDivision &rastro)
{
    QStringList factores;
    for (const RastroDeDivision::Division &division : rastro.divisiones)
        factores << division.divisor.texto();
    const QString divisor = formatoEntero(rastro.alcanzado);
    if (factores.isEmpty())
        return Traduce(u"Factorizando… Divisor alcanzado: %1. Aún no hay factores."_s).arg(divisor);
    return Traduce(u"Factorizando… Divisor alcanzado: %1. Factores hallados: %2."_s)
        .arg(divisor, factores.join(u" · "_s));
}
