// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/page/EnlaceDePagina.h"

#include "shell/core/ModGlobal.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

using Campos = QList<QPair<QString, QString>>;

EnlaceRoto roto()
{
    return {Traduce(u"Este enlace está mal escrito y no hace nada."_s)};
}

bool tieneControles(const QString &texto)
{
    return std::any_of(texto.begin(), texto.end(), [](QChar letra) {
        return letra.category() == QChar::Other_Control && letra != u'\n';
    });
}

/// The part behind "?"; nothing when there is too much of it.
std::optional<Campos> camposDe(const QUrl &direccion)
{
    Campos campos;
    // As it was written: whether a sign parts two fields or belongs to a text can be told only
    // before the signs are decoded.
    const QString consulta = direccion.query(QUrl::FullyEncoded);
    const QStringList partes = consulta.split(u'&', Qt::SkipEmptyParts);
    if (partes.size() > EnlaceDeLeccion::CamposComoMucho)
        return std::nullopt;
    for (const QString &parte : partes) {
        const auto descifra = [](const QString &cifrado) {
            return QUrl::fromPercentEncoding(cifrado.toLatin1());
        };
        const qsizetype igual = parte.indexOf(u'=');
        const QString valor = descifra(parte.mid(igual + 1));
        if (igual <= 0 || valor.size() > EnlaceDeLeccion::LongitudMaxima || tieneControles(valor))
            return std::nullopt;
        campos.emplace_back(descifra(parte.first(igual)), valor);
    }
    return campos;
}

EnlaceDePagina practicas(const QString &clase, const Campos &campos)
{
    EnlaceDePracticas enlace{.clase = clase};
    if (campos.isEmpty())
        return enlace;
    enlace.nivel = campos.first().second.toInt();
    const bool bien = campos.size() == 1 && campos.first().first == u"nivel" && enlace.nivel >= 1 &&
                      enlace.nivel <= EnlaceDePracticas::NivelMaximo;
    return bien ? EnlaceDePagina(enlace) : roto();
}

} // namespace

bool esEnlaceDelPrograma(const QUrl &direccion)
{
    return direccion.scheme() == u"numora";
}

EnlaceDePagina leeEnlace(const QUrl &direccion)
{
    static const QRegularExpression forma(u"^([a-z]+)/([a-z][a-z0-9.-]{0,63})$"_s);
    const auto camino = forma.match(direccion.path());
    const auto campos = camposDe(direccion);
    const bool bien = direccion.isValid() && esEnlaceDelPrograma(direccion) &&
                      direccion.authority().isEmpty() && !direccion.hasFragment() &&
                      camino.hasMatch() && campos;
    if (!bien)
        return roto();
    const QString primera = camino.captured(1), segunda = camino.captured(2);
    if (primera == u"practicas")
        return practicas(segunda, *campos);
    if (primera == u"pregunta")
        return campos->isEmpty() ? EnlaceDePagina(EnlaceDePregunta{segunda}) : roto();
    return EnlaceDeLeccion{primera, segunda, *campos};
}
