// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/key/TextoEnBloques.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int CifrasPorCaracter = 3;

QLatin1StringView tresCifras(uchar codigo)
{
    static const QByteArray todas = [] {
        QByteArray cifras;
        for (int i = 0; i < 256; ++i)
            cifras += QByteArray::number(i).rightJustified(CifrasPorCaracter, '0');
        return cifras;
    }();
    return QLatin1StringView(todas.constData() + CifrasPorCaracter * codigo, CifrasPorCaracter);
}

/// The first character that Windows-1252 lacks, and its place counted from 1.
std::pair<QString, int> primeroInadmisible(const QString &texto)
{
    int lugar = 0;
    for (const char32_t codigo : texto.toUcs4()) {
        const QString caracter = QString::fromUcs4(&codigo, 1);
        ++lugar;
        if (!aWindows1252(caracter))
            return {caracter, lugar};
    }
    return {};
}

} // namespace

std::optional<QString> caracterInadmisible(const QString &texto)
{
    if (aWindows1252(texto))
        return {};
    const auto [caracter, lugar] = primeroInadmisible(texto);
    return Traduce(u"El carácter «%1», que está en el lugar %2, no se puede codificar."_s)
               .arg(caracter, QString::number(lugar)) +
           u'\n' +
           Traduce(u"Solo valen los 256 caracteres del juego Windows-1252: las letras del español, "
                   "las cifras y los signos corrientes."_s);
}

PaquetesDeTexto::PaquetesDeTexto(const QString &texto, int r) : m_r(r)
{
    if (r == 0)
        throw ErrorEjecucion(ErrorEjecucion::DivisionPorCero);
    const auto bytes = aWindows1252(texto);
    if (r < 0 || !bytes)
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido,
                             caracterInadmisible(texto).value_or(QString()));
    m_bytes = bytes->leftJustified((bytes->size() + r - 1) / r * r, ' ');
}

QString PaquetesDeTexto::siguiente()
{
    QString numero;
    numero.reserve(CifrasPorCaracter * m_r);
    for (const char caracter : QByteArrayView(m_bytes).sliced(m_inicio, m_r))
        numero += tresCifras(static_cast<uchar>(caracter));
    m_inicio += m_r;
    return numero;
}

QString NumeroATexto(const QString &numero)
{
    const QString cifras = CortaNulo(numero);
    const qsizetype grupos = (cifras.size() + CifrasPorCaracter - 1) / CifrasPorCaracter;
    const QString completo = cifras.rightJustified(grupos * CifrasPorCaracter);
    QByteArray bytes;
    for (qsizetype i = 0; i < completo.size(); i += CifrasPorCaracter) {
        const int codigo = QStringView(completo).sliced(i, CifrasPorCaracter).trimmed().toInt();
        bytes += static_cast<char>(codigo & 0xFF);
    }
    return deWindows1252(bytes);
}
