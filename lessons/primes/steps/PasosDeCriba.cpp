// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/PasosDeCriba.h"

#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <array>

using namespace Qt::Literals::StringLiterals;

TableroDeCriba::TableroDeCriba(int n) : m_n(n)
{
    std::array<bool, MayorTablero + 1> tachado{};
    for (int p = 2; p * p <= n; ++p) {
        if (tachado[static_cast<std::size_t>(p)])
            continue;
        m_tachadores.push_back(p);
        m_tachaduras.push_back({p, 0, false});
        for (int m = p * p; m <= n; m += p) {
            bool &casilla = tachado[static_cast<std::size_t>(m)];
            m_tachaduras.push_back({p, m, !casilla});
            casilla = true;
        }
    }
}

int TableroDeCriba::compuestos() const
{
    return static_cast<int>(std::ranges::count(m_tachaduras, true, &Tachadura::nueva));
}

std::vector<int> TableroDeCriba::tachados(std::size_t paso) const
{
    std::vector<int> primero(static_cast<std::size_t>(m_n) + 1, -1);
    int orden = -1;
    for (std::size_t i = 0; i <= std::min(paso, m_tachaduras.size() - 1) && !m_tachaduras.empty();
         ++i) {
        const Tachadura &t = m_tachaduras[i];
        orden += t.numero == 0 ? 1 : 0;
        if (t.nueva)
            primero[static_cast<std::size_t>(t.numero)] = orden;
    }
    return primero;
}

Lamina TableroDeCriba::lamina(std::size_t paso) const
{
    constexpr qreal Ancho = 30, Alto = 22, Hueco = 2;
    const int columnas = m_n <= 100 ? 10 : 20;
    const bool acabada = paso >= m_tachaduras.size();
    const int actual = acabada ? 0 : std::max(m_tachaduras[paso].numero, 0);
    const int tachador = acabada ? 0 : m_tachaduras[paso].primo;
    const std::vector<int> primero = tachados(paso);
    const auto tachado = std::ranges::count_if(primero, [](int orden) { return orden >= 0; });
    Lamina lamina(
        Traduce(u"Tablero de los números de 1 a %1: van tachados %2."_s).arg(m_n).arg(tachado));
    for (int k = 1; k <= m_n; ++k) {
        const QRectF casilla((k - 1) % columnas * (Ancho + Hueco),
                             (k - 1) / columnas * (Alto + Hueco), Ancho, Alto);
        const int orden = primero[static_cast<std::size_t>(k)];
        const Tono tono = orden >= 0         ? Tono::serie(orden)
                          : acabada && k > 1 ? Tono{Tono::Acierto}
                          : k == tachador    ? Tono{Tono::Acento}
                                             : Tono{Tono::Suave};
        const bool rellena = orden >= 0 || k == tachador;
        lamina.rectangulo(casilla, tono, rellena, rellena ? QString::number(k) : QString());
        if (!rellena)
            lamina.texto(casilla, QString::number(k),
                         {acabada && k > 1 ? Tono::Acierto : Tono::Tinta});
        if (k == actual)
            lamina.rectangulo(casilla.adjusted(-Hueco, -Hueco, Hueco, Hueco), {Tono::Acento});
    }
    return lamina;
}

namespace {

using Tachadura = TableroDeCriba::Tachadura;

Paso pasoDelPrimo(const TableroDeCriba &tablero, int p)
{
    return {
        Traduce(u"%1 no está tachado: es primo. Se tachan sus múltiplos desde %2, que son %3."_s)
            .arg(p)
            .arg(p * p)
            .arg(tablero.golpes(p)),
        {Formula(u"%1^2 = %2"_s.arg(p).arg(p * p)),
         Formula(u"floor(%1/%2) - %2 + 1 = %3"_s.arg(tablero.n()).arg(p).arg(tablero.golpes(p)))},
        Traduce(
            u"Los múltiplos menores que p² tienen un factor menor que p, que ya los ha tachado."_s)};
}

Paso pasoDelMultiplo(const Tachadura &t)
{
    const QString frase = t.nueva ? Traduce(u"El %1 tacha el %2."_s)
                                  : Traduce(u"El %1 tacha el %2, que ya lo estaba."_s);
    return {frase.arg(t.primo).arg(t.numero),
            {Formula(u"%1 = %2*%3"_s.arg(t.numero).arg(t.primo).arg(t.numero / t.primo))}};
}

/// The least prime whose square is beyond the board.
int primeroSinTachar(const TableroDeCriba &tablero)
{
    const std::vector<int> &tachadores = tablero.tachadores();
    int p = tachadores.empty() ? 2 : tachadores.back() + 1;
    while (std::ranges::any_of(tachadores, [p](int q) { return p % q == 0; }))
        ++p;
    return p;
}

QString sumaDe(const QStringList &sumandos)
{
    return sumandos.isEmpty() ? u"0"_s : sumandos.join(u" + "_s);
}

Paso pasoFinal(const TableroDeCriba &tablero)
{
    const int n = tablero.n();
    const int primos = n - 1 - tablero.compuestos();
    const int siguiente = primeroSinTachar(tablero);
    Paso paso{
        Traduce(
            u"El siguiente sin tachar es %1, y su cuadrado pasa de %2. Sin tachar, además del 1, "
            "quedan %3: son los primos."_s)
            .arg(siguiente)
            .arg(n)
            .arg(primos),
        {Formula(u"%1^2 > %2"_s.arg(siguiente).arg(n)),
         Formula(u"%1 - 1 - %2 = %3"_s.arg(n).arg(tablero.compuestos()).arg(primos))},
        Traduce(
            u"Un compuesto hasta n tiene un factor primo que no pasa de √n, y ese lo ha tachado."_s)};
    paso.tabla = {{Traduce(u"Primo"_s), Traduce(u"Tachaduras"_s), Traduce(u"Nuevas"_s)}, {}};
    QStringList golpes;
    for (const int p : tablero.tachadores()) {
        const auto nuevas = std::ranges::count_if(
            tablero.tachaduras(), [p](const Tachadura &t) { return t.primo == p && t.nueva; });
        golpes << QString::number(tablero.golpes(p));
        paso.tabla.filas << QStringList{QString::number(p), golpes.last(), QString::number(nuevas)};
    }
    const auto total = tablero.tachaduras().size() - tablero.tachadores().size();
    paso.formulas << Formula(u"%1 = %2"_s.arg(sumaDe(golpes)).arg(total));
    return paso;
}

} // namespace

Pasos pasosDeCriba(qint64 limite)
{
    if (limite < 2)
        return {};
    const int n = static_cast<int>(std::min<qint64>(limite, TableroDeCriba::MayorTablero));
    const auto tablero = std::make_shared<const TableroDeCriba>(n);
    const std::size_t ultimo = tablero->tachaduras().size();
    return Pasos(
               static_cast<qsizetype>(ultimo) + 1,
               [tablero, ultimo, limite](qsizetype i) {
                   const auto lugar = static_cast<std::size_t>(i);
                   Paso paso;
                   if (lugar == ultimo)
                       paso = pasoFinal(*tablero);
                   else if (const Tachadura &t = tablero->tachaduras()[lugar]; t.numero == 0)
                       paso = pasoDelPrimo(*tablero, t.primo);
                   else
                       paso = pasoDelMultiplo(t);
                   if (i == 0 && limite > tablero->n())
                       paso.frase +=
                           Traduce(
                               u" El tablero enseña los %1 primeros números; la criba hasta %2 sigue igual."_s)
                               .arg(tablero->n())
                               .arg(limite);
                   paso.lamina = tablero->lamina(lugar);
                   return paso;
               })
        .comoPelicula();
}
