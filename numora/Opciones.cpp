// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Opciones.h"

#include "shell/core/ModGlobal.h"

#include <QCommandLineParser>
#include <QRegularExpression>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Of the gallery's window, in logical pixels.
constexpr QSize PorOmision(1366, 768), Minimo(640, 480), Maximo(8192, 8192);

/// Of the gallery, in per cent.
constexpr int EscalaMinima = 100, EscalaMaxima = 400;

QString escrito(const QSize &tamano)
{
    return u"%1x%2"_s.arg(tamano.width()).arg(tamano.height());
}

bool faltaValor(const QStringList &palabras)
{
    const QStringList conValor{u"--galeria"_s, u"--tamano"_s, u"--escala"_s, u"--hoja"_s,
                               u"--pdf"_s};
    return conValor.contains(palabras.constLast());
}

} // namespace

void describe(QCommandLineParser &opciones)
{
    opciones.setApplicationDescription(Traduce(u"Numora: matemática discreta, paso a paso"_s));
    opciones.addOption({{u"h"_s, u"help"_s}, Traduce(u"Muestra esta ayuda."_s)});
    opciones.addOption({{u"v"_s, u"version"_s}, Traduce(u"Muestra la versión."_s)});
    opciones.addOption(
        {u"i"_s, Traduce(u"Idioma de los textos, como en -i:English; ha de ser lo último."_s),
         Traduce(u"idioma"_s)});
    opciones.addOption({u"galeria"_s,
                        Traduce(u"Guarda imágenes de todas las ventanas en la carpeta DIR."_s),
                        u"DIR"_s});
    opciones.addOption({u"tamano"_s,
                        Traduce(u"Tamaño de la ventana en la galería, como 1366x768."_s),
                        Traduce(u"ANCHOxALTO"_s), u"1366x768"_s});
    opciones.addOption({u"escala"_s,
                        Traduce(u"Escala de la galería en tanto por ciento, como 150."_s),
                        Traduce(u"PORCIENTO"_s), u"100"_s});
    opciones.addOption({u"oscuro"_s, Traduce(u"Colores oscuros en la galería."_s)});
    opciones.addOption({u"hoja"_s,
                        Traduce(u"Escribe la hoja de ejercicios de ese código, sin ventanas."_s),
                        Traduce(u"CÓDIGO"_s)});
    opciones.addOption(
        {u"pdf"_s, Traduce(u"El archivo en el que se escribe la hoja."_s), u"PDF"_s});
    opciones.addOption({u"soluciones"_s, Traduce(u"Con las respuestas y soluciones detrás."_s)});
}

bool tieneOpcion(const QStringList &palabras, const QString &nombre)
{
    return palabras.contains(nombre) || std::ranges::any_of(palabras, [&](const QString &palabra) {
               return palabra.startsWith(nombre + u'=');
           });
}

QString valorDe(const QStringList &palabras, const QString &nombre)
{
    const qsizetype lugar = palabras.indexOf(nombre);
    if (lugar >= 0)
        return palabras.value(lugar + 1);
    const QStringList juntas = palabras.filter(QRegularExpression(u'^' + nombre + u'='));
    return juntas.isEmpty() ? QString() : juntas.constFirst().sliced(nombre.size() + 1);
}

std::optional<QSize> tamanoPedido(const QStringList &palabras)
{
    if (!tieneOpcion(palabras, u"--tamano"_s))
        return PorOmision;
    static const QRegularExpression forma(u"^([0-9]{1,5})x([0-9]{1,5})$"_s);
    const auto lados = forma.match(valorDe(palabras, u"--tamano"_s));
    const QSize leido(lados.captured(1).toInt(), lados.captured(2).toInt());
    if (leido != leido.expandedTo(Minimo).boundedTo(Maximo))
        return {};
    return leido;
}

std::optional<int> escalaPedida(const QStringList &palabras)
{
    if (!tieneOpcion(palabras, u"--escala"_s))
        return EscalaMinima;
    const int leida = valorDe(palabras, u"--escala"_s).toInt();
    if (leida < EscalaMinima || leida > EscalaMaxima)
        return {};
    return leida;
}

bool sePuedeSeguir(const QStringList &palabras)
{
    return !faltaValor(palabras) && tamanoPedido(palabras) && escalaPedida(palabras);
}

QString falta(const QStringList &palabras)
{
    if (faltaValor(palabras))
        return Traduce(u"Falta el valor de %1."_s).arg(palabras.constLast());
    if (!tamanoPedido(palabras))
        return Traduce(u"El tamaño de la galería ha de estar entre %1 y %2."_s)
            .arg(escrito(Minimo), escrito(Maximo));
    return Traduce(u"La escala de la galería ha de estar entre %1 y %2."_s)
        .arg(EscalaMinima)
        .arg(EscalaMaxima);
}
