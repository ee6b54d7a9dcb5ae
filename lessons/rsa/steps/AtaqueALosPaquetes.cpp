// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/key/Cifrado.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "lessons/rsa/steps/AtaquesPosibles.h"
#include "lessons/rsa/steps/PasosDeCifrado.h"
#include "lessons/rsa/steps/RaicesEnteras.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int Caracteres = 256;
constexpr int MayorS = 1000;

/// The rows of the table that answer the intercepted blocks, and how they were computed.
Paso filasQueCoinciden(const Victima &v, const QList<int> &codigos)
{
    Paso paso{
        Traduce(u"Con un carácter por paquete solo hay 256 paquetes: se cifran todos con q y s "
                "y se buscan en la tabla los interceptados."_s),
        {},
        Traduce(u"Sin relleno al azar, el mismo carácter da siempre el mismo paquete."_s),
        {{Traduce(u"Carácter"_s), Traduce(u"Código"_s), Traduce(u"Paquete"_s)}, {}}};
    for (qsizetype i = 0; i < codigos.size(); ++i) {
        const QString codigo = QString::number(codigos[i]);
        paso.formulas << Formula(u"%1^%2 == %3 (mod %4)"_s.arg(codigo, v.s, v.bloques[i], v.q));
        paso.tabla.filas << QStringList{nombreDeCaracter(NumeroATexto(codigo).front()), codigo,
                                        v.bloques[i]};
    }
    return paso;
}

ResultadoDeAtaque leido(const QString &texto, QList<Paso> pasos)
{
    ResultadoDeAtaque resultado;
    resultado.desenlace = ResultadoDeAtaque::Encontrado;
    resultado.texto = texto;
    pasos << Paso{
        Traduce(u"Encontrado: los paquetes dicen «%1», y no ha hecho falta la clave privada."_s)
            .arg(texto)};
    resultado.pasos = Pasos(pasos);
    return resultado;
}

ResultadoDeAtaque leidoEnTabla(const Victima &v, const QList<int> &codigos)
{
    QStringList numeros;
    for (const int codigo : codigos)
        numeros << QString::number(codigo);
    return leido(textoDe(numeros), {filasQueCoinciden(v, codigos)});
}

ResultadoDeAtaque fueraDeLaTabla(const QString &bloque)
{
    return sinExito(ResultadoDeAtaque::NoHay, {},
                    Traduce(u"No hay carácter para el paquete %1: no está entre los 256 de la "
                            "tabla."_s)
                        .arg(bloque));
}

ResultadoDeAtaque tablaDemasiadoGrande(const Victima &v)
{
    constexpr int muchos = 100;
    QList<Formula> formulas;
    if (v.r <= muchos)
        formulas << Formula(
            u"%1^%2 = %3"_s.arg(Caracteres).arg(v.r).arg(potenciaEntera(Caracteres, v.r).texto()));
    return sinExito(
        ResultadoDeAtaque::Abandonado, {},
        Traduce(
            u"No se ha podido: con %1 caracteres por paquete la tabla tendría 256%2 filas, y el "
            "banco solo hace la de 256."_s)
            .arg(QString::number(v.r), enSuperindice(QString::number(v.r))),
        formulas);
}

/// The root of one block, or the whole numbers between which it lies.
struct RaizDeBloque
{
    EnteroLargo raiz;
    bool exacta;
    Formula formula;
};

RaizDeBloque raizDe(const QString &bloque, int s)
{
    const EnteroLargo c(bloque), raiz = raizEntera(c, s);
    const bool exacta = potenciaEntera(raiz, s) == c;
    const QString exponente = QString::number(s);
    const QString escrita =
        exacta ? u"%1^%2 = %3"_s.arg(raiz.texto(), exponente, bloque)
               : u"%1^%2 < %3 < %4^%2"_s.arg(raiz.texto(), exponente, bloque, (raiz + 1).texto());
    return {raiz, exacta, Formula(escrita)};
}

ResultadoDeAtaque conExponenteNegativo(const Victima &v)
{
    return sinExito(ResultadoDeAtaque::NoHay, {},
                    Traduce(u"No hay raíz que valga: s es negativo, y el paquete es una potencia "
                            "del inverso de m módulo q."_s),
                    {Formula(u"%1 < 0"_s.arg(v.s))});
}

/// With s beyond the bits of q, no block but 0 and 1 has a power below q.
ResultadoDeAtaque sinPotenciasMenores(const Victima &v, int bits)
{
    return sinExito(ResultadoDeAtaque::NoHay, {},
                    Traduce(u"No hay raíz que valga: s no es menor que los %1 bits de q, y ya 2ˢ "
                            "pasa de q. Todos los paquetes se redujeron módulo q."_s)
                        .arg(bits),
                    {Formula(u"%1 < 2^%2"_s.arg(v.q).arg(bits)),
                     Formula(u"%1 <= %2"_s.arg(QString::number(bits), v.s))});
}

} // namespace

Tarea<ResultadoDeAtaque> porTabla(Victima v, Billete billete)
{
    if (v.r != 1)
        co_return tablaDemasiadoGrande(v);
    Potencias potencias(v.s, v.q);
    QHash<QString, int> tabla;
    for (int codigo = 0; codigo < Caracteres; ++codigo) {
        const QString paquete = potencias.de(QString::number(codigo));
        if (esError(paquete))
            throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
        tabla.insert(paquete, codigo);
        co_await billete.ceder();
        if (billete.detenida())
            co_return detenido();
    }
    QList<int> codigos;
    for (const QString &bloque : std::as_const(v.bloques)) {
        if (!tabla.contains(bloque))
            co_return fueraDeLaTabla(bloque);
        codigos << tabla[bloque];
    }
    co_return leidoEnTabla(v, codigos);
}

ResultadoDeAtaque porRaiz(const Victima &v)
{
    const EnteroLargo s(v.s);
    const int bits = NumeroDeBits(v.q);
    if (s < 0)
        return conExponenteNegativo(v);
    if (s >= bits)
        return sinPotenciasMenores(v, bits);
    if (s > MayorS)
        return sinExito(
            ResultadoDeAtaque::Abandonado, {},
            Traduce(u"No se ha podido: el banco extrae raíces hasta s = %1."_s).arg(MayorS));
    Paso raices{Traduce(u"Si mˢ no llega a q, el paquete es mˢ sin reducir, y m es su raíz "
                        "s-ésima entera."_s)};
    QStringList numeros;
    for (const QString &bloque : v.bloques) {
        const RaizDeBloque raiz = raizDe(bloque, s.texto().toInt());
        raices.formulas << raiz.formula;
        if (!raiz.exacta)
            return sinExito(
                ResultadoDeAtaque::NoHay, {raices},
                Traduce(u"No hay raíz entera: al cifrar, mˢ pasó de q y se redujo. Este "
                        "ataque no puede leer el paquete %1."_s)
                    .arg(bloque));
        numeros << raiz.raiz.texto();
    }
    return leido(textoDe(numeros), {raices});
}
