// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "minical/HojaGuardada.h"
#include "minical/Sustitucion.h"
#include "minical/TextosDeHoja.h"
#include "tests/Tabla.h"
#include "tests/TareasQueSeVan.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"

namespace {

/// Names replaced one after the other, as the rule is told: the oracle of the quick way.
QString sustituyePasoAPaso(const ColVariables &variables, QString expresion)
{
    for (const auto &[orden, variable] : variables) {
        for (auto i = expresion.indexOf(variable.Nombre()); i >= 0;
             i = expresion.indexOf(variable.Nombre()))
            expresion.replace(i, variable.Nombre().size(), variable.Valor());
    }
    return expresion;
}

QString alAzar(QRandomGenerator &azar, QStringView letras, int largo)
{
    QString s;
    while (s.size() < largo)
        s += letras[azar.bounded(static_cast<int>(letras.size()))];
    return s;
}

QString nombres(const ColVariables &variables)
{
    QString lista;
    for (const auto &[orden, variable] : variables)
        lista += variable.Nombre() + u' ';
    return lista.trimmed();
}

} // namespace

/// The sheet without its window: what cells hold, show, and see of one another.
class TestHojaDeCalculo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void nombresDeCelda()
    {
        QCOMPARE(NombreCelda({1, 1}), u"A1"_s);
        QCOMPARE(NombreCelda({99, 25}), u"Y99"_s);
        QCOMPARE(NombreCelda({0, 3}), u"C"_s);
        QCOMPARE(NombreCelda({7, 0}), u"7"_s);
        QCOMPARE(celdaDeNombre(u"C12"), (Celda{12, 3}));
        for (const QString &texto : {u""_s, u"A"_s, u"A0"_s, u"A01"_s, u"A100"_s, u"Z1"_s, u"a1"_s,
                                     u"1A"_s, u"A 1"_s, u"A+1"_s, u"A1 "_s, u"@1"_s, u"A-1"_s})
            QVERIFY2(!celdaDeNombre(texto), qPrintable(texto));
    }

    void coleccion()
    {
        ColVariables v;
        for (const QString &nombre : {u"B1"_s, u"A1"_s, u"C1"_s})
            v.Agregar(nombre, u"(1)"_s);
        QCOMPARE(v.Agregar(u"B1"_s, u"(4)"_s).Valor(), u"(4)"_s);
        QCOMPARE(nombres(v), u"B1 A1 C1"_s);
        QCOMPARE(v.Count(), 3);
        QCOMPARE(v.Item(2).Nombre(), u"A1"_s);
        QCOMPARE(v.Item(u"B1"_s).Valor(), u"(4)"_s);
        v.Remove(u"Z9"_s);
        v.Remove(u"B1"_s);
        v.Agregar(u"B1"_s, u"(5)"_s);
        QCOMPARE(nombres(v), u"A1 C1 B1"_s);
        v.Remove(1);
        QCOMPARE(nombres(v), u"C1 B1"_s);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, v.Item(3));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, v.Remove(0));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, v.Item(u"A1"_s));
    }

    void sustituirComoPasoAPaso()
    {
        QRandomGenerator azar(20261121);
        const QStringList algunos{u"A1"_s, u"A12"_s, u"B2"_s, u"B22"_s, u"A2"_s, u"Y9"_s, u"Y99"_s};
        for (int prueba = 0; prueba < 3000; ++prueba) {
            ColVariables v;
            for (int n = azar.bounded(9); n > 0; --n)
                v.Agregar(algunos[azar.bounded(static_cast<int>(algunos.size()))],
                          u'(' + alAzar(azar, u"0129-/", azar.bounded(5)) + u')');
            const QString texto = alAzar(azar, u"AABYa12291290+()", azar.bounded(24));
            QCOMPARE(sustituyeVariables(v, texto, 1000), sustituyePasoAPaso(v, texto));
        }
    }

    void expresiones_data()
    {
        filasDeTexto<QString, QString>(uR"(
            always over the rationals | 1/2+1/3 | 5/6 || mod, with blanks | 2 mod 3 | 2
            mod, between digits | 2mod3 | 2 || mod, in capitals and brackets | (7)MOD(3) | 1
            letter before mod | 2amod3 | Error || letter after mod | 2 modo 3 | Error
            second mod too close | 7mod3mod2 | Error || mod at the start | mod 3 | Error
            mod alone | MOD | Error || blank | "   " | || division by zero | 1/0 | Error
            unknown name | B7+1 | Error || name in small letters | a1+1 | Error
            does not fit | 9^9^9^9 | Error || one digit too many | 10^24575 | Error
            name used | A1*2 | 10 || name within a longer one | A12 | 10
            value as a function's argument | fiA1 | 4
            value of a fraction is bracketed | C1^2 | 1/9
            negative value is bracketed | 2-D1 | 6 || outside Windows-1252 | 2·3→5 | Error)"_s);
    }
    void expresiones()
    {
        const auto [expresion, muestra] = estaFila<QString, QString>();
        HojaCon hoja{{u"A1", u"5"}, {u"C1", u"1/3"}, {u"D1", u"-4"}};
        QCOMPARE(entra(hoja, u"B1", expresion), muestra);
        QCOMPARE(hoja.Expresiones(1, 2), expresion);
        const bool tiene = hoja.Variables().busca(u"B1"_s) != hoja.Variables().end();
        const QString r = resultado(hoja, u"B1");
        QCOMPARE(tiene, !r.isEmpty() && r != u"Error"_s);
    }

    void elMayorResultado()
    {
        HojaCon hoja{{u"A1", u"10^24574"}};
        QCOMPARE(hoja.texto(en(u"A1")).size(), 24575);
        QCOMPARE(entra(hoja, u"B1", u"A1+1"_s).right(3), u"001"_s);
        QCOMPARE(entra(hoja, u"C1", u"A1*10"_s), u"Error"_s);
    }

    void loDemasiadoLargoNiSeSustituye()
    {
        HojaCon hoja{{u"A1", u"10^24000"}};
        QCOMPARE(sustituyeVariables(hoja.Variables(), u"A1-"_s, 24'004).size(), 24'004);
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion,
                                 sustituyeVariables(hoja.Variables(), u"A1-"_s, 24'003));
        const QString muchas = u"A1+"_s.repeated(30'000) + u"1"_s;
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, hoja.SustituirVariables(muchas));
        QCOMPARE(entra(hoja, u"B1", muchas), u"Error"_s);
    }

    void nadaSeRecalculaSolo()
    {
        HojaCon hoja{{u"A1", u"5"}, {u"B1", u"A1*2"}, {u"A1", u"6"}};
        QCOMPARE(resultado(hoja, u"B1"), u"10"_s);
        QVERIFY(!hoja.finDeEdicion(en(u"B1"), u"A1*2"_s));
        QCOMPARE(resultado(hoja, u"B1"), u"10"_s);
        QVERIFY(hoja.Recalcular(en(u"B1")));
        QCOMPARE(resultado(hoja, u"B1"), u"12"_s);
        // The error of a cell makes those that use it fail when they are evaluated again.
        entra(hoja, u"A1", u"1/0"_s);
        QCOMPARE(resultado(hoja, u"B1"), u"12"_s);
        hoja.Recalcular(en(u"B1"));
        QCOMPARE(resultado(hoja, u"B1"), u"Error"_s);
        QCOMPARE(hoja.Variables().Count(), 0);
    }

    void unaVariableQueVuelveVaAlFinal()
    {
        HojaCon hoja{{u"A1", u"5"}, {u"A12", u"7"}, {u"B1", u"A12"}};
        QCOMPARE(resultado(hoja, u"B1"), u"10"_s);
        entra(hoja, u"A1", QString());
        entra(hoja, u"A1", u"5"_s);
        hoja.Recalcular(en(u"B1"));
        QCOMPARE(resultado(hoja, u"B1"), u"7"_s);
    }

    void valorDecimal()
    {
        HojaCon hoja{{u"A1", u"3/4"}, {u"A2", u"12"}, {u"A4", u"-1/8"}};
        QVERIFY(hoja.ValorDecimal(en(u"A1")));
        QCOMPARE(resultado(hoja, u"A1"), u"0,75"_s);
        QCOMPARE(hoja.Variables().Item(u"A1"_s).Valor(), u"(3/4)"_s);
        QVERIFY(!hoja.ValorDecimal(en(u"A1")));
        // An edit that changes nothing gives the decimal back.
        hoja.MostrarExpresiones();
        QVERIFY(!hoja.finDeEdicion(en(u"A1"), u"3/4"_s));
        QCOMPARE(hoja.texto(en(u"A1")), u"0,75"_s);
        hoja.Recalcular(en(u"A1"));
        QCOMPARE(hoja.texto(en(u"A1")), u"3/4"_s);
        QVERIFY(!hoja.ValorDecimal(en(u"A2")));
        QVERIFY(!hoja.ValorDecimal(en(u"A3")));
        QVERIFY(!hoja.ValorDecimal({0, 1}) && !hoja.Recalcular({1, 0}));
        QVERIFY(hoja.ValorDecimal(en(u"A4")) && !hoja.ValorDecimal(en(u"A4")));
        QCOMPARE(resultado(hoja, u"A4"), u"-0,125"_s);
    }

    void unDecimalQueNoCabeEsErrorPeroElValorSigue()
    {
        HojaCon hoja{{u"A1", u"10^20000+1/3"}};
        hoja.ValorDecimal(en(u"A1"));
        QCOMPARE(resultado(hoja, u"A1"), u"Error"_s);
        QCOMPARE(entra(hoja, u"B1", u"A1-10^20000"_s), u"1/3"_s);
    }

    void esDecimal()
    {
        for (const auto texto : {u"", u"12", u"0,5", u"1.5", u",.,"})
            QVERIFY(HojaDeCalculo::EsDecimal(texto));
        for (const auto texto : {u"1/2", u"-5", u" 5", u"Error", u"٣"})
            QVERIFY(!HojaDeCalculo::EsDecimal(texto));
    }

    void expresionesYResultados()
    {
        HojaCon hoja{{u"A1", u"1/4"}, {u"B2", u"7 mod 3"}};
        hoja.ValorDecimal(en(u"A1"));
        hoja.MostrarExpresiones();
        QCOMPARE(hoja.texto(en(u"A1")), u"1/4"_s);
        QCOMPARE(hoja.texto(en(u"B2")), u"7 mod 3"_s);
        // A cell that is evaluated meanwhile shows its result.
        QCOMPARE(entra(hoja, u"B2", u"8 mod 3"_s), u"2"_s);
        hoja.MostrarResultados();
        QCOMPARE(hoja.texto(en(u"A1")), u"0,25"_s);
        QCOMPARE(hoja.texto(en(u"B2")), u"2"_s);
    }

    void deshacerYRehacer()
    {
        HojaDeCalculo hoja;
        QVERIFY(!hoja.historial().modificado());
        entra(hoja, u"A1", u"5"_s);
        entra(hoja, u"A12", u"7"_s);
        hoja.historial().marcaGuardado();
        hoja.borra({en(u"A1"), en(u"A12"), en(u"B9")});
        QCOMPARE(hoja.Variables().Count(), 0);
        QCOMPARE(hoja.deshace().size(), 2);
        QVERIFY(!hoja.historial().modificado());
        // With its place in the order: A1 is still replaced before A12.
        QCOMPARE(nombres(hoja.Variables()), u"A1 A12"_s);
        QCOMPARE(entra(hoja, u"B1", u"A12"_s), u"10"_s);
        QVERIFY(!hoja.historial().puedeRehacer());
        entra(hoja, u"A1", u"1/3"_s);
        hoja.ValorDecimal(en(u"A1"));
        hoja.deshace();
        QCOMPARE(resultado(hoja, u"A1"), u"1/3"_s);
        hoja.deshace();
        QCOMPARE(hoja.Variables().Item(u"A1"_s).Valor(), u"(5)"_s);
        hoja.rehace();
        QCOMPARE(hoja.Variables().Item(u"A1"_s).Valor(), u"(1/3)"_s);
        while (hoja.historial().puedeDeshacer())
            hoja.deshace();
        QCOMPARE(hoja.ultimaUsada(), Celda());
        QVERIFY(hoja.historial().modificado());
        QVERIFY(hoja.deshace().isEmpty());
    }

    /// What comes back has its old place, and what is new comes behind all.
    void loQueVuelveNoQuitaElSitioANadie()
    {
        HojaCon hoja{{u"A1", u"5"}, {u"A2", u"7"}};
        hoja.borra({en(u"A1")});
        hoja.deshace();
        entra(hoja, u"B1", u"1"_s);
        QCOMPARE(nombres(hoja.Variables()), u"A1 A2 B1"_s);
    }

    /// Whatever is done, undoing all of it leads back through the same sheets.
    void deshacerAlAzar()
    {
        QRandomGenerator azar(8);
        const QStringList casillas{u"A1"_s, u"A2"_s, u"A12"_s, u"B1"_s};
        const QStringList textos{u"A1+1"_s, u"A12"_s, u"1/3"_s, QString(), u"B1/"_s, u"A2"_s};
        for (int prueba = 0; prueba < 100; ++prueba) {
            HojaDeCalculo hoja;
            QList<HojaGuardada> vistas{contenidoDe(hoja)};
            for (int paso = 0; paso < 20; ++paso) {
                const Celda celda = en(casillas[azar.bounded(4)]);
                const int que = azar.bounded(4);
                if (que == 0)
                    hoja.Recalcular(celda);
                else if (que == 1)
                    hoja.ValorDecimal(celda);
                else
                    hoja.finDeEdicion(celda, textos[azar.bounded(6)]);
                if (contenidoDe(hoja) != vistas.constLast())
                    vistas << contenidoDe(hoja);
            }
            for (auto vista = vistas.size() - 2; vista >= 0; --vista) {
                hoja.deshace();
                QCOMPARE(contenidoDe(hoja), vistas[vista]);
            }
            QVERIFY(!hoja.historial().puedeDeshacer());
            for (qsizetype vista = 1; vista < vistas.size(); ++vista) {
                hoja.rehace();
                QCOMPARE(contenidoDe(hoja), vistas[vista]);
            }
        }
    }

    void laHistoriaTieneFin()
    {
        HojaDeCalculo hoja;
        const int pasos = static_cast<int>(Historial::MaximoDePasos) + 3;
        for (int i = 1; i <= pasos; ++i)
            entra(hoja, u"A1", QString::number(i));
        while (hoja.historial().puedeDeshacer())
            hoja.deshace();
        QCOMPARE(resultado(hoja, u"A1"), u"3"_s);
        QVERIFY(hoja.historial().modificado());
    }

    void pegar()
    {
        HojaDeCalculo hoja;
        const Billete sinCeder;
        QVERIFY(hoja.pega(en(u"A1"), {{u"2"_s, u"A1^10"_s}, {u"B1+1"_s}}, sinCeder).completa());
        QCOMPARE(resultado(hoja, u"B1"), u"1024"_s);
        QCOMPARE(resultado(hoja, u"A2"), u"1025"_s);
        QVERIFY(hoja.pega(en(u"C1"), {{QString(100'000, u' ')}}, sinCeder).completa());
        QVERIFY(!hoja.pega(en(u"C2"), {{QString(100'001, u' ')}}, sinCeder).completa());
        hoja.deshace();
        QVERIFY(!hoja.pega(en(u"Y99"), {{u"1"_s, u"2"_s}, {u"3"_s}}, sinCeder).completa());
        QCOMPARE(resultado(hoja, u"Y99"), u"1"_s);
        hoja.deshace();
        hoja.deshace();
        QCOMPARE(hoja.ultimaUsada(), Celda());
    }

    /// Stopped, broken off by an error or gone with its window: what had been entered can be
    /// undone.
    void unPegadoAMedias_data()
    {
        filasDeTexto<QString>(u"stopped | stop || error | error || gone | gone"_s);
    }
    void unPegadoAMedias()
    {
        const QString como = estaFila<QString>();
        HojaDeCalculo hoja;
        int errores = 0;
        std::optional<TareasQueSeVan> tareas(std::in_place,
                                             [&](const std::exception_ptr &) { ++errores; });
        int celdas = 0;
        hoja.alCambiar = [&](Celda) {
            if (como == u"error"_s && ++celdas == 3)
                throw ErrorEjecucion(ErrorEjecucion::MemoriaInsuficiente);
        };
        const auto corre = [](HojaDeCalculo &h, Billete billete) -> Tarea<> {
            co_await h.pega(en(u"A1"), QList<QStringList>(99, QStringList(25, u"fib(20000)"_s)),
                            billete);
        };
        tareas->lanza(corre(hoja, tareas->billete()));
        QCOMPARE(hoja.modificada(), true);
        QVERIFY(hoja.ultimaUsada().columna >= 1 && hoja.ultimaUsada().fila < 99);
        if (como == u"stop"_s)
            tareas->detener();
        if (como == u"gone"_s)
            tareas.reset();
        QTRY_VERIFY(!tareas || tareas->vacias());
        QCOMPARE(errores, como == u"error"_s ? 1 : 0);
        hoja.alCambiar = {};
        hoja.deshace();
        QVERIFY(hoja.ultimaUsada().columna <= (errores == 1 ? 3 : 0) &&
                !hoja.historial().puedeDeshacer());
    }

    void csv()
    {
        HojaCon hoja{{u"A1", u"1/8"}, {u"C1", u"1/3"}, {u"B2", u"("}};
        hoja.ValorDecimal(en(u"A1"));
        hoja.MostrarExpresiones();
        QCOMPARE(csvDeHoja(hoja, u','), "0,125;;1/3\r\n;Error;\r\n"_ba);
        QCOMPARE(csvDeHoja(hoja, u'.'), "0.125,,1/3\r\n,Error,\r\n"_ba);
        QCOMPARE(csvDeHoja(HojaDeCalculo(), u','), QByteArray());
    }

    void lineasParaImprimir()
    {
        const HojaCon hoja{{u"B10", u"2^100"}, {u"A1", u"7"}, {u"C1", u" 1/2 +  1/3"}};
        QCOMPARE(lineasDeHoja(hoja, 20),
                 QStringList({u"A1   7"_s, u"C1   1/2 + 1/3"_s, u"   = 5/6"_s, u"B10  2^100"_s,
                              u"   = 126765060022822"_s, u"     940149670320537"_s, u"     6"_s}));
    }
};

NUMORA_TEST_MAIN(TestHojaDeCalculo)
#include "tst_HojaDeCalculo.moc"
