// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "shell/frame/FormLeccion.h"
#include "shell/grid/Rejilla.h"
#include "shell/start/FormPrincipal.h"
#include "tests/numora/Estudiante.h"

/// The program without a mouse: no control that the keyboard does not reach, and none that keeps
/// it.
class TestTeclado : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_estudiante.prepara();
        m_principal = std::make_unique<FormPrincipal>(m_contenido);
        m_principal->resize(1366, 768);
        m_principal->show();
        QVERIFY(QTest::qWaitForWindowActive(m_principal.get()));
    }
    void cleanup() { m_principal.reset(); }

    void laVentanaSinLecciones()
    {
        daLaVuelta(control<QWidget>(m_principal.get(), u"FlexMenu"_s), m_principal.get());
    }

    void losCuadros()
    {
        control<QAction>(m_principal.get(), u"mnuTeclas"_s)->trigger();
        auto *teclas = control<QDialog>(m_principal.get(), u"FormTeclas"_s);
        daLaVuelta(control<QWidget>(teclas, u"FlexTeclas"_s), teclas);
        teclas->close();
        QWidget *acercaDe = m_principal->muestraAcercaDe(false);
        daLaVuelta(control<QWidget>(acercaDe, u"cmdOK"_s), acercaDe);
        acercaDe->close();
    }

    void cadaTema_data()
    {
        QTest::addColumn<int>("fila");
        for (int fila = FormPrincipal::FilaPracticas; fila < m_contenido.lecciones.size(); ++fila)
            QTest::addRow("%d", fila) << fila;
    }
    void cadaTema()
    {
        QFETCH(int, fila);
        FormLeccion *leccion = m_principal->abreLeccion(fila);
        auto *tira = control<QTabBar>(leccion, u"tsTema"_s);
        for (int tema = 0; tema < tira->count(); ++tema) {
            tira->setCurrentIndex(tema);
            const int pestanas = leccion->abrePestana(0) ? pestanasALaVista(leccion)->count() : 1;
            for (int pestana = 0; pestana < pestanas; ++pestana) {
                leccion->abrePestana(pestana);
                m_donde = u"%1, tab %2"_s.arg(tira->tabText(tema)).arg(pestana);
                daLaVuelta(tira, leccion);
                deLasCeldasSeSale(leccion);
                if (QTest::currentTestFailed())
                    return;
            }
        }
    }

    /// The sheet wants the keys when it opens, but neither keeps the front nor takes it back when
    /// it is shown again to make room.
    void laQueSeAbreVieneDelante()
    {
        const auto vieneDelante = [this](int fila) {
            const QWidget *abierta = m_principal->abreLeccion(fila);
            QTest::qWait(1);
            return m_principal->findChild<QMdiArea *>()->activeSubWindow()->widget() == abierta;
        };
        m_principal->abreLeccion(FormPrincipal::FilaHojaDeCalculo)->parentWidget()->showMaximized();
        for (int fila = 0; fila < m_contenido.lecciones.size(); ++fila) {
            QVERIFY2(vieneDelante(FormPrincipal::FilaHojaDeCalculo),
                     qPrintable(QString::number(fila)));
            QVERIFY2(vieneDelante(fila), qPrintable(QString::number(fila)));
        }
    }

    /// What is told of the topics is what the windows have.
    void losTemasSeLlamanAsi()
    {
        QList<Leccion> todas = m_contenido.lecciones;
        todas << m_contenido.hojaDeCalculo << m_contenido.practicas.ventana;
        for (const Leccion &leccion : std::as_const(todas)) {
            const std::unique_ptr<FormLeccion> ventana(leccion.crea(nullptr));
            QStringList dichos;
            for (const TemaDePagina &tema : leccion.temas)
                dichos << tema.rotulo;
            QStringList suyos = ventana->temas();
            suyos.removeAll(u"Introducción"_s); // the page, which the palette names by itself
            suyos.removeAll(u"Ayuda"_s);
            suyos.removeAll(u"El curso"_s);
            QCOMPARE(dichos, suyos);
            for (const TemaDePagina &tema : leccion.temas) {
                QVERIFY(ventana->abreTema(tema.clave));
                QStringList rotulos;
                const QTabWidget *pestanas = pestanasALaVista(ventana.get());
                for (int i = 0; pestanas && i < pestanas->count(); ++i)
                    rotulos << pestanas->tabText(i);
                QCOMPARE(tema.rotulosDePestanas, rotulos);
            }
        }
    }

    /// What the welcome says of each lesson: tools, a page, exercises, and lessons to see before.
    void laBienvenidaPrometeLoQueHay()
    {
        QSet<int> ordenes;
        for (const Leccion &leccion : m_contenido.lecciones) {
            const std::unique_ptr<FormLeccion> ventana(leccion.crea(nullptr));
            QVERIFY(!leccion.temas.isEmpty());
            QVERIFY(QFile::exists(ventana->URL().replace(u'\\', u'/')));
            QCOMPARE(m_principal->practica(leccion.palabra), QString());
            ordenes << leccion.orden;
            for (const QString &antes : leccion.antes) {
                const auto esa =
                    std::find_if(m_contenido.lecciones.begin(), m_contenido.lecciones.end(),
                                 [&](const Leccion &otra) { return otra.rotulo == antes; });
                QVERIFY(esa != m_contenido.lecciones.end() && esa->orden < leccion.orden);
            }
        }
        QVERIFY(ordenes.size() == m_contenido.lecciones.size() && !ordenes.contains(0));
    }

private:
    static QTabWidget *pestanasALaVista(const FormLeccion *leccion)
    {
        for (QTabWidget *pestanas : leccion->findChildren<QTabWidget *>()) {
            if (pestanas->isVisibleTo(leccion))
                return pestanas;
        }
        return nullptr;
    }

    static QString nombre(const QObject *control)
    {
        return control ? QString::fromLatin1(control->metaObject()->className()) + u' ' +
                             control->objectName()
                       : u"nothing"_s;
    }

    /// Tab (or Shift+Tab), behind the key that a grid asks for.
    static void tabula(bool atras)
    {
        QWidget *control = QApplication::focusWidget();
        const auto *rejilla = qobject_cast<Rejilla *>(control);
        if (rejilla && !rejilla->teclaDeSalida().isEmpty()) {
            QVERIFY(rejilla->accessibleDescription().contains(u"Escape"));
            QTest::keyClick(control, Qt::Key_Escape);
        }
        atras ? QTest::keyClick(control, Qt::Key_Backtab, Qt::ShiftModifier)
              : QTest::keyClick(control, Qt::Key_Tab);
    }

    /// Controls in sight that Tab is to reach; in a page each link is a stop of its own.
    static QList<QWidget *> paradas(const QWidget *ventana, int &enlaces)
    {
        QList<QWidget *> todas;
        for (QWidget *control : ventana->findChildren<QWidget *>()) {
            if (!control->isVisible() || !control->isEnabled() ||
                control->window() != ventana->window() ||
                (control->focusPolicy() & Qt::TabFocus) != Qt::TabFocus || control->focusProxy() ||
                control->objectName().startsWith(u"qt_"))
                continue;
            todas << control;
            if (const auto *texto = qobject_cast<const QTextBrowser *>(control))
                enlaces += static_cast<int>(texto->document()->toHtml().count(u"<a href"_s));
        }
        return todas;
    }

    void daLaVuelta(QWidget *salida, const QWidget *ventana)
    {
        for (const bool atras : {false, true}) {
            salida->setFocus();
            QTRY_VERIFY(salida->hasFocus());
            int enlaces = 0;
            const QList<QWidget *> todas = paradas(ventana, enlaces);
            const qsizetype cota = 2 * (todas.size() + enlaces) + 4;
            QSet<QWidget *> pisadas;
            qsizetype pasos = 0;
            do {
                tabula(atras);
                pisadas << QApplication::focusWidget();
            } while (QApplication::focusWidget() != salida && ++pasos < cota);
            QVERIFY2(salida->hasFocus(),
                     qPrintable(m_donde + u": caught in "_s + nombre(QApplication::focusWidget())));
            for (QWidget *control : todas)
                QVERIFY2(pisadas.contains(control) || control->focusWidget() != control,
                         qPrintable(m_donde + u": not reached "_s + nombre(control)));
        }
    }

    /// While cells are being edited Tab goes on in the grid, but not for ever.
    void deLasCeldasSeSale(const FormLeccion *leccion)
    {
        for (Rejilla *rejilla : leccion->findChildren<Rejilla *>()) {
            if (!rejilla->isVisible() || !rejilla->editTriggers() || !rejilla->model())
                continue;
            const QAbstractItemModel &modelo = *rejilla->model();
            rejilla->setFocus();
            for (const QModelIndex &celda : {modelo.index(0, 0), modelo.index(1, 1)}) {
                if (!celda.isValid() || !(celda.flags() & Qt::ItemIsEditable))
                    continue;
                rejilla->setCurrentIndex(celda);
                QTest::keyClick(rejilla, Qt::Key_F2);
                const int cota = modelo.rowCount() * modelo.columnCount() + 2;
                const auto dentro = [rejilla] {
                    const QWidget *donde = QApplication::focusWidget();
                    return donde && (donde == rejilla || rejilla->isAncestorOf(donde));
                };
                for (int i = 0; i < cota && dentro(); ++i)
                    tabula(false);
                QVERIFY2(!dentro(), qPrintable(m_donde + u": caught in "_s + nombre(rejilla)));
            }
        }
    }

    Estudiante m_estudiante;
    Contenido m_contenido = contenidoDelPrograma();
    std::unique_ptr<FormPrincipal> m_principal;
    QString m_donde;
};

NUMORA_TEST_MAIN(TestTeclado)
#include "tst_Teclado.moc"
