// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/FormPrincipal.h"
#include "tests/numora/Estudiante.h"

#include <QAbstractButton>
#include <QAccessible>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QTabBar>
#include <QTabWidget>

using namespace Qt::Literals::StringLiterals;

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
        bool hallado = false;
        for (const Leccion &leccion : m_contenido.lecciones) {
            const std::unique_ptr<FormLeccion> ventana(leccion.crea(nullptr));
            const auto *tira = ventana->findChild<QTabBar *>(u"tsTema"_s);
            for (int i = 0; tira && i < tira->count(); ++i)
                hallado = hallado || tira->tabText(i) == u"Enviar y recibir"_s;
        }
        QVERIFY(hallado);
    }

    void lasTeclasNoChocan_data() { temas(); }
    void lasTeclasNoChocan()
    {
        const auto panel = abreTema();
        QHash<QString, QString> duenos;
        const FormPrincipal principal(m_contenido);
        for (const QAction *menu : principal.menuBar()->actions())
            QVERIFY2(anota(menu->text(), duenos), qPrintable(menu->text()));
        for (const QWidget *control : visibles(panel)) {
            if (const auto *boton = qobject_cast<const QAbstractButton *>(control))
                QVERIFY2(anota(boton->text(), duenos), qPrintable(boton->text()));
            const auto *rotulo = qobject_cast<const QLabel *>(control);
            if (rotulo && rotulo->buddy())
                QVERIFY2(anota(rotulo->text(), duenos), qPrintable(rotulo->text()));
        }
    }

    void losControlesTienenNombre_data() { temas(); }
    void losControlesTienenNombre()
    {
        const auto panel = abreTema();
        for (QWidget *control : visibles(panel)) {
            if ((control->focusPolicy() & Qt::TabFocus) == 0 || esInterior(control))
                continue;
            QAccessibleInterface *accesible = QAccessible::queryAccessibleInterface(control);
            const QString nombre = accesible ? accesible->text(QAccessible::Name) : QString();
            QVERIFY2(!nombre.isEmpty(), qPrintable(control->objectName()));
        }
    }

    /// A screen of 1366 by 768 less the desktop's bars, the main window's and the lesson menu.
    void cabenEnUnaPantallaCorriente_data() { temas(); }
    void cabenEnUnaPantallaCorriente()
    {
        abreTema();
        const QSize minimo = m_leccion->minimumSizeHint();
        QVERIFY2(minimo.width() <= 1090 && minimo.height() <= 600,
                 qPrintable(u"%1 x %2"_s.arg(minimo.width()).arg(minimo.height())));
    }

private:
    void temas()
    {
        m_estudiante.prepara();
        QTest::addColumn<QString>("idioma");
        QTest::addColumn<int>("fila");
        QTest::addColumn<int>("tema");
        QTest::addColumn<int>("pestana");
        for (const QString &idioma : {IdiomaPropio.toString(), u"English"_s})
            temas(idioma);
    }

    void temas(const QString &idioma)
    {
        for (int fila = FormPrincipal::FilaHojaDeCalculo; fila < m_contenido.lecciones.size();
             ++fila) {
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
        return fila < 0 ? m_contenido.hojaDeCalculo : m_contenido.lecciones[fila];
    }

    QWidget *abreTema()
    {
        Idioma() = *static_cast<QString *>(QTest::qData("idioma", qMetaTypeId<QString>()));
        const int fila = *static_cast<int *>(QTest::qData("fila", qMetaTypeId<int>()));
        const int tema = *static_cast<int *>(QTest::qData("tema", qMetaTypeId<int>()));
        const int pestana = *static_cast<int *>(QTest::qData("pestana", qMetaTypeId<int>()));
        m_leccion.reset(leccionDe(fila).crea(nullptr));
        auto *tira = m_leccion->findChild<QTabBar *>(u"tsTema"_s);
        if (tira)
            tira->setCurrentIndex(tema);
        if (QTabWidget *pestanas = pestanasDe(*m_leccion))
            pestanas->setCurrentIndex(pestana);
        m_leccion->show();
        return m_leccion.get();
    }

    static QList<QWidget *> visibles(const QWidget *panel)
    {
        QList<QWidget *> hallados;
        for (QWidget *control : panel->findChildren<QWidget *>()) {
            if (control->isVisible())
                hallados << control;
        }
        return hallados;
    }

    /// A part of a control that Qt makes, such as the viewport of a grid or the editor of a spin
    /// box.
    static bool esInterior(const QWidget *control)
    {
        return control->objectName().startsWith(u"qt_"_s);
    }

    static bool anota(const QString &texto, QHash<QString, QString> &duenos)
    {
        const QString tecla = QKeySequence::mnemonic(texto).toString();
        if (tecla.isEmpty())
            return true;
        if (duenos.contains(tecla))
            return false;
        duenos.insert(tecla, texto);
        return true;
    }

    Estudiante m_estudiante;
    Contenido m_contenido = contenidoDelPrograma();
    std::unique_ptr<FormLeccion> m_leccion;
};

NUMORA_TEST_MAIN(TestLecciones)
#include "tst_Lecciones.moc"
