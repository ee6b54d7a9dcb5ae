// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/TrozosDePagina.h"

#include <QRegularExpression>

using namespace Qt::Literals::StringLiterals;

namespace {

QString sinEntidades(QString texto)
{
    static const QRegularExpression numero(u"&#(x?)([0-9A-Fa-f]{1,6});"_s);
    for (auto hallado = numero.match(texto); hallado.hasMatch(); hallado = numero.match(texto)) {
        const char32_t punto =
            hallado.captured(2).toUInt(nullptr, hallado.capturedLength(1) > 0 ? 16 : 10);
        texto.replace(hallado.capturedStart(), hallado.capturedLength(),
                      punto == U'&' ? u"&amp;"_s : QString::fromUcs4(&punto, 1));
    }
    return texto.replace(u"&lt;"_s, u"<"_s)
        .replace(u"&gt;"_s, u">"_s)
        .replace(u"&quot;"_s, u"\""_s)
        .replace(u"&amp;"_s, u"&"_s);
}

} // namespace

QString TrozoDePagina::atributo(const QString &cual) const
{
    // Asked of each tag of a page some times: an expression would be made anew for each.
    const QString comienzo = cual + u'=';
    for (qsizetype i = codigo.indexOf(comienzo); i > 0; i = codigo.indexOf(comienzo, i + 1)) {
        const qsizetype desde = i + comienzo.size();
        const QChar comilla = desde < codigo.size() ? codigo[desde] : QChar();
        const qsizetype hasta = codigo.indexOf(comilla, desde + 1);
        if (codigo[i - 1].isSpace() && (comilla == u'"' || comilla == u'\'') && hasta > 0)
            return sinEntidades(codigo.mid(desde + 1, hasta - desde - 1));
    }
    return {};
}

QString TrozoDePagina::texto() const
{
    return sinEntidades(codigo);
}

QList<TrozoDePagina> trozosDePagina(const QString &pagina)
{
    static const QRegularExpression forma(
        u"<!--.*?-->|<[!?][^<>]*>|<(/?)([A-Za-z][A-Za-z0-9]*)(?:[^<>\"']|\"[^\"]*\"|'[^']*')*>"_s,
        QRegularExpression::DotMatchesEverythingOption);
    QList<TrozoDePagina> trozos;
    qsizetype leido = 0;
    const auto agregaTexto = [&](qsizetype hasta) {
        if (hasta > leido)
            trozos << TrozoDePagina{TrozoDePagina::Texto, pagina.mid(leido, hasta - leido), {}};
    };
    auto etiquetas = forma.globalMatch(pagina);
    while (etiquetas.hasNext()) {
        const auto etiqueta = etiquetas.next();
        agregaTexto(etiqueta.capturedStart());
        leido = etiqueta.capturedEnd();
        const QString nombre = etiqueta.captured(2).toLower();
        const auto tipo = nombre.isEmpty()                 ? TrozoDePagina::Otro
                          : etiqueta.capturedLength(1) > 0 ? TrozoDePagina::Cierra
                                                           : TrozoDePagina::Abre;
        trozos << TrozoDePagina{tipo, etiqueta.captured(), nombre};
    }
    agregaTexto(pagina.size());
    return trozos;
}

QString estiloDelPrograma(QString hoja)
{
    static const QRegularExpression comentario(u"/\\*.*?\\*/"_s,
                                               QRegularExpression::DotMatchesEverythingOption);
    hoja.remove(comentario);
    const qsizetype otros = hoja.indexOf(u"@media"_s);
    return otros < 0 ? hoja : hoja.first(otros);
}
