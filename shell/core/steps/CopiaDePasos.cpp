// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/steps/CopiaDePasos.h"

#include "shell/core/TextoDeRejilla.h"
#include "shell/core/steps/EscrituraDeFormula.h"

using namespace Qt::Literals::StringLiterals;

namespace {

QList<QStringList> filasConCabecera(const TablaDePaso &tabla)
{
    QList<QStringList> filas = tabla.filas;
    if (!tabla.cabecera.isEmpty())
        filas.prepend(tabla.cabecera);
    return filas;
}

QString tablaMarkdown(const TablaDePaso &tabla)
{
    QString texto;
    const auto linea = [&](const QStringList &celdas) {
        texto += u"| "_s + celdas.join(u" | "_s) + u" |\n"_s;
    };
    linea(tabla.cabecera);
    linea(QStringList(tabla.cabecera.size(), u"---:"_s));
    for (const QStringList &fila : tabla.filas)
        linea(fila);
    return texto;
}

/// What LaTeX and Markdown read as orders stands in sentences as itself.
QString escapada(QString frase, QStringView signos)
{
    for (qsizetype i = frase.size() - 1; i >= 0; --i) {
        if (signos.contains(frase[i]))
            frase.insert(i, u'\\');
    }
    return frase;
}

QString enTexto(const Paso &paso, qsizetype numero)
{
    QString texto = u"%1. %2\n"_s.arg(numero + 1).arg(paso.frase);
    for (const Formula &formula : paso.formulas)
        texto += u"   "_s + comoTexto(formula) + u'\n';
    if (!paso.regla.isEmpty())
        texto += u"   ["_s + paso.regla + u"]\n"_s;
    if (!paso.tabla.filas.isEmpty())
        texto += textoDeRejilla(filasConCabecera(paso.tabla), FormaDeCopia::Texto);
    return texto;
}

QString enMarkdown(const Paso &paso, qsizetype numero)
{
    constexpr QStringView Especiales = u"\\*_`[]<>|#";
    QString texto = u"%1. %2\n\n"_s.arg(numero + 1).arg(escapada(paso.frase, Especiales));
    for (const Formula &formula : paso.formulas)
        texto += u"   $"_s + comoLatex(formula) + u"$\n\n"_s;
    if (!paso.regla.isEmpty())
        texto += u"   *"_s + escapada(paso.regla, Especiales) + u"*\n\n"_s;
    if (!paso.tabla.filas.isEmpty())
        texto += tablaMarkdown(paso.tabla) + u'\n';
    return texto;
}

QString enLatex(const Paso &paso, qsizetype numero)
{
    constexpr QStringView Especiales = u"#$%&_{}";
    QString texto = u"\\item[%1.] %2\n"_s.arg(numero + 1).arg(escapada(paso.frase, Especiales));
    for (const Formula &formula : paso.formulas)
        texto += u"\\[ "_s + comoLatex(formula) + u" \\]\n"_s;
    if (!paso.regla.isEmpty())
        texto += u"\\emph{"_s + escapada(paso.regla, Especiales) + u"}\n"_s;
    if (!paso.tabla.filas.isEmpty())
        texto += textoDeRejilla(filasConCabecera(paso.tabla), FormaDeCopia::TeX);
    return texto;
}

} // namespace

QString pasoComo(FormaDePasos forma, const Paso &paso, qsizetype numero)
{
    switch (forma) {
    case FormaDePasos::Texto:
        return enTexto(paso, numero);
    case FormaDePasos::Markdown:
        return enMarkdown(paso, numero);
    case FormaDePasos::Latex:
        return enLatex(paso, numero);
    }
    return {};
}

QString pasoComoPalabras(const Paso &paso)
{
    QStringList partes = {paso.frase};
    for (const Formula &formula : paso.formulas)
        partes << comoPalabras(formula);
    for (const QStringList &fila : paso.tabla.filas)
        partes << fila.join(u", "_s);
    partes << paso.regla << paso.lamina.descripcion();
    partes.removeAll(QString());
    return partes.join(u". "_s);
}
