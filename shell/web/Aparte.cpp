// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/run/Aparte.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/run/Espera.h"

#include <QHash>
#include <QStringList>
#include <QTimer>
#include <emscripten.h>
#include <emscripten/bind.h>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Of so many digits a call is done before a worker would have begun.
constexpr qsizetype CifrasDePrimoEnSeguida = 40;
constexpr qsizetype CifrasDeFactoresEnSeguida = 16;

// The worker (apart.js) is sent the name of an operation and its datum. It answers by lines of
// fields that tabulators part: "factor" and the fields of a factor as often as one is found, at the
// end "end" and the result.

// Without arrows, which clang-format would break.
EM_JS(void, empiezaTrabajador, (int numero, const char *orden, const char *dato), {
    const trabajador = new Worker('apart.js');
    Module.apartes = Module.apartes || {};
    Module.apartes[numero] = trabajador;
    trabajador.onmessage = function(mensaje)
    {
        Module.diceElTrabajador(numero, mensaje.data);
    };
    trabajador.onerror = function()
    {
        Module.diceElTrabajador(numero, 'failed');
    };
    trabajador.postMessage([ UTF8ToString(orden), UTF8ToString(dato) ]);
});

EM_JS(void, acabaTrabajador, (int numero), {
    Module.apartes[numero].terminate();
    delete Module.apartes[numero];
});

class Llamada;

QHash<int, Llamada *> &llamadas()
{
    static QHash<int, Llamada *> vivas;
    return vivas;
}

/// A worker, which ends with this object.
class Llamada
{
public:
    Llamada(const QString &orden, const QString &dato, const Billete &billete)
        : m_numero(++s_ultimo)
    {
        llamadas()[m_numero] = this;
        empiezaTrabajador(m_numero, orden.toUtf8().constData(), dato.toUtf8().constData());
        // Nobody tells when a run has been stopped.
        QObject::connect(&m_ronda, &QTimer::timeout, m_acabada.contexto(), [this, billete] {
            if (billete.detenida())
                m_acabada.cumple();
        });
        m_ronda.start(50ms);
    }
    ~Llamada()
    {
        acabaTrabajador(m_numero);
        llamadas().remove(m_numero);
    }
    Llamada(const Llamada &) = delete;
    Llamada &operator=(const Llamada &) = delete;

    void oye(const QString &linea)
    {
        const QStringList campos = linea.split(u'\t');
        m_lineas << campos;
        if (campos.first() != u"factor"_s)
            m_acabada.cumple();
    }

    Espera &acabada() { return m_acabada; }
    const QList<QStringList> &lineas() const { return m_lineas; }

    /// What was answered at the end; nothing from a run that was stopped. Throws where the worker
    /// could not do it: out of memory, or without a network before it was ever loaded.
    QString resultado() const
    {
        if (m_lineas.isEmpty() || m_lineas.last().first() == u"factor"_s)
            return {};
        if (m_lineas.last().first() != u"end"_s)
            throw ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente);
        return m_lineas.last().value(1);
    }

private:
    static inline int s_ultimo = 0;
    int m_numero;
    QList<QStringList> m_lineas;
    Espera m_acabada;
    QTimer m_ronda;
};

void diceElTrabajador(int numero, const std::string &linea)
{
    if (Llamada *llamada = llamadas().value(numero))
        llamada->oye(QString::fromStdString(linea));
}

FactorHallado factorDe(const QStringList &c)
{
    return {.base = c.value(1),
            .exponente = c.value(2).toLongLong(),
            .primo = c.value(3) == u"1",
            .metodo = static_cast<MetodoDeFactor>(c.value(4).toInt()),
            .cotaDeCurva = c.value(5).toDouble(),
            .curvas = c.value(6).toLongLong(),
            .relaciones = c.value(7).toLongLong(),
            .parciales = c.value(8).toLongLong(),
            .polinomios = c.value(9).toLongLong(),
            .primosDeBase = c.value(10).toLongLong(),
            .columnas = c.value(11).toLongLong(),
            .segundosDelMetodo = c.value(12).toDouble(),
            .segundos = c.value(13).toDouble()};
}

Tarea<QString> pide(QString orden, QString dato, Billete billete)
{
    Llamada llamada(orden, dato, billete);
    co_await llamada.acabada();
    co_return llamada.resultado();
}

} // namespace

EMSCRIPTEN_BINDINGS(numora_apart)
{
    emscripten::function("diceElTrabajador", &diceElTrabajador);
}

bool Aparte::responde()
{
    return true;
}

Tarea<FinDeFactores> Aparte::buscaFactores(QString n, RecibeFactor recibe, Billete billete)
{
    if (n.size() <= CifrasDeFactoresEnSeguida)
        co_return BuscaFactores(n, recibe);
    Llamada llamada(u"factors"_s, n, billete);
    co_await llamada.acabada();
    const QString fin = llamada.resultado();
    for (const QStringList &linea : llamada.lineas()) {
        if (linea.first() == u"factor" && !recibe(factorDe(linea)))
            co_return FinDeFactores::Detenido;
    }
    co_return fin.isEmpty() ? FinDeFactores::Detenido : FinDeFactores(fin.toInt());
}

Tarea<Descomposicion> Aparte::descompone(QString n, Billete billete)
{
    if (n.size() <= CifrasDeFactoresEnSeguida)
        co_return Descompone(n);
    Llamada llamada(u"split"_s, n, billete);
    co_await llamada.acabada();
    Descomposicion resultado;
    resultado.completa = llamada.resultado() == u"1";
    for (const QStringList &linea : llamada.lineas()) {
        if (linea.first() == u"factor")
            resultado.partes << Descomposicion::Parte{linea.value(1), linea.value(2),
                                                      linea.value(3)};
    }
    co_return resultado;
}

Tarea<QString> Aparte::fiEuler(QString n, Billete billete)
{
    if (n.size() <= CifrasDeFactoresEnSeguida)
        co_return FiEuler(n);
    co_return co_await pide(u"totient"_s, n, billete);
}

Tarea<bool> Aparte::esPrimo(QString n, Billete billete)
{
    if (n.size() <= CifrasDePrimoEnSeguida)
        co_return EsPrimo(n);
    const QString fin = co_await pide(u"isprime"_s, n, billete);
    co_return fin == u"1";
}

Tarea<QString> Aparte::primoSiguiente(QString n, Billete billete)
{
    if (n.size() <= CifrasDePrimoEnSeguida)
        co_return PrimoSiguiente(n);
    co_return co_await pide(u"nextprime"_s, n, billete);
}

Tarea<QString> Aparte::primoAleatorio(std::int16_t bits, Billete billete)
{
    co_return co_await pide(u"randomprime"_s, QString::number(bits), billete);
}
