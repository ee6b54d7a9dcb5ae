// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/store/AlmacenDeProgreso.h"
#include "practice/store/Cuaderno.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Permisos.h"

#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QSqlQuery>
#include <QTemporaryDir>
#include <memory>
#include <thread>

using namespace std::chrono_literals;

/// What a student has done stays, whatever happens to its file.
class TestAlmacenDeProgreso : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_carpeta = std::make_unique<QTemporaryDir>(); }

    void loAnotadoSeRecuerda()
    {
        Hecho hecho = hechoDe(u"euclides.mcd"_s);
        {
            AlmacenDeProgreso almacen(datos());
            QVERIFY2(almacen.abierto() && almacen.aviso().isEmpty(), qPrintable(almacen.aviso()));
            qint64 id = 0;
            QCOMPARE(almacen.anota(hecho, id), QString());
            hecho.estado = EstadoDeEjercicio::Acertado;
            hecho.intentos = 3;
            hecho.notas << u"no-divide"_s;
            QCOMPARE(almacen.anota(hecho, id), QString());
            qint64 otro = 0;
            almacen.anota(hechoDe(u"primos.factores"_s), otro);
            QVERIFY(id > 0 && otro > id);
        }
        // A mistake in an exercise that was begun since by another program.
        ordena({u"INSERT INTO fallo VALUES (77, 0, 'suma')"_s});
        const auto hechos = AlmacenDeProgreso(datos()).hechos();
        QCOMPARE(hechos.size(), 2);
        QCOMPARE(hechos[0].notas, (QStringList{u"mcm"_s, u"no-divide"_s}));
        QCOMPARE(hechos[0].estado, EstadoDeEjercicio::Acertado);
        QCOMPARE(hechos[0].hoja, u"MD7-4K2Q"_s);
        QCOMPARE(std::tuple(hechos[0].intentos, hechos[0].pistas, hechos[0].dia),
                 std::tuple(3, 1, 2460000));
        QCOMPARE(hechos[1].clave, u"primos.factores"_s);
    }

    /// Nobody else reads it, and what hangs on an exercise goes with it.
    void esDeUnoSolo()
    {
        AlmacenDeProgreso almacen(datos());
        qint64 id = 0;
        almacen.anota(hechoDe(u"a.b"_s), id);
        // On Windows SQLite leaves its journals to what the folder grants.
        const QStringList suyos = QSysInfo::kernelType() == u"winnt"_s
                                      ? QStringList{AlmacenDeProgreso::nombreDeArchivo()}
                                      : QDir(datos()).entryList(QDir::Files);
        for (const QString &archivo : suyos)
            QVERIFY2(esSoloDeSuDuena(datos() + u'/' + archivo), qPrintable(archivo));
        QCOMPARE(almacen.borraTodo(), QString());
        QVERIFY(almacen.hechos().isEmpty());
        QCOMPARE(uno(u"SELECT count(*) FROM fallo"_s), 0);
        QCOMPARE(uno(u"PRAGMA journal_mode"_s, true), u"wal"_s);
    }

    void unaVersionAnteriorSePoneAlDia()
    {
        qint64 id = 0;
        AlmacenDeProgreso(datos()).anota(hechoDe(u"a.b"_s), id);
        ordena({u"DROP INDEX ejercicio_por_hoja"_s, u"UPDATE version SET numero = 1"_s});
        QCOMPARE(AlmacenDeProgreso(datos()).hechos().size(), 1);
        QCOMPARE(uno(u"SELECT numero FROM version"_s), AlmacenDeProgreso::Version);
        QCOMPARE(uno(u"SELECT count(*) FROM sqlite_master WHERE name = 'ejercicio_por_hoja'"_s), 1);
    }

    /// Another program is at it already when this one begins.
    void dosLaPonenAlDiaALaVez()
    {
        qint64 id = 0;
        AlmacenDeProgreso(datos()).anota(hechoDe(u"a.b"_s), id);
        ordena({u"DROP INDEX ejercicio_por_hoja"_s, u"UPDATE version SET numero = 1"_s});
        QSemaphore empezado;
        std::thread otro([&] {
            const auto suya = conexion();
            QSqlQuery(suya->base).exec(u"BEGIN IMMEDIATE"_s);
            empezado.release();
            std::this_thread::sleep_for(400ms);
            for (const auto &orden : {u"CREATE INDEX ejercicio_por_hoja ON ejercicio (hoja)"_s,
                                      u"UPDATE version SET numero = 2"_s, u"COMMIT"_s})
                QSqlQuery(suya->base).exec(orden);
        });
        empezado.acquire();
        const AlmacenDeProgreso almacen(datos());
        otro.join();
        QVERIFY2(almacen.abierto() && almacen.aviso().isEmpty(), qPrintable(almacen.aviso()));
        QCOMPARE(almacen.hechos().size(), 1);
    }

    void unaVersionPosteriorSeDejaComoEsta()
    {
        qint64 id = 0;
        AlmacenDeProgreso(datos()).anota(hechoDe(u"a.b"_s), id);
        ordena({u"UPDATE version SET numero = 99"_s});
        AlmacenDeProgreso almacen(datos());
        QVERIFY(!almacen.abierto() && almacen.aviso().contains(u"versión posterior"));
        QCOMPARE(almacen.anota(hechoDe(u"a.b"_s), id = 0), QString());
        QVERIFY(!almacen.borraTodo().isEmpty());
        QCOMPARE(uno(u"SELECT numero FROM version"_s), 99);
        QCOMPARE(uno(u"SELECT count(*) FROM ejercicio"_s), 1);
    }

    /// Put aside with a word, and a new one begun.
    void loDanadoSeAparta_data()
    {
        filasDeTexto<QString>(uR"(
            another file | texto
            cut off | corte
            bytes turned | bytes
            other tables | tablas)"_s);
    }
    void loDanadoSeAparta()
    {
        const auto como = estaFila<QString>();
        {
            AlmacenDeProgreso almacen(datos());
            for (int i = 0; i < 60; ++i) {
                qint64 id = 0;
                almacen.anota(hechoDe(u"a.b"_s), id);
            }
        }
        estropea(como);
        AlmacenDeProgreso almacen(datos());
        QVERIFY2(almacen.abierto(), qPrintable(almacen.aviso()));
        QVERIFY2(almacen.aviso().contains(u"progreso-danado-"), qPrintable(almacen.aviso()));
        QCOMPARE(QDir(datos()).entryList({u"progreso-danado-*.sqlite"_s}).size(), 1);
        qint64 id = 0;
        QCOMPARE(almacen.anota(hechoDe(u"a.b"_s), id), QString());
        QCOMPARE(almacen.hechos().size(), 1);
    }

    void dosProgramasALaVez()
    {
        AlmacenDeProgreso uno(datos()), otro(datos());
        QVERIFY(uno.abierto() && otro.abierto());
        qint64 id = 0;
        QCOMPARE(uno.anota(hechoDe(u"a.b"_s), id), QString());
        QCOMPARE(otro.anota(hechoDe(u"a.b"_s), id = 0), QString());
        QCOMPARE(uno.hechos().size(), 2);
        QCOMPARE(uno.borraTodo(), QString());
        QCOMPARE(otro.anota(hechoDe(u"a.b"_s), id), QString());
        QCOMPARE(otro.hechos().size(), 1);
        const auto cerrojo = conexion();
        QSqlQuery(cerrojo->base).exec(u"BEGIN EXCLUSIVE"_s);
        QVERIFY(uno.anota(hechoDe(u"a.b"_s), id = 0).contains(u"Otro programa"));
        QSqlQuery(cerrojo->base).exec(u"ROLLBACK"_s);
        QCOMPARE(uno.anota(hechoDe(u"a.b"_s), id), QString());
    }

    /// Where nothing can be written, practice goes on with a word.
    void sinSitioSeSigueSinGuardar()
    {
        QFile estorbo(m_carpeta->filePath(u"estorbo"_s));
        QVERIFY(estorbo.open(QIODevice::WriteOnly));
        Cuaderno cuaderno(estorbo.fileName() + u"/dentro"_s, true);
        QVERIFY(!cuaderno.guarda());
        QVERIFY2(cuaderno.aviso().contains(u"no se guardará"), qPrintable(cuaderno.aviso()));
        Cuaderno::Lugar lugar;
        QCOMPARE(cuaderno.anota(hechoDe(u"a.b"_s), lugar), QString());
        cuaderno.anota(hechoDe(u"a.b"_s), lugar);
        QCOMPARE(cuaderno.hechos().size(), 1);
        QCOMPARE(cuaderno.hechos().constFirst().dia, Cuaderno::hoy());
        QVERIFY(estorbo.remove());
        cuaderno.ponGuarda(true);
        QVERIFY2(cuaderno.guarda(), qPrintable(cuaderno.aviso()));
    }

    void sePuedeNoGuardar()
    {
        Cuaderno cuaderno(datos(), false);
        Cuaderno::Lugar lugar;
        cuaderno.anota(hechoDe(u"a.b"_s), lugar);
        QVERIFY(!QFile::exists(datos()));
        cuaderno.ponGuarda(true);
        QVERIFY(cuaderno.guarda());
        cuaderno.anota(hechoDe(u"a.b"_s), lugar = {});
        cuaderno.ponGuarda(false);
        QCOMPARE(Cuaderno(datos(), true).hechos().size(), 1);
        QCOMPARE(cuaderno.borraTodo(), QString());
        QVERIFY(cuaderno.hechos().isEmpty() && Cuaderno(datos(), true).hechos().isEmpty());
    }

private:
    struct Conexion
    {
        QSqlDatabase base;
        ~Conexion()
        {
            base = {};
            QSqlDatabase::removeDatabase(u"prueba"_s);
        }
    };

    QString datos() const { return m_carpeta->filePath(u"datos"_s); }
    QString ruta() const { return datos() + u'/' + AlmacenDeProgreso::nombreDeArchivo(); }

    static Hecho hechoDe(const QString &clave)
    {
        return {clave,         2,      EstadoDeEjercicio::Fallado, 1, 1, {u"mcm"_s}, 4200,
                u"MD7-4K2Q"_s, 2460000};
    }

    std::unique_ptr<Conexion> conexion() const
    {
        auto nueva = std::make_unique<Conexion>();
        nueva->base = QSqlDatabase::addDatabase(u"QSQLITE"_s, u"prueba"_s);
        nueva->base.setDatabaseName(ruta());
        nueva->base.open();
        return nueva;
    }
    void ordena(const QStringList &ordenes) const
    {
        const auto directa = conexion();
        for (const QString &orden : ordenes)
            QVERIFY2(QSqlQuery(directa->base).exec(orden), qPrintable(orden));
    }
    int uno(const QString &pregunta) const { return uno(pregunta, true).toInt(); }
    QString uno(const QString &pregunta, bool) const
    {
        const auto directa = conexion();
        QSqlQuery consulta(pregunta, directa->base);
        return consulta.next() ? consulta.value(0).toString() : u"nothing"_s;
    }

    void estropea(const QString &como) const
    {
        if (como == u"tablas") {
            ordena({u"DROP TABLE fallo"_s});
            return;
        }
        QFile archivo(ruta());
        QVERIFY(archivo.open(QIODevice::ReadWrite));
        if (como == u"texto") {
            archivo.resize(0);
            archivo.write(QByteArray(9000, 'x'));
        } else if (como == u"corte") {
            archivo.resize(archivo.size() / 2 + 100);
        } else {
            archivo.seek(4096);
            archivo.write(QByteArray(6000, '\xA5'));
        }
    }

    std::unique_ptr<QTemporaryDir> m_carpeta;
};

QTEST_GUILESS_MAIN(TestAlmacenDeProgreso)
#include "tst_AlmacenDeProgreso.moc"
