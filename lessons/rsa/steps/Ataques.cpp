// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/steps/Ataques.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/key/Cifrado.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "lessons/rsa/steps/AtaquesPosibles.h"
#include "lessons/rsa/steps/PasosDeClave.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/EnteroLargo.h"

using namespace Qt::Literals::StringLiterals;

namespace {

Paso loSabido(const Victima &v)
{
    Paso paso{Traduce(u"Se conoce la clave pública, q = %1 (%2 bits) y s = %3, y se han "
                      "interceptado estos paquetes."_s)
                  .arg(v.q)
                  .arg(NumeroDeBits(v.q))
                  .arg(v.s),
              {},
              Traduce(u"El texto lo cifró otra persona con esos números. El ataque no usa nada "
                      "más."_s),
              {{Traduce(u"Texto codificado"_s)}, {}}};
    for (const QString &bloque : v.bloques)
        paso.tabla.filas << QStringList{bloque};
    return paso;
}

Pasos trasLoSabido(const Victima &v, const Pasos &pasos)
{
    return Pasos::seguidos({Pasos(QList<Paso>{loSabido(v)}), pasos});
}

ResultadoDeAtaque demasiadoLargos()
{
    return sinExito(
        ResultadoDeAtaque::Abandonado, {},
        Traduce(u"No se ha podido: los números son demasiado largos para las operaciones "
                "de este ataque."_s));
}

Tarea<ResultadoDeAtaque> elegido(Ataque ataque, Victima victima, Billete billete)
{
    if (billete.detenida()) // while the word was encrypted: not all its blocks are there
        co_return detenido();
    switch (ataque) {
    case Ataque::TablaDeBloques:
        co_return co_await porTabla(victima, billete);
    case Ataque::Factorizacion:
        co_return co_await porFactorizacion(victima, billete);
    case Ataque::Fermat:
        co_return co_await porFermat(victima, billete);
    case Ataque::RaizDeS:
        co_return porRaiz(victima);
    case Ataque::FiConocida:
        break;
    }
    co_return porFi(victima);
}

/// The blocks decrypted with t, a congruence each, behind the steps that found it. Yields once a
/// block; what was stopped says so.
Tarea<ResultadoDeAtaque> conLectura(ResultadoDeAtaque hallado, Victima v, Billete billete)
{
    Potencias potencias(hallado.t, v.q);
    QStringList numeros;
    Paso paso;
    for (const QString &bloque : std::as_const(v.bloques)) {
        co_await billete.ceder();
        if (billete.detenida())
            co_return detenido();
        numeros << potencias.de(bloque);
        paso.formulas << Formula(
            u"%1^%2 == %3 (mod %4)"_s.arg(bloque, hallado.t, numeros.last(), v.q));
    }
    hallado.texto = textoDe(numeros);
    paso.frase = Traduce(u"Encontrado: con t se descodifican los paquetes. Dicen «%1»."_s)
                     .arg(hallado.texto);
    paso.regla = Traduce(u"Quien conoce los primos puede hacer todo lo que hace el dueño de la "
                         "clave."_s);
    hallado.pasos = Pasos::seguidos({hallado.pasos, Pasos(QList<Paso>{paso})});
    co_return hallado;
}

} // namespace

QString textoDe(const QStringList &numeros)
{
    QString texto;
    for (const QString &numero : numeros)
        texto += NumeroATexto(numero);
    return texto;
}

ResultadoDeAtaque sinExito(ResultadoDeAtaque::Desenlace desenlace, const QList<Paso> &pasos,
                           const QString &frase, const QList<Formula> &formulas)
{
    ResultadoDeAtaque resultado;
    resultado.desenlace = desenlace;
    resultado.pasos = Pasos(pasos + QList<Paso>{{frase, formulas}});
    return resultado;
}

ResultadoDeAtaque detenido()
{
    return sinExito(ResultadoDeAtaque::Detenido, {},
                    Traduce(u"Ataque detenido antes de acabar."_s));
}

ResultadoDeAtaque conFactores(const Victima &v, const QString &p1, const QString &p2,
                              const QList<Paso> &hallazgo)
{
    const EnteroLargo a(p1), b(p2);
    const QString fi = (p1 == p2 ? a * (b - 1) : (a - 1) * (b - 1)).texto();
    ResultadoDeAtaque resultado;
    resultado.desenlace = ResultadoDeAtaque::Encontrado;
    resultado.factores = QStringList{p1, p2};
    const Paso delFi{
        Traduce(u"Con los primos se calcula φ(q)."_s),
        {Formula((p1 == p2 ? u"%1*(%2-1) = %3"_s : u"(%1-1)*(%2-1) = %3"_s).arg(p1, p2, fi))},
        p1 == p2 ? Traduce(u"φ(p²) = p·(p − 1)."_s) : QString()};
    const QString t = InversoMod(v.s, fi);
    if (t.isEmpty()) {
        const Paso sinT{
            Traduce(u"Encontrados los primos; pero s no tiene inverso módulo φ(q), y el "
                    "texto no se puede leer ni con ellos."_s)};
        resultado.pasos = Pasos(hallazgo + QList<Paso>{delFi, sinT});
        return resultado;
    }
    resultado.t = t;
    resultado.pasos =
        Pasos::seguidos({Pasos(hallazgo + QList<Paso>{delFi}), pasosDelExponente(v.s, fi, t)});
    return resultado;
}

Tarea<Victima> intercepta(ClaveEnCifras clave, Billete billete)
{
    Victima victima;
    victima.q = clave.q;
    victima.s = Evalua(QString(clave.s), {}, Aritmetica::Entera);
    victima.r = clave.r;
    victima.fi = clave.fi;
    const Potencias potencias(victima.s, victima.q);
    victima.bloques = co_await codifica(u"Hola"_s, clave.r, potencias, billete);
    co_return victima;
}

Tarea<ResultadoDeAtaque> ataca(Ataque ataque, Victima victima, Billete billete)
{
    ResultadoDeAtaque resultado;
    try {
        resultado = co_await elegido(ataque, victima, billete);
        if (!resultado.t.isEmpty())
            resultado = co_await conLectura(resultado, victima, billete);
    } catch (const ErrorEjecucion &) {
        resultado = demasiadoLargos();
    }
    resultado.pasos = trasLoSabido(victima, resultado.pasos);
    co_return resultado;
}
