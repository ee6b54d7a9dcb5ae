// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/congruences/ModeloCongruencias.h"
#include "lessons/congruences/SistemaCongruencias.h"
#include "tests/Tabla.h"

#include <QAbstractItemModelTester>
#include <QLocale>
#include <numeric>

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
        // 10^n stands for its digits, 9^n for n nines.
        filasDeTexto<QString, QString>(uR"(
            Sun | 2 3, 3 5, 2 7 | 23 || eggs | 1 2, 1 3, 1 4, 1 5, 1 6, 0 7 | 301
            one row | 17 5 | 2 || negative remainder | -1 3, -1 5 | 14
            moduli that agree | 2 6, 8 10 | 8 || half a row does not count | 2 3, 3 , 2 7 | 2
            moduli that disagree | 1 2, 0 4 | \
              Las filas 1 y 2 se contradicen módulo 2: piden los restos 1 y 0.
            the last row, and one that does not count | 2 3, 5 , 1 5, 1 8000, 8 9, 1 21 | \
              Las filas 1 y 6 se contradicen módulo 3: piden los restos 2 y 1.
            the first pair of several | 1 1, 0 10, 3 10, 4 10, 5 10 | \
              Las filas 2 y 3 se contradicen módulo 10: piden los restos 0 y 3.
            long numbers | 1 10^20, 0 10^20 | Las filas 1 y 2 se contradicen.
            less long | 1 10^19, 0 10^19 | Las filas 1 y 2 se contradicen módulo \
              10.000.000.000.000.000.000: piden los restos 1 y 0.
            as long as they may be | -1 10^8191 | 9^8191
            too long | -1 10^8192, 0 3 | out of reach || unreadable | 9^24600 3, 1 3 | out of reach
            large | 1 1000000000000000000007, 0 10 | 7000000000000000000050)"_s);
    }
    void soluciones()
    {
        auto [filas, resultado] = estaFila<QString, QString>();
        for (QString *texto : {&filas, &resultado}) {
            static const QRegularExpression potencia(u"(1?)([09])\\^(\\d+)"_s);
            for (auto m = potencia.match(*texto); m.hasMatch(); m = potencia.match(*texto))
                texto->replace(m.captured(),
                               m.captured(1) + m.captured(2).repeated(m.captured(3).toInt()));
        }
        QCOMPARE(dicho(sistema(filas)), resultado);
    }

    /// What is posed has the shape that it must have, and its solution is found by substitution.
    void problemasAlAzar()
    {
        for (int vez = 0; vez < 100; ++vez) {
            const int k = vez < 80 ? QList{1, 2, 3, 7}[vez % 4] : MayorSistema;
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
        filasDeTexto<QString, QString, bool, QString>(uR"(
            good | " -2 " | +7 | yes |
            blank cell | 2 | "  " | no | El módulo tiene que ser un número entero mayor que 0
            word | dos | 7 | yes | El resto tiene que ser un número entero
            expression | 2 | 7+1 | yes | El módulo tiene que ser un número entero mayor que 0
            decimals | 2,5 | 7 | yes | El resto tiene que ser un número entero
            modulus 0 | 2 | 0 | yes | El módulo tiene que ser un número entero mayor que 0
            negative modulus | 2 | -7 | yes | El módulo tiene que ser un número entero mayor \
              que 0
            modulus -0 | 2 | -0 | yes | El módulo tiene que ser un número entero mayor que 0
            other digits | ٣ | 7 | yes | El resto tiene que ser un número entero)"_s);
    }
    void defectos()
    {
        const auto [resto, modulo, cuenta, defecto] = estaFila<QString, QString, bool, QString>();
        const Congruencia fila{resto, modulo};
        QCOMPARE(fila.cuenta(), cuenta);
        QCOMPARE(fila.defecto(), defecto);
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
