// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/FormPrincipal.h"
#include "tests/numora/Estudiante.h"

/// What every lesson owes its users, whatever it teaches: seen on each topic of each window of the
/// program, in both its languages.
class TestLecciones : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_estudiante.prepara(); }

    /// The topic that needs a key and a mailbox is among those that are looked at.
    void elTemaDeLosMensajesEsta()
    {
        const auto loTiene = [](const Leccion &leccion) {
            const std::unique_ptr<FormLeccion> ventana(leccion.crea(nullptr));
            return ventana->findChild<QTabBar *>(u"tsTema"_s) &&
                   rotulosDeTemas(ventana.get()).split(u'|').contains(u"Enviar y recibir");
        };
        QVERIFY(std::any_of(m_contenido.lecciones.begin(), m_contenido.lecciones.end(), loTiene));
    }

    void cadaTema_data()
    {
        m_estudiante.prepara();
        QTest::addColumn<QString>("idioma");
        QTest::addColumn<int>("fila");
        QTest::addColumn<int>("tema");
        QTest::addColumn<int>("pestana");
        for (const QString &idioma : {IdiomaPropio.toString(), u"English"_s})
            temas(idioma);
    }
    void cadaTema()
    {
        QFETCH(int, fila);
        QFETCH(int, tema);
        QFETCH(int, pestana);
        QFETCH(QString, idioma);
        Idioma() = idioma;
        const std::unique_ptr<FormLeccion> leccion(leccionDe(fila).crea(nullptr));
        if (auto *tira = leccion->findChild<QTabBar *>(u"tsTema"_s))
            tira->setCurrentIndex(tema);
        if (QTabWidget *pestanas = pestanasDe(*leccion))
            pestanas->setCurrentIndex(pestana);
        leccion->show();
        QList<QWidget *> visibles = leccion->findChildren<QWidget *>();
        visibles.removeIf([](const QWidget *control) { return !control->isVisible(); });
        lasTeclasNoChocan(visibles);
        losControlesTienenNombre(visibles);
        // A lesson fills the screen of 1366 by 768 less the desktop's bar, the main window's and
        // the lesson menu; where there is less, it scrolls.
        leccion->resize(1090, 690);
        const auto *pila = control<QStackedWidget>(leccion.get(), u"pilaDePaneles"_s);
        QTRY_VERIFY2(pila->minimumSizeHint().width() <= 1090 &&
                         pila->minimumSizeHint().height() <= 640,
                     qPrintable(u"%1 x %2"_s.arg(pila->minimumSizeHint().width())
                                    .arg(pila->minimumSizeHint().height())));
    }

private:
    void temas(const QString &idioma)
    {
        for (int fila = FormPrincipal::FilaPracticas; fila < m_contenido.lecciones.size(); ++fila) {
            const Leccion &leccion = leccionDe(fila);
            if (!leccion.crea)
                continue;
            const std::unique_ptr<FormLeccion> ventana(leccion.crea(nullptr));
            auto *tira = ventana->findChild<QTabBar *>(u"tsTema"_s);
            for (int i = 0; i < (tira ? tira->count() : 1); ++i) {
                if (tira)
                    tira->setCurrentIndex(i);
                const QTabWidget *pestanas = pestanasDe(*ventana);
                for (int j = 0; j < (pestanas ? pestanas->count() : 1); ++j)
                    QTest::addRow("%s, %s, topic %d, tab %d", qPrintable(idioma),
                                  qPrintable(leccion.rotulo), i, j)
                        << idioma << fila << i << j;
            }
        }
    }

    /// The tabs within the topic in front; null when it has none.
    static QTabWidget *pestanasDe(const FormLeccion &ventana)
    {
        for (QTabWidget *pestanas : ventana.findChildren<QTabWidget *>()) {
            if (pestanas->isVisibleTo(&ventana))
                return pestanas;
        }
        return nullptr;
    }

    const Leccion &leccionDe(int fila) const
    {
        if (fila == FormPrincipal::FilaPracticas)
            return m_contenido.practicas.ventana;
        return fila < 0 ? m_contenido.hojaDeCalculo : m_contenido.lecciones[fila];
    }

    void lasTeclasNoChocan(const QList<QWidget *> &visibles) const
    {
        const FormPrincipal principal(m_contenido);
        QStringList textos;
        for (const QAction *menu : principal.menuBar()->actions())
            textos << menu->text();
        for (const QWidget *control : visibles) {
            if (const auto *boton = qobject_cast<const QAbstractButton *>(control))
                textos << boton->text();
            const auto *rotulo = qobject_cast<const QLabel *>(control);
            if (rotulo && rotulo->buddy())
                textos << rotulo->text();
        }
        QSet<QString> teclas;
        for (const QString &texto : textos) {
            const QString tecla = QKeySequence::mnemonic(texto).toString();
            QVERIFY2(tecla.isEmpty() || !teclas.contains(tecla), qPrintable(texto));
            // Digits are the keys of the topics.
            QVERIFY2(tecla.isEmpty() || !tecla.back().isDigit(), qPrintable(texto));
            teclas << tecla;
        }
    }

    static void losControlesTienenNombre(const QList<QWidget *> &visibles)
    {
        for (QWidget *control : visibles) {
            // Qt makes the viewport of a grid or the editor of a spin box.
            if (!(control->focusPolicy() & Qt::TabFocus) ||
                control->objectName().startsWith(u"qt_"))
                continue;
            QAccessibleInterface *accesible = QAccessible::queryAccessibleInterface(control);
            QVERIFY2(accesible && !accesible->text(QAccessible::Name).isEmpty(),
                     qPrintable(control->objectName()));
        }
    }

    Estudiante m_estudiante;
    Contenido m_contenido = contenidoDelPrograma();
};

NUMORA_TEST_MAIN(TestLecciones)
#include "tst_Lecciones.moc"
