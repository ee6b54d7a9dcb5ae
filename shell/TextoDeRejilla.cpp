#include "shell/TextoDeRejilla.h"

#include <algorithm>

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

QString celdaDeTeX(const QString &celda)
{
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
QString lineas(const QList<QStringList> &filas, const QString &separador, const QString &final,
               Celda celda)
{
    QString s;
    for (const QStringList &fila : filas) {
        QStringList celdas;
        std::transform(fila.begin(), fila.end(), std::back_inserter(celdas), celda);
        s += celdas.join(separador) + final;
    }
    return s;
}

QString tablaTeX(const QList<QStringList> &filas)
{
    const qsizetype columnas = filas.isEmpty() ? 0 : filas.constFirst().size();
    return u"\\begin{tabular}{%1}\n"_s.arg(QString(columnas, u'r')) +
           lineas(filas, u" & "_s, u" \\\\\n"_s, celdaDeTeX) + u"\\end{tabular}\n"_s;
}

} // namespace

QString textoDeRejilla(const QList<QStringList> &filas, FormaDeCopia forma, bool comaDecimal)
{
    const QChar coma = comaDecimal ? u';' : u',';
    switch (forma) {
    case FormaDeCopia::Texto:
        return lineas(filas, u"\t"_s, u"\n"_s, celdaDeTexto);
    case FormaDeCopia::CSV:
        return lineas(filas, coma, u"\r\n"_s,
                      [coma](const QString &celda) { return celdaDeCSV(celda, coma); });
    case FormaDeCopia::TeX:
        return tablaTeX(filas);
    }
    return {};
}
