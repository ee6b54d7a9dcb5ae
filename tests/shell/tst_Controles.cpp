// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/CampoLargo.h"
#include "shell/controls/ReproductorAVI.h"
#include "shell/controls/SinFondo.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Escritorio.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/grid/Rejilla.h"
#include "shell/look/Aspecto.h"
#include "shell/start/FormAcercaDe.h"
#include "tests/shell/support/Contraste.h"
#include "tests/shell/support/Entorno.h"

#include <QSignalSpy>

namespace {

/// A table of any size with the same text in all its cells.
class Tabla : public QAbstractTableModel
{
public:
    void pon(int filas, int columnas, const QString &celda)
    {
        beginResetModel();
        m_filas = filas;
        m_columnas = columnas;
        m_celda = celda;
        endResetModel();
    }
    int rowCount(const QModelIndex &) const override { return m_filas; }
    int columnCount(const QModelIndex &) const override { return m_columnas; }
    QVariant data(const QModelIndex &, int papel) const override
    {
        return papel == Qt::DisplayRole ? m_celda : QVariant();
    }

private:
    int m_filas = 0;
    int m_columnas = 0;
    QString m_celda;
};

} // namespace

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
        auto *campo = new CampoLargo(&ventana);
        auto *otro = new QLineEdit(&ventana);
        ventana.show();
        QVERIFY(QTest::qWaitForWindowActive(&ventana));
        QSignalSpy entradas(campo, &CampoLargo::returnPressed);
        QSignalSpy ediciones(campo, &CampoLargo::editingFinished);
        campo->setFocus();
        QTest::keyClicks(campo, u"97"_s);
        QTest::keyClick(campo, Qt::Key_Return);
        QCOMPARE(entradas.count(), 1);
        QKeyEvent mantenida(QEvent::KeyPress, Qt::Key_Return, {}, {}, /*autorep*/ true);
        QApplication::sendEvent(campo, &mantenida);
        QCOMPARE(entradas.count(), 1);
        QCOMPARE(campo->text(), u"97"_s);
        QTest::keyClick(campo, Qt::Key_Tab);
        QVERIFY(otro->hasFocus());
        QCOMPARE(ediciones.count(), 1);
        campo->setFocus();
        QTest::keyClick(campo, Qt::Key_Tab);
        QCOMPARE(ediciones.count(), 1);
    }

    void columnasSegunLoQueMuestran()
    {
        for (const bool caben : {true, false}) {
            QStandardItemModel modelo(1, 3);
            Rejilla rejilla;
            rejilla.setModel(&modelo);
            const QString cifras(20, u'7');
            const int ancho = rejilla.fontMetrics().horizontalAdvance(cifras) + (caben ? 750 : 0);
            new ColumnasRepartidas(&rejilla);
            rejilla.resize(ancho, 100);
            rejilla.show();
            modelo.setItem(0, 1, new QStandardItem(cifras));
            QTRY_VERIFY(rejilla.columnWidth(1) >
                        rejilla.fontMetrics().horizontalAdvance(cifras.chopped(1)));
            const int sobra = rejilla.horizontalHeader()->length() - rejilla.viewport()->width();
            QVERIFY(caben ? sobra == 0 : sobra > 0);
        }
    }

    void rejillaCopia()
    {
        QStandardItemModel modelo(2, 2);
        modelo.setHorizontalHeaderLabels({u"n"_s, u"f(n)"_s});
        for (const int celda : {0, 1, 2, 3})
            modelo.setItem(celda / 2, celda % 2,
                           new QStandardItem(QString::number(10 * (celda / 2) + celda % 2)));
        Rejilla rejilla;
        QCOMPARE(rejilla.seleccion(FormaDeCopia::Texto).completa().texto, QString());
        rejilla.setModel(&modelo);
        QCOMPARE(rejilla.seleccion(FormaDeCopia::CSV).completa().texto,
                 u"n;f(n)\r\n0;1\r\n10;11\r\n"_s);
        rejilla.setCurrentIndex(modelo.index(1, 1));
        QCOMPARE(copiado(rejilla), u"11"_s);
        rejilla.selectionModel()->select({modelo.index(0, 0), modelo.index(0, 1)},
                                         QItemSelectionModel::ClearAndSelect);
        QCOMPARE(copiado(rejilla), u"0\t1\n"_s);
        // The rows that are still to be written are no contents; nothing at all is not copied.
        modelo.insertRows(2, 5);
        rejilla.clearSelection();
        QCOMPARE(copiado(rejilla), u"n\tf(n)\n0\t1\n10\t11\n"_s);
        modelo.removeRows(0, modelo.rowCount());
        QCOMPARE(copiado(rejilla), u"n\tf(n)\n0\t1\n10\t11\n"_s);
    }

    /// What does not fit is told before anything is begun, and the rest can be stopped.
    void rejillaGrande()
    {
        Tabla modelo;
        Rejilla rejilla;
        rejilla.setModel(&modelo);
        rejilla.show();
        QApplication::clipboard()->setText(u"de antes"_s);
        for (const auto &[filas, columnas, celda] : {std::tuple{1'000'000, 1'000'000, u"1"_s},
                                                     {5'000'001, 1, u"1"_s},
                                                     {2, 2, QString(20'000'000, u'1')}}) {
            modelo.pon(filas, columnas, celda);
            pideCopia(rejilla);
            QTRY_COMPARE(Entorno::grabadora().mensajes.size(), 1);
            QCOMPARE(Entorno::grabadora().unico().titulo, u"No se ha copiado"_s);
        }
        modelo.pon(5'000'000, 1, u"1"_s); // the most that fits
        const auto boton = [&] { return rejilla.findChild<QPushButton *>(u"cmdDetenCopia"_s); };
        pideCopia(rejilla);
        QVERIFY(!rejilla.tareas().vacias());
        QTRY_VERIFY(boton()->isVisible());
        boton()->click();
        QTRY_VERIFY(rejilla.tareas().vacias());
        pideCopia(rejilla);
        modelo.pon(1, 1, u"1"_s);
        QTRY_COMPARE(Entorno::grabadora().mensajes.size(), 1);
        QCOMPARE(Entorno::grabadora().unico().texto,
                 u"La tabla ha cambiado mientras se copiaba."_s);
        QVERIFY(!boton()->isVisible());
        QCOMPARE(QApplication::clipboard()->text(), u"de antes"_s);
        modelo.pon(300'000, 1, u"1"_s);
        rejilla.horizontalHeader()->hide();
        pideCopia(rejilla);
        QTRY_VERIFY_WITH_TIMEOUT(rejilla.tareas().vacias(), 20'000);
        QCOMPARE(QApplication::clipboard()->text(), u"1\n"_s.repeated(300'000));
    }

    void elMenuDeLaRejilla()
    {
        QStandardItemModel modelo(1, 2);
        modelo.setItem(0, 0, new QStandardItem(u"···"_s));
        modelo.setVerticalHeaderLabels({u"fila"_s});
        Rejilla rejilla;
        rejilla.setModel(&modelo);
        rejilla.horizontalHeader()->hide();
        rejilla.ponRotulosDeFilaEnCopia(true);
        rejilla.show();
        QContextMenuEvent pide(QContextMenuEvent::Keyboard, {1, 1},
                               rejilla.mapToGlobal(QPoint(1, 1)));
        QApplication::sendEvent(&rejilla, &pide);
        QPointer<QMenu> menu = rejilla.findChild<QMenu *>();
        QVERIFY(menu && menu->isVisible());
        menu->actions().at(2)->trigger();
        QTRY_COMPARE(QApplication::clipboard()->text(),
                     u"\\begin{tabular}{rrr}\nfila & $\\cdots$ &  \\\\\n\\end{tabular}\n"_s);
        menu->close();
        QTRY_VERIFY(!menu);
    }

    void animaciones()
    {
        Aspecto::ponMovimientoReducido(false);
        ReproductorAVI animacion;
        animacion.resize(100, 100);
        animacion.carga(u"ClipArt\\NO_ESTA.AVI"_s, u"RUEDAS"_s);
        animacion.show();
        animacion.reproduce(ReproductorAVI::Modo::Continuo);
        QTest::qWait(100);
        QCOMPARE(animacion.estado(), ReproductorAVI::Reproduciendo);
        animacion.para();
        QCOMPARE(animacion.estado(), ReproductorAVI::Parado);
        // Another file, and one that has been played before.
        for (const QString &archivo :
             {u"error02"_s, u"error01"_s, u"error02"_s, u"NO_ESTA"_s, u"NO_ESTA"_s}) {
            animacion.carga(u"clipart\\%1.avi"_s.arg(archivo), u"ERROR"_s);
            QSignalSpy fin(&animacion, &ReproductorAVI::terminada);
            animacion.reproduce(ReproductorAVI::Modo::UnaVez);
            QVERIFY2(fin.wait(15000), qPrintable(archivo));
            QCOMPARE(animacion.estado(), ReproductorAVI::Parado);
        }
        // Nothing moves for whoever does not want it, and what waits for its end goes on.
        Aspecto::ponMovimientoReducido(true);
        QSignalSpy fin(&animacion, &ReproductorAVI::terminada);
        animacion.reproduce(ReproductorAVI::Modo::UnaVez);
        QVERIFY(fin.wait(1000));
    }

    void elEscritorioQuieto()
    {
#if defined(Q_OS_WIN)
        QSKIP("Windows keeps it for all programs, and a test leaves that alone");
#endif
        const auto escribe = [](const QString &archivo, const QByteArray &texto) {
            const QDir ajustes(QString::fromLocal8Bit(qgetenv("XDG_CONFIG_HOME")));
            QVERIFY(ajustes.mkpath(QFileInfo(archivo).path()));
            QFile hecho(ajustes.filePath(archivo));
            QVERIFY(hecho.open(QIODevice::WriteOnly) && hecho.write(texto) == texto.size());
        };
        const auto gtk = u"gtk-3.0/settings.ini"_s, kde = u"kdeglobals"_s;
        QVERIFY(!escritorioSinMovimiento());
        for (const auto &[archivo, texto, quieto] :
             {std::tuple{gtk, "[Settings]\ngtk-enable-animations=1\n", false},
              {kde, "[KDE]\nAnimationDurationFactor=0.5\n", false},
              {gtk, "[Settings]\ngtk-enable-animations=false\n", true},
              {gtk, "[Settings]\ngtk-theme-name=x\n", false},
              {kde, "[KDE]\nAnimationDurationFactor=0\n", true},
              {kde, "", false}}) {
            escribe(archivo, texto);
            QCOMPARE(escritorioSinMovimiento(), quieto);
        }
    }

    /// What is drawn stays, holes and all; the ground around it goes, in every corner.
    void fotogramaSinFondo()
    {
        QImage fotograma(60, 60, QImage::Format_RGB32);
        fotograma.fill(Aspecto::lienzo());
        QPainter pintor(&fotograma);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(QPen(QColor(0x27, 0x80, 0x9f), 4));
        pintor.drawEllipse(10, 10, 40, 40);
        pintor.end();
        const QImage sola = sinFondo(fotograma, Aspecto::lienzo());
        for (const QPoint rincon : {QPoint(0, 0), QPoint(59, 0), QPoint(30, 4), QPoint(59, 59)})
            QCOMPARE(qAlpha(sola.pixel(rincon)), 0);
        QCOMPARE(sola.pixel(30, 30), Aspecto::lienzo().rgb());
        QCOMPARE(sola.pixel(30, 10), qRgb(0x27, 0x80, 0x9f));
    }

    /// An accent border where the keyboard is, which no selection elsewhere denies.
    void elFocoSeVe()
    {
        for (const Aspecto::Tema tema : {Aspecto::Tema::Claro, Aspecto::Tema::Oscuro}) {
            Aspecto::aplica(tema);
            QWidget ventana;
            auto *columna = new QVBoxLayout(&ventana);
            QStandardItemModel modelo(1, 1);
            auto *rejilla = new Rejilla;
            rejilla->setModel(&modelo);
            rejilla->selectAll();
            auto *largo = new CampoLargo;
            const QList<QWidget *> controles{largo, new QLineEdit, new QPlainTextEdit, rejilla};
            for (QWidget *uno : controles)
                columna->addWidget(uno);
            largo->setText(u"1234"_s);
            ventana.show();
            QVERIFY(QTest::qWaitForWindowActive(&ventana));
            const QColor fondo = ventana.palette().window().color();
            const auto borde = [](QWidget *uno) {
                return uno->grab().toImage().pixelColor(1, uno->height() / 2);
            };
            for (QWidget *uno : controles) {
                QTest::keyClick(ventana.focusWidget() ? ventana.focusWidget() : &ventana,
                                Qt::Key_Tab);
                uno->setFocus(Qt::TabFocusReason);
                QVERIFY(uno->hasFocus());
                for (QWidget *otro : controles)
                    QCOMPARE(borde(otro) == Aspecto::acento(), otro == uno);
                QVERIFY(contraste(Aspecto::acento(), fondo) >= 3);
                QCOMPARE(largo->textCursor().hasSelection(), uno == largo);
                const QColor celda = rejilla->viewport()->grab().toImage().pixelColor(8, 8);
                // Under the keyboard the current cell is a shade lighter than the colour.
                QCOMPARE(celda == ventana.palette().color(QPalette::Inactive, QPalette::Highlight),
                         uno != rejilla);
            }
        }
        Aspecto::aplica(Aspecto::Tema::Sistema);
    }

    void losTextosSeLeen()
    {
        for (const Aspecto::Tema tema : {Aspecto::Tema::Claro, Aspecto::Tema::Oscuro}) {
            Aspecto::aplica(tema);
            const QPalette p = QApplication::palette();
            QList<std::pair<QColor, QColor>> pares{
                {p.button().color(), p.buttonText().color()},
                {p.highlight().color(), p.highlightedText().color()}};
            for (const QColor &fondo :
                 {p.window().color(), p.base().color(), p.alternateBase().color()})
                for (const QColor &texto :
                     {p.text().color(), p.placeholderText().color(), p.link().color(),
                      Aspecto::acento(), Aspecto::exito(), Aspecto::error()})
                    pares << std::pair{fondo, texto};
            for (const auto &[fondo, texto] : pares)
                QVERIFY2(contraste(fondo, texto) >= 4.5,
                         qPrintable(texto.name() + u" on "_s + fondo.name()));
        }
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

private:
    static void pideCopia(Rejilla &rejilla)
    {
        QTest::keyClick(&rejilla, Qt::Key_C, Qt::ControlModifier);
    }

    /// What is on the clipboard once the grid has copied.
    static QString copiado(Rejilla &rejilla)
    {
        pideCopia(rejilla);
        if (!QTest::qWaitFor([&] { return rejilla.tareas().vacias(); }))
            return u"still at it"_s;
        return QApplication::clipboard()->text();
    }
};

NUMORA_TEST_MAIN(TestControles)
#include "tst_Controles.moc"
