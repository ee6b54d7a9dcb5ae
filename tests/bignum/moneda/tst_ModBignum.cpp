#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/FactoresHallados.h"
#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"

#include <QTest>

using namespace Qt::Literals::StringLiterals;

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
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("reescrito");
        QTest::addColumn<QString>("valor");
        QTest::newRow("blanks") << u"7 mod 3"_s << u"7 % 3"_s << u"1"_s;
        QTest::newRow("digits") << u"2mod3"_s << u"2%3"_s << u"2"_s;
        QTest::newRow("brackets, capitals") << u"(7)MOD(3)"_s << u"(7)%(3)"_s << u"1"_s;
        QTest::newRow("letter before") << u"2amod3"_s << u"2amod3"_s << u"Error"_s;
        QTest::newRow("letter behind") << u"2 modo 3"_s << u"2 modo 3"_s << u"Error"_s;
        QTest::newRow("two are skipped") << u"7mod3mod2"_s << u"7%3mod2"_s << u"Error"_s;
        QTest::newRow("far enough apart") << u"77mod30 mod2"_s << u"77%30 %2"_s << u"1"_s;
        QTest::newRow("at the end") << u"7 mod"_s << u"7 %"_s << u"Error"_s;
        QTest::newRow("line break") << u"7\r\nmod\r\n3"_s << u"7\r\n%\r\n3"_s << u"1"_s;
        QTest::newRow("modular power")
            << u"(57666)^(26829) mod (67591)"_s << u"(57666)^(26829) % (67591)"_s << u"72"_s;
    }
    void mod()
    {
        QFETCH(QString, texto);
        QTEST(Evalua(texto), "valor");
        QTEST(texto, "reescrito");
    }

    void modAlPrincipio()
    {
        for (const QString &texto : {u"mod 5"_s, u"MODO"_s, u"mod"_s}) {
            try {
                (void)Evalua(QString(texto));
                QFAIL("no error");
            } catch (const ErrorEjecucion &error) {
                QCOMPARE(error.numero(), ErrorEjecucion::ArgumentoNoValido);
            }
        }
        QCOMPARE(Evalua(u" mod 5"_s), u"Error"_s);
    }

    void evalua_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("racional");
        QTest::addColumn<QString>("entero");
        QTest::newRow("empty") << QString() << QString() << QString();
        QTest::newRow("blanks") << u" \t "_s << QString() << QString();
        QTest::newRow("sign first") << u"-3+1"_s << u"-2"_s << u"-2"_s;
        QTest::newRow("quotient") << u"7/2"_s << u"7/2"_s << u"3"_s;
        QTest::newRow("unbalanced") << u"1)+(2"_s << u"3"_s << u"3"_s;
        QTest::newRow("no character of the library") << u"1+日"_s << u"Error"_s << u"Error"_s;
        QTest::newRow("accents") << u"raíz(17)"_s << u"4"_s << u"4"_s;
    }
    void evalua()
    {
        QFETCH(QString, texto);
        QTEST(Evalua(QString(texto)), "racional");
        QTEST(Evalua(QString(texto), {}, Aritmetica::Entera), "entero");
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
    }

    void evaluaMoneda_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<qint64>("diezmilesimas");
        QTest::newRow("whole") << u"2^10"_s << qint64(10240000);
        QTest::newRow("two digits, then a fraction") << u"49/4"_s << qint64(122500);
        QTest::newRow("one digit over a denominator") << u"1/2"_s << qint64(0);
        QTest::newRow("sign and digit") << u"-7/2"_s << qint64(-35000);
        QTest::newRow("empty") << QString() << qint64(0);
        QTest::newRow("invalid") << u"2+"_s << qint64(0);
        QTest::newRow("bound with decimals") << u"1000001/10"_s << qint64(0);
        QTest::newRow("just below it") << u"1000000/10"_s << qint64(1000000000);
    }
    void evaluaMoneda()
    {
        QFETCH(QString, texto);
        const Moneda cota = Moneda::deDiezmilesimas(1'000'000'500);
        QTEST(qint64(EvaluaMoneda(texto, cota).diezmilesimas()), "diezmilesimas");
        QCOMPARE(m_avisos, texto == u"1000001/10"_s ? QStringList{u"100000,05"_s} : QStringList());
    }

    void evaluaMonedaPorDebajo()
    {
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion,
                                 (void)EvaluaMoneda(u"-10^20"_s, Moneda::deEntero(5)));
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

    void buscaFactores_data()
    {
        QTest::addColumn<QString>("n");
        QTest::addColumn<FinDeFactores>("fin");
        QTest::addColumn<QString>("hallados");
        const auto fila = [](const char *n, FinDeFactores fin, const char *hallados) {
            QTest::newRow(n) << QString::fromLatin1(n) << fin << QString::fromLatin1(hallados);
        };
        fila("360", FinDeFactores::TodosPrimos, "2^3 3^2 5^1");
        fila("1", FinDeFactores::TodosPrimos, "");
        fila("1/2", FinDeFactores::NoEsNumero, "");
        fila("30030", FinDeFactores::Detenido, "2^1 3^1 5^1 7^1"); // the receiver wants no more
    }
    void buscaFactores()
    {
        QFETCH(const QString, n);
        QFETCH(const FinDeFactores, fin);
        QStringList hallados;
        QCOMPARE(BuscaFactores(n,
                               [&](const FactorHallado &factor) {
                                   hallados += u"%1^%2"_s.arg(factor.base).arg(factor.exponente);
                                   return factor.primo && hallados.size() < 4;
                               }),
                 fin);
        QTEST(hallados.join(u' '), "hallados");
    }

    void buscaFactoresDejaPasarLoQueSeLanza()
    {
        const auto lanza = [](const FactorHallado &) -> bool {
            throw ErrorEjecucion(ErrorEjecucion::DivisionPorCero);
        };
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, BuscaFactores(u"6"_s, lanza));
    }

    void textos()
    {
        QVERIFY(EsTextoLegible(QString()));
        QVERIFY(EsTextoLegible(u"¿Qué tal? 5 €\r\n\t—"_s));
        QVERIFY(!EsTextoLegible(u"日本"_s));
        QVERIFY(!EsTextoLegible(QString(QChar(7))));
        QVERIFY(!EsTextoLegible(QString(QChar(0))));
        QVERIFY(!EsTextoLegible(QString(QChar(0x81))));
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
