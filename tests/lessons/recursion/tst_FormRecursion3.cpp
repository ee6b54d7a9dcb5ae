// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/FormRecursion3.h"
#include "shell/controls/CampoLargo.h"
#include "shell/controls/Dibujo.h"
#include "shell/grid/Rejilla.h"
#include "shell/look/Aspecto.h"
#include "shell/plot/Grafica.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

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

    /// A click in the first yield begins anew, because the timer that makes it a stop does not run
    /// yet; what was overtaken says nothing.
    void dosClicsSeguidos()
    {
        prepara(u"cmdAck"_s, u"1"_s);
        boton(u"cmdAck"_s)->click();
        QCOMPARE(boton(u"cmdAck"_s)->toolTip(), u"Detener cálculo"_s);
        QVERIFY(!timerAck()->isActive());
        calculaAck(u"4"_s, u"1"_s);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Me rindo"_s);
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
        filasDeTexto<QString, QString, QString>(uR"(
            letters         | a | 1          | No coinciden los tipos.
            empty           | 1 |            | No coinciden los tipos.
            negative        | 1 | -1         | Argumento no válido.
            beyond 32 bits  | 1 | 3000000000 | Desbordamiento.
            beyond the grid | 1 | 2000000000 | Desbordamiento.)"_s);
    }
    void erroresDeAck()
    {
        const auto [x, y, texto] = estaFila<QString, QString, QString>();
        calculaAck(u"2"_s, u"3"_s);
        calculaAck(x, y);
        QCOMPARE(Entorno::grabadora().unico().texto.section(u'\n', 0, 0), texto);
        calculaAck(u"1"_s, u"1"_s);
        QCOMPARE(control<QLabel>(m_ventana, u"lblResultado"_s)->text(), u"Ack(1, 1) = 3"_s);
    }

    void granizo_data()
    {
        filasDeTexto<QString, int, QString>(uR"(
            6 | 6 | 9 | Con 6 se llega a 1 en 8 iteraciones.
            1 | 1 | 4 | Con 1 se llega a 1 en 3 iteraciones.
            letters | abc | 2 | El valor inicial tiene que ser un número entero escrito con \
              sus cifras, 24575 como mucho.)"_s);
    }
    void granizo()
    {
        const auto [inicio, filas, resumen] = estaFila<QString, int, QString>();
        largo(u"TxtInicial"_s)->setText(inicio);
        corre(u"cmdHail"_s);
        QCOMPARE(rejilla(u"FlexHail"_s)->model()->rowCount(), filas);
        QCOMPARE(largo(u"LabelHail"_s)->text(), resumen);
    }

    /// A point of the curve leads to the row of its step.
    void laCurvaDelGranizo()
    {
        control<QTabWidget>(m_ventana, u"SSTab1"_s)->setCurrentIndex(1);
        auto *curva = control<Grafica>(m_ventana, u"PicHail"_s);
        largo(u"TxtInicial"_s)->setText(u"27"_s);
        corre(u"cmdHail"_s);
        for (int i = 0; i <= 77; ++i)
            QTest::keyClick(curva, Qt::Key_Right);
        QCOMPARE(curva->puntoSenalado(), 77);
        QCOMPARE(rejilla(u"FlexHail"_s)->currentIndex().data().toString(), u"9232"_s);
    }

    void capicuas()
    {
        const auto *resultado = largo(u"TxtCapFinal"_s);
        const auto *aviso = control<QLabel>(
            control<QWidget>(m_ventana, u"cmdCap"_s)->parentWidget(), u"lblAvance"_s);
        const QColor resalte = QApplication::palette().highlight().color();
        largo(u"TxtCapInicial"_s)->setText(u" "_s);
        QVERIFY(!boton(u"cmdCap"_s)->isEnabled());
        largo(u"TxtCapInicial"_s)->setText(u"10*8+9"_s);
        QVERIFY(boton(u"cmdCap"_s)->isEnabled());
        corre(u"cmdCap"_s);
        QCOMPARE(resultado->text(), u"8813200023188"_s);
        QCOMPARE(resultado->palette().color(QPalette::Text), QColor(192, 0, 0));
        const auto *sumas = rejilla(u"FlexCap"_s)->model();
        QCOMPARE(sumas->rowCount(), 24);
        QCOMPARE(sumas->index(1, 1).data().toString() + u'+' +
                     sumas->index(1, 2).data().toString() + u'=' +
                     sumas->index(1, 3).data().toString(),
                 u"187+781=968"_s);
        largo(u"TxtCapInicial"_s)->setText(u"abc"_s);
        corre(u"cmdCap"_s);
        QCOMPARE(resultado->text(), u"8813200023188"_s);
        QCOMPARE(resultado->palette().color(QPalette::Text), resalte);
        QVERIFY(aviso->text().startsWith(u"✗ El valor inicial no es una expresión"_s));
        largo(u"TxtCapInicial"_s)->setText(u"mod 2"_s);
        QCOMPARE(aviso->text(), QString());
        corre(u"cmdCap"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"Argumento no válido."_s);
    }

    /// Stopped by its button, by the Escape key, or by the button of another run: they share the
    /// stop flag. The button is at rest at once; nothing is said.
    void parar_data()
    {
        QTest::addColumn<int>("corrida");
        QTest::addColumn<int>("milisegundos");
        QTest::addColumn<int>("como");
        for (int i = 0; i < 18; ++i) {
            const int corrida = i % 3, milisegundos = i / 3 % 2 * 15, como = i / 6;
            QTest::addRow("%d, %d ms, %d", corrida, milisegundos, como)
                << corrida << milisegundos << como;
        }
    }
    void parar()
    {
        QFETCH(int, corrida);
        QFETCH(int, milisegundos);
        QFETCH(int, como);
        const QString nombre = u"cmdAck cmdHail cmdCap"_s.section(u' ', corrida, corrida);
        control<QTabWidget>(m_ventana, u"SSTab1"_s)->setCurrentIndex(corrida);
        prepara(nombre, u"2"_s);
        const QPointer<FormRecursión3> testigo = m_ventana;
        boton(nombre)->click();
        // Ackermann's run is one that a click stops from its second yield on.
        if (nombre == u"cmdAck"_s && como < 2)
            QTRY_VERIFY(timerAck()->isActive());
        QTest::qWait(milisegundos);
        QCOMPARE(boton(nombre)->toolTip(), u"Detener cálculo"_s);
        if (como == 2) { // closed
            m_ventana->close();
            QTRY_VERIFY(!testigo);
            m_ventana = nullptr;
            return;
        }
        if (como == 0)
            boton(nombre)->click();
        else
            QTest::keyClick(boton(nombre), Qt::Key_Escape);
        QCOMPARE(boton(nombre)->toolTip(), u"Calcular"_s);
        QVERIFY(!timerAck()->isActive());
        QTest::qWait(5);
        QVERIFY(largo(u"LabelHail"_s)->text().isEmpty());
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    /// Stopped and started again with other numbers before the first run has returned: only the
    /// second one shows anything.
    void pararYEmpezar()
    {
        prepara(u"cmdAck"_s, u"2"_s);
        boton(u"cmdAck"_s)->click();
        QTRY_VERIFY(timerAck()->isActive());
        QTest::qWait(15);
        boton(u"cmdAck"_s)->click();
        calculaAck(u"2"_s, u"3"_s);
        QCOMPARE(control<QLabel>(m_ventana, u"lblResultado"_s)->text(), u"Ack(2, 3) = 9"_s);
        QCOMPARE(rejilla(u"FlexAck"_s)->model()->index(2, 4).data(), QVariant());

        const auto otraVez = [this](const QString &nombre, const QString &campo,
                                    const QString &inicio) {
            boton(nombre)->click();
            QTest::qWait(15);
            boton(nombre)->click();
            largo(campo)->setText(inicio);
            corre(nombre);
        };
        largo(u"TxtInicial"_s)->setText(u"-5"_s);
        otraVez(u"cmdHail"_s, u"TxtInicial"_s, u"6"_s);
        QCOMPARE(largo(u"LabelHail"_s)->text(), u"Con 6 se llega a 1 en 8 iteraciones."_s);
        QCOMPARE(rejilla(u"FlexHail"_s)->model()->rowCount(), 9);

        largo(u"TxtCapInicial"_s)->setText(u"196"_s);
        otraVez(u"cmdCap"_s, u"TxtCapInicial"_s, u"87"_s);
        QCOMPARE(largo(u"TxtCapFinal"_s)->text(), u"4884"_s);
        QCOMPARE(rejilla(u"FlexCap"_s)->model()->rowCount(), 4);
    }

    /// Two runs at a time, which share the stop flag: stopping one stops both.
    void dosALaVez()
    {
        largo(u"TxtInicial"_s)->setText(u"-5"_s);
        largo(u"TxtCapInicial"_s)->setText(u"196"_s);
        boton(u"cmdHail"_s)->click();
        boton(u"cmdCap"_s)->click();
        const auto *filas = rejilla(u"FlexHail"_s)->model();
        const auto *sumas = rejilla(u"FlexCap"_s)->model();
        QTRY_VERIFY(filas->rowCount() > 10 && sumas->rowCount() > 10);
        boton(u"cmdCap"_s)->click();
        QCOMPARE(boton(u"cmdHail"_s)->toolTip(), u"Detener cálculo"_s);
        QTRY_COMPARE(boton(u"cmdHail"_s)->toolTip(), u"Calcular"_s);
        QCOMPARE(largo(u"LabelHail"_s)->text(), QString());
    }

    /// The order in which a run of Ackermann's function begins: the look of the button, a yield,
    /// then the timer and the gear.
    void duranteAckermann()
    {
        Aspecto::ponMovimientoReducido(false);
        prepara(u"cmdAck"_s, u"2"_s);
        const auto *rueda = control<Dibujo>(m_ventana, u"imgAck"_s);
        boton(u"cmdAck"_s)->click();
        QVERIFY(!rueda->isVisible() && !timerAck()->isActive());
        QTRY_VERIFY(rueda->isVisible() && timerAck()->isActive());
        QCOMPARE(rueda->imagen(), u"TRABAJANDO1"_s);
        boton(u"cmdAck"_s)->click();
        QTRY_VERIFY(!rueda->isVisible());
        // The last tick, when the run has returned.
        QCOMPARE(rueda->imagen(), u"TRABAJANDO2"_s);
    }

    /// The panel shows the steps of the tab in front, and each tab keeps its own.
    void pasosDeLaFichaDelante()
    {
        auto *fichas = control<QTabWidget>(m_ventana, u"SSTab1"_s);
        const auto pasos = [this] {
            return m_ventana->findChild<PanelDePasos *>()->pasos().cuantos();
        };
        calculaAck(u"1"_s, u"0"_s);
        QCOMPARE(pasos(), 3);
        largo(u"TxtInicial"_s)->setText(u" 07"_s);
        corre(u"cmdHail"_s);
        QCOMPARE(pasos(), 3);
        fichas->setCurrentIndex(1);
        QCOMPARE(pasos(), 18);
        largo(u"TxtInicial"_s)->setText(u"siete"_s);
        corre(u"cmdHail"_s);
        QCOMPARE(pasos(), 0);
        fichas->setCurrentIndex(2);
        largo(u"TxtCapInicial"_s)->setText(u"89"_s);
        corre(u"cmdCap"_s);
        QCOMPARE(pasos(), 25);
        fichas->setCurrentIndex(0);
        QCOMPARE(pasos(), 3);
    }

    /// What is copied of the memory bears n in front and m above.
    void copiaDeAck()
    {
        calculaAck(u"1"_s, u"1"_s);
        auto *tabla = control<Rejilla>(m_ventana, u"FlexAck"_s);
        tabla->selectionModel()->select({tabla->model()->index(0, 0), tabla->model()->index(1, 1)},
                                        QItemSelectionModel::ClearAndSelect);
        QCOMPARE(tabla->seleccion(FormaDeCopia::Texto).completa().texto, u"0\t\t2\n1\t2\t3\n"_s);
    }

private:
    /// Numbers with which no run ends by itself before it is looked at; Ack(4, y) is the one that
    /// takes longest.
    void prepara(const QString &nombre, const QString &y)
    {
        campo(u"TxtX"_s)->setText(u"4"_s);
        campo(u"TxtY"_s)->setText(y);
        if (y != u"1"_s)
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
        corre(u"cmdAck"_s);
    }

    /// A run from its click to its end.
    void corre(const QString &nombre)
    {
        boton(nombre)->click();
        QTRY_COMPARE_WITH_TIMEOUT(boton(nombre)->toolTip(), u"Calcular"_s, 60'000);
        QVERIFY(!timerAck()->isActive());
    }

    const QTimer *timerAck() const { return m_ventana->findChild<QTimer *>(u"TimerAck"_s); }
    QLineEdit *campo(const QString &nombre) { return control<QLineEdit>(m_ventana, nombre); }
    CampoLargo *largo(const QString &nombre) { return control<CampoLargo>(m_ventana, nombre); }
    QPushButton *boton(const QString &nombre) { return control<QPushButton>(m_ventana, nombre); }
    QTableView *rejilla(const QString &nombre) { return control<QTableView>(m_ventana, nombre); }

    FormRecursión3 *m_ventana = nullptr;
};

NUMORA_TEST_MAIN(TestFormRecursion3)
#include "tst_FormRecursion3.moc"
