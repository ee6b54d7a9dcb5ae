// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/recursion/functions/Ack.h"
#include "lessons/recursion/functions/windows/ModeloAck.h"
#include "tests/Tabla.h"
#include "tests/lessons/recursion/Detenida.h"
#include "tests/shell/support/Entorno.h"

#include <QAbstractItemModelTester>
#include <map>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

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
    explicit Prueba(int corte = 1'000'000, const Billete &billete = {})
        : ack(memoria, corte, billete)
    {
    }

    int calcula(int m, int n) { return ack.calcula(m, n).completa(); }

    std::shared_ptr<MemoriaAck> memoria = std::make_shared<MemoriaAck>(1, 1);
    Ack ack;
};

/// What an action ends in; a test that meets no error fails by its number.
template <typename Accion>
ErrorEjecucion errorDe(Accion accion)
{
    try {
        accion();
    } catch (const ErrorEjecucion &error) {
        return error;
    }
    qFatal("no error");
}

} // namespace

/// Ackermann's function without a window.
class TestAck : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void ackComoLaDefinicion_data()
    {
        filasDeTexto<int, int, int>(uR"(
            0 | 7 | 8 || 1 | 0 | 2 || 1 | 50 | 52 || 2 | 0 | 3 || 2 | 3 | 9 || 2 | 100 | 203
            3 | 0 | 5 || 3 | 6 | 509 || 3 | 9 | 4093 || 4 | 0 | 13)"_s);
    }
    void ackComoLaDefinicion()
    {
        const auto [m, n, valor] = estaFila<int, int, int>();
        Prueba prueba;
        QCOMPARE(prueba.calcula(m, n), valor);
        AckPorDefinicion definicion;
        definicion.calcula(m, n);
        QCOMPARE(prueba.ack.numLlamadas(), definicion.llamadas);
        QCOMPARE(prueba.memoria->filas(), definicion.filas);
        QCOMPARE(prueba.memoria->columnas(), definicion.columnas);
        for (int columna = 0; columna < definicion.columnas; ++columna) {
            for (int fila = 0; fila < definicion.filas; ++fila) {
                const auto celda = definicion.valores.find({columna, fila});
                const int esperado = celda == definicion.valores.end() ? 0 : celda->second;
                QCOMPARE(prueba.memoria->lee(columna, fila), esperado);
            }
        }
    }

    /// The figure of the lesson's page: eight cells with m = 0, eight with 1, four with 2.
    void celdasDeAck23()
    {
        Prueba prueba;
        prueba.calcula(2, 3);
        QStringList columnas;
        for (int m = 0; m <= 2; ++m) {
            QStringList celdas;
            for (int n = 0; n < prueba.memoria->filas(); ++n) {
                if (prueba.memoria->lee(m, n) > 0)
                    celdas << QString::number(n);
            }
            columnas << celdas.join(u' ');
        }
        QCOMPARE(columnas.join(u" | "_s), u"1 2 3 4 5 6 7 8 | 0 1 2 3 4 5 6 7 | 0 1 2 3"_s);
        QCOMPARE(prueba.ack.numLlamadas(), 23);
    }

    void elCorte_data()
    {
        filasDeTexto<int, int, int, int, int, int>(uR"(
            argument at the cut-off               | 0 | 5000 | 5000 | 5001 | 5001 | 1
            argument beyond: the grid grows first | 0 | 6000 | 5000 | 0    | 6001 | 1
            m at the cut-off                      | 2 | 0    | 2    | 3    | 3    | 3
            m beyond                              | 9 | 2    | 8    | 0    | 3    | 10
            just enough inside                    | 3 | 5    | 252  | 253  | 253  | 4
            one too few inside                    | 3 | 5    | 251  | 0    | 253  | 4
            4, 1 with the default                 | 4 | 1    | 5000 | 0    | 5002 | 5
            negative                              | 0 | 0    | -1   | 0    | 1    | 1)"_s);
    }
    void elCorte()
    {
        const auto [m, n, corte, valor, filas, columnas] = estaFila<int, int, int, int, int, int>();
        Prueba prueba(corte);
        QCOMPARE(prueba.calcula(m, n), valor);
        QCOMPARE(prueba.ack.rendido(), valor == 0);
        QCOMPARE(prueba.memoria->filas(), filas);
        QCOMPARE(prueba.memoria->columnas(), columnas);
    }

    /// The calls that waited leave a 0; the one that was refused leaves its cell empty, and what
    /// was found before stays.
    void loQueQuedaTrasElCorte()
    {
        const Tareas tareas([](const std::exception_ptr &) {});
        const Billete otro = tareas.billete();
        Prueba prueba(6, tareas.billete());
        QCOMPARE(prueba.calcula(2, 3), 0);
        // Ack(2, 2) = Ack(1, 5), which waits for Ack(1, 4) = 6 and then asks for Ack(0, 6) = 7;
        // Ack(2, 3) = Ack(1, 7) is refused.
        QCOMPARE(prueba.memoria->lee(2, 2), 7);
        QVERIFY(prueba.memoria->escrita(2, 3));
        QCOMPARE(prueba.memoria->lee(2, 3), 0);
        QVERIFY(!prueba.memoria->escrita(1, 7));
        ModeloAck modelo(prueba.memoria);
        QCOMPARE(modelo.index(3, 2).data().toString(), u"0"_s);
        QCOMPARE(modelo.index(7, 1).data(), QVariant());
        // The stop flag is that of the whole window.
        QVERIFY(otro.detenida());
        // The memory counts a 0 as not known: with more room the same call comes to its end.
        QCOMPARE(Ack(prueba.memoria, 100, {}).calcula(2, 3).completa(), 9);
    }

    void unMillonDeFilasYArgumentosNegativos()
    {
        Prueba prueba(INT_MAX);
        QCOMPARE(prueba.calcula(1, 999'998), 1'000'000);
        QCOMPARE(prueba.memoria->filas(), MemoriaAck::MaximoDeLineas);
        for (const auto &[m, n] :
             {std::pair(1, 999'999), std::pair(4, 2), std::pair(0, INT_MAX), std::pair(INT_MAX, 0),
              std::pair(6, 6), std::pair(MemoriaAck::MaximoDeLineas, 0)}) {
            Prueba otra(INT_MAX);
            const ErrorEjecucion error = errorDe([&, m = m, n = n] { otra.calcula(m, n); });
            QCOMPARE(error.numero(), ErrorEjecucion::Desbordamiento);
            QVERIFY(error.detalle().contains(u"1.000.000"_s));
            QVERIFY(otra.memoria->columnas() <= MemoriaAck::MaximoDeLineas);
        }
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, prueba.calcula(-1, 3));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, prueba.calcula(3, -1));
    }

    /// Stopped in its first yield. What was found stays, and is right; the calls that waited give
    /// 0.
    void ackDetenido()
    {
        const auto memoria = std::make_shared<MemoriaAck>(1, 1);
        std::shared_ptr<Ack> ack;
        const auto valor = detenida(0ms, [&](const Billete &billete) {
            ack = std::make_shared<Ack>(memoria, INT_MAX, billete);
            return ack->calcula(4, 2);
        });
        QCOMPARE(valor, 0);
        QVERIFY(!ack->rendido());
        QVERIFY(memoria->lee(1, 10) == 12 && memoria->lee(3, 0) == 5);
        QVERIFY(memoria->escrita(4, 2) && memoria->lee(4, 2) == 0);
    }

    void losCampos()
    {
        const QList<std::pair<QString, int>> numeros{
            {u"5000"_s, 5000}, {u" 7 "_s, 7}, {u"2,5"_s, 2}, {u"3.5"_s, 4}, {u"1,5e3"_s, 1500}};
        for (const auto &[texto, valor] : numeros)
            QCOMPARE(enteroDeTexto(texto, u"x"_s), valor);
        for (const QString &texto : {u"abc"_s, u"2*3"_s, QString(), u"3000000000"_s, u"1e300"_s}) {
            const bool grande = texto.size() > 3;
            QCOMPARE(errorDe([&] { enteroDeTexto(texto, u"x"_s); }).numero(),
                     grande ? ErrorEjecucion::Desbordamiento : ErrorEjecucion::TipoNoCoincide);
        }
    }

    void laTablaDeAck()
    {
        Prueba prueba;
        ModeloAck modelo(prueba.memoria);
        const QAbstractItemModelTester probador(&modelo);
        prueba.calcula(2, 3);
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
        modelo.pon(std::make_shared<MemoriaAck>(9, 3));
        QCOMPARE(modelo.rowCount(), 9);
        QCOMPARE(modelo.index(3, 2).data(), QVariant());
        QCOMPARE(modelo.index(3, 2).data(Qt::BackgroundRole), QVariant());
    }
};

NUMORA_TEST_MAIN(TestAck)
#include "tst_Ack.moc"
