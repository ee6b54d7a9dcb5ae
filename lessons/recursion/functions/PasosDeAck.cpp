// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/PasosDeAck.h"

#include "lessons/recursion/functions/PilaDeAck.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal AnchoDeCaja = 11;
constexpr int MasCajas = 12;

QString formulaDe(Ack::Llamada llamada)
{
    return u"Ack(%1; %2)"_s.arg(llamada.m).arg(llamada.n);
}

/// What a call waits for, as it stands in its box.
QString textoDePendiente(const PilaDeAck::Pendiente &pendiente)
{
    const auto [m, n] = pendiente.llamada;
    QString espera = textoDeLlamada({m - 1, 1});
    if (n > 0)
        espera = pendiente.interior > 0
                     ? textoDeLlamada({m - 1, pendiente.interior})
                     : u"Ack(%1, %2)"_s.arg(m - 1).arg(textoDeLlamada({m, n - 1}));
    return textoDeLlamada(pendiente.llamada) + u" = "_s + espera;
}

/// The stack, the last call on top; of a high one only the upper boxes.
Lamina lamina(const std::vector<PilaDeAck::Pendiente> &pila, const PilaDeAck::Suceso &suceso)
{
    Lamina lamina(Traduce(u"Llamadas que esperan: %1"_s).arg(static_cast<qsizetype>(pila.size())));
    const auto caja = [&](int y, Tono tono, const QString &texto) {
        lamina.rectangulo(QRectF(0, -y, AnchoDeCaja, 0.9), tono, true, texto);
    };
    const auto alto = static_cast<int>(pila.size());
    const int desde = std::max(0, alto - MasCajas);
    if (desde > 0)
        lamina.texto(QRectF(0, 1, AnchoDeCaja, 0.7), u"⋮"_s, {Tono::Suave});
    const bool aparte = suceso.valor > 0 && suceso.clase != PilaDeAck::Sigue;
    for (int i = desde; i < alto; ++i)
        caja(i - desde,
             i + 1 == alto && !aparte ? Tono{Tono::Acento}
                                      : Tono::serie(pila[static_cast<std::size_t>(i)].llamada.m),
             textoDePendiente(pila[static_cast<std::size_t>(i)]));
    if (aparte)
        caja(alto - desde, {Tono::Acierto}, textoDeValor(suceso.llamada, suceso.valor));
    // The boxes keep their size while the stack is low.
    lamina.texto(QRectF(0, -5.1, AnchoDeCaja, 0.7), {});
    lamina.linea({0, 1}, {AnchoDeCaja, 1}, {Tono::Suave});
    return lamina;
}

Paso pasoDeEspera(Ack::Llamada llamada)
{
    const auto [m, n] = llamada;
    const QString frase = Traduce(u"Se llama a %1, que espera a %2."_s);
    if (n == 0)
        return {frase.arg(textoDeLlamada(llamada), textoDeLlamada({m - 1, 1})),
                {formulaDe(llamada) + u" = "_s + formulaDe({m - 1, 1})},
                u"Ack(m, 0) = Ack(m − 1, 1)"_s};
    return {frase.arg(textoDeLlamada(llamada), textoDeLlamada({m, n - 1})),
            {u"%1 = Ack(%2; %3)"_s.arg(formulaDe(llamada)).arg(m - 1).arg(formulaDe({m, n - 1}))},
            u"Ack(m, n) = Ack(m − 1, Ack(m, n − 1))"_s};
}

Paso pasoDe(const PilaDeAck::Suceso &suceso)
{
    const QString llamada = textoDeLlamada(suceso.llamada);
    const Formula igualdad(u"%1 = %2"_s.arg(formulaDe(suceso.llamada)).arg(suceso.valor));
    const auto [m, n] = suceso.llamada;
    switch (suceso.clase) {
    case PilaDeAck::Espera:
        return pasoDeEspera(suceso.llamada);
    case PilaDeAck::Base:
        return {Traduce(u"%1 es un caso base: vale %2."_s).arg(llamada).arg(suceso.valor),
                {u"Ack(0; %1) = %1 + 1 = %2"_s.arg(n).arg(suceso.valor)},
                u"Ack(0, n) = n + 1"_s};
    case PilaDeAck::Recordada:
        return {Traduce(u"%1 está en la memoria: vale %2."_s).arg(llamada).arg(suceso.valor),
                {igualdad}};
    case PilaDeAck::Sigue:
        return {Traduce(u"%1 ya tiene lo que esperaba, %2, y sigue con %3."_s)
                    .arg(llamada)
                    .arg(suceso.valor)
                    .arg(textoDeLlamada({m - 1, suceso.valor})),
                {u"%1 = %2, %3 = %4"_s.arg(formulaDe({m, n - 1}))
                     .arg(suceso.valor)
                     .arg(formulaDe(suceso.llamada), formulaDe({m - 1, suceso.valor}))}};
    case PilaDeAck::Devuelve:
        return {Traduce(u"%1 tiene su valor, %2: se anota en la memoria y sale de la pila."_s)
                    .arg(llamada)
                    .arg(suceso.valor),
                {igualdad}};
    case PilaDeAck::Abandonada:
        return {Traduce(u"%1 pasa del máximo: aquí se abandona el cálculo."_s).arg(llamada)};
    case PilaDeAck::Cortada:
        break;
    }
    return {Traduce(u"El cálculo sigue, pero aquí solo se ven los primeros %1 pasos."_s)
                .arg(PilaDeAck::MaximoDeSucesos)};
}

} // namespace

Pasos pasosDeAck(Ack::Llamada llamada, std::int32_t corte)
{
    const auto carrera = std::make_shared<const PilaDeAck>(llamada, corte);
    return Pasos(static_cast<qsizetype>(carrera->sucesos().size()),
                 [carrera](qsizetype i) {
                     const auto cual = static_cast<std::size_t>(i);
                     const PilaDeAck::Suceso &suceso = carrera->sucesos()[cual];
                     Paso paso = pasoDe(suceso);
                     paso.lamina = lamina(carrera->pila(cual), suceso);
                     return paso;
                 })
        .comoPelicula();
}
