// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/congruences/ModeloCongruencias.h"
#include "lessons/congruences/SistemaCongruencias.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <QTest>
#include <numeric>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A system written as "2 3, 3 5": remainder and modulus.
SistemaCongruencias sistema(const QString &texto)
{
    SistemaCongruencias filas;
    for (const QString &fila : texto.split(u", "_s))
        filas << Congruencia{fila.section(u' ', 0, 0), fila.section(u' ', 1, 1)};
    return filas;
}

/// What is said of a system: its solution, or why there is none.
QString dicho(const SistemaCongruencias &filas)
{
    const Resolucion resolucion = resuelve(filas);
    switch (resolucion.desenlace) {
    case Resolucion::Resuelto:
        return resolucion.resultado;
    case Resolucion::SinSolucion:
        return resolucion.motivo;
    case Resolucion::FueraDeAlcance:
        break;
    }
    return u"out of reach"_s;
}

} // namespace

class TestSistemaCongruencias : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
        IniciaBignum(100);
    }

    void soluciones_data()
    {
        QTest::addColumn<QString>("filas");
        QTest::addColumn<QString>("resultado");
        QTest::newRow("Sun") << u"2 3, 3 5, 2 7"_s << u"23"_s;
        QTest::newRow("eggs") << u"1 2, 1 3, 1 4, 1 5, 1 6, 0 7"_s << u"301"_s;
        QTest::newRow("one row") << u"17 5"_s << u"2"_s;
        QTest::newRow("negative remainder") << u"-1 3, -1 5"_s << u"14"_s;
        QTest::newRow("moduli that agree") << u"2 6, 8 10"_s << u"8"_s;
        QTest::newRow("half a row does not count") << u"2 3, 3 , 2 7"_s << u"2"_s;
        QTest::newRow("moduli that disagree")
            << u"1 2, 0 4"_s
            << u"Las filas 1 y 2 se contradicen módulo 2: piden los restos 1 y 0."_s;
        QTest::newRow("the last row, and one that does not count")
            << u"2 3, 5 , 1 5, 1 8000, 8 9, 1 21"_s
            << u"Las filas 1 y 6 se contradicen módulo 3: piden los restos 2 y 1."_s;
        QTest::newRow("the first pair of several")
            << u"1 1, 0 10, 3 10, 4 10, 5 10"_s
            << u"Las filas 2 y 3 se contradicen módulo 10: piden los restos 0 y 3."_s;
        const QString diez20 = u'1' + QString(20, u'0'), diez19 = diez20.chopped(1);
        QTest::newRow("long numbers")
            << u"1 %1, 0 %1"_s.arg(diez20) << u"Las filas 1 y 2 se contradicen."_s;
        QTest::newRow("less long")
            << u"1 %1, 0 %1"_s.arg(diez19)
            << u"Las filas 1 y 2 se contradicen módulo 10.000.000.000.000.000.000: piden los "
               "restos 1 y 0."_s;
        const auto nueves = [](int cifras) { return QString(cifras, u'9'); };
        QTest::newRow("as long as they may be")
            << u"-1 1%1"_s.arg(QString(8191, u'0')) << nueves(8191);
        QTest::newRow("too long") << u"-1 1%1, 0 3"_s.arg(QString(8192, u'0')) << u"out of reach"_s;
        QTest::newRow("unreadable") << u"%1 3, 1 3"_s.arg(nueves(24'600)) << u"out of reach"_s;
        QTest::newRow("large") << u"1 1000000000000000000007, 0 10"_s
                               << u"7000000000000000000050"_s;
    }
    void soluciones()
    {
        QFETCH(QString, filas);
        QTEST(dicho(sistema(filas)), "resultado");
    }

    /// What is posed has the shape that it must have, and its solution is found by substitution.
    void problemasAlAzar_data()
    {
        QTest::addColumn<int>("k");
        for (const int k : {1, 2, 3, 7, MayorSistema})
            QTest::addRow("%d", k) << k;
    }
    void problemasAlAzar()
    {
        QFETCH(int, k);
        for (int vez = 0; vez < 20; ++vez) {
            const SistemaCongruencias filas = planteaSistema(k);
            QCOMPARE(filas.size(), k);
            compruebaModulos(filas);
            const QString n = dicho(filas);
            for (const Congruencia &fila : filas) {
                QVERIFY(fila.resto.toLongLong() >= 1);
                QCOMPARE(Modulo(n, fila.modulo), fila.resto);
            }
        }
    }

    void defectos_data()
    {
        QTest::addColumn<QString>("resto");
        QTest::addColumn<QString>("modulo");
        QTest::addColumn<bool>("cuenta");
        QTest::addColumn<QString>("defecto");
        const QString resto = u"El resto tiene que ser un número entero"_s;
        const QString modulo = u"El módulo tiene que ser un número entero mayor que 0"_s;
        QTest::newRow("good") << u" -2 "_s << u"+7"_s << true << QString();
        QTest::newRow("blank cell") << u"2"_s << u"  "_s << false << modulo;
        QTest::newRow("word") << u"dos"_s << u"7"_s << true << resto;
        QTest::newRow("expression") << u"2"_s << u"7+1"_s << true << modulo;
        QTest::newRow("decimals") << u"2,5"_s << u"7"_s << true << resto;
        QTest::newRow("modulus 0") << u"2"_s << u"0"_s << true << modulo;
        QTest::newRow("negative modulus") << u"2"_s << u"-7"_s << true << modulo;
        QTest::newRow("modulus -0") << u"2"_s << u"-0"_s << true << modulo;
        QTest::newRow("other digits") << u"٣"_s << u"7"_s << true << resto;
    }
    void defectos()
    {
        QFETCH(QString, resto);
        QFETCH(QString, modulo);
        const Congruencia fila{resto, modulo};
        QTEST(fila.cuenta(), "cuenta");
        QTEST(fila.defecto(), "defecto");
    }

    void respuestas()
    {
        const auto sun = sistema(u"2 3, 3 5, 2 7"_s);
        QVERIFY(esSolucion(sun, u"20+3"_s));
        QVERIFY(!esSolucion(sun, u"128"_s));
        QVERIFY(!esSolucion(sun, u""_s));
        QVERIFY(!esSolucion(sistema(u"1 2, 0 4"_s), u"no number"_s));
    }

    void rejillaQueCrece()
    {
        ModeloCongruencias modelo;
        const QAbstractItemModelTester inspector(&modelo);
        QCOMPARE(modelo.rowCount(), ModeloCongruencias::FilasMinimas);
        modelo.setData(modelo.index(3, 0), u"1"_s, Qt::EditRole);
        QCOMPARE(modelo.rowCount(), 5);
        modelo.setData(modelo.index(4, 1), u"  "_s, Qt::EditRole);
        QCOMPARE(modelo.rowCount(), 5);
        modelo.pon(planteaSistema(MayorSistema));
        QCOMPARE(modelo.rowCount(), MayorSistema + 1);
        modelo.pon({});
        QCOMPARE(modelo.rowCount(), ModeloCongruencias::FilasMinimas);
        QVERIFY(modelo.sistema().constFirst().resto.isEmpty());
    }

    /// What the grid shows can be copied and pasted into it again.
    void celdasConSeparadores()
    {
        ModeloCongruencias modelo;
        const QModelIndex celda = modelo.index(0, 1);
        modelo.setData(celda, u"1.234.567"_s, Qt::EditRole);
        QCOMPARE(celda.data(Qt::EditRole).toString(), u"1234567"_s);
        QCOMPARE(celda.data().toString(), u"1.234.567"_s);
        modelo.setData(celda, u"1.23"_s, Qt::EditRole);
        QCOMPARE(celda.data().toString(), u"1.23"_s);
        modelo.setData(modelo.index(0, 0), u"1"_s, Qt::EditRole);
        QCOMPARE(modelo.primeraConDefecto(), 0);
        QVERIFY(celda.data(ModeloCongruencias::RolDefecto).toBool());
        QVERIFY(!modelo.index(0, 0).data(ModeloCongruencias::RolDefecto).toBool());
    }

private:
    /// Coprime in pairs, each a product of two primes, and the last one the square of a prime.
    static void compruebaModulos(const SistemaCongruencias &filas)
    {
        for (qsizetype i = 0; i < filas.size(); ++i) {
            const qint64 modulo = filas[i].modulo.toLongLong();
            QVERIFY(filas[i].resto.toLongLong() < modulo);
            for (qsizetype j = 0; j < i; ++j)
                QCOMPARE(std::gcd(modulo, filas[j].modulo.toLongLong()), qint64(1));
            QStringList primos(3), exponentes(3);
            Factoriza(filas[i].modulo, primos, exponentes);
            const bool cuadrado = i == filas.size() - 1;
            QCOMPARE(exponentes, cuadrado ? (QStringList{u"2"_s, u""_s, u""_s})
                                          : (QStringList{u"1"_s, u"1"_s, u""_s}));
        }
    }
};

QTEST_GUILESS_MAIN(TestSistemaCongruencias)
#include "tst_SistemaCongruencias.moc"
