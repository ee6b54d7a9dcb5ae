// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/steps/PasosDeCifrado.h"

#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EnteroLargo.h"
#include "shell/core/steps/PasosDePotencia.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// More characters a block are not shown one by one.
constexpr int MasCaracteres = 8;

/// A block of a text on its way.
struct Camino
{
    ClaveEnCifras clave;
    QByteArray codigos;
    bool completado; ///< with blanks that the text lacks
    QString numero;  ///< without zeros in front
    QString cifrado, vuelto;
};

TablaDePaso tablaDeCodigos(const QByteArray &codigos)
{
    TablaDePaso tabla{{Traduce(u"Carácter"_s), Traduce(u"Código"_s)}, {}};
    for (const char codigo : codigos.first(std::min<qsizetype>(codigos.size(), MasCaracteres)))
        tabla.filas << QStringList{
            nombreDeCaracter(deWindows1252(QByteArray(1, codigo)).front()),
            QString::number(static_cast<uchar>(codigo)).rightJustified(3, u'0')};
    return tabla;
}

Paso enBloque(const Camino &c)
{
    Paso paso{c.clave.r == 1
                  ? Traduce(u"El primer carácter se cambia por su código: %1."_s).arg(c.numero)
                  : Traduce(u"Los códigos de los %1 primeros caracteres, con tres cifras "
                            "cada uno, forman el número %2."_s)
                        .arg(c.clave.r)
                        .arg(c.numero),
              {Formula(u"m = %1 < %2"_s.arg(c.numero, c.clave.q))},
              Traduce(u"El paquete es menor que q: así se distingue de los demás módulo q."_s),
              tablaDeCodigos(c.codigos)};
    if (c.completado)
        paso.frase += u' ' + Traduce(u"El texto se ha completado con espacios."_s);
    if (c.clave.r < 2 || c.clave.r > MasCaracteres)
        return paso;
    QStringList sumandos;
    for (qsizetype i = 0; i < c.codigos.size(); ++i)
        sumandos
            << u"%1*1000^%2"_s.arg(static_cast<uchar>(c.codigos[i])).arg(c.codigos.size() - 1 - i);
    paso.formulas.prepend(Formula(sumandos.join(u" + "_s) + u" = "_s + c.numero));
    return paso;
}

Paso anuncio(const QString &frase, const QString &base, const QString &exponente,
             const QString &valor, const QString &q)
{
    return {frase, {Formula(u"%1^%2 == %3 (mod %4)"_s.arg(base, exponente, valor, q))}};
}

Paso deVuelta(const Camino &c)
{
    if (c.vuelto != c.numero)
        return {Traduce(u"No se recupera el paquete: sale %1, y era %2."_s).arg(c.vuelto, c.numero),
                {Formula(u"%1 != %2"_s.arg(c.vuelto, c.numero))},
                Traduce(u"Con dos primos iguales φ(q) no es (q(1) − 1)·(q(2) − 1)."_s)};
    return {
        Traduce(u"Ha vuelto el número %1. Sus cifras, de tres en tres desde la derecha, son los "
                "códigos de «%2»."_s)
            .arg(c.vuelto, NumeroATexto(c.vuelto)),
        {Formula(u"%1 == %2 (mod %3)"_s.arg(c.vuelto, c.numero, c.clave.q))},
        Traduce(u"Elevar a s y después a t deja igual cualquier número módulo q."_s),
        tablaDeCodigos(c.codigos)};
}

/// Bit by bit where that can be looked at; a negative exponent has no bits.
Pasos potencia(const QString &base, const QString &exponente, const QString &q)
{
    constexpr int muchosBits = 512, pocosBits = 64;
    if (exponente.startsWith(u'-'))
        return {};
    if (ClaveEnCifras::corto(q, muchosBits) || ClaveEnCifras::corto(exponente, pocosBits))
        return pasosDePotencia(base, exponente, q);
    return {};
}

Pasos pasosDelCamino(const Camino &c)
{
    const QString &q = c.clave.q;
    const auto uno = [](auto hace) { return Pasos(1, [hace](qsizetype) { return hace(); }); };
    return Pasos::seguidos(
        {uno([c] { return enBloque(c); }), potencia(c.numero, c.clave.s, q), uno([c] {
             return anuncio(
                 Traduce(u"El paquete codificado es m elevado a s: %1."_s).arg(c.cifrado), c.numero,
                 c.clave.s, c.cifrado, c.clave.q);
         }),
         potencia(c.cifrado, c.clave.t, q), uno([c] {
             return anuncio(Traduce(u"Para descodificarlo se eleva a t: %1."_s).arg(c.vuelto),
                            c.cifrado, c.clave.t, c.vuelto, c.clave.q);
         }),
         uno([c] { return deVuelta(c); })});
}

} // namespace

QString nombreDeCaracter(QChar caracter)
{
    if (caracter == u' ')
        return Traduce(u"espacio"_s);
    return caracter.isPrint() ? QString(caracter) : Traduce(u"(de control)"_s);
}

Pasos pasosDeCifrado(const ClaveEnCifras &clave, const QString &texto)
{
    const auto bytes = aWindows1252(texto.left(std::max(clave.r, 0)));
    if (!bytes || bytes->isEmpty())
        return {};
    const bool completado = bytes->size() < clave.r;
    return Pasos::aplazados([clave, completado, codigos = bytes->leftJustified(clave.r, ' ')] {
        Camino c{clave, codigos, completado, {}, {}, {}};
        c.clave.s = Evalua(QString(clave.s), {}, Aritmetica::Entera);
        c.numero =
            EnteroLargo(PaquetesDeTexto(deWindows1252(codigos), clave.r).siguiente()).texto();
        c.cifrado = PotenciaMod(c.numero, c.clave.s, clave.q);
        c.vuelto = PotenciaMod(c.cifrado, clave.t, clave.q);
        return pasosDelCamino(c);
    });
}
