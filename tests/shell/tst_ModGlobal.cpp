// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/TextosDeQt.h"
#include "tests/shell/support/Entorno.h"

#include <limits>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

class TestModGlobal : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }
    void cleanup() { QFile::remove(tabla()); }

    void NumVal()
    {
        for (const QString &fila :
             u" 200=200|1.5=1.5|1,5=1|-2d3=-2000|12abc=0|-=0|=0|1e999=0"_s.split(u'|'))
            QCOMPARE(::NumVal(fila.section(u'=', 0, 0)), fila.section(u'=', 1).toDouble());
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
        for (const double valor : {2147483647.5, std::nan("")})
            QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, Techo(valor));
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
                     "Uno\\ndos=One\\ntwo\r\nx \\e 1=y = 1\r\nNada=\r\nLargo=" +
                     QByteArray(3000, 'x') + "\r\n[Français]\nPrimos=Premiers\n");
        const QString ingles = u"english"_s;
        for (const auto &[idioma, texto, traducido] :
             {std::tuple{u"Español"_s, u"Primos"_s, u"Primos"_s},
              {ingles, u"Primos"_s, u"Primes"_s},
              {ingles, u"El mayor es "_s, u"The largest is "_s},
              {ingles, u"Uno\ndos"_s, u"One\ntwo"_s},
              {ingles, u"x = 1"_s, u"y = 1"_s},
              {ingles, u"Largo"_s, QString(1023, u'x')},
              {ingles, u"Nada"_s, QString()},
              {ingles, u"Sin entrada"_s, u"Sin entrada"_s},
              {u"Français"_s, u"Primos"_s, u"Premiers"_s},
              {QString(), u"Primos"_s, u"Primos"_s}}) {
            Idioma() = idioma;
            QCOMPARE(::Traduce(texto), traducido);
        }
    }

    void losTextosDeQt()
    {
        escribeTabla("[English]\nPrimos=Primes\n[Español]\nPrimos=Números primos\n");
        for (const QString &idioma : {u"Español"_s, u"English"_s, u"x"_s, QString()}) {
            Idioma() = idioma;
            instalaTextosDeQt();
            const bool ingles = idioma == u"English";
            QCOMPARE(QCoreApplication::translate("QPlatformTheme", "Cancel"),
                     ingles ? u"Cancel"_s : u"Cancelar"_s);
            // One that Qt's own Spanish lacks.
            QCOMPARE(QCoreApplication::translate("QPrintSettingsOutput", "Off"),
                     ingles ? u"Off"_s : u"No"_s);
        }
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
        const auto guardada = [](const QString &texto) {
            Sesión().guarda(u"Aritmética"_s, u"Precisión"_s, texto);
            return Sesión().Precisión();
        };
        QCOMPARE(Sesión().Precisión(), 200);
        QCOMPARE(guardada(u"dañada"_s), 0);
        QCOMPARE(guardada(u"2.5"_s), 2);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, guardada(u"1e10"_s));
    }

    void animaciones()
    {
        QHash<QString, int> veces;
        for (int i = 0; i < 2200; ++i) {
            ++veces[Sesión().AVIEureka()];
            ++veces[Sesión().AVIError()];
        }
        // Six standard deviations on either side.
        for (const auto &[cual, esperadas] : {std::pair{u"EUREKA01"_s, 1200},
                                              {u"EUREKA02"_s, 1000},
                                              {u"ERROR01"_s, 800},
                                              {u"ERROR03"_s, 600}})
            QVERIFY2(std::abs(veces[u"ClipArt\\%1.AVI"_s.arg(cual)] - esperadas) < 140,
                     qPrintable(cual));
        QCOMPARE(veces.size(), 5);
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
