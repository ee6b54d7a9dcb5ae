// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/TextosDeQt.h"
#include "tests/shell/support/Entorno.h"

#include <QFile>
#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class TestModGlobal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }
    void cleanup() { QFile::remove(tabla()); }

    void NumVal_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<double>("valor");
        QTest::newRow("blank of the sign position") << u" 200"_s << 200.0;
        QTest::newRow("point") << u"1.5"_s << 1.5;
        QTest::newRow("comma ends the number") << u"1,5"_s << 1.0;
        QTest::newRow("exponent D") << u"-2d3"_s << -2000.0;
        QTest::newRow("letters") << u"12abc"_s << 0.0;
        QTest::newRow("sign alone") << u"-"_s << 0.0;
        QTest::newRow("empty") << QString() << 0.0;
        QTest::newRow("beyond a double") << u"1e999"_s << 0.0;
    }
    void NumVal()
    {
        QFETCH(QString, texto);
        QTEST(::NumVal(texto), "valor");
    }

    void redondeos()
    {
        QCOMPARE(Redondea(2.5), 3);
        QCOMPARE(Redondea(-2.5), -3);
        QCOMPARE(Redondea(-2.49), -2);
        QCOMPARE(Redondea(0.49999999999999994), 0);
        QCOMPARE(Redondea(-2147483648.0), std::numeric_limits<std::int32_t>::min());
        QCOMPARE(Techo(-2.5), -2);
        QCOMPARE(Techo(2147483647.0), 2147483647);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, Redondea(2147483647.5));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, Techo(2147483647.5));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, Techo(std::nan("")));
    }

    void formatos()
    {
        QCOMPARE(formatoEntero(0), u"0"_s);
        QCOMPARE(formatoEntero(1234), u"1.234"_s);
        QCOMPARE(formatoEntero(-1234567), u"-1.234.567"_s);
        QCOMPARE(formatoEntero(u"100000000000000000000"_s), u"100.000.000.000.000.000.000"_s);
        QCOMPARE(formatoEntero(u"Error"_s), u"Error"_s);
        QCOMPARE(formatoEntero(Moneda::deDiezmilesimas(-25000)), u"-3"_s);
        QCOMPARE(formatoTiempo(3661s + 999ms), u"01:01:01"_s);
        QCOMPARE(formatoTiempo(25h), u"01:00:00"_s);
    }

    void Traduce()
    {
        QCOMPARE(::Traduce(u"Primos"_s), u"Primos"_s);
        escribeTabla("[English]\r\nPrimos = Primes\r\nEl mayor es=The largest is\r\n"
                     "Uno\\ndos=One\\ntwo\r\nx \\e 1=y = 1\r\nLargo=" +
                     QByteArray(3000, 'x') + "\r\n[Français]\nPrimos=Premiers\n");
        QCOMPARE(::Traduce(u"Primos"_s), u"Primos"_s);
        Idioma() = u"english"_s;
        QCOMPARE(::Traduce(u"Primos"_s), u"Primes"_s);
        QCOMPARE(::Traduce(u"El mayor es "_s), u"The largest is "_s);
        QCOMPARE(::Traduce(u"Uno\ndos"_s), u"One\ntwo"_s);
        QCOMPARE(::Traduce(u"x = 1"_s), u"y = 1"_s);
        QCOMPARE(::Traduce(u"Largo"_s).size(), 1023);
        QCOMPARE(::Traduce(u"Sin entrada"_s), u"Sin entrada"_s);
        Idioma() = u"Français"_s;
        QCOMPARE(::Traduce(u"Primos"_s), u"Premiers"_s);
        Idioma() = QString();
        QCOMPARE(::Traduce(u"Primos"_s), u"Primos"_s);
    }

    void losTextosDeQt_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::addColumn<QString>("texto");
        QTest::newRow("Spanish") << u"Español"_s << u"Cancelar"_s;
        QTest::newRow("translated") << u"English"_s << u"Cancel"_s;
        QTest::newRow("no such section") << u"x"_s << u"Cancelar"_s;
        QTest::newRow("no language") << QString() << u"Cancelar"_s;
    }
    void losTextosDeQt()
    {
        QFETCH(QString, idioma);
        escribeTabla("[English]\nPrimos=Primes\n[Español]\nPrimos=Números primos\n");
        Idioma() = idioma;
        instalaTextosDeQt();
        QTEST(QCoreApplication::translate("QPlatformTheme", "Cancel"), "texto");
        const bool espanol = QTest::currentDataTag() != "translated"_ba;
        // One that Qt's own Spanish lacks.
        QCOMPARE(QCoreApplication::translate("QPrintSettingsOutput", "Off"),
                 espanol ? u"No"_s : u"Off"_s);
    }

    void carpetaDeLaSesion()
    {
        clsSesión sesion(u"/del/programa"_s);
        sesion.ponCarpeta({});
        QCOMPARE(sesion.carpeta(), u"/del/programa"_s);
        QCOMPARE(sesion.lee(u"Programa"_s, u"Carpeta"_s, u"nada"_s), QString());
        sesion.ponCarpeta(u"C:\\no existe"_s);
        QCOMPARE(clsSesión(u"/otra"_s).carpeta(), u"C:\\no existe"_s);
    }

    /// A test can stand on a session of its own; without one, the next use makes one.
    void otraSesion()
    {
        auto deAntes = ponSesión(std::make_unique<clsSesión>(u"/del/programa"_s));
        QCOMPARE(Sesión().carpetaPrograma(), u"/del/programa"_s);
        ponSesión(nullptr);
        QCOMPARE(Sesión().carpetaPrograma(), QCoreApplication::applicationDirPath());
        ponSesión(std::move(deAntes));
    }

    void precisionDeLaSesion()
    {
        QCOMPARE(Sesión().Precisión(), 100);
        Sesión().ponPrecisión(200);
        QCOMPARE(Sesión().lee(u"Aritmética"_s, u"Precisión"_s), u" 200"_s);
        QCOMPARE(Sesión().Precisión(), 200);
        Sesión().guarda(u"Aritmética"_s, u"Precisión"_s, u"dañada"_s);
        QCOMPARE(Sesión().Precisión(), 0);
        Sesión().guarda(u"Aritmética"_s, u"Precisión"_s, u"2.5"_s);
        QCOMPARE(Sesión().Precisión(), 2);
        Sesión().guarda(u"Aritmética"_s, u"Precisión"_s, u"1e10"_s);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, Sesión().Precisión());
    }

    void animaciones()
    {
        QHash<QString, int> eureka, error;
        constexpr int lecturas = 2200;
        for (int i = 0; i < lecturas; ++i) {
            ++eureka[Sesión().AVIEureka()];
            ++error[Sesión().AVIError()];
        }
        QCOMPARE(eureka.size(), 2);
        QCOMPARE(error.size(), 3);
        // Expected 1200, 1000 and 800, 800, 600: six standard deviations on either side.
        QVERIFY(std::abs(eureka[u"ClipArt\\EUREKA01.AVI"_s] - 1200) < 140);
        QVERIFY(std::abs(eureka[u"ClipArt\\EUREKA02.AVI"_s] - 1000) < 140);
        QVERIFY(std::abs(error[u"ClipArt\\ERROR01.AVI"_s] - 800) < 140);
        QVERIFY(std::abs(error[u"ClipArt\\ERROR03.AVI"_s] - 600) < 140);
    }

private:
    static QString tabla() { return Sesión().carpetaPrograma() + u"/Numora.txt"_s; }
    static void escribeTabla(const QByteArray &contenido)
    {
        QFile archivo(tabla());
        QVERIFY(archivo.open(QIODevice::WriteOnly));
        archivo.write(contenido);
    }
};

NUMORA_TEST_MAIN(TestModGlobal)
#include "tst_ModGlobal.moc"
