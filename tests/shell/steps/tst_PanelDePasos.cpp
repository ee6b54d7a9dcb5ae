// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/PasosDePotencia.h"
#include "shell/steps/FormulaCompuesta.h"
#include "shell/steps/PanelDePasos.h"
#include "shell/steps/SeparadorDePasos.h"
#include "shell/steps/TablaPorRellenar.h"
#include "tests/shell/support/Entorno.h"

/// The panel of steps as a student uses it.
class tst_PanelDePasos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }
    void nadaSeHaceAntesDeVerlo();
    void unoAUnoPorBotonesYTeclas();
    void todosALaVezYSeRecuerda();
    void seCopiaLoQueEstaALaVista();
    void seImprimen();
    void laPeliculaLlegaAlFinalYPara();
    void otrosPasosEmpiezanPorElPrimero();
    void alLadoODebajo();
    void unaFormulaAnchaSeParte();
    void otroAnchoOtrasLineas();
    void sePredicenLosBitsDeUnaPotencia();
    void predecirAcabaConSuPaso();

private:
    struct Panel : PanelDePasos
    {
        Panel() : PanelDePasos(u"Prueba"_s, nullptr) {}
        QListView *lista() const { return control<QListView>(this, u"listaDePasos"_s); }
        int vistos() const { return lista()->model()->rowCount(); }
        int actual() const { return lista()->currentIndex().row(); }
        void pulsa(const QString &boton) const { control<QToolButton>(this, boton)->click(); }
        bool ofrecePredecir() const
        {
            return control<QWidget>(this, u"cmdPredecir"_s)->isVisible();
        }
        TablaPorRellenar *huecos() const { return findChild<TablaPorRellenar *>(); }
        /// Shows the last step, and hides all of its table.
        void predice() const
        {
            while (control<QToolButton>(this, u"cmdPasoSiguiente"_s)->isEnabled())
                pulsa(u"cmdPasoSiguiente"_s);
            pulsa(u"cmdPredecir"_s);
            pulsa(u"cmdOcultarTodas"_s);
        }
    };

    /// Five steps, the last one with a table of ten numbers and two empty cells.
    static Pasos potencia() { return pasosDePotencia(u"7"_s, u"5"_s, u"13"_s); }

    static Pasos cuantos(qsizetype n)
    {
        return Pasos(n, [](qsizetype i) {
            return Paso{u"Paso número %1"_s.arg(i), {Formula(u"%1 = %1"_s.arg(i))}};
        });
    }
};

void tst_PanelDePasos::nadaSeHaceAntesDeVerlo()
{
    int hechos = 0;
    Panel panel;
    panel.pon(Pasos(5, [&hechos](qsizetype) {
        ++hechos;
        return Paso();
    }));
    QCOMPARE(hechos, 0);
    QVERIFY(panel.findChildren<QWidget *>().isEmpty());
    panel.show();
    QVERIFY(hechos > 0);
    panel.hide();
    int aplazados = 0;
    panel.pon(Pasos::aplazados([&aplazados] {
        ++aplazados;
        return cuantos(3);
    }));
    QCOMPARE(aplazados, 0);
    panel.show();
    QCOMPARE(panel.vistos(), 1);
    QCOMPARE(aplazados, 1);
}

void tst_PanelDePasos::unoAUnoPorBotonesYTeclas()
{
    Panel panel;
    panel.pon(cuantos(4));
    panel.show();
    QCOMPARE(panel.vistos(), 1);
    panel.pulsa(u"cmdPasoSiguiente"_s);
    QTest::keyClick(panel.lista(), Qt::Key_Down);
    QCOMPARE(panel.vistos(), 3);
    QCOMPARE(panel.actual(), 2);
    QCOMPARE(control<QLabel>(&panel, u"lblCualPaso"_s)->text(), u"Paso 3 de 4"_s);
    QVERIFY(control<QLabel>(&panel, u"lblCualPaso"_s)
                ->accessibleDescription()
                .contains(u"2 igual a 2"_s));
    QTest::keyClick(panel.lista(), Qt::Key_Left);
    QCOMPARE(panel.actual(), 1);
    QCOMPARE(panel.vistos(), 3);
    for (int i = 0; i < 5; ++i)
        QTest::keyClick(panel.lista(), Qt::Key_Right);
    QCOMPARE(panel.actual(), 3);
    QVERIFY(!control<QToolButton>(&panel, u"cmdPasoSiguiente"_s)->isEnabled());
}

void tst_PanelDePasos::todosALaVezYSeRecuerda()
{
    {
        Panel panel;
        panel.pon(cuantos(6));
        panel.show();
        panel.pulsa(u"cmdTodosLosPasos"_s);
        QCOMPARE(panel.vistos(), 6);
        QCOMPARE(panel.actual(), 0);
    }
    Panel otro;
    otro.pon(cuantos(7));
    otro.show();
    QCOMPARE(otro.vistos(), 7);
    otro.pulsa(u"cmdTodosLosPasos"_s);
    QCOMPARE(otro.vistos(), 1);
}

void tst_PanelDePasos::seCopiaLoQueEstaALaVista()
{
    Panel panel;
    panel.pon(cuantos(3));
    panel.show();
    panel.pulsa(u"cmdPasoSiguiente"_s);
    QTest::keyClick(panel.lista(), Qt::Key_C, Qt::ControlModifier);
    QCOMPARE(QGuiApplication::clipboard()->text(),
             u"1. Paso número 0\n   0 = 0\n2. Paso número 1\n   1 = 1\n"_s);
    control<QToolButton>(&panel, u"cmdCopiarPasos"_s)->menu()->actions().last()->trigger();
    QVERIFY(QGuiApplication::clipboard()->text().contains(u"\\[ 1 = 1 \\]"_s));
}

void tst_PanelDePasos::seImprimen()
{
    QTemporaryDir carpeta;
    Entorno::grabadora().impresion = carpeta.filePath(u"pasos.pdf"_s);
    Panel panel;
    panel.pon(cuantos(90));
    panel.show();
    panel.pulsa(u"cmdImprimirPasos"_s);
    QTRY_VERIFY(QFileInfo(carpeta.filePath(u"pasos.pdf"_s)).size() > 1000);
}

void tst_PanelDePasos::laPeliculaLlegaAlFinalYPara()
{
    Panel panel;
    panel.pon(cuantos(3));
    panel.show();
    QVERIFY(control<QToolButton>(&panel, u"cmdReproducirPasos"_s)->isHidden());
    panel.pon(cuantos(3).comoPelicula());
    auto *boton = control<QToolButton>(&panel, u"cmdReproducirPasos"_s);
    QVERIFY(!boton->isHidden());
    control<QComboBox>(&panel, u"cmbVelocidad"_s)->setCurrentIndex(2);
    boton->click();
    QTRY_COMPARE(panel.actual(), 2);
    QTRY_VERIFY(!boton->isChecked());
}

void tst_PanelDePasos::otrosPasosEmpiezanPorElPrimero()
{
    Panel panel;
    panel.pon(cuantos(3));
    panel.show();
    panel.pulsa(u"cmdPasoSiguiente"_s);
    panel.pon(cuantos(5));
    QCOMPARE(panel.vistos(), 1);
    panel.pon({});
    QCOMPARE(panel.vistos(), 0);
    QVERIFY(!control<QLabel>(&panel, u"lblSinPasos"_s)->isHidden());
    QVERIFY(!control<QToolButton>(&panel, u"cmdPasoSiguiente"_s)->isEnabled());
}

void tst_PanelDePasos::alLadoODebajo()
{
    auto *herramienta = new QLabel(u"herramienta"_s);
    auto *panel = new Panel;
    SeparadorDePasos separador(herramienta, panel, nullptr);
    panel->show();
    separador.resize(1200, 600);
    separador.show();
    QCOMPARE(separador.orientation(), Qt::Horizontal);
    QVERIFY(panel->width() > 300);
    separador.resize(700, 600);
    QCOMPARE(separador.orientation(), Qt::Vertical);
    QVERIFY(panel->height() > 100);
}

void tst_PanelDePasos::unaFormulaAnchaSeParte()
{
    QStringList sumandos;
    for (int i = 0; i < 40; ++i)
        sumandos << u"1000*%1^2"_s.arg(i);
    const Formula formula(u"x = "_s + sumandos.join(u" + "_s));
    const FormulaCompuesta entera(formula, QFont(), 1e6);
    const FormulaCompuesta partida(formula, QFont(), 300);
    QVERIFY(entera.tamano().width() > 1000);
    QVERIFY(partida.tamano().width() <= 300);
    QVERIFY(partida.tamano().height() > 3 * entera.tamano().height());
    // A modulus stands in one line, however long it is.
    const Formula modulo(u"2 == 3 (mod %1)"_s.arg(QString(26, u'8')));
    const qreal ancho = FormulaCompuesta(modulo, QFont(), 1e6).tamano().width();
    QVERIFY(FormulaCompuesta(modulo, QFont(), ancho * 0.8).tamano().width() <= ancho * 0.8);
}

/// Sentences break anew in a narrower column, and the steps below make room for them.
void tst_PanelDePasos::otroAnchoOtrasLineas()
{
    Panel panel;
    panel.pon(Pasos(2, [](qsizetype) { return Paso{u"palabras "_s.repeated(30)}; }));
    panel.resize(900, 500);
    panel.show();
    panel.pulsa(u"cmdTodosLosPasos"_s);
    const auto alto = [&] {
        return panel.lista()->visualRect(panel.lista()->model()->index(0, 0)).height();
    };
    const int seisLineas = 6 * panel.fontMetrics().height();
    QTRY_VERIFY(alto() > 0 && alto() < seisLineas);
    panel.resize(300, 500);
    QTRY_VERIFY(alto() > seisLineas);
}

void tst_PanelDePasos::sePredicenLosBitsDeUnaPotencia()
{
    Panel panel;
    panel.pon(potencia());
    panel.show();
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    QVERIFY(!panel.ofrecePredecir());
    panel.predice();
    QVERIFY(panel.ofrecePredecir() && !panel.lista()->isVisible());
    QCOMPARE(panel.huecos()->tabla().pendientes(), 10);
    auto *rejilla = control<QTableView>(&panel, u"FlexHuecos"_s);
    const auto *veredicto = control<QLabel>(&panel, u"lblVeredictoDeCasilla"_s);
    const auto celda = [rejilla](int fila, int columna) {
        return rejilla->model()->index(fila, columna).data().toString();
    };
    const auto escribe = [rejilla](int fila, int columna, const QString &respuesta) {
        rejilla->setCurrentIndex(rejilla->model()->index(fila, columna));
        rejilla->setFocus();
        QTest::keyClick(rejilla, Qt::Key_F2);
        QTest::keyClicks(QApplication::focusWidget(), respuesta);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    };
    escribe(2, 3, u"9"_s);
    QTRY_COMPARE(celda(2, 3), u"✗ 9"_s);
    QTRY_VERIFY(veredicto->text().contains(u"Ahí no va 9"_s));
    panel.pulsa(u"cmdPorQue"_s);
    QVERIFY(veredicto->text().contains(u"(a^e)²·a"_s));
    const QList<QStringList> filas = potencia().paso(4).tabla.filas;
    QCOMPARE(filas.back(), QStringList({u"1"_s, u"5"_s, u"9"_s, u"11"_s}));
    for (int i = 0; i < filas.size(); ++i) {
        for (int j = 0; j < filas[i].size(); ++j) {
            if (filas[i][j].isEmpty() || (i == 2 && j == 3))
                continue;
            escribe(i, j, filas[i][j]);
            QTRY_COMPARE(celda(i, j), u"✓ "_s + filas[i][j]);
        }
    }
    QCOMPARE(panel.huecos()->tabla().pendientes(), 1);
}

void tst_PanelDePasos::predecirAcabaConSuPaso()
{
    Panel panel;
    panel.pon(potencia());
    panel.show();
    QVERIFY(!panel.huecos());
    panel.predice();
    panel.pulsa(u"cmdTodosLosPasos"_s);
    QCOMPARE(panel.huecos()->tabla().pendientes(), 10);
    panel.pulsa(u"cmdPasoAnterior"_s);
    QVERIFY(!panel.ofrecePredecir() && panel.lista()->isVisible());
    QVERIFY(!panel.huecos()->isVisible());
    panel.predice();
    panel.pon(cuantos(1));
    QVERIFY(!panel.ofrecePredecir() && panel.lista()->isVisible());
    panel.pon(Pasos(2, [](qsizetype i) {
        return Paso{u"tabla"_s, {}, {}, {{u"n"_s}, {{QString::number(i)}, {u"n − 1"_s}, {}}}};
    }));
    panel.pulsa(u"cmdPredecir"_s);
    panel.pulsa(u"cmdPasoSiguiente"_s);
    QVERIFY(panel.huecos()->isVisible());
    QCOMPARE(panel.huecos()->tabla().texto(0, 0), u"1"_s);
    panel.pulsa(u"cmdPredecir"_s);
    QVERIFY(panel.lista()->isVisible() && !panel.huecos()->isVisible());
}

NUMORA_TEST_MAIN(tst_PanelDePasos)
#include "tst_PanelDePasos.moc"
