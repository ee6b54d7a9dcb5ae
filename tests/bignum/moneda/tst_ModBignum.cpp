// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/FactoresHallados.h"
#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"

#include "tests/Tabla.h"

class TestModBignum : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_avisos.clear();
        InstalaAvisoDeCota([this](const QString &cota) { m_avisos << cota; });
        IniciaBignum(100);
    }

    void mod_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
7 mod 3 | 7 % 3 | 1 || 2mod3 | 2%3 | 2 || (7)MOD(3) | (7)%(3) | 1 || 7 mod | 7 % | Error
letters: || 2amod3 | 2amod3 | Error || 2 modo 3 | 2 modo 3 | Error
two: || 7mod3mod2 | 7%3mod2 | Error || 77mod30 mod2 | 77%30 %2 | 1
(57666)^(26829) mod (67591) | (57666)^(26829) % (67591) | 72)"_s);
        otraFila<QString, QString, QString>(u"line break"_s, u"7\r\nmod\r\n3"_s, u"7\r\n%\r\n3"_s,
                                            u"1"_s);
    }
    void mod()
    {
        auto [texto, reescrito, valor] = estaFila<QString, QString, QString>();
        QCOMPARE(Evalua(texto), valor);
        QCOMPARE(texto, reescrito);
    }

    void modAlPrincipio()
    {
        for (const QString &texto : {u"mod 5"_s, u"MODO"_s, u"mod"_s}) {
            int numero = 0;
            try {
                (void)Evalua(QString(texto));
            } catch (const ErrorEjecucion &error) {
                numero = error.numero();
            }
            QCOMPARE(numero, ErrorEjecucion::ArgumentoNoValido);
        }
        QCOMPARE(Evalua(u" mod 5"_s), u"Error"_s);
    }

    void evalua_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
 |  | || -3+1 | -2 | -2 || 7/2 | 7/2 | 3 || 1)+(2 | 3 | 3 || 1+日 | Error | Error
raíz(17) | 4 | 4)"_s);
        otraFila<QString, QString, QString>(u"blanks"_s, u" \t "_s, QString(), QString());
    }
    void evalua()
    {
        const auto [texto, racional, entero] = estaFila<QString, QString, QString>();
        QCOMPARE(Evalua(QString(texto)), racional);
        QCOMPARE(Evalua(QString(texto), {}, Aritmetica::Entera), entero);
    }

    void cotas()
    {
        QCOMPARE(Evalua(u"2000"_s, u"2000"_s), u"2000"_s);
        QVERIFY(m_avisos.isEmpty());
        QCOMPARE(Evalua(u"2001"_s, u"2000"_s), u"Error"_s);
        QCOMPARE(Evalua(u"4001/2"_s, u"2000"_s), u"Error"_s);
        QCOMPARE(m_avisos, (QStringList{u"2000"_s, u"2000"_s}));
        QCOMPARE(Evalua(u"-10^50"_s, u"2000"_s), u"-1"_s + QString(50, u'0'));
        QCOMPARE(Evalua(u"1/0"_s, u"2000"_s), u"Error"_s);
        QCOMPARE(m_avisos.size(), 2);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion,
                                 (void)EvaluaMoneda(u"-10^20"_s, Moneda::deEntero(5)));
    }

    void evaluaMoneda_data()
    {
        // A fraction wants two digits, or a sign and one; the last but one reaches the bound.
        filasDeTexto<QString, QString>(uR"(
2^10 | 10240000 || 49/4 | 122500 || 1/2 | 0 || -7/2 | -35000 ||  | 0 || 2+ | 0
1000001/10 | 0 || 1000000/10 | 1000000000)"_s);
    }
    void evaluaMoneda()
    {
        auto [texto, diezmilesimas] = estaFila<QString, QString>();
        const Moneda cota = Moneda::deDiezmilesimas(1'000'000'500);
        const auto valor = EvaluaMoneda(texto, cota).diezmilesimas();
        QCOMPARE(QString::number(valor), diezmilesimas);
        QCOMPARE(m_avisos, texto == u"1000001/10"_s ? QStringList{u"100000,05"_s} : QStringList());
    }

    void decimales()
    {
        QCOMPARE(ADecimal(u"3/4"_s), u"0,75"_s);
        QCOMPARE(ADecimal(u"-1/8"_s), u"-0,125"_s);
        QCOMPARE(ADecimal(u"49/4"_s), u"12,25"_s);
        QCOMPARE(ADecimal(u"1/3"_s), u"0,"_s + QString(100, u'3'));
        IniciaBignum(5);
        QCOMPARE(ADecimal(u"2/3"_s), u"0,66667"_s);
        QCOMPARE(ADecimal(u"nada"_s), u"Error"_s);
    }

    void envolturas()
    {
        QCOMPARE(PrimoSiguiente(u"97"_s), u"101"_s);
        QCOMPARE(PrimoSiguiente(u"nada"_s), QString());
        QCOMPARE(NumeroDeBits(PrimoAleatorio(64)), 64);
        QCOMPARE(PrimoAleatorio(1), QString());
        QCOMPARE(InversoMod(u"3"_s, u"7"_s), u"5"_s);
        QCOMPARE(InversoMod(u"2"_s, u"4"_s), QString());
        QCOMPARE(RestoChino({u"2"_s, u"3"_s, u"2"_s}, {u"3"_s, u"5"_s, u"7"_s}), u"23"_s);
        QCOMPARE(RestoChino({u"0"_s, u"1"_s}, {u"4"_s, u"6"_s}), u"Error"_s);
        QCOMPARE(RestoChino({u"0"_s}, {}), u"Error"_s);
        QCOMPARE(FiEuler(u"36"_s), u"12"_s);
        QCOMPARE(FiEuler(u"0"_s), u"Error"_s);
        QCOMPARE(EnBase(2, u"10"_s), u"1010"_s);
        QCOMPARE(EnBase(1, u"10"_s), u"Error"_s);
        QCOMPARE(Mcd(u"12"_s, u"-18"_s), u"6"_s);
        QCOMPARE(PotenciaMod(u"2"_s, u"10"_s, u"1000"_s), u"24"_s);
        QCOMPARE(PotenciaMod(u"2"_s, u"10"_s, u"0"_s), u"Error"_s);
        QCOMPARE(Modulo(u"-7"_s, u"3"_s), u"2"_s);
        QVERIFY(EsPrimo(u" 97 "_s) && !EsPrimo(u"91"_s) && !EsPrimo(u"9 7"_s));
        QVERIFY(EsMayor(QString(), u"1"_s) && !EsMayor(u"1"_s, u"nada"_s) &&
                !EsMayor(u"2"_s, u"2"_s));
    }

    void mcdExtendido()
    {
        QString d, x, y;
        QVERIFY(McdExtendido(u"240"_s, u"46"_s, d, x, y));
        QCOMPARE(d, u"2"_s);
        QCOMPARE(240 * x.toInt() + 46 * y.toInt(), 2);
        QVERIFY(!McdExtendido(u"240"_s, u"?"_s, d, x, y));
        QCOMPARE(d, QString(8192, QChar(u'\0')));
    }

    void factoriza()
    {
        QStringList primos(4), exponentes(4);
        QVERIFY(Factoriza(u"360"_s, primos, exponentes) != 0);
        QCOMPARE(primos, (QStringList{u"2"_s, u"3"_s, u"5"_s, QString()}));
        QCOMPARE(exponentes, (QStringList{u"3"_s, u"2"_s, u"1"_s, QString()}));
        QStringList uno(1), otro(1);
        QCOMPARE(Factoriza(u"6"_s, uno, otro), 0);
    }

    void buscaFactores()
    {
        QString hallados;
        const auto toma = [&](const FactorHallado &factor) {
            hallados += u"%1^%2 "_s.arg(factor.base).arg(factor.exponente);
            return factor.primo && hallados.size() < 16;
        };
        const auto busca = [&](const QString &n) {
            hallados.clear();
            return BuscaFactores(n, toma);
        };
        QCOMPARE(busca(u"360"_s), FinDeFactores::TodosPrimos);
        QCOMPARE(hallados, u"2^3 3^2 5^1 "_s);
        QCOMPARE(busca(u"1"_s), FinDeFactores::TodosPrimos);
        QCOMPARE(hallados, QString());
        QCOMPARE(busca(u"1/2"_s), FinDeFactores::NoEsNumero);
        QCOMPARE(busca(u"30030"_s), FinDeFactores::Detenido); // the receiver wants no more
        QCOMPARE(hallados, u"2^1 3^1 5^1 7^1 "_s);
        const auto lanza = [](const FactorHallado &) -> bool {
            throw ErrorEjecucion(ErrorEjecucion::DivisionPorCero);
        };
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, BuscaFactores(u"6"_s, lanza));
    }

    void textos()
    {
        QVERIFY(EsTextoLegible(QString()));
        QVERIFY(EsTextoLegible(u"¿Qué tal? 5 €\r\n\t—"_s));
        for (const QChar ilegible : {QChar(u'日'), QChar(7), QChar(0), QChar(0x81)})
            QVERIFY(!EsTextoLegible(ilegible));
        QByteArray todos;
        for (int i = 0; i < 256; ++i)
            todos += static_cast<char>(i);
        QCOMPARE(aWindows1252(deWindows1252(todos)), todos);
        QVERIFY(!aWindows1252(u"日"_s));
        QCOMPARE(CortaNulo(u"  12 "_s + QChar(0) + u" 3"_s), u"12"_s);
    }

private:
    QStringList m_avisos;
};

QTEST_GUILESS_MAIN(TestModBignum)
#include "tst_ModBignum.moc"
