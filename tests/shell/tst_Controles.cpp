#include "shell/controls/CampoLargo.h"
#include "shell/controls/ReproductorAVI.h"
#include "shell/core/ModGlobal.h"
#include "shell/grid/Rejilla.h"
#include "shell/look/Aspecto.h"
#include "shell/start/FormAcercaDe.h"
#include "tests/shell/support/Contraste.h"
#include "tests/shell/support/Entorno.h"

#include <QClipboard>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QStandardItemModel>
#include <QVBoxLayout>

using namespace Qt::Literals::StringLiterals;

Q_DECLARE_METATYPE(Aspecto::Tema)

class TestControles : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void campoLargoJuntaLasLineasPegadas()
    {
        CampoLargo campo;
        QApplication::clipboard()->setText(u"123\r\n456\n789"_s);
        campo.paste();
        QCOMPARE(campo.text(), u"123456789"_s);
        campo.setText(QString(CampoLargo::LongitudMaxima + 5, u'7'));
        QCOMPARE(campo.text().size(), CampoLargo::LongitudMaxima);
        campo.paste();
        QVERIFY(campo.text().size() <= CampoLargo::LongitudMaxima);
    }

    void campoLargoSeComportaComoUnaLinea()
    {
        QWidget ventana;
        auto *columna = new QVBoxLayout(&ventana);
        auto *campo = new CampoLargo;
        auto *otro = new QLineEdit;
        columna->addWidget(campo);
        columna->addWidget(otro);
        ventana.show();
        QVERIFY(QTest::qWaitForWindowActive(&ventana));
        QSignalSpy entradas(campo, &CampoLargo::returnPressed);
        QSignalSpy ediciones(campo, &CampoLargo::editingFinished);
        campo->setFocus();
        QTest::keyClicks(campo, u"97"_s);
        QTest::keyClick(campo, Qt::Key_Return);
        QCOMPARE(entradas.count(), 1);
        QCOMPARE(campo->text(), u"97"_s);
        QTest::keyClick(campo, Qt::Key_Tab);
        QVERIFY(otro->hasFocus());
        QCOMPARE(ediciones.count(), 1);
    }

    void rejillaCopia()
    {
        QStandardItemModel modelo(2, 2);
        modelo.setHorizontalHeaderLabels({u"n"_s, u"f(n)"_s});
        for (int f = 0; f < 2; ++f) {
            for (int c = 0; c < 2; ++c)
                modelo.setItem(f, c, new QStandardItem(QString::number(10 * f + c)));
        }
        Rejilla rejilla;
        QCOMPARE(rejilla.seleccion(FormaDeCopia::Texto), QString());
        rejilla.setModel(&modelo);
        QCOMPARE(rejilla.seleccion(FormaDeCopia::CSV), u"n;f(n)\r\n0;1\r\n10;11\r\n"_s);
        rejilla.setCurrentIndex(modelo.index(1, 1));
        QTest::keyClick(&rejilla, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"11"_s);
        rejilla.selectionModel()->select({modelo.index(0, 0), modelo.index(0, 1)},
                                         QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(&rejilla, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"0\t1\n"_s);
        // The rows that are still to be written are no contents; nothing at all is not copied.
        modelo.insertRows(2, 5);
        rejilla.clearSelection();
        QTest::keyClick(&rejilla, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"n\tf(n)\n0\t1\n10\t11\n"_s);
        modelo.removeRows(0, modelo.rowCount());
        QTest::keyClick(&rejilla, Qt::Key_C, Qt::ControlModifier);
        QCOMPARE(QApplication::clipboard()->text(), u"n\tf(n)\n0\t1\n10\t11\n"_s);
    }

    void animacionSinArchivo()
    {
        ReproductorAVI animacion;
        animacion.resize(100, 100);
        animacion.carga(u"ClipArt\\NO_ESTA.AVI"_s, u"RUEDAS"_s);
        animacion.show();
        animacion.reproduce(ReproductorAVI::Modo::Continuo);
        QTest::qWait(100);
        QCOMPARE(animacion.estado(), ReproductorAVI::Reproduciendo);
        animacion.para();
        QCOMPARE(animacion.estado(), ReproductorAVI::Parado);
    }

    void animacionQueAcaba()
    {
        ReproductorAVI animacion;
        QSignalSpy fin(&animacion, &ReproductorAVI::terminada);
        animacion.carga(u"clipart\\error02.avi"_s, u"ERROR"_s);
        animacion.reproduce(ReproductorAVI::Modo::UnaVez);
        QVERIFY(fin.wait(15000));
        QCOMPARE(animacion.estado(), ReproductorAVI::Parado);
    }

    void losTextosSeLeen_data()
    {
        QTest::addColumn<Aspecto::Tema>("tema");
        QTest::newRow("light") << Aspecto::Tema::Claro;
        QTest::newRow("dark") << Aspecto::Tema::Oscuro;
    }
    void losTextosSeLeen()
    {
        QFETCH(Aspecto::Tema, tema);
        Aspecto::aplica(tema);
        const QPalette p = QApplication::palette();
        const QList<QColor> fondos{p.window().color(), p.base().color(), p.alternateBase().color()};
        const QList<QColor> textos{p.text().color(), p.placeholderText().color(),
                                   p.link().color(), Aspecto::acento(),
                                   Aspecto::exito(), Aspecto::error()};
        for (const QColor &fondo : fondos) {
            for (const QColor &texto : textos)
                QVERIFY2(contraste(fondo, texto) >= 4.5,
                         qPrintable(texto.name() + u" on "_s + fondo.name()));
        }
        QVERIFY(contraste(p.button().color(), p.buttonText().color()) >= 4.5);
        QVERIFY(contraste(p.highlight().color(), p.highlightedText().color()) >= 4.5);
        Aspecto::aplica(Aspecto::Tema::Sistema);
    }

    void acercaDe()
    {
        auto *acercaDe = new formAcercaDe;
        QSignalSpy descargas(acercaDe, &formAcercaDe::descargada);
        acercaDe->show();
        QCOMPARE(acercaDe->windowTitle(), u"Acerca de Numora"_s);
        QCOMPARE(control<QLabel>(acercaDe, u"lblTitle"_s)->text(), u"Numora"_s);
        QTest::mouseClick(control<QLabel>(acercaDe, u"lblDisclaimer"_s), Qt::LeftButton);
        QCOMPARE(Entorno::grabadora().abiertas, QStringList{Sesión().TarvoURL()});
        Entorno::grabadora().hayProgramas = false;
        control<QPushButton>(acercaDe, u"cmdSysInfo"_s)->click();
        QCOMPARE(Entorno::grabadora().unico().texto,
                 u"System Information Is Unavailable At This Time"_s);
        acercaDe->close();
        QCOMPARE(descargas.count(), 1);
    }
};

NUMORA_TEST_MAIN(TestControles)
#include "tst_Controles.moc"
