// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/Granizo.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How many consecutive values are remembered besides the ones kept: more than a view shows.
constexpr int LongitudDeTramo = 128;

/// What a value kept takes besides its digits, about.
constexpr qint64 CosteDeHito = 64;

} // namespace

QString siguienteGranizo(const QString &h)
{
    const QString resto = Modulo(h, u"2"_s);
    if (esError(resto))
        return resto;
    QString expresion = resto == u"0"_s ? h + u"/2"_s : u"3*"_s + h + u"+1"_s;
    return Evalua(expresion);
}

qsizetype cifrasDe(const QString &valor)
{
    return std::count_if(valor.begin(), valor.end(), [](QChar c) { return c.isDigit(); });
}

void HistoriaGranizo::Tramo::agrega(const QString &valor)
{
    if (valores.size() == LongitudDeTramo) {
        valores.removeFirst();
        ++inicio;
    }
    valores << valor;
}

void HistoriaGranizo::reinicia(const QString &inicio)
{
    *this = HistoriaGranizo();
    agrega(inicio);
}

void HistoriaGranizo::agrega(const QString &valor)
{
    ++m_ultimo;
    m_recientes.agrega(valor);
    m_curva.agrega(valor);
    if ((m_ultimo - m_primerHito) % m_distancia == 0)
        guardaHito(valor);
    olvidaLoAntiguo();
}

qint64 HistoriaGranizo::primero() const
{
    return std::max(qint64{0}, m_ultimo - MaximoDePasos + 1);
}

QString HistoriaGranizo::valor(qint64 paso) const
{
    if (paso >= m_recientes.inicio)
        return m_recientes.valores.at(paso - m_recientes.inicio);
    const qint64 hito = (paso - m_primerHito) / m_distancia;
    const qint64 pasoDelHito = m_primerHito + hito * m_distancia;
    const bool aMano = paso >= m_vistos.inicio && pasoDelHito < m_vistos.fin();
    if (!aMano) {
        m_vistos = {pasoDelHito, {QString::fromLatin1(m_hitos.at(static_cast<std::size_t>(hito)))}};
    }
    while (m_vistos.fin() <= paso)
        m_vistos.agrega(siguienteGranizo(m_vistos.valores.constLast()));
    return m_vistos.valores.at(paso - m_vistos.inicio);
}

void HistoriaGranizo::guardaHito(const QString &valor)
{
    m_hitos.push_back(valor.toLatin1());
    m_bytes += m_hitos.back().size() + CosteDeHito;
    while (m_hitos.size() > 2 && (m_bytes > MaximoDeBytes || m_hitos.size() > MaximoDeHitos))
        aligera();
}

/// Keeps every second of the values kept.
void HistoriaGranizo::aligera()
{
    std::deque<QByteArray> conservados;
    m_bytes = 0;
    for (std::size_t i = 0; i < m_hitos.size(); i += 2) {
        m_bytes += m_hitos[i].size() + CosteDeHito;
        conservados.push_back(std::move(m_hitos[i]));
    }
    m_hitos = std::move(conservados);
    m_distancia *= 2;
}

void HistoriaGranizo::olvidaLoAntiguo()
{
    while (m_hitos.size() > 1 && m_primerHito + m_distancia <= primero()) {
        m_bytes -= m_hitos.front().size() + CosteDeHito;
        m_hitos.pop_front();
        m_primerHito += m_distancia;
    }
}

Tarea<FinDeGranizo> correGranizo(QString inicio, std::shared_ptr<HistoriaGranizo> historia,
                                 Billete billete)
{
    historia->reinicia(inicio);
    QString valor = inicio;
    do {
        const QString anterior = valor;
        valor = siguienteGranizo(anterior);
        historia->agrega(valor);
        co_await billete.ceder();
        if (billete.detenida())
            co_return FinDeGranizo::Detenido;
        if (esError(valor))
            co_return esError(Modulo(anterior, u"2"_s)) ? FinDeGranizo::SinEntero
                                                        : FinDeGranizo::DemasiadasCifras;
    } while (valor != u"1"_s);
    co_return FinDeGranizo::EnUno;
}
