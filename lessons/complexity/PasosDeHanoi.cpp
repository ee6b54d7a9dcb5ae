// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/PasosDeHanoi.h"

#include "lessons/complexity/GeometriaHanoi.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QSizeF Cuadro(300, 150);

/// The towers within a frame, of the discs only `destacado` in full colour.
void agregaTorres(Lamina &lamina, const TorresHanoi &torres, QPointF esquina, int destacado)
{
    const GeometriaHanoi geometria(Cuadro, torres.discos());
    lamina.rectangulo(geometria.base().translated(esquina), {Tono::Suave}, true);
    for (int palo = 0; palo < TorresHanoi::NumPalos; ++palo) {
        // Discs that are not filled would not hide it.
        QRectF vara = geometria.palo(palo);
        vara.setBottom(
            geometria.disco(1, palo, static_cast<int>(torres.palo(palo).size())).bottom());
        lamina.rectangulo(vara.translated(esquina), {Tono::Suave}, true);
        for (int altura = 0; altura < torres.palo(palo).size(); ++altura) {
            const int disco = torres.palo(palo).at(altura);
            const bool suyo = disco == destacado;
            lamina.rectangulo(geometria.disco(disco, palo, altura).translated(esquina),
                              suyo ? Tono{Tono::Acento} : Tono{}, suyo, QString::number(disco));
        }
    }
}

/// A tower of k discs right before its largest one moves, and right after.
Lamina laminaDeMayor(int k)
{
    Lamina lamina(
        Traduce(u"Torre de %1 discos: los menores esperan en B mientras el mayor pasa de A "
                "a C."_s)
            .arg(k));
    TorresHanoi torres(k);
    for (int i = 0; i < torres.minimo() / 2; ++i)
        torres.avanza();
    agregaTorres(lamina, torres, {0, 0}, k);
    torres.avanza();
    const qreal y = Cuadro.height() * 1.25;
    lamina.flecha({Cuadro.width() / 2, Cuadro.height() * 1.03}, {Cuadro.width() / 2, y * 0.98});
    agregaTorres(lamina, torres, {0, y}, k);
    return lamina;
}

/// How many moves a tower of k discs takes.
Paso pasoDeTorre(int k, int discos)
{
    if (k == 1)
        return {Traduce(u"Un solo disco pasa con un movimiento."_s), {u"H(1) = 1"_s}};
    const int antes = (1 << (k - 1)) - 1;
    Paso paso{Traduce(u"Con %1 discos: se apartan los menores, pasa el mayor, y los menores se le "
                      "ponen encima."_s)
                  .arg(k),
              {u"H(%1) = H(%2) + 1 + H(%2) = 2*%3 + 1 = %4"_s.arg(k).arg(k - 1).arg(antes).arg(
                   2 * antes + 1),
               u"H(%1) = 2^%1 - 1"_s.arg(k)}};
    if (k == discos)
        paso.regla =
            Traduce(u"Con menos no se puede: el mayor solo se mueve cuando los demás están "
                    "juntos en otro palo."_s);
    paso.lamina = laminaDeMayor(k);
    return paso;
}

Lamina laminaDePosicion(const TorresHanoi &torres, int disco)
{
    Lamina lamina(Traduce(u"Las torres como están, con el disco %1 destacado."_s).arg(disco));
    agregaTorres(lamina, torres, {0, 0}, disco);
    return lamina;
}

/// What disc d adds to the moves still needed.
Paso pasoDeDisco(const TorresHanoi &torres, int d)
{
    const int palo = torres.paloDe(d);
    const int destino = torres.destino(d);
    const bool enSitio = palo == destino;
    int coste = 0;
    for (int mayor = torres.discos(); mayor > d; --mayor)
        coste += torres.paloDe(mayor) == torres.destino(mayor) ? 0 : 1 << (mayor - 1);
    const int suyo = enSitio ? 0 : 1 << (d - 1);
    const QString frase =
        enSitio
            ? Traduce(u"El disco %1 está en %2, donde tiene que estar: no cuesta nada."_s)
            : Traduce(u"El disco %1 está en %2 y tiene que ir a %3: un movimiento, y %4 para que "
                      "los menores le sigan."_s);
    const QString formula =
        d == torres.discos()
            ? u"M_%1 = %2"_s.arg(d).arg(enSitio ? u"0"_s : u"2^%1 = %2"_s.arg(d - 1).arg(suyo))
        : enSitio ? u"M_%1 = M_%2 = %3"_s.arg(d).arg(d + 1).arg(coste)
                  : u"M_%1 = M_%2 + 2^%3 = %4 + %5 = %6"_s.arg(d)
                        .arg(d + 1)
                        .arg(d - 1)
                        .arg(coste)
                        .arg(suyo)
                        .arg(coste + suyo);
    Paso paso{enSitio ? frase.arg(d).arg(nombreDePalo(palo))
                      : frase.arg(d).arg(nombreDePalo(palo), nombreDePalo(destino)).arg(suyo - 1),
              {formula}};
    paso.lamina = laminaDePosicion(torres, d);
    return paso;
}

/// The moves made and the fewest to come, against the fewest of all.
Paso pasoDeCuenta(const TorresHanoi &torres)
{
    const int hechos = torres.hechos();
    const int faltan = torres.faltan();
    Paso paso{faltan == 0
                  ? Traduce(u"Están todos en C. Movimientos hechos: %1. Los menos posibles: "
                            "%2."_s)
                        .arg(hechos)
                        .arg(torres.minimo())
                  : Traduce(u"Movimientos hechos: %1. Por hacer, como poco: %2. Juntos: %3. "
                            "Los menos posibles desde el principio: %4."_s)
                        .arg(hechos)
                        .arg(faltan)
                        .arg(hechos + faltan)
                        .arg(torres.minimo())};
    const QString signo = hechos + faltan == torres.minimo() ? u"="_s : u">"_s;
    paso.formulas = {u"%1 + %2 = %3 %4 2^%5 - 1"_s.arg(hechos)
                         .arg(faltan)
                         .arg(hechos + faltan)
                         .arg(signo)
                         .arg(torres.discos())};
    paso.regla = Traduce(u"Cada disco fuera de su sitio, el número d, cuesta 2ᵈ⁻¹ movimientos."_s);
    return paso;
}

} // namespace

QString nombreDePalo(int palo)
{
    return QChar(u'A' + palo);
}

Pasos pasosDeHanoi(const TorresHanoi &torres)
{
    const int n = torres.discos();
    if (torres.hechos() == 0)
        return Pasos(n, [n](qsizetype i) { return pasoDeTorre(static_cast<int>(i) + 1, n); });
    return Pasos(n + 1, [torres, n](qsizetype i) {
        return i < n ? pasoDeDisco(torres, n - static_cast<int>(i)) : pasoDeCuenta(torres);
    });
}
