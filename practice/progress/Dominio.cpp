// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/progress/Dominio.h"

#include <QSet>
#include <algorithm>
#include <array>

namespace {

constexpr int Ventana = 5;
constexpr int Necesarias = 4;
constexpr std::array<int, 4> Intervalos{1, 3, 7, 21};

/// The last exercises of a level.
class Ultimos
{
public:
    void agrega(const Hecho &hecho)
    {
        m_hechos << hecho;
        if (m_hechos.size() > Ventana)
            m_hechos.removeFirst();
    }
    int sinAyuda() const
    {
        return static_cast<int>(std::count_if(m_hechos.begin(), m_hechos.end(),
                                              [](const Hecho &h) { return h.sinAyuda(); }));
    }
    bool dominan() const { return sinAyuda() >= Necesarias && dias() >= 2; }

private:
    qsizetype dias() const
    {
        QSet<qint64> dias;
        for (const Hecho &hecho : m_hechos) {
            if (hecho.sinAyuda())
                dias << hecho.dia;
        }
        return dias.size();
    }

    QList<Hecho> m_hechos;
};

/// The reviews of the level that was mastered last.
class Repasos
{
public:
    void empieza(qint64 dia)
    {
        m_etapa = 0;
        m_desde = dia;
    }
    /// A review that needed help begins the intervals again; one before its day changes nothing,
    /// unless the clock has been set back since the last: then it was due at once.
    void hecho(const Hecho &hecho)
    {
        if (m_etapa >= Intervalos.size() ||
            (hecho.dia >= m_desde && hecho.dia < m_desde + Intervalos.at(m_etapa)))
            return;
        m_etapa = hecho.sinAyuda() ? m_etapa + 1 : 0;
        m_desde = hecho.dia;
    }
    std::optional<qint64> dia(qint64 hoy) const
    {
        if (m_etapa >= Intervalos.size())
            return {};
        if (m_desde > hoy) // the clock has been set back since
            return hoy;
        return m_desde + Intervalos[m_etapa];
    }

private:
    std::size_t m_etapa = 0;
    qint64 m_desde = 0;
};

} // namespace

Dominio dominioDe(const QList<Hecho> &hechos, qint64 hoy)
{
    std::array<Ultimos, Niveles + 1> ultimos;
    Repasos repasos;
    Dominio dominio;
    for (const Hecho &hecho : hechos) {
        if (hecho.estado == EstadoDeEjercicio::NoContestado) // passed over: nothing to judge by
            continue;
        const int nivel = std::clamp(hecho.nivel, 1, Niveles);
        if (nivel == dominio.dominado)
            repasos.hecho(hecho);
        Ultimos &suyos = ultimos.at(static_cast<std::size_t>(nivel));
        suyos.agrega(hecho);
        if (nivel > dominio.dominado && suyos.dominan()) {
            dominio.dominado = nivel;
            repasos.empieza(hecho.dia);
        }
        dominio.ultimoDia = std::min(hecho.dia, hoy);
        ++dominio.hechos;
    }
    dominio.propuesto = std::min(dominio.dominado + 1, Niveles);
    dominio.deLasUltimas = ultimos.at(static_cast<std::size_t>(dominio.propuesto)).sinAyuda();
    if (dominio.dominado > 0)
        dominio.repaso = repasos.dia(hoy);
    return dominio;
}

QHash<QString, Dominio> dominios(const QList<Hecho> &hechos, qint64 hoy)
{
    QHash<QString, QList<Hecho>> porTipo;
    for (const Hecho &hecho : hechos)
        porTipo[hecho.clave] << hecho;
    QHash<QString, Dominio> todos;
    for (auto tipo = porTipo.cbegin(); tipo != porTipo.cend(); ++tipo)
        todos.insert(tipo.key(), dominioDe(tipo.value(), hoy));
    return todos;
}

namespace {

/// The first of those that come in question, by what is to be least.
template <typename Sirve, typename Menor>
QString primera(const QStringList &claves, Sirve sirve, Menor menor)
{
    QString elegida;
    for (const QString &clave : claves) {
        if (sirve(clave) && (elegida.isEmpty() || menor(clave, elegida)))
            elegida = clave;
    }
    return elegida;
}

} // namespace

Propuesta loQueToca(const QStringList &claves, const QHash<QString, Dominio> &dominios, qint64 hoy)
{
    const auto de = [&](const QString &clave) { return dominios.value(clave); };
    const QString repaso = primera(
        claves, [&](const QString &c) { return de(c).tocaRepaso(hoy); },
        [&](const QString &a, const QString &b) { return *de(a).repaso < *de(b).repaso; });
    if (!repaso.isEmpty())
        return {repaso, de(repaso).dominado, Propuesta::Repaso};
    const QString empezada = primera(
        claves, [&](const QString &c) { return de(c).hechos > 0 && de(c).dominado < Niveles; },
        [&](const QString &a, const QString &b) { return de(a).ultimoDia > de(b).ultimoDia; });
    // What was mastered up to some level waits until the rest of the course has been tried.
    const QString nueva = primera(
        claves, [&](const QString &c) { return de(c).hechos == 0; },
        [](const QString &, const QString &) { return false; });
    if (!empezada.isEmpty() && (nueva.isEmpty() || de(empezada).dominado == 0))
        return {empezada, de(empezada).propuesto, Propuesta::Siguiente};
    if (!nueva.isEmpty())
        return {nueva, 1, Propuesta::Nuevo};
    const QString olvidada = primera(
        claves, [](const QString &) { return true; },
        [&](const QString &a, const QString &b) { return de(a).ultimoDia < de(b).ultimoDia; });
    return {olvidada, Niveles, Propuesta::Todo};
}
