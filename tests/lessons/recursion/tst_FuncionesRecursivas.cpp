#include "bignum/ErrorEjecucion.h"
#include "bignum/ModBignum.h"
#include "lessons/recursion/Ack.h"
#include "lessons/recursion/Capicua.h"
#include "lessons/recursion/Granizo.h"
#include "lessons/recursion/ModeloAck.h"
#include "lessons/recursion/ModeloGranizo.h"
#include "tests/shell/support/Entorno.h"

#include <QAbstractItemModelTester>
#include <map>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The definition word by word, with the calls of C++ and a map for a memory.
class AckPorDefinicion
{
public:
    int calcula(int m, int n)
    {
        ++llamadas;
        filas = std::max(filas, n + 1);
        columnas = std::max(columnas, m + 1);
        const auto conocido = valores.find({m, n});
        if (conocido != valores.end())
            return conocido->second;
        int valor = n + 1;
        if (m > 0)
            valor = calcula(m - 1, n == 0 ? 1 : calcula(m, n - 1));
        return valores[{m, n}] = valor;
    }

    std::map<std::pair<int, int>, int> valores;
    int llamadas = 0;
    int filas = 1, columnas = 1;
};

struct Prueba
{
    explicit Prueba(int corte = 1'000'000, Corrida::Cesion cesion = {})
        : corrida(std::move(cesion)), memoria(1, 1), ack(memoria, corrida, corte)
    {
    }

    Corrida corrida;
    MemoriaAck memoria;
    Ack ack;
};

} // namespace

/// Ackermann's function, hailstone sequences and palindromes without a window.
class TestFuncionesRecursivas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void ackComoLaDefinicion_data()
    {
        QTest::addColumn<int>("m");
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("valor");
        QTest::newRow("0, 7") << 0 << 7 << 8;
        QTest::newRow("1, 0") << 1 << 0 << 2;
        QTest::newRow("1, 50") << 1 << 50 << 52;
        QTest::newRow("2, 0") << 2 << 0 << 3;
        QTest::newRow("2, 3") << 2 << 3 << 9;
        QTest::newRow("2, 100") << 2 << 100 << 203;
        QTest::newRow("3, 0") << 3 << 0 << 5;
        QTest::newRow("3, 6") << 3 << 6 << 509;
        QTest::newRow("3, 9") << 3 << 9 << 4093;
        QTest::newRow("4, 0") << 4 << 0 << 13;
    }
    void ackComoLaDefinicion()
    {
        QFETCH(int, m);
        QFETCH(int, n);
        Prueba prueba;
        QTEST(prueba.ack.calcula(m, n), "valor");
        AckPorDefinicion definicion;
        definicion.calcula(m, n);
        QCOMPARE(prueba.ack.numLlamadas(), definicion.llamadas);
        QCOMPARE(prueba.memoria.filas(), definicion.filas);
        QCOMPARE(prueba.memoria.columnas(), definicion.columnas);
        for (int columna = 0; columna < definicion.columnas; ++columna) {
            for (int fila = 0; fila < definicion.filas; ++fila) {
                const auto celda = definicion.valores.find({columna, fila});
                const int esperado = celda == definicion.valores.end() ? 0 : celda->second;
                QCOMPARE(prueba.memoria.lee(columna, fila), esperado);
            }
        }
    }

    /// The figure of the lesson's page: eight cells with m = 0, eight with 1, four with 2.
    void celdasDeAck23()
    {
        Prueba prueba;
        prueba.ack.calcula(2, 3);
        QStringList columnas;
        for (int m = 0; m <= 2; ++m) {
            QStringList celdas;
            for (int n = 0; n < prueba.memoria.filas(); ++n) {
                if (prueba.memoria.lee(m, n) > 0)
                    celdas << QString::number(n);
            }
            columnas << celdas.join(u' ');
        }
        QCOMPARE(columnas.join(u" | "_s), u"1 2 3 4 5 6 7 8 | 0 1 2 3 4 5 6 7 | 0 1 2 3"_s);
        QCOMPARE(prueba.ack.numLlamadas(), 23);
    }

    void elCorte_data()
    {
        QTest::addColumn<int>("m");
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("corte");
        QTest::addColumn<int>("valor");
        QTest::addColumn<int>("filas");
        QTest::addColumn<int>("columnas");
        QTest::newRow("argument at the cut-off") << 0 << 5000 << 5000 << 5001 << 5001 << 1;
        QTest::newRow("argument beyond: the grid grows first")
            << 0 << 6000 << 5000 << 0 << 6001 << 1;
        QTest::newRow("m beyond") << 9 << 2 << 8 << 0 << 3 << 10;
        QTest::newRow("just enough inside") << 3 << 5 << 252 << 253 << 253 << 4;
        QTest::newRow("one too few inside") << 3 << 5 << 251 << 0 << 253 << 4;
        QTest::newRow("4, 1 with the default") << 4 << 1 << 5000 << 0 << 5002 << 5;
        QTest::newRow("negative") << 0 << 0 << -1 << 0 << 1 << 1;
    }
    void elCorte()
    {
        QFETCH(int, m);
        QFETCH(int, n);
        QFETCH(int, corte);
        QFETCH(int, valor);
        Prueba prueba(corte);
        QCOMPARE(prueba.ack.calcula(m, n), valor);
        QCOMPARE(prueba.ack.rendido(), valor == 0);
        QCOMPARE(prueba.corrida.detenida(), valor == 0);
        QTEST(prueba.memoria.filas(), "filas");
        QTEST(prueba.memoria.columnas(), "columnas");
    }

    void unMillonDeFilas()
    {
        Prueba prueba(INT_MAX);
        QCOMPARE(prueba.ack.calcula(1, 999'998), 1'000'000);
        QCOMPARE(prueba.memoria.filas(), MemoriaAck::MaximoDeLineas);
        for (const auto &[m, n] : {std::pair(1, 999'999), std::pair(4, 2), std::pair(0, INT_MAX),
                                   std::pair(INT_MAX, 0), std::pair(6, 6)}) {
            Prueba otra(INT_MAX);
            try {
                otra.ack.calcula(m, n);
                QFAIL("no error");
            } catch (const ErrorEjecucion &error) {
                QCOMPARE(error.numero(), ErrorEjecucion::Desbordamiento);
                QVERIFY(error.detalle().contains(u"1.000.000"_s));
            }
        }
    }

    void argumentosNegativos()
    {
        Prueba prueba;
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, prueba.ack.calcula(-1, 3));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, prueba.ack.calcula(3, -1));
    }

    void ackDetenido()
    {
        Corrida *corrida = nullptr;
        Prueba prueba(INT_MAX, [&] { corrida->detener(); });
        corrida = &prueba.corrida;
        // A run of some 50 ms, over and over until a yield falls into it.
        while (!prueba.corrida.detenida()) {
            try {
                QCOMPARE(prueba.ack.calcula(4, 2), 0);
            } catch (const ErrorEjecucion &) {
                prueba.memoria.vacia();
            }
        }
        QVERIFY(!prueba.ack.rendido());
        // What was found stays, and is right.
        QVERIFY(prueba.memoria.lee(1, 10) == 12 && prueba.memoria.lee(3, 0) == 5);
        prueba.corrida.permitir();
        prueba.corrida.detener();
        QCOMPARE(prueba.ack.calcula(0, 1), 0);
    }

    void laTablaDeAck()
    {
        Prueba prueba;
        ModeloAck modelo(prueba.memoria);
        const QAbstractItemModelTester probador(&modelo);
        prueba.ack.calcula(2, 3);
        QCOMPARE(modelo.rowCount(), 1);
        modelo.publica();
        QCOMPARE(modelo.rowCount(), 9);
        QCOMPARE(modelo.columnCount(), 3);
        QCOMPARE(modelo.index(3, 2).data().toString(), u"9"_s);
        QCOMPARE(modelo.index(8, 2).data(), QVariant());
        QCOMPARE(modelo.headerData(7, Qt::Vertical, Qt::DisplayRole).toInt(), 7);
        QVERIFY(modelo.destaca({2, 3}).isValid());
        QCOMPARE(modelo.index(3, 2).data(Qt::BackgroundRole).value<QBrush>().color(),
                 QColor(0, 255, 255));
        QVERIFY(!modelo.destaca({3, 3}).isValid());
        prueba.memoria.vacia();
        modelo.reinicia();
        QCOMPARE(modelo.rowCount(), 9);
        QCOMPARE(modelo.index(3, 2).data(), QVariant());
        QCOMPARE(modelo.index(3, 2).data(Qt::BackgroundRole), QVariant());
    }

    /// Sequence A006577 of the On-Line Encyclopedia of Integer Sequences, but for the start 1.
    void granizo_data()
    {
        QTest::addColumn<QString>("inicio");
        QTest::addColumn<int>("pasos");
        QTest::newRow("1") << u"1"_s << 3;
        QTest::newRow("2") << u"2"_s << 1;
        QTest::newRow("6") << u"6"_s << 8;
        QTest::newRow("27") << u"27"_s << 111;
        QTest::newRow("97") << u"97"_s << 118;
        QTest::newRow("871") << u"871"_s << 178;
        QTest::newRow("6171") << u"6171"_s << 261;
        QTest::newRow("77031") << u"77031"_s << 350;
        QTest::newRow("837799") << u"837799"_s << 524;
        QTest::newRow("63728127") << u"63728127"_s << 949;
        QTest::newRow("2^100") << u"1267650600228229401496703205376"_s << 100;
    }
    void granizo()
    {
        QFETCH(QString, inicio);
        HistoriaGranizo historia;
        Corrida corrida{Corrida::Cesion()};
        QCOMPARE(correGranizo(inicio, historia, corrida), FinDeGranizo::EnUno);
        QCOMPARE(historia.valor(0), inicio);
        QTEST(static_cast<int>(historia.ultimo()), "pasos");
        QCOMPARE(historia.valor(historia.ultimo()), u"1"_s);
    }

    void granizoDe6()
    {
        HistoriaGranizo historia;
        Corrida corrida{Corrida::Cesion()};
        correGranizo(u"6"_s, historia, corrida);
        QStringList valores;
        for (qint64 k = 0; k <= historia.ultimo(); ++k)
            valores << historia.valor(k);
        QCOMPARE(valores.join(u' '), u"6 3 10 5 16 8 4 2 1"_s);
    }

    void granizoSinNumero_data()
    {
        QTest::addColumn<QString>("inicio");
        QTest::newRow("empty") << QString();
        QTest::newRow("letters") << u"abc"_s;
        QTest::newRow("fraction") << u"1/2"_s;
        QTest::newRow("expression") << u"10+2"_s;
        QTest::newRow("mod first") << u"mod 2"_s;
        QTest::newRow("too long") << QString(24'575, u'9');
    }
    void granizoSinNumero()
    {
        QFETCH(QString, inicio);
        HistoriaGranizo historia;
        Corrida corrida{Corrida::Cesion()};
        QCOMPARE(correGranizo(inicio, historia, corrida), FinDeGranizo::Error);
        QCOMPARE(historia.ultimo(), 1);
        QCOMPARE(historia.valor(0), inicio);
        QCOMPARE(historia.valor(1), u"Error"_s);
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
        HistoriaGranizo historia;
        ModeloGranizo modelo(historia);
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
        Corrida *donde = nullptr;
        Corrida corrida([&] { donde->detener(); });
        donde = &corrida;
        HistoriaGranizo historia;
        QCOMPARE(correGranizo(u"-5"_s, historia, corrida), FinDeGranizo::Detenido);
        QVERIFY(historia.ultimo() > 0);
    }

    void laTablaDelGranizo()
    {
        HistoriaGranizo historia;
        ModeloGranizo modelo(historia);
        const QAbstractItemModelTester probador(&modelo);
        historia.reinicia(u"6"_s);
        historia.agrega(u"3"_s);
        modelo.publica();
        historia.agrega(u"10"_s);
        QCOMPARE(modelo.rowCount(), 2);
        modelo.publica();
        QCOMPARE(modelo.rowCount(), 3);
        QCOMPARE(modelo.index(2, ModeloGranizo::Paso).data().toString(), u"2"_s);
        QCOMPARE(modelo.index(2, ModeloGranizo::Valor).data().toString(), u"10"_s);
        modelo.reinicia();
        QCOMPARE(modelo.rowCount(), 0);
    }

    void capicuas_data()
    {
        QTest::addColumn<QString>("inicio");
        QTest::addColumn<int>("sumas");
        QTest::addColumn<QString>("capicua");
        QTest::newRow("at once") << u"11"_s << 0 << u"11"_s;
        QTest::newRow("one digit") << u"0"_s << 0 << u"0"_s;
        QTest::newRow("87") << u"87"_s << 4 << u"4884"_s;
        QTest::newRow("89") << u"89"_s << 24 << u"8813200023188"_s;
        QTest::newRow("expression") << u"10*8+9"_s << 24 << u"8813200023188"_s;
        QTest::newRow("leading zeros") << u"0089"_s << 24 << u"8813200023188"_s;
        QTest::newRow("10911") << u"10911"_s << 55 << u"4668731596684224866951378664"_s;
        QTest::newRow("1186060307891929990") << u"1186060307891929990"_s << 261
                                             << u"4456266587897643762243784897665387038888478366259"
                                                u"8425855963436955852489526638748888"
                                                "307835667984873422673467987856626544"_s;
    }
    void capicuas()
    {
        QFETCH(QString, inicio);
        Capicua capicua;
        Corrida corrida{Corrida::Cesion()};
        QCOMPARE(capicua.busca(inicio, corrida), Capicua::Fin::Hallado);
        QTEST(static_cast<int>(capicua.numSumas()), "sumas");
        QTEST(capicua.actual(), "capicua");
    }

    void sinCapicua_data()
    {
        QTest::addColumn<QString>("inicio");
        QTest::addColumn<int>("sumas");
        QTest::newRow("empty") << u" "_s << 0;
        QTest::newRow("letters") << u"abc"_s << 0;
        QTest::newRow("negative") << u"-12"_s << 0;
        QTest::newRow("beyond the longest number") << u'9' + QString(24'574, u'8') << 1;
    }
    void sinCapicua()
    {
        QFETCH(QString, inicio);
        Capicua capicua;
        Corrida corrida{Corrida::Cesion()};
        QCOMPARE(capicua.busca(inicio, corrida), Capicua::Fin::SinNumero);
        QTEST(static_cast<int>(capicua.numSumas()), "sumas");
    }

    void el196()
    {
        Corrida *donde = nullptr;
        int cesiones = 0;
        Corrida corrida([&] {
            if (++cesiones == 3)
                donde->detener();
        });
        donde = &corrida;
        Capicua capicua;
        QCOMPARE(capicua.busca(u"196"_s, corrida), Capicua::Fin::Detenida);
        QVERIFY(capicua.numSumas() > 10);
        QVERIFY(capicua.actual() != Inverso(capicua.actual()));
    }
};

NUMORA_TEST_MAIN(TestFuncionesRecursivas)
#include "tst_FuncionesRecursivas.moc"
