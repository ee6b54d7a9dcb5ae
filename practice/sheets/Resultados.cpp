// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/sheets/Resultados.h"

#include "practice/engine/Banco.h"
#include "shell/core/ModGlobal.h"

#include <QDate>
#include <QStringDecoder>
#include <algorithm>
#include <array>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Marca = u"numora-resultados-1";
constexpr QStringView Columnas =
    u"codigo;tipo;nivel;resultado;intentos;pistas;segundos;dia;errores";
constexpr qsizetype FilasComoMucho = 20'000;
constexpr qsizetype LetrasDeNombre = 80;
/// Eleven days and a half; whatever took longer was left open.
constexpr int SegundosComoMucho = 1'000'000;
/// By EstadoDeEjercicio.
const std::array<QString, 4> Estados{u"sin-contestar"_s, u"fallado"_s, u"solucion"_s,
                                     u"acertado"_s};

/// A cell that no spreadsheet takes for a formula and no separator parts.
QString celda(QString texto)
{
    for (QChar &letra : texto) {
        if (letra.unicode() < 32 || letra == u';' || letra == u'"')
            letra = u' ';
    }
    static const QString deFormula = u"=+-@"_s;
    if (!texto.isEmpty() && deFormula.contains(texto.front()))
        texto.prepend(u'\'');
    return texto;
}

QString nombreLimpio(const QString &nombre)
{
    QString limpio = nombre.startsWith(u'\'') ? nombre.mid(1) : nombre;
    limpio.removeIf([](QChar letra) { return !letra.isPrint(); });
    return limpio.simplified().left(LetrasDeNombre);
}

std::optional<int> enteroEntre(const QString &texto, int minimo, int maximo)
{
    bool vale = false;
    const int numero = texto.toInt(&vale);
    return vale && numero >= minimo && numero <= maximo ? std::optional(numero) : std::nullopt;
}

/// A note of a mistake, as judges write them.
bool esNota(const QString &nota)
{
    return !nota.isEmpty() && nota.size() <= 60 &&
           std::all_of(nota.begin(), nota.end(),
                       [](QChar c) { return c.isLetterOrNumber() || c == u'-'; });
}

std::optional<Hecho> leeFila(const QString &linea)
{
    constexpr int MuchasVeces = 10'000;
    const QStringList celdas = linea.split(u';');
    if (celdas.size() != Columnas.count(u';') + 1 || !tipoDeEjercicio(celdas[1]))
        return {};
    const auto nivel = enteroEntre(celdas[2], 1, Niveles);
    const auto estado = std::find(Estados.begin(), Estados.end(), celdas[3]);
    const auto intentos = enteroEntre(celdas[4], 0, MuchasVeces);
    const auto pistas = enteroEntre(celdas[5], 0, 2);
    const auto segundos = enteroEntre(celdas[6], 0, SegundosComoMucho);
    const QDate dia = QDate::fromString(celdas[7], Qt::ISODate);
    const QStringList notas = celdas[8].split(u' ', Qt::SkipEmptyParts);
    if (!nivel || estado == Estados.end() || !intentos || !pistas || !segundos || !dia.isValid() ||
        notas.size() > MuchasVeces || !std::all_of(notas.begin(), notas.end(), esNota) ||
        celdas[0].size() > LetrasDeNombre)
        return {};
    return Hecho{
        celdas[1],          *nivel,    static_cast<EstadoDeEjercicio>(estado - Estados.begin()),
        *intentos,          *pistas,   notas,
        *segundos * 1000LL, celdas[0], dia.toJulianDay()};
}

QString textoDeFila(const Hecho &hecho)
{
    const TipoDeEjercicio *tipo = tipoDeEjercicio(hecho.clave);
    const std::array<QString, 4> palabras{Traduce(u"sin contestar"_s), Traduce(u"fallado"_s),
                                          Traduce(u"con la solución a la vista"_s),
                                          Traduce(u"acertado"_s)};
    QString texto = Traduce(u"%1, nivel %2: %3; intentos %4, pistas %5, %6 s"_s)
                        .arg(tipo ? Traduce(tipo->titulo) : hecho.clave)
                        .arg(hecho.nivel)
                        .arg(palabras.at(static_cast<std::size_t>(hecho.estado)))
                        .arg(hecho.intentos)
                        .arg(hecho.pistas)
                        .arg(hecho.milisegundos / 1000);
    if (!hecho.hoja.isEmpty())
        texto += u", "_s + Traduce(u"hoja %1"_s).arg(hecho.hoja);
    return QDate::fromJulianDay(hecho.dia).toString(Qt::ISODate) + u"  "_s + texto;
}

} // namespace

QByteArray resultadosEnCsv(const Resultados &resultados)
{
    QStringList lineas{Marca.toString() + u';' + celda(nombreLimpio(resultados.alumno)),
                       Columnas.toString()};
    for (const Hecho &hecho : resultados.hechos)
        lineas << QStringList{celda(hecho.hoja),
                              hecho.clave,
                              QString::number(hecho.nivel),
                              Estados.at(static_cast<std::size_t>(hecho.estado)),
                              QString::number(hecho.intentos),
                              QString::number(hecho.pistas),
                              QString::number(
                                  std::min<qint64>(hecho.milisegundos / 1000, SegundosComoMucho)),
                              QDate::fromJulianDay(hecho.dia).toString(Qt::ISODate),
                              hecho.notas.join(u' ')}
                      .join(u';');
    // The mark of byte order tells spreadsheets the encoding.
    return QByteArray("\xEF\xBB\xBF") + (lineas.join(u"\r\n"_s) + u"\r\n"_s).toUtf8();
}

QString resultadosEnTexto(const Resultados &resultados)
{
    QStringList lineas{Traduce(u"Ejercicios de %1"_s).arg(nombreLimpio(resultados.alumno)), {}};
    for (const Hecho &hecho : resultados.hechos)
        lineas << textoDeFila(hecho);
    return lineas.join(u'\n') + u'\n';
}

std::variant<Resultados, QString> leeResultados(const QByteArray &bytes)
{
    if (bytes.size() > MaximoDeResultados)
        return Traduce(u"es demasiado grande"_s);
    QStringDecoder utf8(QStringDecoder::Utf8);
    const QString texto = utf8.decode(bytes);
    QStringList lineas = texto.split(u'\n', Qt::SkipEmptyParts);
    for (QString &linea : lineas)
        linea = linea.trimmed();
    if (utf8.hasError() || lineas.size() < 2 || lineas.size() > FilasComoMucho ||
        lineas[0].section(u';', 0, 0) != Marca || lineas[1] != Columnas)
        return Traduce(u"no es un archivo de resultados de este programa"_s);
    Resultados resultados{nombreLimpio(lineas[0].section(u';', 1)), {}};
    for (qsizetype i = 2; i < lineas.size(); ++i) {
        const auto hecho = leeFila(lineas[i]);
        if (!hecho)
            return Traduce(u"la línea %1 no se entiende"_s).arg(i + 1);
        resultados.hechos << *hecho;
    }
    if (resultados.alumno.isEmpty())
        resultados.alumno = Traduce(u"sin nombre"_s);
    return resultados;
}
