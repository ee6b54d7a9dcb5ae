// SPDX-License-Identifier: GPL-3.0-or-later

// What runs in the worker of a browser (packaging/web/page/apart.js): the operations of the
// program's own gateway that may last, told to the page by lines (shell/web/Aparte.cpp).

#include "bignum/gateway/Descomposicion.h"
#include "bignum/gateway/FactoresHallados.h"
#include "bignum/gateway/ModBignum.h"

#include <QStringList>
#include <emscripten.h>

using namespace Qt::Literals::StringLiterals;

namespace {

void di(const QStringList &campos)
{
    EM_ASM({ postMessage(UTF8ToString($0)); }, campos.join(u'\t').toUtf8().constData());
}

bool entrega(const FactorHallado &f)
{
    QStringList campos{u"factor"_s,
                       f.base,
                       QString::number(f.exponente),
                       f.primo ? u"1"_s : u"0"_s,
                       QString::number(static_cast<int>(f.metodo)),
                       QString::number(f.cotaDeCurva, 'g', 17)};
    for (const std::int64_t cuenta :
         {f.curvas, f.relaciones, f.parciales, f.polinomios, f.primosDeBase, f.columnas})
        campos << QString::number(cuenta);
    for (const double segundos : {f.segundosDelMetodo, f.segundos})
        campos << QString::number(segundos, 'g', 17);
    di(campos);
    return true;
}

QString descompuesto(const QString &n)
{
    const Descomposicion factores = Descompone(n);
    for (const Descomposicion::Parte &parte : factores.partes)
        di({u"factor"_s, parte.base, parte.exponente, parte.fi});
    return factores.completa ? u"1"_s : u"0"_s;
}

QString resultado(const QString &orden, const QString &dato)
{
    if (orden == u"factors")
        return QString::number(static_cast<int>(BuscaFactores(dato, entrega)));
    if (orden == u"split")
        return descompuesto(dato);
    if (orden == u"totient")
        return FiEuler(dato);
    if (orden == u"isprime")
        return EsPrimo(dato) ? u"1"_s : u"0"_s;
    if (orden == u"nextprime")
        return PrimoSiguiente(dato);
    return PrimoAleatorio(dato.toShort());
}

} // namespace

extern "C" EMSCRIPTEN_KEEPALIVE void numoraCall(const char *orden, const char *dato)
{
    di({u"end"_s, resultado(QString::fromUtf8(orden), QString::fromUtf8(dato))});
}
