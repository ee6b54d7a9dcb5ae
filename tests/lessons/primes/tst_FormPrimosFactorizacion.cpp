// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimos.h"
#include "shell/controls/CampoLargo.h"
#include "shell/controls/ReproductorAVI.h"
#include "shell/core/clsSesion.h"
#include "shell/grid/Rejilla.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

/// The topic "Factorización", by its controls, idle and in the middle of its runs.
class TestFormPrimosFactorizacion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_ventana = new FormPrimos;
        m_numero = control<CampoLargo>(m_ventana, u"TxtN"_s);
        m_boton = control<QPushButton>(m_ventana, u"BtnFactoriza"_s);
        m_rejilla = control<Rejilla>(m_ventana, u"FlexFactores"_s);
        m_ruedas = control<ReproductorAVI>(m_ventana, u"ccrpAniFactorizando"_s);
    }
    void cleanup() { delete m_ventana; }

    void factores_data()
    {
        filasDeTexto<QString, int, QString>(uR"(
            360 | 0 | 2,3 3,2 5,1 || 360 | 1 | 2,3 3,2 5,1 || 360 | 2 | 2,3 3,2 5,1
            97*2 | 0 | 2,1 97,1 || 97*2 | 1 | 2,1 97,1 || 97*2 | 2 | 2,1 97,1
            1 | 0 | "" || 1 | 1 | "" || 1 | 2 | ""
            922337203685477+1 | 2 | 2,1 3,1 7,1 21960409611559,1)"_s);
    }
    void factores()
    {
        const auto [texto, algoritmo, factores] = estaFila<QString, int, QString>();
        elige(algoritmo);
        factoriza(texto);
        QCOMPARE(mostrados(), factores);
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Parado);
        QCOMPARE(control<QLabel>(m_ventana, u"lblTiempo"_s)->text(),
                 control<QLabel>(m_ventana, u"lblTiempoFactorizando"_s)->text());
    }

    void rechazados_data()
    {
        filasDeTexto<QString, int, QString>(uR"(
            empty |  | 2 |
            no expression | 2+ | 0 |
            too large, naive | 922337203685477+1 | 0 | Solo puede dar números grandes con el \
              algoritmo avanzado.\nCon el algoritmo seleccionado, el máximo es 922337203685477
            too large, improved | 10^400 | 1 | Solo puede dar números grandes con el \
              algoritmo avanzado.\nCon el algoritmo seleccionado, el máximo es 922337203685477
            far below zero | -10^20 | 0 | Desbordamiento.
            fraction | 7/2 | 1 | No coinciden los tipos.\n7/2)"_s);
    }
    void rechazados()
    {
        const auto [texto, algoritmo, aviso] = estaFila<QString, int, QString>();
        elige(algoritmo);
        m_numero->setText(texto);
        m_boton->click();
        if (aviso.isEmpty())
            QCOMPARE(m_ventana->focusWidget(), m_numero);
        else
            QCOMPARE(Entorno::grabadora().unico().texto, aviso);
        QVERIFY(estaEnReposo());
        // The wheels go on turning after a refusal, until the next factorization ends.
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Reproduciendo);
        factoriza(u"6"_s);
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Parado);
    }

    void desbordamientoDelMejorado_data()
    {
        filasDeTexto<bool>(uR"(
            stopped by the button | no || stopped by Escape | yes)"_s);
    }
    void desbordamientoDelMejorado()
    {
        const bool escape = estaFila<bool>();
        factoriza(u"6"_s);
        elige(1);
        m_numero->setText(u"10000000019"_s);
        m_boton->click();
        QTRY_COMPARE(Entorno::grabadora().mensajes.size(), 1);
        // The box says what can be done: the window goes on as if the run were still there.
        const QString texto = Entorno::grabadora().unico().texto;
        QVERIFY2(texto.startsWith(u"Desbordamiento.\nEl algoritmo mejorado cuenta en 16 bits"_s),
                 qPrintable(texto));
        QCOMPARE(m_boton->toolTip(), u"Detener factorización"_s);
        QCOMPARE(m_ventana->cursor().shape(), Qt::WaitCursor);
        QCOMPARE(mostrados(), QString());
        if (escape)
            QTest::keyClick(m_numero, Qt::Key_Escape);
        else
            m_boton->click();
        QVERIFY(estaEnReposo());
        factoriza(u"10"_s);
        QCOMPARE(mostrados(), u"2,1 5,1"_s);
    }

    /// An error that comes when the window is gone is dropped with its run.
    void cierreTrasElDesbordamiento()
    {
        elige(1);
        m_numero->setText(u"10000000019"_s);
        cierraCon([this] { m_boton->click(); });
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void elFactorElegidoSeVeEntero()
    {
        factoriza(u"(2^521-1)*6"_s);
        auto *entero = control<CampoLargo>(m_ventana, u"txtFactorElegido"_s);
        QCOMPARE(entero->text(), u"2"_s);
        m_rejilla->setCurrentIndex(m_rejilla->model()->index(2, 0));
        QCOMPARE(entero->text().size(), 157);
        QCOMPARE(control<QLabel>(m_ventana, u"lblFactorElegido"_s)->text(),
                 u"Factor &elegido (cifras: 157)"_s);
        QCOMPARE(producto(), u"2 · 3 · "_s + entero->text());
    }

    /// Nothing of the last number, and no hint that passes for a result, stands beside a run.
    void mientrasCorreNadaPareceUnResultado()
    {
        factoriza(u"360"_s);
        correElIngenuo();
        QCOMPARE(mostrados(), QString());
        QCOMPARE(resultado(), u"Factorizando…"_s);
        for (const QString &campo : {u"txtFactorElegido"_s, u"txtProductoDeFactores"_s}) {
            const auto *largo = control<CampoLargo>(m_ventana, campo);
            QVERIFY(largo->text().isEmpty() && largo->placeholderText().isEmpty());
        }
    }

    void detenerElIngenuo()
    {
        correElIngenuo();
        daVueltas(10);
        QCOMPARE(m_boton->toolTip(), u"Detener factorización"_s);
        QCOMPARE(m_ventana->cursor().shape(), Qt::WaitCursor);
        m_boton->click();
        QVERIFY(estaEnReposo());
        QTRY_COMPARE(mostrados(), u"2,2 3,1"_s);
        QCOMPARE(producto(), u"2² · 3 · (9999999999971)"_s);
        QVERIFY2(resultado().startsWith(u"Detenida. "_s), qPrintable(resultado()));
    }

    void cerrarMientrasCorre_data()
    {
        filasDeTexto<int>(uR"(
            behind the click | 0 || in the first yield | 1 || in the run | 10)"_s);
    }
    void cerrarMientrasCorre()
    {
        const int vueltas = estaFila<int>();
        cierraCon([this, vueltas] {
            correElIngenuo();
            daVueltas(vueltas);
        });
    }

    /// What a student may do during a run.
    void mientrasCorre_data()
    {
        filasDeTexto<int>(uR"(
            switch topics | 0 || sieve | 1 || change the precision | 2)"_s);
    }
    void mientrasCorre()
    {
        const int accion = estaFila<int>();
        m_ventana->show();
        correElIngenuo();
        daVueltas(10);
        auto *temas = control<QTabBar>(m_ventana, u"tsTema"_s);
        if (accion == 0) {
            for (int i = 0; i < temas->count(); ++i)
                temas->setCurrentIndex(i);
        } else if (accion == 1) {
            // Both share the stop line; Escape presses the button in sight.
            control<QLineEdit>(m_ventana, u"txtMaxPrimo"_s)->setText(u"10^8"_s);
            control<QPushButton>(m_ventana, u"BtnCriba"_s)->click();
            temas->setCurrentIndex(3);
        } else if (accion == 2) {
            Sesión().ponPrecisión(50);
        }
        QCOMPARE(m_boton->toolTip(), u"Detener factorización"_s);
        QTest::keyClick(m_numero, Qt::Key_Escape);
        QVERIFY(estaEnReposo());
        QTRY_COMPARE(mostrados(), u"2,2 3,1"_s);
        if (accion == 1)
            QTRY_VERIFY(control<QLabel>(m_ventana, u"lblResumen"_s)->text().contains(u"detenida"));
    }

    /// A run that is stopped while another lesson keeps the program busy ends all the same.
    void unaParadaValeAunqueEmpieceOtra()
    {
        const FormPrimos otra;
        auto *suBoton = control<QPushButton>(&otra, u"BtnCriba"_s);
        correElIngenuo();
        suBoton->click();
        m_boton->click();
        factoriza(u"30"_s);
        QTest::qWait(50);
        QCOMPARE(mostrados(), u"2,1 3,1 5,1"_s);
    }

    /// What a run had found when it was stopped does not come into the next one.
    void loDeUnaCorridaParadaNoSaleEnOtra()
    {
        correElIngenuo();
        QTest::qWait(30);
        m_boton->click();
        correElIngenuo();
        QTest::qWait(30);
        QCOMPARE(mostrados(), QString());
        m_boton->click();
    }

    /// Two clicks before the first of the yields: the later one counts.
    void dosClicsSeguidos()
    {
        elige(0);
        m_numero->setText(u"360"_s);
        m_boton->click();
        factoriza(u"30"_s);
        QTest::qWait(20);
        QCOMPARE(mostrados(), u"2,1 3,1 5,1"_s);
    }

private:
    void elige(int algoritmo)
    {
        control<QRadioButton>(m_ventana, u"OptAlgoritmo_%1"_s.arg(algoritmo))->click();
    }

    void correElIngenuo()
    {
        elige(0);
        m_numero->setText(u"12*9999999999971"_s);
        m_boton->click();
    }

    /// Factors a number and waits for the end.
    void factoriza(const QString &numero)
    {
        m_numero->setText(numero);
        m_boton->click();
        QTRY_VERIFY(estaEnReposo());
    }

    /// Lets the event loop come round so many times, each of which goes on with a suspended run.
    void daVueltas(int cuantas)
    {
        int dadas = 0;
        QTimer timer;
        connect(&timer, &QTimer::timeout, this, [&] { ++dadas; });
        timer.start(0);
        QTRY_VERIFY(dadas >= cuantas);
    }

    /// Closes the window behind an action: it is gone, and nothing computes on.
    void cierraCon(const std::function<void()> &accion)
    {
        const QPointer<FormPrimos> viva = m_ventana;
        m_ventana->show();
        accion();
        m_ventana->cierra();
        QTRY_VERIFY(!viva);
        m_ventana = nullptr;
        QTest::qWait(20);
    }

    QString producto() const
    {
        return control<CampoLargo>(m_ventana, u"txtProductoDeFactores"_s)->text();
    }
    QString resultado() const { return control<QLabel>(m_ventana, u"lblResultado"_s)->text(); }

    QString mostrados() const
    {
        QStringList filas;
        const QAbstractItemModel *tabla = m_rejilla->model();
        for (int f = 0; f < tabla->rowCount(); ++f)
            filas << tabla->index(f, 0).data().toString() + u',' +
                         tabla->index(f, 1).data().toString();
        return filas.join(u' ');
    }

    bool estaEnReposo() const
    {
        return m_boton->toolTip() == u"Factorizar"_s &&
               m_ventana->cursor().shape() == Qt::ArrowCursor;
    }

    FormPrimos *m_ventana = nullptr;
    CampoLargo *m_numero = nullptr;
    QPushButton *m_boton = nullptr;
    Rejilla *m_rejilla = nullptr;
    ReproductorAVI *m_ruedas = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosFactorizacion)
#include "tst_FormPrimosFactorizacion.moc"
