// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Formatos.h"

#include "shell/core/ModGlobal.h"

#include <QLocale>
#include <QStringList>
#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

QString separadorDeMillares()
{
    const QString suyo = QLocale().groupSeparator();
    return suyo == u","_s ? u"\u202f"_s : suyo;
}

QString formatoEntero(const QString &digitos)
{
    // QLocale of Qt 6.4 groups wrongly where a locale leaves four digits ungrouped ("1234.567"), so
    // only the separator is its.
    const bool negativo = digitos.startsWith(u'-');
    const QStringView magnitud = QStringView(digitos).sliced(negativo ? 1 : 0);
    const bool esNumero =
        !magnitud.isEmpty() && std::all_of(magnitud.begin(), magnitud.end(),
                                           [](QChar c) { return c >= u'0' && c <= u'9'; });
    if (!esNumero)
        return digitos;
    const QString separador = separadorDeMillares();
    QString s;
    s.reserve(digitos.size() * 4 / 3 + 2);
    for (qsizetype i = 0; i < magnitud.size(); ++i) {
        if (i > 0 && (magnitud.size() - i) % 3 == 0)
            s += separador;
        s += magnitud[i];
    }
    return negativo ? QLocale().negativeSign() + s : s;
}

QString formatoEntero(qint64 valor)
{
    return formatoEntero(QString::number(valor));
}

QString formatoEntero(Moneda valor)
{
    const std::int64_t media = valor < Moneda() ? -Moneda::Escala / 2 : Moneda::Escala / 2;
    const std::int64_t resto = valor.diezmilesimas() % Moneda::Escala;
    const bool alejaDeCero = media < 0 ? resto <= media : resto >= media;
    return formatoEntero(valor.entero() + (alejaDeCero ? (media < 0 ? -1 : 1) : 0));
}

QString formatoAbreviado(const QString &digitos)
{
    constexpr qsizetype extremo = 6;
    if (digitos.size() <= 4 * extremo)
        return formatoEntero(digitos);
    const qsizetype cifras = digitos.size() - (digitos.startsWith(u'-') ? 1 : 0);
    return digitos.left(extremo) + u'…' + digitos.right(extremo) +
           Traduce(u" (%1 cifras)"_s).arg(formatoEntero(qint64{cifras}));
}

QString enSuperindice(const QString &numero)
{
    static const QString cifras = u"⁰¹²³⁴⁵⁶⁷⁸⁹"_s;
    QString texto;
    for (const QChar c : numero)
        texto += c == u'-' ? QChar(u'⁻') : cifras.at(c.digitValue());
    return texto;
}

QString formatoDecimal(double valor, int decimales)
{
    const QStringList partes = QString::number(valor, 'f', decimales).split(u'.');
    const QString entera = formatoEntero(partes.first());
    return partes.size() == 1 ? entera : entera + u',' + partes.last();
}

QString formatoTiempo(std::chrono::milliseconds tiempo)
{
    const auto s = std::chrono::duration_cast<std::chrono::seconds>(tiempo).count();
    return u"%1:%2:%3"_s.arg(s / 3600 % 24, 2, 10, QChar(u'0'))
        .arg(s / 60 % 60, 2, 10, QChar(u'0'))
        .arg(s % 60, 2, 10, QChar(u'0'));
}

QString textoDeDuracion(double nanosegundos)
{
    static const std::array unidades{u" ns"_s, u" µs"_s, u" ms"_s, u" s"_s};
    std::size_t unidad = 0;
    double valor = nanosegundos;
    // 999,5 would be rounded up to four digits.
    while (valor >= 999.5 && unidad + 1 < unidades.size()) {
        valor /= 1000;
        ++unidad;
    }
    const int decimales = valor < 9.995 ? 2 : valor < 99.95 ? 1 : 0;
    return formatoDecimal(valor, decimales) + unidades.at(unidad);
}
