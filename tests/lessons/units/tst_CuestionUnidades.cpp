#include "lessons/units/CuestionUnidades.h"
#include "tests/shell/support/Entorno.h"

using namespace Qt::Literals::StringLiterals;
using Tipo = CuestionUnidades::Tipo;

/// The questions: their judgement and what is said of a wrong answer.
class TestCuestionUnidades : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void juicios_data()
    {
        QTest::addColumn<Tipo>("tipo");
        QTest::addColumn<int>("n");
        QTest::addColumn<int>("a");
        QTest::addColumn<int>("k");
        QTest::addColumn<int>("respuesta");
        QTest::addColumn<bool>("acierto");
        QTest::addColumn<QString>("motivo");
        const auto fila = [](const char *nombre, Tipo tipo, int n, int a, int k) -> QTestData & {
            return QTest::newRow(nombre) << tipo << n << a << k;
        };
        const auto inverso = [&](const char *nombre) -> QTestData & {
            return fila(nombre, Tipo::Inverso, 26, 7, 0);
        };
        inverso("inverse") << 15 << true << QString();
        inverso("inverse, negative") << -11 << true << u"Entre 0 y 25 se escribe 15."_s;
        inverso("inverse, beyond n") << 41 << true << u"Entre 0 y 25 se escribe 15."_s;
        inverso("inverse, wrong") << 11 << false
                                  << u"7 · 11 = 77, que es 25 módulo 26, y tendría que ser 1."_s;
        inverso("inverse, huge") << 1'000'000'000 << false
                                 << u"7 · 1000000000 = 7000000000, que es 6 módulo 26, y tendría "
                                    u"que ser 1."_s;
        const auto orden = [&](const char *nombre) -> QTestData & {
            return fila(nombre, Tipo::Orden, 13, 3, 0);
        };
        orden("order") << 3 << true << QString();
        orden("order, a multiple")
            << 12 << false << u"3^12 sí da 1, pero hay un exponente menor que también lo da."_s;
        orden("order, wrong") << 2 << false << u"3^2 da 9 módulo 13, y tendría que dar 1."_s;
        orden("order, zero") << 0 << false << u"El orden es un exponente positivo."_s;
        const auto raiz = [&](const char *nombre) -> QTestData & {
            return fila(nombre, Tipo::RaizPrimitiva, 14, 0, 0);
        };
        raiz("root") << 5 << true << u"Hay 2 en total."_s;
        raiz("root, negative") << -9 << true << u"Hay 2 en total."_s;
        raiz("root, short order")
            << 9 << false << u"El orden de 9 es 3: sus potencias son solo 3 de las 6 unidades."_s;
        raiz("root, no unit") << 21 << false << u"21 no es una unidad: mcd(21, 14) = 7."_s;
        raiz("root, zero") << 0 << false << u"0 no es una unidad: mcd(0, 14) = 14."_s;
        const auto fi = [&](const char *nombre) -> QTestData & {
            return fila(nombre, Tipo::Fi, 360, 0, 0);
        };
        fi("phi") << 96 << true << QString();
        fi("phi as of a prime") << 359 << false
                                << u"φ(n) = n − 1 solo si n es primo, y 360 = 2^3 · 3^2 · 5."_s;
        fi("phi without exponents")
            << 8 << false
            << u"Has tomado cada primo una sola vez, pero 360 = 2^3 · 3^2 · 5 y φ(p^k) = "
               u"p^(k−1)·(p − 1)."_s;
        fi("phi, too small") << 95 << false
                             << u"Es mayor que 95. Ten en cuenta que 360 = 2^3 · 3^2 · 5."_s;
        fi("phi, too large") << 97 << false
                             << u"Es menor que 97. Ten en cuenta que 360 = 2^3 · 3^2 · 5."_s;
        const auto potencia = [&](const char *nombre) -> QTestData & {
            return fila(nombre, Tipo::Potencia, 10, 3, 1002);
        };
        potencia("power") << 9 << true << QString();
        potencia("power, congruent")
            << -1 << false
            << u"-1 es congruente con la solución, pero un resto está entre 0 y 9."_s;
        potencia("power, wrong") << 7 << false
                                 << u"Como φ(10) = 4 y 3 es una unidad, 3^4 da 1: basta calcular "
                                    u"3^2, porque 2 es el resto de 1002 entre 4."_s;
    }
    void juicios()
    {
        QFETCH(Tipo, tipo);
        QFETCH(int, n);
        QFETCH(int, a);
        QFETCH(int, k);
        QFETCH(int, respuesta);
        const auto juicio = CuestionUnidades(tipo, n, a, k).juzga(respuesta);
        QTEST(juicio.acierto, "acierto");
        QTEST(juicio.motivo, "motivo");
    }

    /// Whatever is drawn has its answer, and the next number is none (but for roots, of which there
    /// are several).
    void alAzar()
    {
        const QList<Tipo> tipos{Tipo::Inverso, Tipo::Orden, Tipo::RaizPrimitiva, Tipo::Fi,
                                Tipo::Potencia};
        for (const Tipo tipo : tipos) {
            QSet<QString> enunciados;
            for (int vez = 0; vez < 100; ++vez) {
                const auto cuestion = CuestionUnidades::alAzar({tipo});
                QCOMPARE(cuestion.tipo(), tipo);
                enunciados << cuestion.enunciado();
                const std::int32_t solucion = cuestion.solucion();
                const QByteArray texto = cuestion.enunciado().toUtf8();
                QVERIFY2(cuestion.juzga(solucion).acierto, texto.constData());
                QVERIFY2(solucion != 1 || tipo == Tipo::Potencia, texto.constData());
                if (tipo == Tipo::RaizPrimitiva)
                    continue;
                const auto otra = cuestion.juzga(solucion + 1);
                QVERIFY2(!otra.acierto && !otra.motivo.isEmpty(), texto.constData());
            }
            QVERIFY(enunciados.size() > 5);
        }
    }
};

NUMORA_TEST_MAIN(TestCuestionUnidades)
#include "tst_CuestionUnidades.moc"
