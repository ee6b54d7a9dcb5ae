// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Tabla.h"
#include "tests/minical/VentanaDePrueba.h"

using namespace Qt::Literals::StringLiterals;
using Guardado = Interlocutor::Guardado;

/// Saving, opening, exporting and printing a sheet, and what is asked before one goes away.
class TestFormCalcArchivos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_carpeta = std::make_unique<QTemporaryDir>();
        m = std::make_unique<VentanaDePrueba>();
    }
    void cleanup()
    {
        m.reset();
        m_carpeta.reset();
    }

    void guardarYAbrir()
    {
        m->entra(u"A1", u"1/8"_s);
        m->entra(u"A2", u"A1*2"_s);
        m->ve(u"A1");
        m->boton(u"ValorDecimal"_s);
        m->rejilla()->setColumnWidth(1, 300);
        const int ancho = m->rejilla()->columnWidth(1);
        // What is being typed is part of the sheet.
        m->ve(u"B1");
        m->teclea(u"2^20"_s);
        guarda(u"hoja.minical"_s);
        QCOMPARE((*m)->windowTitle(), u"Mini hoja de cálculo - hoja.minical"_s);
        QVERIFY(m->ventana()->close());
        QVERIFY(Entorno::grabadora().preguntasSiGuarda.isEmpty());

        m = std::make_unique<VentanaDePrueba>();
        abre(u"hoja.minical"_s);
        QCOMPARE(m->texto(u"A1"), u"0,125"_s);
        QCOMPARE(m->texto(u"B1"), u"1048576"_s);
        QVERIFY(std::abs(m->rejilla()->columnWidth(1) - ancho) < 15);
        m->entra(u"C1", u"A1+A2"_s);
        QCOMPARE(m->texto(u"C1"), u"3/8"_s);
        QCOMPARE((*m)->windowTitle(), u"Mini hoja de cálculo - hoja.minical *"_s);
        // Once it has a file, it is saved there unasked.
        m->boton(u"Guardar"_s);
        QVERIFY(Entorno::grabadora().archivos.isEmpty());
        QVERIFY(lee(u"hoja.minical"_s).contains("C1\tA1+A2\t3/8\n"));
    }

    void unArchivoMaloNoTocaLaHoja_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("motivo");
        QTest::newRow("other file") << "%PDF-1.4\n"_ba << u"No es una hoja"_s;
        QTest::newRow("later version") << "MiniCal 9\n"_ba << u"versión posterior"_s;
        QTest::newRow("cut") << "MiniCal 1\nA1\t1\t1\n"_ba << u"le falta el final"_s;
        QTest::newRow("line") << "MiniCal 1\nA1\t1\tx\nfin\t1\n"_ba << u"la línea 2"_s;
        QTest::newRow("too large") << QByteArray(64 * 1024 * 1024 + 1, 'x') << u"Error al leer"_s;
    }
    void unArchivoMaloNoTocaLaHoja()
    {
        QFETCH(QByteArray, bytes);
        QFETCH(QString, motivo);
        escribe(u"mala.minical"_s, bytes);
        m->entra(u"A1", u"5"_s);
        Entorno::grabadora().guardados = {Guardado::Descartar};
        abre(u"mala.minical"_s);
        const auto mensaje = Entorno::grabadora().unico();
        QVERIFY2(mensaje.texto.contains(motivo), qPrintable(mensaje.texto));
        QVERIFY(mensaje.texto.contains(u"mala.minical"_s));
        QCOMPARE(m->texto(u"A1"), u"5"_s);
        QCOMPARE((*m)->windowTitle(), u"Mini hoja de cálculo *"_s);
    }

    void loQueNoSePuedeEscribirNoSePierde()
    {
        m->entra(u"A1", u"5"_s);
        guarda(u"no/existe.minical"_s);
        const auto mensaje = Entorno::grabadora().unico();
        QVERIFY(mensaje.texto.contains(u"existe.minical"_s));
        QCOMPARE(mensaje.titulo, u"No se pudo guardar"_s);
        QCOMPARE((*m)->windowTitle(), u"Mini hoja de cálculo *"_s);
        // Nor when the window is closed.
        Entorno::grabadora().guardados = {Guardado::Guardar};
        Entorno::grabadora().archivos = {{ruta(u"no/existe.minical"_s)}};
        QVERIFY(!m->ventana()->close());
        QVERIFY(!Entorno::grabadora().unico().texto.isEmpty());
        QVERIFY((*m)->isVisible());
        // Nor when no file is chosen.
        Entorno::grabadora().guardados = {Guardado::Guardar};
        QVERIFY(!m->ventana()->close());
    }

    void cerrarConCambios_data()
    {
        QTest::addColumn<Guardado>("respuesta");
        QTest::addColumn<bool>("cierra");
        QTest::addColumn<bool>("escribe");
        QTest::newRow("save") << Guardado::Guardar << true << true;
        QTest::newRow("discard") << Guardado::Descartar << true << false;
        QTest::newRow("cancel") << Guardado::Cancelar << false << false;
    }
    void cerrarConCambios()
    {
        QFETCH(Guardado, respuesta);
        m->ve(u"A1");
        m->teclea(u"5"_s);
        Entorno::grabadora().guardados = {respuesta};
        Entorno::grabadora().archivos = {{ruta(u"hoja.minical"_s)}};
        QTEST(m->ventana()->close(), "cierra");
        QTEST(QFileInfo::exists(ruta(u"hoja.minical"_s)), "escribe");
        QCOMPARE(Entorno::grabadora().preguntasSiGuarda.size(), 1);
    }

    /// The hourglass is gone before a box comes.
    void ningunaCajaBajoElRelojDeArena()
    {
        struct Mira : Grabadora
        {
            void avisa(QWidget *padre, Icono icono, const QString &t, const QString &r) override
            {
                QVERIFY(!QGuiApplication::overrideCursor());
                Grabadora::avisa(padre, icono, t, r);
            }
        };
        ponInterlocutor(std::make_unique<Mira>());
        escribe(u"mala.minical"_s, "x");
        abre(u"mala.minical"_s);
        QCOMPARE(Entorno::grabadora().mensajes.size(), 1);
        Entorno::grabadora().impresion = ruta(u"no/hoja.pdf"_s);
        m->boton(u"Imprimir"_s);
        QCOMPARE(Entorno::grabadora().mensajes.size(), 2);
    }

    /// What was not saved when the window went is offered by the next one, and back if it is
    /// wanted.
    void laCopiaVuelve_data()
    {
        filasDeTexto<QString>(u"recovered | recupera || discarded | descarta"_s);
    }
    void laCopiaVuelve()
    {
        const QString que = estaFila<QString>();
        const bool descarta = que == u"descarta"_s;
        guarda(u"hoja.minical"_s);
        m->entra(u"A1", u"1/8"_s);
        m->rejilla()->setColumnWidth(1, 300);
        m->ve(u"B1");
        m->teclea(u"A1*2"_s);
        m.reset();
        Entorno::grabadora().respondeSi = descarta;
        m = std::make_unique<VentanaDePrueba>();
        QTRY_COMPARE(Entorno::grabadora().confirmaciones.size(), 1);
        QVERIFY(Entorno::grabadora().confirmaciones.constFirst().contains(u"hoja.minical"_s));
        QTRY_COMPARE(m->texto(u"A1"), descarta ? QString() : u"1/8"_s);
        QCOMPARE((*m)->windowTitle(),
                 descarta ? u"Mini hoja de cálculo"_s : u"Mini hoja de cálculo - hoja.minical *"_s);
        if (!descarta) {
            QCOMPARE(m->texto(u"B1"), u"1/4"_s);
            QVERIFY(m->rejilla()->columnWidth(1) > 280);
            m->boton(u"Guardar"_s);
        }
        m.reset();
        m = std::make_unique<VentanaDePrueba>();
        QCoreApplication::processEvents();
        QCOMPARE(Entorno::grabadora().confirmaciones.size(), 1);
    }

    void loDescartadoNoVuelve()
    {
        m->entra(u"A1", u"5"_s);
        Entorno::grabadora().guardados = {Guardado::Descartar};
        QVERIFY(m->ventana()->close());
        m.reset();
        m = std::make_unique<VentanaDePrueba>();
        QCoreApplication::processEvents();
        QCOMPARE(Entorno::grabadora().confirmaciones, QStringList());
    }

    void hojaNueva()
    {
        m->entra(u"A1", u"5"_s);
        m->boton(u"Nuevo"_s);
        QCOMPARE(m->texto(u"A1"), u"5"_s);
        Entorno::grabadora().guardados = {Guardado::Descartar};
        m->boton(u"Nuevo"_s);
        QCOMPARE(m->texto(u"A1"), QString());
        m->entra(u"B1", u"A1"_s);
        QCOMPARE(m->texto(u"B1"), u"Error"_s);
    }

    void exportar()
    {
        m->entra(u"A1", u"1/2"_s);
        m->ve(u"A1");
        m->boton(u"ValorDecimal"_s);
        m->entra(u"B1", u"7"_s);
        for (const auto &[filtro, texto] : {std::pair(0, "0,5;7\r\n"_ba), {1, "0.5,7\r\n"_ba}}) {
            Entorno::grabadora().archivos = {{ruta(u"hoja.csv"_s), filtro}};
            m->boton(u"Exportar"_s);
            QCOMPARE(Entorno::grabadora().filtrosPedidos.constLast().size(), 2);
            QCOMPARE(lee(u"hoja.csv"_s), texto);
        }
        Entorno::grabadora().archivos = {{ruta(u"no/hoja.csv"_s), 0}};
        m->boton(u"Exportar"_s);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"No se pudo guardar"_s);
        // Exporting saves nothing.
        QVERIFY((*m)->windowTitle().endsWith(u'*'));
    }

    void imprimir()
    {
        for (int i = 1; i < 40; ++i)
            m->entra(QString(u'A' + QString::number(i)), u"fib(%1)"_s.arg(500 * i));
        Entorno::grabadora().impresion = ruta(u"hoja.pdf"_s);
        m->boton(u"Imprimir"_s);
        QVERIFY(lee(u"hoja.pdf"_s).startsWith("%PDF"));
        QVERIFY(lee(u"hoja.pdf"_s).contains("/Count 1") ||
                lee(u"hoja.pdf"_s).count("/Type /Page\n") > 3);
        Entorno::grabadora().impresion = ruta(u"no/hoja.pdf"_s);
        m->boton(u"Imprimir"_s);
        QVERIFY(Entorno::grabadora().unico().texto.startsWith(u"No se puede imprimir"_s));
    }

private:
    QString ruta(const QString &nombre) const { return m_carpeta->filePath(nombre); }
    void escribe(const QString &nombre, const QByteArray &bytes)
    {
        QFile archivo(ruta(nombre));
        QVERIFY(archivo.open(QIODevice::WriteOnly) && archivo.write(bytes) == bytes.size());
    }
    QByteArray lee(const QString &nombre)
    {
        QFile archivo(ruta(nombre));
        return archivo.open(QIODevice::ReadOnly) ? archivo.readAll() : QByteArray();
    }
    void guarda(const QString &nombre)
    {
        Entorno::grabadora().archivos = {{ruta(nombre)}};
        m->boton(u"Guardar"_s);
    }
    void abre(const QString &nombre)
    {
        Entorno::grabadora().archivos = {{ruta(nombre)}};
        m->boton(u"Abrir"_s);
    }

    std::unique_ptr<QTemporaryDir> m_carpeta;
    std::unique_ptr<VentanaDePrueba> m;
};

NUMORA_TEST_MAIN(TestFormCalcArchivos)
#include "tst_FormCalcArchivos.moc"
