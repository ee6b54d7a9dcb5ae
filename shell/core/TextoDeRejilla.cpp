// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/TextoDeRejilla.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString celdaDeTexto(QString celda)
{
    return celda.replace(u'\t', u' ').replace(u'\n', u' ');
}

QString celdaDeCSV(const QString &celda, QChar separador)
{
    const bool entrecomillada = celda.contains(separador) || celda.contains(u'"') ||
                                celda.contains(u'\n') || celda.contains(u'\r');
    return entrecomillada ? u'"' + QString(celda).replace(u'"', u"\"\""_s) + u'"' : celda;
}

/// A cell of nothing but dots stands for what is left out.
bool esDePuntos(const QString &celda)
{
    return celda.size() > 1 && celda.count(u'·') == celda.size();
}

QString celdaDeTeX(const QString &celda)
{
    if (esDePuntos(celda))
        return u"$\\cdots$"_s;
    QString s;
    for (const QChar c : celda) {
        switch (c.unicode()) {
        case u'\\':
            s += u"\\textbackslash{}"_s;
            break;
        case u'^':
            s += u"\\textasciicircum{}"_s;
            break;
        case u'~':
            s += u"\\textasciitilde{}"_s;
            break;
        case u'#':
        case u'$':
        case u'%':
        case u'&':
        case u'_':
        case u'{':
        case u'}':
            s += u'\\' + QString(c);
            break;
        case u'·':
            s += u"$\\cdot$"_s;
            break;
        case u'\u2212':
            s += u"$-$"_s;
            break;
        default:
            s += c;
        }
    }
    return s;
}

template <typename Celda>
void agregaLinea(QString &texto, const QStringList &fila, QStringView separador, QStringView final,
                 Celda celda)
{
    for (qsizetype i = 0; i < fila.size(); ++i) {
        if (i > 0)
            texto += separador;
        texto += celda(fila[i]);
    }
    texto += final;
}

} // namespace

EscritorDeRejilla::EscritorDeRejilla(FormaDeCopia forma, qsizetype columnas, bool comaDecimal)
    : m_forma(forma), m_coma(comaDecimal ? u';' : u',')
{
    if (m_forma == FormaDeCopia::TeX)
        m_texto = u"\\begin{tabular}{%1}\n"_s.arg(QString(columnas, u'r'));
}

void EscritorDeRejilla::agrega(const QStringList &fila)
{
    switch (m_forma) {
    case FormaDeCopia::Texto:
        agregaLinea(m_texto, fila, u"\t", u"\n", celdaDeTexto);
        break;
    case FormaDeCopia::CSV:
        agregaLinea(m_texto, fila, QStringView(&m_coma, 1), u"\r\n",
                    [this](const QString &celda) { return celdaDeCSV(celda, m_coma); });
        break;
    case FormaDeCopia::TeX:
        agregaLinea(m_texto, fila, u" & ", u" \\\\\n", celdaDeTeX);
        break;
    }
}

QString EscritorDeRejilla::termina()
{
    if (m_forma == FormaDeCopia::TeX)
        m_texto += u"\\end{tabular}\n"_s;
    return std::move(m_texto);
}

QString textoDeRejilla(const QList<QStringList> &filas, FormaDeCopia forma, bool comaDecimal)
{
    EscritorDeRejilla escritor(forma, filas.value(0).size(), comaDecimal);
    for (const QStringList &fila : filas)
        escritor.agrega(fila);
    return escritor.termina();
}

QList<QStringList> filasDeTexto(QString texto)
{
    texto.replace(u"\r\n"_s, u"\n"_s);
    if (texto.endsWith(u'\n'))
        texto.chop(1);
    QList<QStringList> filas;
    const QStringList lineas = texto.split(u'\n');
    for (const QString &linea : lineas)
        filas << linea.split(u'\t');
    return filas;
}
