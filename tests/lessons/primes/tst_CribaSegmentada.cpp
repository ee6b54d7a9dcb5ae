// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/CribaSegmentada.h"
#include "lessons/primes/PrimosDelServicio.h"

#include <QTest>
#include <algorithm>

namespace {

using Numeros = std::vector<std::uint32_t>;

/// The sieve without any short cut: every listed number strikes its odd multiples from the fifth on
/// out of the block, one look-up each, and the percentage is read before each of them strikes.
Numeros cribaLenta(std::uint32_t limite, std::vector<int> &porcentajes)
{
    Numeros lista{2, 3};
    std::uint32_t k = 1;
    for (std::uint32_t c = 0; c <= limite;) {
        const std::uint32_t anterior = lista.back();
        for (const std::uint32_t fin = k + 1000; k < fin; ++k) {
            for (c = 6 * k - 1; c <= 6 * k + 1; c += 2) {
                if (c <= limite)
                    lista.push_back(c);
            }
        }
        c -= 2;
        for (std::size_t x = 2; x < lista.size(); ++x) {
            porcentajes.push_back(static_cast<int>(100ULL * lista.back() / limite));
            std::uint32_t m = std::max(5U, (anterior + lista[x] - 1) / lista[x]);
            for (m += m % 2 == 0 ? 1 : 0; lista[x] * m <= lista.back(); m += 2) {
                const auto multiplo = std::ranges::lower_bound(lista, lista[x] * m);
                if (*multiplo == lista[x] * m)
                    lista.erase(multiplo);
            }
        }
    }
    return lista;
}

std::vector<int> sinRepetir(std::vector<int> valores)
{
    valores.erase(std::unique(valores.begin(), valores.end()), valores.end());
    return valores;
}

} // namespace

/// The sieve of the lesson against the library's list, its yields and its stop.
class TestCribaSegmentada : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void contraElServicio()
    {
        // Around the first candidates, the ends of blocks (6001, 12001, …) and squares of primes.
        for (const int limite : {3,     4,     5,     6,     7,     8,      10,     11,       24,
                                 25,    48,    49,    5999,  6000,  6001,   6006,   6007,     11999,
                                 12001, 12007, 36000, 36001, 65000, 120409, 994009, 1'000'000}) {
            CribaSegmentada criba;
            criba.criba(limite, {}, {}).completa();
            const PrimosDelServicio esperados = listaPrimos(limite, {}, {}).completa();
            QCOMPARE(static_cast<std::int32_t>(criba.primos().size()), esperados.cuantos);
            QCOMPARE(criba.numeros(), esperados.numeros);
        }
    }

    void losMenores()
    {
        for (const int limite : {2, 1, 0, -5}) {
            CribaSegmentada criba;
            criba.criba(limite, {}, {}).completa();
            QCOMPARE(criba.numeros(), (Numeros{2, 3}));
            const auto lista = listaPrimos(limite, {}, [](int) {}).completa();
            QCOMPARE(lista.numeros, limite == 2 ? Numeros{2} : Numeros{});
        }
    }

    void otraVezDesdeElPrincipio()
    {
        CribaSegmentada criba;
        criba.criba(20'000, {}, {}).completa();
        criba.criba(10, {}, {}).completa();
        QCOMPARE(criba.numeros(), (Numeros{2, 3, 5, 7}));
    }

    /// 25 is listed and struck: from 100 % the bar falls back to 92 %.
    void elAvanceSigueAlUltimoNumero()
    {
        for (const int limite : {3, 10, 25, 97, 6001, 6007, 30'000, 65'000}) {
            std::vector<int> avances, esperados;
            const auto anota = [&](int porcentaje) { avances.push_back(porcentaje); };
            CribaSegmentada criba;
            criba.criba(limite, {}, anota).completa();
            QCOMPARE(criba.numeros(), cribaLenta(static_cast<std::uint32_t>(limite), esperados));
            QCOMPARE(sinRepetir(avances), sinRepetir(esperados));
        }
    }

    /// A stop in the middle of a block leaves candidates that nothing has struck yet; those that
    /// are given as primes are.
    void detenidaEnCualquierPaso()
    {
        constexpr int limite = 12'000'000;
        const Numeros primos = listaPrimos(limite, {}, {}).completa().numeros;
        for (int paso = 0; paso < 100; paso += 9) {
            const auto parada = std::make_shared<Parada>();
            const auto detiene = [&](int porcentaje) {
                if (porcentaje >= paso)
                    parada->detener();
            };
            CribaSegmentada criba;
            criba.criba(limite, Billete(parada, nullptr), detiene).completa();
            const auto hallados = criba.primos();
            QVERIFY(hallados.size() < primos.size());
            QVERIFY(std::equal(hallados.begin(), hallados.end(), primos.begin()));
            QVERIFY(criba.numeros().size() < hallados.size() + 2000);
            QVERIFY(paso == 0 || static_cast<int>(hallados.back()) > limite / 100 * (paso - 1));
        }
    }

    void elServicioSeDetiene()
    {
        const auto parada = std::make_shared<Parada>();
        const auto lista = listaPrimos(50'000'000, Billete(parada, nullptr), [&](int porcentaje) {
                               if (porcentaje >= 49)
                                   parada->detener();
                           }).completa();
        QCOMPARE(lista.numeros.back(), 24'999'983U);
    }
};

QTEST_GUILESS_MAIN(TestCribaSegmentada)
#include "tst_CribaSegmentada.moc"
