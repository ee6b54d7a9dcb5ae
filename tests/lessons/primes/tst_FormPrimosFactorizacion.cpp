#include "lessons/primes/windows/FormPrimos.h"
#include "shell/controls/CampoLargo.h"
#include "shell/controls/ReproductorAVI.h"
#include "shell/core/clsSesion.h"
#include "shell/grid/Rejilla.h"
#include "tests/shell/support/Entorno.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

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
        QTest::addColumn<QString>("texto");
        QTest::addColumn<int>("algoritmo");
        QTest::addColumn<QString>("factores");
        for (int algoritmo = 0; algoritmo < 3; ++algoritmo) {
            QTest::addRow("360 by %d", algoritmo) << u"360"_s << algoritmo << u"2|3 3|2 5|1"_s;
            QTest::addRow("expression by %d", algoritmo) << u"97*2"_s << algoritmo << u"2|1 97|1"_s;
            QTest::addRow("1 by %d", algoritmo) << u"1"_s << algoritmo << QString();
        }
        QTest::newRow("beyond the limit")
            << u"922337203685477+1"_s << 2 << u"2|1 3|1 7|1 21960409611559|1"_s;
    }
    void factores()
    {
        QFETCH(QString, texto);
        QFETCH(int, algoritmo);
        elige(algoritmo);
        m_numero->setText(texto);
        m_boton->click();
        QTEST(mostrados(), "factores");
        estaEnReposo();
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Parado);
        QCOMPARE(control<QLabel>(m_ventana, u"lblTiempo"_s)->text(),
                 control<QLabel>(m_ventana, u"lblTiempoFactorizando"_s)->text());
    }

    void rechazados_data()
    {
        QTest::addColumn<QString>("texto");
        QTest::addColumn<int>("algoritmo");
        QTest::addColumn<QString>("aviso");
        const QString limite = u"Solo puede dar números grandes con el algoritmo avanzado.\n"
                               "Con el algoritmo seleccionado, el máximo es 922337203685477"_s;
        QTest::newRow("empty") << QString() << 2 << QString();
        QTest::newRow("no expression") << u"2+"_s << 0 << QString();
        QTest::newRow("too large, naive") << u"922337203685477+1"_s << 0 << limite;
        QTest::newRow("too large, improved") << u"10^400"_s << 1 << limite;
        QTest::newRow("far below zero") << u"-10^20"_s << 0 << u"Desbordamiento."_s;
        QTest::newRow("fraction") << u"7/2"_s << 1 << u"No coinciden los tipos.\n7/2"_s;
    }
    void rechazados()
    {
        QFETCH(QString, texto);
        QFETCH(int, algoritmo);
        QFETCH(QString, aviso);
        elige(algoritmo);
        m_numero->setText(texto);
        m_boton->click();
        if (aviso.isEmpty())
            QCOMPARE(m_ventana->focusWidget(), m_numero);
        else
            QCOMPARE(Entorno::grabadora().unico().texto, aviso);
        estaEnReposo();
        // The wheels go on turning after a refusal, until the next factorization ends.
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Reproduciendo);
        m_numero->setText(u"6"_s);
        m_boton->click();
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Parado);
    }

    void desbordamientoDelMejorado_data()
    {
        QTest::addColumn<bool>("escape");
        QTest::newRow("stopped by the button") << false;
        QTest::newRow("stopped by Escape") << true;
    }
    void desbordamientoDelMejorado()
    {
        QFETCH(bool, escape);
        elige(1);
        m_numero->setText(u"10000000019"_s);
        m_boton->click();
        // The box says what can be done: the window goes on as if the run were still there.
        const QString texto = Entorno::grabadora().unico().texto;
        QVERIFY2(texto.startsWith(u"Desbordamiento.\nEl algoritmo mejorado cuenta en 16 bits"_s),
                 qPrintable(texto));
        QCOMPARE(m_boton->toolTip(), u"Detener factorización"_s);
        QCOMPARE(m_ventana->cursor().shape(), Qt::WaitCursor);
        if (escape)
            QTest::keyClick(m_numero, Qt::Key_Escape);
        else
            m_boton->click();
        estaEnReposo();
        m_numero->setText(u"10"_s);
        m_boton->click();
        QCOMPARE(mostrados(), u"2|1 5|1"_s);
    }

    void elFactorElegidoSeVeEntero()
    {
        m_numero->setText(u"(2^521-1)*6"_s);
        m_boton->click();
        auto *entero = control<CampoLargo>(m_ventana, u"txtFactorElegido"_s);
        QCOMPARE(entero->text(), u"2"_s);
        m_rejilla->setCurrentIndex(m_rejilla->model()->index(2, 0));
        QCOMPARE(entero->text().size(), 157);
        QCOMPARE(control<QLabel>(m_ventana, u"lblFactorElegido"_s)->text(),
                 u"Factor &elegido (cifras: 157)"_s);
        const auto *producto = control<CampoLargo>(m_ventana, u"txtProductoDeFactores"_s);
        QCOMPARE(producto->text(), u"2 · 3 · "_s + entero->text());
        m_numero->setText(u"2^123*3^2"_s);
        m_boton->click();
        QCOMPARE(producto->text(), u"2¹²³ · 3²"_s);
    }

    void detenerElIngenuo()
    {
        QTimer::singleShot(60, m_ventana, [this] {
            QCOMPARE(m_boton->toolTip(), u"Detener factorización"_s);
            m_boton->click();
        });
        correElIngenuo();
        QCOMPARE(mostrados(), u"2|2 3|1"_s);
        estaEnReposo();
    }

    /// What a student may do during a run; each is tried from within the loop.
    void mientrasCorre_data()
    {
        QTest::addColumn<int>("accion");
        QTest::newRow("close the window") << 0;
        QTest::newRow("switch topics and stop") << 1;
        QTest::newRow("sieve inside") << 2;
        QTest::newRow("change the precision") << 3;
        QTest::newRow("stop and start again") << 4;
    }
    void mientrasCorre()
    {
        QFETCH(int, accion);
        const QPointer<FormPrimos> viva = m_ventana;
        m_ventana->show();
        QTimer::singleShot(40, m_ventana, [this, accion] { haz(accion); });
        correElIngenuo();
        QVERIFY(viva);
        if (accion == 0) {
            QVERIFY(!viva->isVisible());
            QTRY_VERIFY(!viva);
            m_ventana = nullptr;
            return;
        }
        estaEnReposo();
        if (accion == 2)
            QCOMPARE(control<QLabel>(m_ventana, u"lblResumen"_s)->text(),
                     u"6.493 primos; el mayor es 64.997"_s);
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

    void haz(int accion)
    {
        switch (accion) {
        case 0:
            m_ventana->cierra();
            return;
        case 1:
            for (int i = 0; i < 5; ++i)
                control<QTabBar>(m_ventana, u"tsTema"_s)->setCurrentIndex(i);
            break;
        case 2:
            control<QPushButton>(m_ventana, u"BtnCriba"_s)->click();
            break;
        case 3:
            Sesión().ponPrecisión(50);
            break;
        case 4:
            m_boton->click();
            m_numero->setText(u"30"_s);
            m_boton->click();
            QCOMPARE(mostrados(), u"2|1 3|1 5|1"_s);
            m_ventana->corrida().detener();
            return;
        default:
            QFAIL("no such action");
        }
        m_boton->click();
    }

    QString mostrados() const
    {
        QStringList filas;
        const QAbstractItemModel *tabla = m_rejilla->model();
        for (int f = 0; f < tabla->rowCount(); ++f)
            filas << tabla->index(f, 0).data().toString() + u'|' +
                         tabla->index(f, 1).data().toString();
        return filas.join(u' ');
    }

    void estaEnReposo() const
    {
        QCOMPARE(m_boton->toolTip(), u"Factorizar"_s);
        QCOMPARE(m_ventana->cursor().shape(), Qt::ArrowCursor);
    }

    FormPrimos *m_ventana = nullptr;
    CampoLargo *m_numero = nullptr;
    QPushButton *m_boton = nullptr;
    Rejilla *m_rejilla = nullptr;
    ReproductorAVI *m_ruedas = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosFactorizacion)
#include "tst_FormPrimosFactorizacion.moc"
