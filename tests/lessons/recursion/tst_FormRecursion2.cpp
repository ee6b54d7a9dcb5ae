// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/FormRecursion2.h"
#include "shell/controls/Dibujo.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/plot/Grafica.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

/// The lesson on modular recurrences, by its controls.
class TestFormRecursion2 : public QObject, private VentanaDeLeccion<FormRecursión2>
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        abre();
        m_modulo = campo(u"TxtMódulo"_s);
        m_calcula = boton(u"cmdCalcular"_s);
        m_inicio = campo(u"txtInicioPeriodo"_s);
        m_periodo = campo(u"TxtPeriodo"_s);
        m_valores = el<QTableView>(u"FlexValores"_s);
        m_grafica = el<Grafica>(u"PicFunción"_s);
    }
    void cleanup() { m_ventana.reset(); }

    void alAbrir()
    {
        QCOMPARE(rotulosDeTemas(m_ventana.get()), u"Función|Representación|Valores|Cuestiones"_s);
        QCOMPARE(m_valores->model()->rowCount(), 0);
        QCOMPARE(m_valores->toolTip(), u"Pulse para copiar un valor"_s);
        QVERIFY(m_ventana->URL().endsWith(u"\\Doc\\Recursión2.html"_s));
    }

    void fibonacciModulo10()
    {
        calcula(u"10"_s);
        QCOMPARE(m_inicio->text(), u"1"_s);
        QCOMPARE(m_periodo->text(), u"60"_s);
        QCOMPARE(m_valores->model()->rowCount(), 250);
        QCOMPARE(valor(60), u"0"_s);
        QCOMPARE(valor(250), u"5"_s);
        QCOMPARE(m_grafica->encuadre().visible(), QRectF(0, 0, 250, 9));
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QCOMPARE(m_modulo->toolTip(), u"10"_s);
    }

    void elConsejoDelModulo_data()
    {
        filasDeTexto<QString, QString>(uR"(
            number | 91 | 91 || expression | 7*13 | 7*13=91
            mod as typed | 100 mod 7 | 100 mod 7=2)"_s);
    }
    void elConsejoDelModulo()
    {
        const auto [texto, consejo] = estaFila<QString, QString>();
        calcula(texto);
        QCOMPARE(m_modulo->toolTip(), consejo);
    }

    /// Beside the plot and beside the values; gone with another function.
    void pasos()
    {
        const auto paneles = m_ventana->findChildren<PanelDePasos *>();
        QCOMPARE(paneles.size(), 2);
        calcula(u"10"_s);
        for (const PanelDePasos *panel : paneles)
            QCOMPARE(panel->pasos().cuantos(), 62);
        QVERIFY(texto(u"lblPareja"_s).contains(u"61 y 62"_s));
        acepta(u"2"_s, u"1"_s, u"1"_s, u"1"_s);
        for (const PanelDePasos *panel : paneles)
            QVERIFY(panel->pasos().vacios());
    }

    void periodoGrande()
    {
        calcula(u"10"_s);
        calcula(u"1000"_s);
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.texto,
                 u"El periodo es mayor que el conjunto de valores que se examina."_s);
        QCOMPARE(mensaje.titulo, u"Periodo grande"_s);
        QCOMPARE(mensaje.icono, Interlocutor::Icono::Informacion);
        QCOMPARE(m_inicio->text() + m_periodo->text(), QString());
        QCOMPARE(valor(17), u"597"_s);
    }

    void desbordamiento()
    {
        calcula(u"10"_s);
        const QString consejo = m_modulo->toolTip();
        calcula(u"2^31-1"_s);
        QCOMPARE(Entorno::grabadora().unico().texto,
                 u"Desbordamiento.\nf(47) se sale de los 32 bits con este módulo."_s);
        QCOMPARE(m_valores->model()->rowCount(), 0);
        QCOMPARE(m_periodo->text(), QString());
        QCOMPARE(m_modulo->toolTip(), consejo);
    }

    /// Nothing that is shown changes but for the word about it, which lasts until the field does.
    void unModuloQueNoLoEs()
    {
        const auto *aviso = el<QLabel>(u"lblAvisoDeModulo"_s);
        const QString cero = u"✗ El menor número permitido es 1."_s;
        calcula(u"0"_s);
        QCOMPARE(aviso->text(), cero);
        calcula(u"10"_s);
        QVERIFY(aviso->isHidden());
        calcula(u"0"_s);
        QCOMPARE(aviso->text(), cero + u" Lo que se ve es de módulo 10."_s);
        QVERIFY(!aviso->isHidden());
        QCOMPARE(m_periodo->text() + u' ' + m_modulo->toolTip(), u"60 10"_s);
        QTest::keyClicks(m_modulo, u"9"_s);
        QVERIFY(aviso->isHidden());
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void otraFuncion()
    {
        calcula(u"10"_s);
        acepta(u"2"_s, u"-1"_s, u"5+5"_s, u"11"_s);
        QCOMPARE(m_valores->model()->rowCount(), 0);
        QCOMPARE(m_periodo->text(), QString());
        calcula(u"100"_s);
        QCOMPARE(valor(1), u"10"_s);
        QCOMPARE(valor(250), u"59"_s);
        QCOMPARE(m_periodo->text(), u"100"_s);
        // The first values are kept as they were accepted, not reduced by an earlier modulus.
        calcula(u"7"_s);
        calcula(u"100"_s);
        QCOMPARE(valor(1), u"10"_s);
    }

    void unCampoQueNoValeNoCambiaNada()
    {
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
        calcula(u"10"_s);
        acepta(u"2"_s, u"1/2"_s, u"mod"_s, u"1"_s);
        QCOMPARE(m_ventana->focusWidget(), campo(u"TxtBeta"_s));
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QCOMPARE(avisoDeFuncion(), u"✗ β: El valor escrito no es un número entero."_s);
        QCOMPARE(m_periodo->text(), u"60"_s);
        calcula(u"10"_s);
        QCOMPARE(m_periodo->text(), u"60"_s);
        acepta(u"10^300"_s, u"1"_s, u"1"_s, u"1"_s);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Número demasiado grande"_s);
        QCOMPARE(avisoDeFuncion(), u"✗ α: El mayor número permitido es 922.337.203.685.477."_s);
    }

    void alSalirDelCampoUnaSolaVez()
    {
        auto *temas = el<QTabBar>(u"tsTema"_s);
        temas->setCurrentIndex(1);
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
        m_modulo->setFocus();
        QTest::keyClicks(m_modulo, u"1000"_s);
        QTest::keyClick(m_modulo, Qt::Key_Tab);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Periodo grande"_s);
        m_modulo->setFocus();
        QTest::keyClicks(m_modulo, u"0"_s);
        QTest::mouseClick(m_calcula, Qt::LeftButton);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Periodo grande"_s);
        QTest::keyClick(m_modulo, Qt::Key_Return);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Periodo grande"_s);
        QTest::keyClick(m_modulo, Qt::Key_Tab);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void cerrarNoEsSalirDelCampo()
    {
        QMdiArea area;
        auto *ventana = m_ventana.release();
        area.addSubWindow(ventana);
        control<QTabBar>(ventana, u"tsTema"_s)->setCurrentIndex(1);
        area.show();
        ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(&area));
        m_modulo->setFocus();
        QTest::keyClicks(m_modulo, u"1000"_s);
        const QPointer<QWidget> testigo = ventana;
        ventana->cierra();
        QTRY_VERIFY(!testigo);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void copiarUnValor()
    {
        calcula(u"10000"_s);
        Entorno::grabadora().mensajes.clear();
        QApplication::clipboard()->setText(u"antes"_s);
        Q_EMIT m_valores->clicked(m_valores->model()->index(19, 0));
        QCOMPARE(QApplication::clipboard()->text(), u"antes"_s);
        Q_EMIT m_valores->clicked(m_valores->model()->index(19, 1));
        QCOMPARE(QApplication::clipboard()->text(), u"6.765"_s);
    }

    void eureka()
    {
        Aspecto::ponMovimientoReducido(false);
        auto *temas = el<QTabBar>(u"tsTema"_s);
        temas->setCurrentIndex(1);
        m_ventana->show();
        const auto *luz = el<Dibujo>(u"ImgEureka"_s);
        QVERIFY(!luz->isVisible());
        calcula(u"10"_s);
        QVERIFY(luz->isVisible());
        QCOMPARE(luz->imagen(), u"EUREKA0"_s);
        QTRY_COMPARE(luz->imagen(), u"EUREKA2"_s);
        calcula(u"1000"_s);
        Entorno::grabadora().mensajes.clear();
        QVERIFY(!luz->isVisible());
    }

    void elPuntoSenalado()
    {
        calcula(u"10000"_s);
        Entorno::grabadora().mensajes.clear();
        for (int i = 0; i < 20; ++i)
            QTest::keyClick(m_grafica, Qt::Key_Right);
        QCOMPARE(texto(u"lblPunto"_s), u"f(20) = 6.765"_s);
    }

    /// A proof that was begun is there again; hints come one at a time and end.
    void demostraciones()
    {
        el<QPlainTextEdit>(u"txtApuntes2"_s)->setPlainText(u"Sea k = 2.\nEntonces…"_s);
        for (int pistas = 1; boton(u"cmdPista2"_s)->isEnabled(); ++pistas) {
            pulsa(u"cmdPista2"_s);
            QCOMPARE(texto(u"lblPistas2"_s).count(u"\n\n"_s), pistas - 1);
        }
        QCOMPARE(texto(u"lblPistas1"_s), QString());
        m_ventana.reset();
        QVERIFY(QDir(Sesión().carpetaDeAjustes()).mkdir(u"recursion2.demostracion1"_s));
        m_ventana = std::make_unique<FormRecursión2>();
        QCOMPARE(el<QPlainTextEdit>(u"txtApuntes2"_s)->toPlainText(), u"Sea k = 2.\nEntonces…"_s);
        QCOMPARE(el<QPlainTextEdit>(u"txtApuntes1"_s)->toPlainText(), QString());
        // What cannot be read is said, and not written over.
        QVERIFY(!el<QPlainTextEdit>(u"txtApuntes1"_s)->isEnabled());
    }

private:
    void calcula(const QString &modulo)
    {
        m_modulo->setText(modulo);
        m_calcula->click();
    }

    void acepta(const QString &alfa, const QString &beta, const QString &f1, const QString &f2)
    {
        campo(u"txtAlfa"_s)->setText(alfa);
        campo(u"TxtBeta"_s)->setText(beta);
        campo(u"TxtF1"_s)->setText(f1);
        campo(u"txtF2"_s)->setText(f2);
        pulsa(u"cmdFunción"_s);
    }

    QString avisoDeFuncion() const { return texto(u"lblAviso"_s); }

    QString valor(int n) const { return m_valores->model()->index(n - 1, 1).data().toString(); }

    QLineEdit *m_modulo = nullptr, *m_inicio = nullptr, *m_periodo = nullptr;
    QPushButton *m_calcula = nullptr;
    QTableView *m_valores = nullptr;
    Grafica *m_grafica = nullptr;
};

NUMORA_TEST_MAIN(TestFormRecursion2)
#include "tst_FormRecursion2.moc"
