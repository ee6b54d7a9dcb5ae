// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/AjustePotencial.h"
#include "lessons/primes/CosteDeFactorizar.h"
#include "lessons/primes/windows/FormPrimos.h"
#include "lessons/primes/windows/FormPrimosCriba.h"
#include "lessons/primes/windows/FormPrimosFactorizacion.h"
#include "lessons/primes/windows/FormPrimosTest.h"
#include "shell/controls/Dibujo.h"
#include "shell/plot/Grafica.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

#include <cmath>

/// What stands beside the tools of the lesson: steps, what they are asked for, and the experiment.
class TestFormPrimosPasos : public QObject, private VentanaDeLeccion<FormPrimos>
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        abre();
        m_test = m_ventana->findChild<FormPrimosTest *>();
        m_numero = largo(u"txtNúmero"_s);
        m_base = campo(u"txtBase"_s);
        m_carmichael = boton(u"cmdCarmichael"_s);
    }
    void cleanup() { m_ventana.reset(); }

    /// Steps and whether the number can be unmasked, by number and base; nothing of it changes the
    /// verdict.
    void pasosDelTest_data()
    {
        filasDeTexto<QString, QString, int, bool, bool>(uR"(
            2047 |  | 2 | yes | no || 2047 | 2 | 5 | yes | no || 2047 | 1+1 | 5 | yes | no
            2047 | 1 | 2 | yes | yes || 2047 | 2046 | 2 | yes | yes || 2047 | x | 2 | yes | yes
            2047 | 2045 | 5 | yes | no || 97 | 96 | 9 | no | yes || 97 | 5 | 10 | no | no
            4 | 3 | 2 | no | no || 3 | 2 | 2 | no | no || 90+7 |  | 1 | no | no)"_s);
    }
    void pasosDelTest()
    {
        const auto [numero, base, pasos, desenmascara, aviso] =
            estaFila<QString, QString, int, bool, bool>();
        prueba(numero);
        const QString luz = el<Dibujo>(u"imgTestPrimo"_s)->imagen();
        m_base->setText(base);
        QCOMPARE(m_test->pasos()->pasos().cuantos(), pasos);
        QCOMPARE(m_carmichael->isEnabled(), desenmascara);
        QCOMPARE(!texto(u"lblAvisoBase"_s).isEmpty(), aviso);
        QCOMPARE(el<Dibujo>(u"imgTestPrimo"_s)->imagen(), luz);
        m_numero->setText(numero + u'1');
        QVERIFY(m_test->pasos()->pasos().vacios());
        QVERIFY(!m_carmichael->isEnabled());
    }

    void historial()
    {
        prueba(u"561"_s);
        pulsa(u"cmdSigPrimo"_s);
        QStringList celdas;
        for (int i = 0; i < 3 * modelo(u"FlexHistorial"_s)->rowCount(); ++i)
            celdas << celda(u"FlexHistorial"_s, i / 3, i % 3).data().toString();
        QCOMPARE(celdas.join(u' '), u"561 10 No es primo 563 10 Es primo"_s);
        Q_EMIT rejilla(u"FlexHistorial"_s)->activated(celda(u"FlexHistorial"_s, 0, 1));
        QCOMPARE(m_numero->text(), u"561"_s);
    }

    /// Where steps are hidden, asking for them shows them.
    void desenmascara()
    {
        m_ventana->show();
        abreTema(2);
        prueba(u"561"_s);
        auto *orden = el<QToolButton>(u"cmdPasos"_s);
        orden->click();
        QVERIFY(!m_test->pasos()->isVisible());
        m_carmichael->click();
        QVERIFY(m_test->pasos()->isVisible() && orden->isChecked());
        QVERIFY(m_test->pasos()->pasos().paso(1).frase.contains(u"es un número de Carmichael"_s));
    }

    void pasosDeLaCriba()
    {
        escribe(u"txtMaxPrimo"_s, u"30"_s);
        pulsa(u"BtnCriba"_s);
        const auto *panel = m_ventana->findChild<FormPrimosCriba *>()->pasos();
        QTRY_VERIFY(!panel->pasos().vacios());
        QCOMPARE(panel->pasos().cuantos(), 3 + 14 + 8 + 2 + 1);
    }

    /// Divisor, factors and tree while the naive algorithm is still at it; its stop keeps them.
    void pasosMientrasFactoriza()
    {
        auto *factorizacion = m_ventana->findChild<FormPrimosFactorizacion *>();
        largo(u"TxtN"_s)->setText(u"12*9999999999971"_s);
        el<QRadioButton>(u"OptAlgoritmo_0"_s)->click();
        pulsa(u"BtnFactoriza"_s);
        QTRY_VERIFY(texto(u"lblResultado"_s).endsWith(u"Factores hallados: 2 · 2 · 3."_s));
        QCOMPARE(factorizacion->pasos()->pasos().cuantos(), 3);
        pulsa(u"BtnFactoriza"_s);
        QTRY_VERIFY(texto(u"lblResultado"_s).startsWith(u"Detenida. De"_s));
        QCOMPARE(factorizacion->pasos()->pasos().cuantos(), 4);
        QVERIFY(factorizacion->pasos()->pasos().paso(3).frase.startsWith(u"Detenida"_s));
    }

    void experimento()
    {
        pulsa(u"cmdCoste"_s);
        QTRY_VERIFY_WITH_TIMEOUT(modelo(u"FlexCoste"_s)->rowCount() >= 4, 30'000);
        pulsa(u"cmdCoste"_s);
        QTRY_VERIFY(texto(u"lblAvanceCoste"_s).startsWith(u"Detenido en"_s));
        QCOMPARE(celda(u"FlexCoste"_s, 0, 0).data().toString(), u"8"_s);
        QCOMPARE(texto(u"lblAjusteCoste"_s).count(u"tiempo ≈ c · n^"_s), 3);
        auto *grafica = el<Grafica>(u"PicCoste"_s);
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
    void prueba(const QString &numero)
    {
        m_numero->setText(numero);
        pulsa(u"cmdEsPrimo"_s);
    }

    FormPrimosTest *m_test = nullptr;
    CampoLargo *m_numero = nullptr;
    QLineEdit *m_base = nullptr;
    QPushButton *m_carmichael = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosPasos)
#include "tst_FormPrimosPasos.moc"
