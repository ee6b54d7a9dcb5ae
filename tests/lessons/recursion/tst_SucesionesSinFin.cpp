// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/recursion/functions/Capicua.h"
#include "lessons/recursion/functions/Granizo.h"
#include "lessons/recursion/functions/ModeloGranizo.h"
#include "tests/Tabla.h"
#include "tests/lessons/recursion/Detenida.h"
#include "tests/shell/support/Entorno.h"

#include <QAbstractItemModelTester>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// Hailstone sequences and the search for palindromes without a window.
class TestSucesionesSinFin : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    /// Sequence A006577 of the On-Line Encyclopedia of Integer Sequences, but for the start 1.
    void granizo_data()
    {
        filasDeTexto<QString, int>(uR"(
            1 | 3 || 2 | 1 || 6 | 8 || 27 | 111 || 97 | 118 || 871 | 178 || 6171 | 261
            77031 | 350 || 837799 | 524 || 63728127 | 949
            1267650600228229401496703205376 | 100)"_s);
    }
    void granizo()
    {
        const auto [inicio, pasos] = estaFila<QString, int>();
        const auto historia = std::make_shared<HistoriaGranizo>();
        QCOMPARE(correGranizo(inicio, historia, {}).completa(), FinDeGranizo::EnUno);
        QCOMPARE(historia->valor(0), inicio);
        QCOMPARE(static_cast<int>(historia->ultimo()), pasos);
        QCOMPARE(historia->valor(historia->ultimo()), u"1"_s);
        for (qint64 k = 1; k < 9 && pasos == 8; ++k)
            QCOMPARE(historia->valor(k), u"3 10 5 16 8 4 2 1"_s.section(u' ', k - 1, k - 1));
    }

    void granizoSinNumero()
    {
        const QString justo(24'575, u'9');
        for (const QString &inicio :
             {QString(), u"abc"_s, u"1/2"_s, u"10+2"_s, u"mod 2"_s, justo + u'9', justo}) {
            const auto historia = std::make_shared<HistoriaGranizo>();
            QCOMPARE(correGranizo(inicio, historia, {}).completa(),
                     inicio == justo ? FinDeGranizo::DemasiadasCifras : FinDeGranizo::SinEntero);
            QCOMPARE(historia->ultimo(), 1);
            QCOMPARE(historia->valor(0), inicio);
            QCOMPARE(historia->valor(1), u"Error"_s);
        }
    }

    void curvaCorta()
    {
        CurvaGranizo curva;
        QVERIFY(curva.puntos().isEmpty());
        for (const QString &valor : {u"-100"_s, u"Error"_s, u"0"_s, u"1"_s + QString(30, u'0')})
            curva.agrega(valor);
        QCOMPARE(curva.puntos(), QList<QPointF>({{0, 2}, {3, 30}}));
        QCOMPARE(curva.maximo(), 30.0);
    }

    /// However long the run: few points, evenly spaced, the last one and the height of the highest
    /// among them.
    void curvaLarga()
    {
        CurvaGranizo curva;
        constexpr int pasos = 100'003;
        for (int k = 0; k < pasos; ++k)
            curva.agrega(k == 77'777 ? u"100000"_s : u"10"_s);
        const QList<QPointF> puntos = curva.puntos();
        QVERIFY(puntos.size() > CurvaGranizo::MaximoDePuntos / 3);
        QVERIFY(puntos.size() <= CurvaGranizo::MaximoDePuntos);
        QCOMPARE(puntos.constFirst(), QPointF(0, 1));
        QCOMPARE(puntos.constLast(), QPointF(pasos - 1, 1));
        QCOMPARE(curva.maximo(), 5.0);
        const double distancia = puntos[1].x();
        for (qsizetype i = 1; i + 1 < puntos.size(); ++i)
            QCOMPARE(puntos[i].x(), distancia * static_cast<double>(i));
    }

    /// A number of 2000 digits: its values take more room than there is, and come back right.
    void historiaLarga()
    {
        QString valor = u"2718281828459045"_s.repeated(125);
        HistoriaGranizo historia;
        historia.reinicia(valor);
        QMap<qint64, QString> muestras;
        qint64 total = 0;
        while (valor != u"1"_s) {
            valor = siguienteGranizo(valor);
            historia.agrega(valor);
            total += valor.size();
            if (historia.ultimo() % 997 == 0)
                muestras[historia.ultimo()] = valor;
            QVERIFY(historia.bytes() <= HistoriaGranizo::MaximoDeBytes);
        }
        QVERIFY(total > HistoriaGranizo::MaximoDeBytes);
        for (auto muestra = muestras.cbegin(); muestra != muestras.cend(); ++muestra)
            QCOMPARE(historia.valor(muestra.key()), muestra.value());
        for (const qint64 k : {4000, 3999, 3998, 3800, 4001})
            QCOMPARE(historia.valor(k + 1), siguienteGranizo(historia.valor(k)));
    }

    /// The cycle of -5 has no end: the oldest steps are forgotten, the rest stays within bounds.
    void historiaSinFin()
    {
        const QStringList ciclo{u"-5"_s, u"-14"_s, u"-7"_s, u"-20"_s, u"-10"_s};
        const auto propia = std::make_shared<HistoriaGranizo>();
        HistoriaGranizo &historia = *propia;
        ModeloGranizo modelo;
        modelo.pon(propia);
        historia.reinicia(ciclo[0]);
        for (qint64 k = 1; k <= 2'500'003; ++k) {
            historia.agrega(ciclo[k % 5]);
            if (k % 300'000 == 0)
                modelo.publica();
        }
        QCOMPARE(siguienteGranizo(u"-10"_s), u"-5"_s);
        QVERIFY(historia.bytes() <= HistoriaGranizo::MaximoDeBytes);
        QCOMPARE(historia.primero(), 1'500'004);
        modelo.publica();
        QCOMPARE(modelo.rowCount(), HistoriaGranizo::MaximoDePasos);
        for (const int fila : {0, 1, 12'345, 999'998, 999'999}) {
            QCOMPARE(modelo.index(fila, 0).data().toLongLong(), 1'500'004 + fila);
            QCOMPARE(modelo.index(fila, 1).data().toString(), ciclo[(1'500'004 + fila) % 5]);
        }
        // Rows that are drawn between two publications name steps that are still known.
        historia.agrega(ciclo[4]);
        QCOMPARE(modelo.index(0, 0).data().toLongLong(), 1'500'005);
        QCOMPARE(modelo.index(0, 1).data().toString(), ciclo[0]);
    }

    void granizoDetenido()
    {
        const auto historia = std::make_shared<HistoriaGranizo>();
        QCOMPARE(
            detenida(30ms, [&](const Billete &b) { return correGranizo(u"-5"_s, historia, b); }),
            FinDeGranizo::Detenido);
        QVERIFY(historia->ultimo() > 0);
    }

    void laTablaDelGranizo()
    {
        const auto propia = std::make_shared<HistoriaGranizo>();
        HistoriaGranizo &historia = *propia;
        ModeloGranizo modelo;
        const QAbstractItemModelTester probador(&modelo);
        modelo.pon(propia);
        historia.reinicia(u"6"_s);
        historia.agrega(u"3"_s);
        modelo.publica();
        historia.agrega(u"10"_s);
        QCOMPARE(modelo.rowCount(), 2);
        modelo.publica();
        QCOMPARE(modelo.rowCount(), 3);
        QCOMPARE(modelo.index(2, ModeloGranizo::Paso).data().toString(), u"2"_s);
        QCOMPARE(modelo.index(2, ModeloGranizo::Valor).data().toString(), u"10"_s);
        QCOMPARE(modelo.index(2, ModeloGranizo::Valor).data(Qt::ToolTipRole).toString(),
                 u"Cifras: 2"_s);
        QCOMPARE(cifrasDe(u"-14"_s), 2);
        QCOMPARE(cifrasDe(u"Error"_s), 0);
        modelo.pon(propia);
        QCOMPARE(modelo.rowCount(), 0);
    }

    void capicuas_data()
    {
        filasDeTexto<QString, int, QString>(uR"(
            11 | 0 | 11 || 0 | 0 | 0 || 87 | 4 | 4884 || 89 | 24 | 8813200023188
            10*8+9 | 24 | 8813200023188 || 0089 | 24 | 8813200023188
            10911 | 55 | 4668731596684224866951378664
            1186060307891929990 | 261 | 4456266587897643762243784897665387038888478366259842585\
            5963436955852489526638748888307835667984873422673467987856626544)"_s);
    }
    void capicuas()
    {
        const auto [inicio, sumas, final] = estaFila<QString, int, QString>();
        Capicua capicua;
        QCOMPARE(capicua.busca(inicio, {}).completa(), Capicua::Fin::Hallado);
        QCOMPARE(static_cast<int>(capicua.numSumas()), sumas);
        QCOMPARE(capicua.actual(), final);
    }

    void sinCapicua()
    {
        using Fin = Capicua::Fin;
        const std::tuple<QString, Fin, int> casos[] = {
            {u" "_s, Fin::SinValor, 0},
            {u"abc"_s, Fin::SinValor, 0},
            {u"99999999!"_s, Fin::SinValor, 0}, // no room for the start
            {u"7-19"_s, Fin::Negativo, 0},
            {u'9' + QString(24'574, u'8'), Fin::DemasiadasCifras, 1}};
        for (const auto &[inicio, fin, sumas] : casos) {
            Capicua capicua;
            QCOMPARE(capicua.busca(inicio, {}).completa(), fin);
            QCOMPARE(capicua.numSumas(), sumas);
        }
    }

    /// It goes on until it is stopped; of its sums the first two hundred are kept.
    void el196()
    {
        Capicua capicua;
        QCOMPARE(detenida(30ms, [&](const Billete &b) { return capicua.busca(u"196"_s, b); }),
                 Capicua::Fin::Detenida);
        QVERIFY(capicua.numSumas() > 200);
        QVERIFY(capicua.actual() != Inverso(capicua.actual()));
        QCOMPARE(capicua.numeros().size(), 201);
        QCOMPARE(capicua.numeros().mid(0, 3).join(u' '), u"196 887 1675"_s);
        // The last of them is what 200 sums give.
        QString numero = u"196"_s;
        for (int k = 0; k < 200; ++k)
            numero = Evalua(QString(numero + u'+' + Inverso(numero)));
        QCOMPARE(capicua.numeros().constLast(), numero);
    }
};

NUMORA_TEST_MAIN(TestSucesionesSinFin)
#include "tst_SucesionesSinFin.moc"
