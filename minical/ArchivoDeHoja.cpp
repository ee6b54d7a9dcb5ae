// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/ArchivoDeHoja.h"

#include "minical/HojaDeCalculo.h"
#include "shell/core/Lectura.h"

#include <QRegularExpression>
#include <QSet>
#include <QStringDecoder>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;
using Motivo = FalloDeHoja::Motivo;

namespace {

const QString Firma = u"MiniCal"_s;
const QString Version = u"1"_s;
const QString PalabraAncho = u"ancho"_s;
const QString PalabraFin = u"fin"_s;

/// A result can be no longer than the buffer that the service writes it into.
constexpr qsizetype LongitudDeResultado = 24'576;

QString conEscapes(const QString &texto)
{
    QString s = texto;
    return s.replace(u'\\', u"\\\\"_s)
        .replace(u'\t', u"\\t"_s)
        .replace(u'\n', u"\\n"_s)
        .replace(u'\r', u"\\r"_s);
}

/// The text without its escapes; nothing for an unknown one.
std::optional<QString> sinEscapes(const QString &texto)
{
    QString s;
    s.reserve(texto.size());
    for (qsizetype i = 0; i < texto.size(); ++i) {
        if (texto[i] != u'\\') {
            s += texto[i];
            continue;
        }
        constexpr QStringView letras = u"\\tnr";
        constexpr QStringView signos = u"\\\t\n\r";
        const qsizetype cual = ++i < texto.size() ? letras.indexOf(texto[i]) : -1;
        if (cual < 0)
            return {};
        s += signos[cual];
    }
    return s;
}

bool esValor(const QString &texto)
{
    static const QRegularExpression forma(u"\\A-?[0-9]+(/[0-9]+)?\\z"_s);
    return texto.size() <= LongitudDeResultado && forma.match(texto).hasMatch();
}

bool esFormaDecimal(const QString &texto)
{
    static const QRegularExpression forma(u"\\A-?[0-9]+(,[0-9]+)?\\z"_s);
    return texto.size() <= LongitudDeResultado && forma.match(texto).hasMatch();
}

/// A number as the writer writes it; nothing for "07", "+7" and the like.
std::optional<int> numero(const QString &texto)
{
    bool bien = false;
    const int n = texto.toInt(&bien);
    return bien && QString::number(n) == texto ? std::optional(n) : std::nullopt;
}

/// Whether result and value are what a sheet can hold: a value is its own result until this is
/// turned into a decimal, which fails where it is too long.
bool concuerdan(const CeldaGuardada &celda)
{
    if (celda.expresion.isEmpty() || celda.expresion.size() > HojaDeCalculo::LongitudMaxima)
        return false;
    if (!celda.valor)
        return celda.resultado.isEmpty() || esError(celda.resultado);
    if (celda.expresion.trimmed().isEmpty() || !esValor(*celda.valor))
        return false;
    return celda.resultado == *celda.valor || esError(celda.resultado) ||
           esFormaDecimal(celda.resultado);
}

class Lector
{
public:
    std::variant<HojaGuardada, FalloDeHoja> lee(QByteArrayView bytes)
    {
        if (bytes.startsWith("\xEF\xBB\xBF"))
            bytes = bytes.sliced(3);
        while (!bytes.isEmpty() && !m_fallo && !m_termino) {
            const qsizetype fin = bytes.indexOf('\n');
            // A last line without its end has been cut off.
            if (fin < 0)
                break;
            ++m_linea;
            leeLinea(bytes.first(fin));
            bytes = bytes.sliced(fin + 1);
        }
        if (!m_fallo && m_linea == 0)
            falla(Motivo::NoEsUnaHoja);
        if (!m_fallo && !m_termino)
            falla(Motivo::Cortado);
        if (!m_fallo && !bytes.trimmed().isEmpty())
            falla(Motivo::LineaIncorrecta);
        if (m_fallo)
            return *m_fallo;
        return m_hoja;
    }

private:
    void falla(Motivo motivo) { m_fallo = FalloDeHoja{motivo, m_linea}; }

    void leeLinea(QByteArrayView linea)
    {
        if (linea.endsWith('\r'))
            linea.chop(1);
        QStringDecoder decodificador(QStringDecoder::Utf8, QStringDecoder::Flag::Stateless);
        const QString texto = decodificador(linea);
        if (m_linea == 1)
            leeFirma(texto);
        else if (decodificador.hasError())
            falla(Motivo::NoEsTexto);
        else
            leeCampos(texto.split(u'\t'));
    }

    void leeFirma(const QString &texto)
    {
        const QStringList partes = texto.split(u' ');
        const auto version = partes.size() == 2 ? numero(partes[1]) : std::nullopt;
        if (partes.constFirst() != Firma || !version || *version < 1)
            falla(Motivo::NoEsUnaHoja);
        else if (partes[1] != Version)
            falla(Motivo::VersionPosterior);
    }

    void leeCampos(const QStringList &campos)
    {
        bool bien = false;
        if (campos.constFirst() == PalabraFin)
            bien = leeFin(campos);
        else if (campos.constFirst() == PalabraAncho)
            bien = leeAncho(campos);
        else
            bien = leeCelda(campos);
        if (!bien && !m_fallo)
            falla(Motivo::LineaIncorrecta);
    }

    bool leeFin(const QStringList &campos)
    {
        m_termino = campos.size() == 2 && numero(campos[1]) == m_hoja.celdas.size();
        return m_termino;
    }

    bool leeAncho(const QStringList &campos)
    {
        if (campos.size() != 3)
            return false;
        const auto primera = celdaDeNombre(QString(campos[1] + u'1'));
        const auto ancho = numero(campos[2]);
        if (!primera || primera->fila != 1 || !ancho || *ancho < 1 ||
            *ancho > AnchoMaximoDeColumna || m_hoja.anchos.contains(primera->columna))
            return false;
        m_hoja.anchos.insert(primera->columna, *ancho);
        return true;
    }

    bool leeCelda(const QStringList &campos)
    {
        const auto celda = celdaDeNombre(campos.constFirst());
        if (!celda || campos.size() < 3 || campos.size() > 4)
            return false;
        if (m_vistas.contains(campos.constFirst())) {
            falla(Motivo::CeldaRepetida);
            return false;
        }
        m_vistas.insert(campos.constFirst());
        const auto expresion = sinEscapes(campos[1]);
        if (!expresion)
            return false;
        CeldaGuardada leida{*celda, *expresion, campos[2], std::nullopt};
        if (campos.size() == 4)
            leida.valor = campos[3];
        else if (esValor(leida.resultado))
            leida.valor = leida.resultado;
        // A value that is written out where it is the result would not be written again.
        if (!concuerdan(leida) || (campos.size() == 4 && leida.valor == leida.resultado))
            return false;
        m_hoja.celdas << leida;
        return true;
    }

    HojaGuardada m_hoja;
    QSet<QString> m_vistas;
    std::optional<FalloDeHoja> m_fallo;
    int m_linea = 0;
    bool m_termino = false;
};

} // namespace

QByteArray escribeHoja(const HojaGuardada &hoja)
{
    QString texto = Firma + u' ' + Version + u'\n';
    for (auto ancho = hoja.anchos.begin(); ancho != hoja.anchos.end(); ++ancho)
        texto += PalabraAncho + u'\t' + letraDeColumna(ancho.key()) + u'\t' +
                 QString::number(ancho.value()) + u'\n';
    for (const CeldaGuardada &celda : hoja.celdas) {
        texto += NombreCelda(celda.celda) + u'\t' + conEscapes(celda.expresion) + u'\t' +
                 celda.resultado;
        if (celda.valor && *celda.valor != celda.resultado)
            texto += u'\t' + *celda.valor;
        texto += u'\n';
    }
    texto += PalabraFin + u'\t' + QString::number(hoja.celdas.size()) + u'\n';
    return texto.toUtf8();
}

std::variant<HojaGuardada, FalloDeHoja> leeHoja(const QByteArray &bytes)
{
    return Lector().lee(bytes);
}
