// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "shell/access/Anuncio.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Relleno.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/Rejilla.h"
#include "shell/plot/Grafica.h"
#include "shell/start/FormPrincipal.h"
#include "tests/numora/Estudiante.h"

#include <QTextDocumentFragment>

/// The program as a screen reader meets it.
class TestAcceso : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_estudiante.prepara();
        m_oido.clear();
        ponOyente([this](const QString &frase) { m_oido << frase; });
    }
    void cleanup() { ponOyente({}); }

    void cadaVentana_data()
    {
        QTest::addColumn<int>("fila");
        for (int fila = FormPrincipal::FilaPracticas; fila < m_contenido.lecciones.size(); ++fila)
            if (leccionDe(fila).crea)
                QTest::addRow("%s", qPrintable(leccionDe(fila).rotulo)) << fila;
    }
    void cadaVentana()
    {
        QFETCH(int, fila);
        const std::unique_ptr<FormLeccion> leccion(leccionDe(fila).crea(nullptr));
        leccion->show();
        auto *tira = leccion->findChild<QTabBar *>(u"tsTema"_s);
        for (int i = 0; i < tira->count(); ++i) {
            tira->setCurrentIndex(i);
            recorre(*leccion, tira->tabText(i));
            for (QTabWidget *pestanas : leccion->findChildren<QTabWidget *>())
                for (int j = 1; pestanas->isVisible() && j < pestanas->count(); ++j) {
                    pestanas->setCurrentIndex(j);
                    recorre(*leccion, tira->tabText(i) + u" / "_s + pestanas->tabText(j));
                }
        }
    }

    void laVentanaPrincipal()
    {
        FormPrincipal principal(m_contenido);
        principal.show();
        recorre(principal, principal.windowTitle());
        auto *acceso = QAccessible::queryAccessibleInterface(
            control<QWidget>(&principal, u"TarjetasDeLecciones"_s));
        const auto tarjeta = [&](int i) { return acceso->child(i + 1); };
        QCOMPARE(acceso->role(), QAccessible::List);
        QCOMPARE(acceso->childCount(), m_contenido.lecciones.size() + 2);
        for (int i = 0; i < m_contenido.lecciones.size(); ++i) {
            QCOMPARE(tarjeta(i)->role(), QAccessible::ListItem);
            QCOMPARE(tarjeta(i)->text(QAccessible::Name), m_contenido.lecciones[i].rotulo);
            QVERIFY(tarjeta(i)
                        ->text(QAccessible::Description)
                        .startsWith(m_contenido.lecciones[i].descripcion));
        }
    }

    /// A plot is a chart that tells its extent and the point that is chosen, and opens its data.
    void unaGrafica()
    {
        QWidget ventana;
        auto *grafica = new Grafica(&ventana);
        grafica->setAccessibleName(u"Gráfica"_s);
        grafica->resize(600, 400);
        auto *acceso = QAccessible::queryAccessibleInterface(grafica);
        QCOMPARE(acceso->role(), QAccessible::Chart);
        grafica->ponEjes(u"n"_s, u"f(n)"_s);
        grafica->ponSeries({{u"a"_s, {{1, 2000}, {3, 2.5}}}, {u"b"_s, {{2, -1}}}}, {0, 0, 4, 2000});
        ventana.show();
        QVERIFY(acceso->text(QAccessible::Description)
                    .startsWith(u"3 puntos. n: de 1 a 3. f(n): de -1 a 2.000. "_s));
        QTest::keyClick(grafica, Qt::Key_Right);
        QCOMPARE(m_oido, QStringList{u"Gráfica n: 1; f(n): 2.000"_s});
        acceso->actionInterface()->doAction(QAccessibleActionInterface::pressAction());
        auto *datos = control<Rejilla>(grafica, u"FlexDatos"_s);
        QCOMPARE(datos->seleccion(FormaDeCopia::CSV).completa().texto,
                 u"Serie;n;f(n)\r\na;1;2.000\r\na;3;2,500\r\nb;2;-1\r\n"_s);
        auto *tabla = QAccessible::queryAccessibleInterface(datos)->tableInterface();
        QCOMPARE(tabla->cellAt(1, 2)->text(QAccessible::Name), u"2,500"_s);
        QPointer<QWidget> dialogo = datos->window();
        QTest::keyClick(datos, Qt::Key_Escape);
        QTRY_VERIFY(!dialogo);
        QTest::keyClick(grafica, Qt::Key_Return);
        QVERIFY(grafica->findChild<Rejilla *>(u"FlexDatos"_s)->isVisible());
        grafica->borra();
        QTRY_VERIFY(!grafica->findChild<Rejilla *>(u"FlexDatos"_s));
    }

    /// A verdict and a result are said where the keyboard is elsewhere; what is hidden is not.
    void loQueSeDice()
    {
        QLabel rotulo;
        muestraVeredicto(&rotulo, false, u"oculto"_s);
        rotulo.show();
        muestraVeredicto(&rotulo, true, u"Sí"_s);
        muestraNeutro(&rotulo, u"<b>n</b> = 3"_s);
        QCOMPARE(m_oido, QStringList({u"✓ Sí"_s, u"n = 3"_s}));
    }

    /// Lesson, topic, the tab in it; what is written or clicked, one after another; what is heard
    /// at last.
    void losResultados_data()
    {
        QTest::addColumn<QString>("orden");
        QTest::addColumn<QString>("dicho");
        const auto caso = [](const char *nombre, const QString &orden, const QString &dicho) {
            QTest::newRow(nombre) << orden << dicho;
        };
        caso("a table", u"euclides euclides 0 FlexEuclides=0,1:1024"_s,
             u"4 · 1.024 + (-89) · 46 = 2"_s);
        caso("an equation", u"euclides diofantica 0 txtNº_0=5 txtNº_1=10 txtNº_2=3"_s,
             u"Sin soluciones positivas"_s);
        caso("a verdict", u"primos test 0 txtNúmero=91 cmdEsPrimo"_s, u"No es primo"_s);
        caso("factors", u"primos factorizacion 0 TxtN=91 BtnFactoriza"_s,
             u"Factores primos de 91."_s);
        caso("a refused number", u"fibonacci aureo 0 TxtHasta=1 cmdAureo"_s,
             u"✗ Escriba un número entero de 2 a 500."_s);
        caso("a period", u"modular representacion 0 TxtMódulo=6 cmdCalcular"_s,
             u"Periodo: 24, desde 1"_s);
        caso("a palindrome", u"funciones funciones 2 TxtCapInicial=89 cmdCap"_s,
             u"Sumas: 24 · Cifras: 13"_s);
        caso("a cell of the sheet", u"minical hoja 0 FlexCalc=0,0:1/0"_s, u"✗"_s);
    }
    void losResultados()
    {
        QFETCH(QString, orden);
        QFETCH(QString, dicho);
        QStringList partes = orden.split(u' ');
        const auto leccion = ventanaDe(partes.takeFirst());
        leccion->show();
        QVERIFY2(leccion->abreTema(partes.takeFirst()), qPrintable(orden));
        const int pestana = partes.takeFirst().toInt();
        for (QTabWidget *pestanas : leccion->findChildren<QTabWidget *>())
            pestanas->setCurrentIndex(pestana);
        for (const QString &parte : std::as_const(partes)) {
            auto *donde = control<QWidget>(leccion.get(), parte.section(u'=', 0, 0));
            if (auto *boton = qobject_cast<QAbstractButton *>(donde))
                boton->click();
            else
                rellena(*donde, parte.section(u'=', 1));
        }
        const auto seOye = [&] {
            return std::any_of(m_oido.begin(), m_oido.end(),
                               [&](const QString &frase) { return frase.startsWith(dicho); });
        };
        QTRY_VERIFY2(seOye(), qPrintable(m_oido.join(u" | "_s)));
    }

private:
    std::unique_ptr<FormLeccion> ventanaDe(const QString &palabra) const
    {
        for (int fila = FormPrincipal::FilaPracticas; fila < m_contenido.lecciones.size(); ++fila)
            if (leccionDe(fila).palabra == palabra)
                return std::unique_ptr<FormLeccion>(leccionDe(fila).crea(nullptr));
        qFatal("there is no lesson %s", qPrintable(palabra));
    }

    /// Goes over all that a reader finds in a window, but for the cells of tables.
    static void recorre(QWidget &ventana, const QString &donde)
    {
        QSet<QObject *> hallados;
        visita(QAccessible::queryAccessibleInterface(&ventana), donde, hallados);
        for (QWidget *control : ventana.findChildren<QWidget *>()) {
            if (control->isVisible() && control->window() == &ventana && seEnfoca(*control))
                QVERIFY2(hallados.contains(control), qPrintable(nombreDe(*control, donde)));
        }
    }

    static void visita(QAccessibleInterface *acceso, const QString &donde,
                       QSet<QObject *> &hallados)
    {
        if (!acceso || acceso->state().invisible)
            return;
        hallados << acceso->object();
        if (auto *control = qobject_cast<QWidget *>(acceso->object()))
            revisa(*acceso, *control, donde);
        for (int i = 0; !acceso->tableInterface() && i < acceso->childCount(); ++i)
            visita(acceso->child(i), donde, hallados);
    }

    static void revisa(const QAccessibleInterface &acceso, const QWidget &control,
                       const QString &donde)
    {
        QString nombre = acceso.text(QAccessible::Name);
        const auto *rotulo = qobject_cast<const QLabel *>(&control);
        if (rotulo && !rotulo->text().isEmpty()) {
            QString texto = QTextDocumentFragment::fromHtml(rotulo->text()).toPlainText();
            QVERIFY2(nombre.remove(u'&').simplified() == texto.remove(u'&').simplified(),
                     qPrintable(nombreDe(control, donde) + u": "_s + nombre));
        }
        if (!qobject_cast<const QAbstractButton *>(&control) && !seEnfoca(control))
            return;
        QVERIFY2(!nombre.isEmpty(), qPrintable(nombreDe(control, donde)));
        QVERIFY2(acceso.role() != QAccessible::NoRole && acceso.role() != QAccessible::Client,
                 qPrintable(nombreDe(control, donde)));
    }

    /// Qt makes the viewport of a grid, its corner and the editor of a spin box; what hands the
    /// keyboard on to another is not met itself.
    static bool seEnfoca(const QWidget &control)
    {
        return control.focusPolicy() & Qt::TabFocus && !control.focusProxy() &&
               !control.objectName().isEmpty() && !control.objectName().startsWith(u"qt_");
    }

    static QString nombreDe(const QWidget &control, const QString &donde)
    {
        return donde + u": "_s + QString::fromLatin1(control.metaObject()->className()) + u' ' +
               control.objectName();
    }

    const Leccion &leccionDe(int fila) const
    {
        if (fila == FormPrincipal::FilaPracticas)
            return m_contenido.practicas.ventana;
        return fila < 0 ? m_contenido.hojaDeCalculo : m_contenido.lecciones[fila];
    }

    Estudiante m_estudiante;
    QStringList m_oido; ///< what has been said
    Contenido m_contenido = contenidoDelPrograma();
};

NUMORA_TEST_MAIN(TestAcceso)
#include "tst_Acceso.moc"
