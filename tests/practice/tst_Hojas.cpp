// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "practice/engine/Banco.h"
#include "practice/sheets/Clase.h"
#include "practice/sheets/HojaDeEjercicios.h"
#include "shell/core/ModGlobal.h"
#include "tests/Sorteos.h"
#include "tests/Tabla.h"

#include <QFile>
#include <QTemporaryDir>

/// Sheets by their codes, and what a class has done with them.
class TestHojas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(50); }
    void cleanupTestCase() { TerminaBignum(); }

    void losCodigosVanYVuelven()
    {
        Sorteo sorteo(3);
        for (int i = 0; i < Sorteos / 5; ++i) {
            EncargoDeHoja encargo{.cuantos = static_cast<int>(sorteo.entre(1, MaximoDeEjercicios)),
                                  .serie = static_cast<int>(sorteo.entre(0, SeriesDeHoja - 1))};
            if (i % 2 == 0) {
                encargo.leccion = sorteo.moneda() ? u"euclides"_s : QString();
                encargo.nivel = static_cast<int>(sorteo.entre(0, Niveles));
            } else {
                for (int k = i % MaximoDePartes; k >= 0; --k)
                    encargo.partes << EncargoDeHoja::Parte{
                        sorteo.de(banco()).clave, static_cast<int>(sorteo.entre(1, Niveles))};
            }
            const QString codigo = codigoDeHoja(encargo);
            for (const QString &escrito : {codigo, codigo.toLower(), QString(codigo).remove(u'-'),
                                           u' ' + QString(codigo)
                                                      .replace(u'-', u' ')
                                                      .replace(u'0', u'O')
                                                      .replace(u'1', u'l')}) {
                const auto leido = leeCodigoDeHoja(escrito);
                QVERIFY2(std::holds_alternative<EncargoDeHoja>(leido), qPrintable(escrito));
                QCOMPARE(std::get<EncargoDeHoja>(leido), encargo);
            }
        }
    }

    /// Every wrong letter, and every two that were exchanged.
    void lasErratasSeNotan()
    {
        const QString codigo =
            codigoDeHoja({.leccion = u"euclides"_s, .nivel = 2, .serie = 12345}).remove(u'-');
        const auto vale = [](const QString &c) {
            return std::holds_alternative<EncargoDeHoja>(leeCodigoDeHoja(c));
        };
        QVERIFY(vale(codigo));
        for (qsizetype i = 0; i < codigo.size(); ++i) {
            for (const QChar letra : u"0123456789ABCDEFGHJKMNPQRSTVWXYZ"_s) {
                QString otro = codigo;
                otro[i] = letra;
                QVERIFY2(otro == codigo || !vale(otro), qPrintable(otro));
            }
            for (qsizetype j = i + 1; j < codigo.size(); ++j) {
                QString otro = codigo;
                std::swap(otro[i], otro[j]);
                QVERIFY2(otro == codigo || !vale(otro), qPrintable(otro));
            }
        }
        for (const QString &nada : {u""_s, u"hola"_s, u"ÑÑÑ-ÑÑÑÑ"_s, QString(5000, u'7')})
            QVERIFY(!vale(nada));
    }

    /// These are a promise: a code that was given out names the same sheet for ever.
    void unCodigoNoCambia()
    {
        QCOMPARE(codigoDeHoja({.leccion = u"euclides"_s, .nivel = 1, .cuantos = 5, .serie = 77}),
                 CodigoPrometido);
        const EncargoDeHoja encargo{.partes = {{u"euclides.mcd"_s, 1}}, .cuantos = 3, .serie = 77};
        const auto hoja = ejerciciosDeHoja(encargo);
        QStringList respuestas;
        for (const EjercicioDeHoja &uno : hoja)
            respuestas << uno.ejercicio.esperada;
        QCOMPARE(respuestas.join(u' '), RespuestasPrometidas);
    }

    void laMismaHojaEnLosDosIdiomas()
    {
        const EncargoDeHoja encargo{.cuantos = 32, .serie = 9};
        const auto resumen = [&](const QString &idioma) {
            Idioma() = idioma;
            QStringList partes;
            for (const EjercicioDeHoja &uno : ejerciciosDeHoja(encargo))
                partes << uno.tipo->clave + QString::number(uno.nivel);
            Idioma() = u"Español"_s;
            return partes;
        };
        QCOMPARE(resumen(u"English"_s), resumen(u"Español"_s));
        const QString sin = hojaEnHtml(encargo, false), con = hojaEnHtml(encargo, true);
        QVERIFY(!sin.contains(u"Una respuesta correcta"));
        QCOMPARE(con.count(u"Una respuesta correcta"), 32);
        QVERIFY(con.contains(codigoDeHoja(encargo)));
    }

    void losResultadosVanYVuelven()
    {
        const Resultados ida{u"=Ana; \"la\"\nÑu"_s, {hecho(u"mcm no-divide"_s)}};
        const QByteArray csv = resultadosEnCsv(ida);
        QVERIFY(csv.contains(";'=Ana"));
        const auto vuelta = leeResultados(csv);
        QVERIFY2(std::holds_alternative<Resultados>(vuelta), csv);
        const Resultados leidos = std::get<Resultados>(vuelta);
        QCOMPARE(leidos.alumno, u"=Ana la Ñu"_s);
        const Hecho &uno = leidos.hechos.constFirst();
        QCOMPARE(std::tuple(uno.clave, uno.hoja, uno.intentos, uno.milisegundos),
                 std::tuple(u"euclides.mcd"_s, u"4-X"_s, 3, 9000));
        QCOMPARE(uno.notas, (QStringList{u"mcm"_s, u"no-divide"_s}));
        QVERIFY(resultadosEnTexto(ida).contains(u"intentos 3"));
        Hecho largo = uno; // a window that was left open for weeks
        largo.milisegundos = 2'000'000'000;
        QVERIFY(std::holds_alternative<Resultados>(leeResultados(resultadosEnCsv({{}, {largo}}))));
    }

    /// Whatever a folder holds, it is refused with a word or taken, and nothing else happens.
    void losArchivosHostilesSeRechazan_data()
    {
        filasDeTexto<QByteArray>(uR"(
            nothing | ""
            no table | hola
            no name | numora-resultados-2;Ana
            a level | euclides.mcd;9;acertado;1;0;1;2026-01-01;
            a kind | nada.mas;1;acertado;1;0;1;2026-01-01;
            a number | euclides.mcd;1;acertado;1e9;0;1;2026-01-01;
            a negative one | euclides.mcd;1;acertado;-1;0;1;2026-01-01;
            a day | euclides.mcd;1;acertado;1;0;1;ayer;
            a note | euclides.mcd;1;acertado;1;0;1;2026-01-01;<b>mal</b>
            columns | euclides.mcd;1)"_s);
    }
    void losArchivosHostilesSeRechazan()
    {
        const auto fila = estaFila<QByteArray>();
        const QByteArray cabecera = resultadosEnCsv({u"Ana"_s, {}});
        const QByteArray archivo =
            fila.count(';') > 0 && !fila.startsWith("numora") ? cabecera + ';' + fila + "\n" : fila;
        const auto leido = leeResultados(archivo);
        QVERIFY(std::holds_alternative<QString>(leido));
        QVERIFY(!std::get<QString>(leido).isEmpty());
        QVERIFY(std::holds_alternative<QString>(leeResultados(cabecera + "\xFF\xFE")));
        QVERIFY(std::holds_alternative<QString>(
            leeResultados(QByteArray(MaximoDeResultados + 1, ';'))));
    }

    void laClase()
    {
        const QTemporaryDir carpeta;
        const auto escribe = [&](const QString &nombre, const QByteArray &contenido) {
            QFile archivo(carpeta.filePath(nombre));
            QVERIFY(archivo.open(QIODevice::WriteOnly));
            archivo.write(contenido);
        };
        Hecho acertado = hecho({});
        acertado.intentos = 1;
        escribe(u"b.csv"_s, resultadosEnCsv({u"Berta"_s, {hecho(u"mcm"_s), acertado}}));
        escribe(u"a.csv"_s, resultadosEnCsv({u"Ana"_s, {hecho(u"mcm mcm"_s)}}));
        escribe(u"c.csv"_s, "basura");
        const Clase clase = claseDeCarpeta(carpeta.path());
        QCOMPARE(clase.rechazados.size(), 1);
        QVERIFY(clase.rechazados.constFirst().startsWith(u"c.csv: "));
        const RejillaDeClase rejilla = rejillaDeClase(clase);
        QCOMPARE(rejilla.cabeceras.mid(1), (QStringList{u"Ana"_s, u"Berta"_s}));
        QCOMPARE(rejilla.filas.constFirst().mid(1), (QStringList{u"0/1"_s, u"1/2"_s}));
        QCOMPARE(erroresDeClase(clase).constFirst().mid(1),
                 (QStringList{u"da el mínimo común múltiplo"_s, u"2"_s, u"3"_s}));
        QCOMPARE(hojasDeClase(clase), QStringList{u"4-X"_s});
        QVERIFY(rejillaDeClase(clase, u"otra"_s).filas.isEmpty());
    }

private:
    static inline const QString CodigoPrometido = u"4D4-02D9"_s;
    static inline const QString RespuestasPrometidas = u"2 11 9"_s;

    static Hecho hecho(const QString &notas)
    {
        return {u"euclides.mcd"_s,
                1,
                EstadoDeEjercicio::Acertado,
                3,
                0,
                notas.split(u' ', Qt::SkipEmptyParts),
                9000,
                u"4-X"_s,
                2460000};
    }
};

QTEST_GUILESS_MAIN(TestHojas)
#include "tst_Hojas.moc"
