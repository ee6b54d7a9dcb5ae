// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/AjustePotencial.h"
#include "lessons/primes/CosteDeFactorizar.h"
#include "lessons/primes/windows/FormPrimos.h"
#include "lessons/primes/windows/FormPrimosCriba.h"
#include "lessons/primes/windows/FormPrimosFactorizacion.h"
#include "lessons/primes/windows/FormPrimosTest.h"
#include "shell/controls/CampoLargo.h"
#include "shell/controls/Dibujo.h"
#include "shell/grid/Rejilla.h"
#include "shell/plot/Grafica.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/lessons/Tabla.h"
#include "tests/shell/support/Entorno.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>
#include <QToolButton>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

/// What stands beside the tools of the lesson: steps, what they are asked for, and the experiment.
class TestFormPrimosPasos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_ventana = std::make_unique<FormPrimos>();
        m_test = m_ventana->findChild<FormPrimosTest *>();
        m_numero = control<CampoLargo>(m_ventana.get(), u"txtNúmero"_s);
        m_base = control<QLineEdit>(m_ventana.get(), u"txtBase"_s);
        m_carmichael = control<QPushButton>(m_ventana.get(), u"cmdCarmichael"_s);
    }
    void cleanup() { m_ventana.reset(); }

    /// Steps and whether the number can be unmasked, by number and base; nothing of it changes the
    /// verdict.
    void pasosDelTest_data()
    {
        filasDeTexto<QString, QString, int, bool, bool>(uR"(
            2047 |  | 2 | yes | no || 2047 | 2 | 5 | yes | no || 2047 | 1+1 | 5 | yes | no
            2047 | 1 | 2 | yes | yes || 2047 | 2046 | 2 | yes | yes || 2047 | x | 2 | yes | yes
            2047 | 2045 | 5 | yes | no || 97 | 96 | 7 | no | yes || 97 | 5 | 11 | no | no
            4 | 3 | 2 | no | no || 3 | 2 | 2 | no | no || 90+7 |  | 1 | no | no)"_s);
    }
    void pasosDelTest()
    {
        const auto [numero, base, pasos, desenmascara, aviso] =
            estaFila<QString, QString, int, bool, bool>();
        prueba(numero);
        const QString luz = control<Dibujo>(m_ventana.get(), u"imgTestPrimo"_s)->imagen();
        m_base->setText(base);
        QCOMPARE(m_test->pasos()->pasos().cuantos(), pasos);
        QCOMPARE(m_carmichael->isEnabled(), desenmascara);
        QCOMPARE(!texto(u"lblAvisoBase"_s).isEmpty(), aviso);
        QCOMPARE(control<Dibujo>(m_ventana.get(), u"imgTestPrimo"_s)->imagen(), luz);
        m_numero->setText(numero + u'1');
        QVERIFY(m_test->pasos()->pasos().vacios());
        QVERIFY(!m_carmichael->isEnabled());
    }

    void historial()
    {
        auto *rejilla = control<Rejilla>(m_ventana.get(), u"FlexHistorial"_s);
        prueba(u"561"_s);
        control<QPushButton>(m_ventana.get(), u"cmdSigPrimo"_s)->click();
        QStringList celdas;
        for (int fila = 0; fila < rejilla->model()->rowCount(); ++fila) {
            for (int columna = 0; columna < 3; ++columna)
                celdas << rejilla->model()->index(fila, columna).data().toString();
        }
        QCOMPARE(celdas.join(u' '), u"561 10 No es primo 563 10 Es primo"_s);
        Q_EMIT rejilla->activated(rejilla->model()->index(0, 1));
        QCOMPARE(m_numero->text(), u"561"_s);
    }

    /// Where steps are hidden, asking for them shows them.
    void desenmascara()
    {
        m_ventana->show();
        control<QTabBar>(m_ventana.get(), u"tsTema"_s)->setCurrentIndex(2);
        prueba(u"561"_s);
        auto *boton = control<QToolButton>(m_ventana.get(), u"cmdPasos"_s);
        boton->click();
        QVERIFY(!m_test->pasos()->isVisible());
        m_carmichael->click();
        QVERIFY(m_test->pasos()->isVisible() && boton->isChecked());
        QVERIFY(m_test->pasos()->pasos().paso(1).frase.contains(u"es un número de Carmichael"_s));
    }

    void pasosDeLaCriba()
    {
        control<QLineEdit>(m_ventana.get(), u"txtMaxPrimo"_s)->setText(u"30"_s);
        control<QPushButton>(m_ventana.get(), u"BtnCriba"_s)->click();
        const auto *panel = m_ventana->findChild<FormPrimosCriba *>()->pasos();
        QTRY_VERIFY(!panel->pasos().vacios());
        QCOMPARE(panel->pasos().cuantos(), 3 + 14 + 8 + 2 + 1);
    }

    /// Divisor, factors and tree while the naive algorithm is still at it; its stop keeps them.
    void pasosMientrasFactoriza()
    {
        auto *factorizacion = m_ventana->findChild<FormPrimosFactorizacion *>();
        auto *boton = control<QPushButton>(m_ventana.get(), u"BtnFactoriza"_s);
        control<CampoLargo>(m_ventana.get(), u"TxtN"_s)->setText(u"12*9999999999971"_s);
        control<QRadioButton>(m_ventana.get(), u"OptAlgoritmo_0"_s)->click();
        boton->click();
        QTRY_VERIFY(texto(u"lblResultado"_s).endsWith(u"Factores hallados: 2 · 2 · 3."_s));
        QCOMPARE(factorizacion->pasos()->pasos().cuantos(), 4);
        boton->click();
        QTRY_VERIFY(texto(u"lblResultado"_s).startsWith(u"Detenida. De"_s));
        QCOMPARE(factorizacion->pasos()->pasos().cuantos(), 4);
        QVERIFY(factorizacion->pasos()->pasos().paso(3).frase.startsWith(u"Detenida"_s));
    }

    void experimento()
    {
        auto *boton = control<QPushButton>(m_ventana.get(), u"cmdCoste"_s);
        auto *rejilla = control<Rejilla>(m_ventana.get(), u"FlexCoste"_s);
        boton->click();
        QTRY_VERIFY_WITH_TIMEOUT(rejilla->model()->rowCount() >= 4, 30'000);
        boton->click();
        QTRY_VERIFY(texto(u"lblAvanceCoste"_s).startsWith(u"Detenido en"_s));
        QCOMPARE(rejilla->model()->index(0, 0).data().toString(), u"8"_s);
        QCOMPARE(texto(u"lblAjusteCoste"_s).count(u"tiempo ≈ c · n^"_s), 3);
        auto *grafica = control<Grafica>(m_ventana.get(), u"PicCoste"_s);
        QTest::keyClick(grafica, Qt::Key_Right);
        QTest::keyClick(grafica, Qt::Key_Right);
        QVERIFY(texto(u"lblPuntoCoste"_s).startsWith(u"Mejorado, n = "_s));
    }

    void ajuste()
    {
        QList<QPointF> puntos{{1, 2}, {2, 2.5}};
        QVERIFY(!ajustaPotencial(puntos));
        puntos << QPointF(4, 3.5);
        const auto recta = ajustaPotencial(puntos);
        QVERIFY(recta && std::abs(recta->exponente - 0.5) < 1e-12 &&
                std::abs(recta->r2 - 1) < 1e-12);
        QVERIFY(std::abs(recta->altura(6) - 4.5) < 1e-12);
        QVERIFY(!ajustaPotencial({{1, 2}, {1, 3}, {1, 4}}));
        MedidaDeCoste larga;
        larga.numero = u"2"_s + QString(40, u'0');
        QVERIFY(std::abs(larga.logNumero() - 40.30103) < 1e-5);
    }

private:
    QString texto(const QString &rotulo)
    {
        return control<QLabel>(m_ventana.get(), rotulo)->text();
    }

    void prueba(const QString &numero)
    {
        m_numero->setText(numero);
        control<QPushButton>(m_ventana.get(), u"cmdEsPrimo"_s)->click();
    }

    std::unique_ptr<FormPrimos> m_ventana;
    FormPrimosTest *m_test = nullptr;
    CampoLargo *m_numero = nullptr;
    QLineEdit *m_base = nullptr;
    QPushButton *m_carmichael = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosPasos)
#include "tst_FormPrimosPasos.moc"
