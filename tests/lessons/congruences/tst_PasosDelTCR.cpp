// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/congruences/PasosDelTCR.h"
#include "tests/Sorteos.h"
#include "tests/Tabla.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;

/// The steps of a system of congruences, against the solution of the number service.
class TestPasosDelTCR : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(100); }

    void todoLoQueSeDiceEsCierto()
    {
        int contradictorios = 0;
        for (int vez = 0; vez < Sorteos; ++vez) {
            const SistemaCongruencias sistema =
                vez % 500 == 0 ? planteaSistema(1 + vez / 500 % MayorSistema) : alAzar();
            const Resolucion resolucion = resuelve(sistema);
            revisa(pasosDelTCR(sistema), resolucion);
            contradictorios += resolucion.desenlace == Resolucion::SinSolucion ? 1 : 0;
        }
        QVERIFY(contradictorios > Sorteos / 10 && contradictorios < 9 * (Sorteos / 10));
    }

    void bordes_data()
    {
        filasDeTexto<QString, QString>(uR"(
            one row | 17 5 | 2 cumple || modulus 1 | 4 1, 2 3 | 2 cumple
            negative remainders | -1 3, -1 5 | 14 cumple || half a row | 2 3, 3 , 2 7 | 2 cumple
            not coprime | 2 6, 8 10 | 8 cumple || twice the same row | 2 4, 2 4 | 2 cumple
            they disagree | 1 2, 0 4 | filas 1 y 2 se contradicen
            far from each other | 1 6, 5 , 0 35, 0 15 | filas 1 y 4 se contradicen)"_s);
    }
    void bordes()
    {
        const auto [texto, dicho] = estaFila<QString, QString>();
        SistemaCongruencias sistema;
        for (const QString &fila : texto.split(u", "_s))
            sistema << Congruencia{fila.section(u' ', 0, 0), fila.section(u' ', 1, 1)};
        revisa(pasosDelTCR(sistema), resuelve(sistema));
        QVERIFY2(m_ultima.contains(dicho), qPrintable(m_ultima));
    }

    /// As many rows and as long numbers as the grid takes: told, not thrown.
    void demasiadoLargo()
    {
        const QString largo = u"1"_s + QString(20000, u'0');
        const Pasos pasos = pasosDelTCR({{u"1"_s, largo}, {u"1"_s, largo + u"1"_s}});
        QCOMPARE(pasos.cuantos(), 1);
        QVERIFY(pasos.paso(0).frase.contains(u"demasiado largos"_s));
        QVERIFY(pasosDelTCR({}).vacios());
    }

private:
    SistemaCongruencias alAzar()
    {
        const int filas = 1 + m_azar.bounded(4), mayor = m_azar.bounded(2) ? 30 : 100000;
        SistemaCongruencias sistema;
        for (int i = 0; i < filas; ++i) {
            const int modulo = 1 + m_azar.bounded(mayor);
            sistema << Congruencia{QString::number(m_azar.bounded(-modulo, 2 * modulo)),
                                   QString::number(modulo)};
        }
        return sistema;
    }

    void revisa(const Pasos &pasos, const Resolucion &resolucion)
    {
        m_revisor.olvida();
        const QString falta = m_revisor.revisa(pasos);
        QVERIFY2(falta.isEmpty(), qPrintable(falta));
        m_ultima = pasos.paso(pasos.cuantos() - 1).frase;
        if (resolucion.desenlace == Resolucion::Resuelto)
            QVERIFY2(m_ultima.contains(u"La solución %1 cumple"_s.arg(resolucion.resultado)),
                     qPrintable(m_ultima));
        else
            QVERIFY2(m_ultima.contains(u"se contradicen"_s), qPrintable(m_ultima));
    }

    QRandomGenerator m_azar{52};
    RevisorDeFormulas m_revisor;
    QString m_ultima;
};

QTEST_GUILESS_MAIN(TestPasosDelTCR)
#include "tst_PasosDelTCR.moc"
