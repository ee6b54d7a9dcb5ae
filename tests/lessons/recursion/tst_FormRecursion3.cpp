#include "lessons/recursion/functions/windows/FormRecursion3.h"
#include "shell/controls/CampoLargo.h"
#include "shell/controls/Dibujo.h"
#include "shell/plot/Grafica.h"
#include "tests/shell/support/Entorno.h"

#include <QBrush>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

/// The lesson on recursive functions, by its controls.
class TestFormRecursion3 : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_ventana = new FormRecursión3;
        control<QTabBar>(m_ventana, u"tsTema"_s)->setCurrentIndex(1);
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana));
    }
    void cleanup() { delete m_ventana; }

    void alAbrir()
    {
        const auto *pestanas = control<QTabWidget>(m_ventana, u"SSTab1"_s);
        QCOMPARE(pestanas->count(), 3);
        QCOMPARE(pestanas->tabText(0) + pestanas->tabText(1) + pestanas->tabText(2),
                 u"AckermannHailstoneCapicúas"_s);
        QCOMPARE(campo(u"txtMaxAck"_s)->text(), u"5000"_s);
        QCOMPARE(control<QLabel>(m_ventana, u"lblTiempoAck"_s)->text(), u"00:00:00"_s);
        QCOMPARE(boton(u"cmdAck"_s)->toolTip(), u"Calcular Ack(x,y)"_s);
        QVERIFY(!boton(u"cmdCap"_s)->isEnabled());
        QVERIFY(rejilla(u"FlexAck"_s)->model()->rowCount() > 0);
    }

    void ack23()
    {
        calculaAck(u"2"_s, u"3"_s);
        const auto *tabla = rejilla(u"FlexAck"_s);
        const QModelIndex celda = tabla->model()->index(3, 2);
        QCOMPARE(celda.data().toString(), u"9"_s);
        QCOMPARE(celda.data(Qt::BackgroundRole).value<QBrush>().color(), QColor(0, 255, 255));
        QCOMPARE(tabla->currentIndex(), celda);
        QVERIFY(tabla->selectionModel()->selectedIndexes().isEmpty());
        QCOMPARE(campo(u"txtAck"_s)->text(), u"Ack(0, 8)"_s);
        QCOMPARE(control<QLabel>(m_ventana, u"lblResultado"_s)->text(), u"Ack(2, 3) = 9"_s);
        enReposo(u"cmdAck"_s);
    }

    void laCeldaQuedaArribaYALaIzquierda()
    {
        campo(u"txtMaxAck"_s)->setText(u"2000000000"_s);
        calculaAck(u"40"_s, u"0"_s);
        QCOMPARE(Entorno::grabadora().unico().texto.section(u'\n', 0, 0), u"Desbordamiento."_s);
        calculaAck(u"1"_s, u"4000"_s);
        const auto *tabla = rejilla(u"FlexAck"_s);
        QVERIFY(tabla->model()->columnCount() > 40);
        QCOMPARE(tabla->indexAt(QPoint(2, 2)), tabla->model()->index(4000, 1));
    }

    void elTamanoSeConserva()
    {
        calculaAck(u"3"_s, u"4"_s);
        const auto *modelo = rejilla(u"FlexAck"_s)->model();
        const int filas = modelo->rowCount();
        QVERIFY(filas > 100);
        calculaAck(u"0"_s, u"1"_s);
        QCOMPARE(modelo->rowCount(), filas);
        QCOMPARE(modelo->index(4, 3).data(), QVariant());
        QCOMPARE(modelo->index(1, 0).data().toString(), u"2"_s);
    }

    void elCorte()
    {
        calculaAck(u"4"_s, u"1"_s);
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.texto, u"Demasiados cálculos."_s);
        QCOMPARE(mensaje.titulo, u"Me rindo"_s);
        QCOMPARE(mensaje.icono, Interlocutor::Icono::Exclamacion);
        QCOMPARE(rejilla(u"FlexAck"_s)->model()->rowCount(), 5002);
        enReposo(u"cmdAck"_s);
    }

    void unCorteQueNoEsNumeroNoHaceNada()
    {
        calculaAck(u"1"_s, u"1"_s);
        campo(u"txtMaxAck"_s)->setText(u"muchos"_s);
        calculaAck(u"2"_s, u"3"_s);
        QCOMPARE(campo(u"txtAck"_s)->text(), u"Ack(0, 2)"_s);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void erroresDeAck_data()
    {
        QTest::addColumn<QString>("x");
        QTest::addColumn<QString>("y");
        QTest::addColumn<QString>("texto");
        QTest::newRow("letters") << u"a"_s << u"1"_s << u"No coinciden los tipos."_s;
        QTest::newRow("empty") << u"1"_s << QString() << u"No coinciden los tipos."_s;
        QTest::newRow("negative") << u"1"_s << u"-1"_s << u"Argumento no válido."_s;
        QTest::newRow("beyond 32 bits") << u"1"_s << u"3000000000"_s << u"Desbordamiento."_s;
        QTest::newRow("beyond the grid") << u"1"_s << u"2000000000"_s << u"Desbordamiento."_s;
    }
    void erroresDeAck()
    {
        QFETCH(QString, x);
        QFETCH(QString, y);
        calculaAck(u"2"_s, u"3"_s);
        calculaAck(x, y);
        QTEST(Entorno::grabadora().unico().texto.section(u'\n', 0, 0), "texto");
        enReposo(u"cmdAck"_s);
        calculaAck(u"1"_s, u"1"_s);
        QCOMPARE(control<QLabel>(m_ventana, u"lblResultado"_s)->text(), u"Ack(1, 1) = 3"_s);
    }

    void granizo_data()
    {
        QTest::addColumn<QString>("inicio");
        QTest::addColumn<int>("filas");
        QTest::addColumn<QString>("resumen");
        QTest::newRow("6") << u"6"_s << 9 << u"Con 6 se llega a 1 en 8 iteraciones."_s;
        QTest::newRow("1") << u"1"_s << 4 << u"Con 1 se llega a 1 en 3 iteraciones."_s;
        QTest::newRow("letters") << u"abc"_s << 2 << u"El valor inicial no es un número entero."_s;
    }
    void granizo()
    {
        QFETCH(QString, inicio);
        largo(u"TxtInicial"_s)->setText(inicio);
        boton(u"cmdHail"_s)->click();
        QTEST(rejilla(u"FlexHail"_s)->model()->rowCount(), "filas");
        QTEST(largo(u"LabelHail"_s)->text(), "resumen");
        enReposo(u"cmdHail"_s);
    }

    /// A point of the curve leads to the row of its step.
    void laCurvaDelGranizo()
    {
        control<QTabWidget>(m_ventana, u"SSTab1"_s)->setCurrentIndex(1);
        auto *curva = control<Grafica>(m_ventana, u"PicHail"_s);
        largo(u"TxtInicial"_s)->setText(u"27"_s);
        boton(u"cmdHail"_s)->click();
        for (int i = 0; i <= 77; ++i)
            QTest::keyClick(curva, Qt::Key_Right);
        QCOMPARE(curva->puntoSenalado(), 77);
        QCOMPARE(rejilla(u"FlexHail"_s)->currentIndex().data().toString(), u"9232"_s);
    }

    void capicuas()
    {
        const auto *resultado = largo(u"TxtCapFinal"_s);
        const QColor resalte = QApplication::palette().highlight().color();
        largo(u"TxtCapInicial"_s)->setText(u" "_s);
        QVERIFY(!boton(u"cmdCap"_s)->isEnabled());
        largo(u"TxtCapInicial"_s)->setText(u"10*8+9"_s);
        QVERIFY(boton(u"cmdCap"_s)->isEnabled());
        boton(u"cmdCap"_s)->click();
        QCOMPARE(resultado->text(), u"8813200023188"_s);
        QCOMPARE(resultado->palette().color(QPalette::Text), QColor(192, 0, 0));
        enReposo(u"cmdCap"_s);
        const auto *sumas = rejilla(u"FlexCap"_s)->model();
        QCOMPARE(sumas->rowCount(), 24);
        QCOMPARE(sumas->index(1, 1).data().toString() + u'+' +
                     sumas->index(1, 2).data().toString() + u'=' +
                     sumas->index(1, 3).data().toString(),
                 u"187+781=968"_s);
        largo(u"TxtCapInicial"_s)->setText(u"abc"_s);
        boton(u"cmdCap"_s)->click();
        QCOMPARE(resultado->text(), u"8813200023188"_s);
        QCOMPARE(resultado->palette().color(QPalette::Text), resalte);
        largo(u"TxtCapInicial"_s)->setText(u"mod 2"_s);
        boton(u"cmdCap"_s)->click();
        QCOMPARE(Entorno::grabadora().unico().texto, u"Argumento no válido."_s);
        enReposo(u"cmdCap"_s);
    }

    void parar_data() { corridas(); }
    void parar()
    {
        QFETCH(QString, nombre);
        prepara(nombre);
        bool corria = false;
        alCabo([&] {
            corria = boton(nombre)->toolTip() == u"Detener cálculo"_s;
            // The second click of a double click must not start anew what the first one stops.
            boton(nombre)->click();
            boton(nombre)->click();
        });
        boton(nombre)->click();
        QVERIFY(corria);
        enReposo(nombre);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void pararConEscape_data() { corridas(); }
    void pararConEscape()
    {
        QFETCH(QString, nombre);
        QFETCH(int, pestana);
        control<QTabWidget>(m_ventana, u"SSTab1"_s)->setCurrentIndex(pestana);
        prepara(nombre);
        alCabo([&] { QTest::keyClick(boton(nombre), Qt::Key_Escape); });
        boton(nombre)->click();
        enReposo(nombre);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void cerrar_data()
    {
        corridas();
        // This run lasts some 50 ms and more under sanitizers: the close may come after its end.
        QTest::newRow("Ackermann, later") << u"cmdAck"_s << 0 << 20;
    }
    void cerrar()
    {
        QFETCH(QString, nombre);
        prepara(nombre);
        const QPointer<FormRecursión3> testigo = m_ventana;
        alCabo([&] { m_ventana->close(); });
        boton(nombre)->click();
        QTRY_VERIFY(!testigo);
        m_ventana = nullptr;
    }

    /// One run inside the yield of another: both end, and closing waits for both.
    void unaDentroDeOtra()
    {
        prepara(u"cmdHail"_s);
        prepara(u"cmdCap"_s);
        QTimer::singleShot(20ms, m_ventana, [&] { boton(u"cmdCap"_s)->click(); });
        QTimer::singleShot(60ms, m_ventana, [&] {
            QCOMPARE(boton(u"cmdCap"_s)->toolTip(), u"Detener cálculo"_s);
            boton(u"cmdCap"_s)->click();
        });
        boton(u"cmdHail"_s)->click();
        enReposo(u"cmdHail"_s);
        enReposo(u"cmdCap"_s);

        const QPointer<FormRecursión3> testigo = m_ventana;
        QTimer::singleShot(20ms, m_ventana, [&] { boton(u"cmdCap"_s)->click(); });
        QTimer::singleShot(60ms, m_ventana, [&] { m_ventana->close(); });
        boton(u"cmdHail"_s)->click();
        QTRY_VERIFY(!testigo);
        m_ventana = nullptr;
    }

    /// While it runs: the gear turns and the grids fill.
    void duranteLaCorrida()
    {
        prepara(u"cmdHail"_s);
        int filas = 0;
        QTimer::singleShot(150ms, m_ventana, [&] {
            filas = rejilla(u"FlexHail"_s)->model()->rowCount();
            boton(u"cmdHail"_s)->click();
        });
        boton(u"cmdHail"_s)->click();
        QVERIFY(filas > 1);
        QCOMPARE(largo(u"LabelHail"_s)->text(), QString());

        prepara(u"cmdAck"_s);
        const auto *rueda = control<Dibujo>(m_ventana, u"imgAck"_s);
        bool seVe = false;
        QTimer::singleShot(0, m_ventana, [&] {
            seVe = rueda->isVisible() && rueda->imagen().startsWith(u"TRABAJANDO"_s);
            boton(u"cmdAck"_s)->click();
        });
        boton(u"cmdAck"_s)->click();
        QVERIFY(seVe);
        QVERIFY(!rueda->isVisible());
    }

private:
    void corridas()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<int>("pestana");
        QTest::addColumn<int>("milisegundos");
        QTest::newRow("Ackermann, at once") << u"cmdAck"_s << 0 << 0;
        QTest::newRow("Hailstone, at once") << u"cmdHail"_s << 1 << 0;
        QTest::newRow("Hailstone") << u"cmdHail"_s << 1 << 30;
        QTest::newRow("Capicúas, at once") << u"cmdCap"_s << 2 << 0;
        QTest::newRow("Capicúas") << u"cmdCap"_s << 2 << 30;
    }

    /// Does something from within a yield of the run that starts next.
    void alCabo(const std::function<void()> &accion)
    {
        QFETCH(int, milisegundos);
        QTimer::singleShot(milisegundos, m_ventana, accion);
    }

    /// Fields with which a run does not end by itself before it is looked at.
    void prepara(const QString &nombre)
    {
        campo(u"TxtX"_s)->setText(u"4"_s);
        campo(u"TxtY"_s)->setText(u"2"_s);
        campo(u"txtMaxAck"_s)->setText(u"2000000000"_s);
        if (nombre == u"cmdHail"_s)
            largo(u"TxtInicial"_s)->setText(u"-5"_s);
        else if (nombre == u"cmdCap"_s)
            largo(u"TxtCapInicial"_s)->setText(u"196"_s);
    }

    void calculaAck(const QString &x, const QString &y)
    {
        campo(u"TxtX"_s)->setText(x);
        campo(u"TxtY"_s)->setText(y);
        boton(u"cmdAck"_s)->click();
    }

    void enReposo(const QString &nombre)
    {
        QCOMPARE(boton(nombre)->toolTip(), u"Calcular"_s);
        QVERIFY(!m_ventana->corrida().enCurso());
        QVERIFY(!m_ventana->findChild<QTimer *>(u"TimerAck"_s)->isActive());
    }

    QLineEdit *campo(const QString &nombre) { return control<QLineEdit>(m_ventana, nombre); }
    CampoLargo *largo(const QString &nombre) { return control<CampoLargo>(m_ventana, nombre); }
    QPushButton *boton(const QString &nombre) { return control<QPushButton>(m_ventana, nombre); }
    QTableView *rejilla(const QString &nombre) { return control<QTableView>(m_ventana, nombre); }

    FormRecursión3 *m_ventana = nullptr;
};

NUMORA_TEST_MAIN(TestFormRecursion3)
#include "tst_FormRecursion3.moc"
