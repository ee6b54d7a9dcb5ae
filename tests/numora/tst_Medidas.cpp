// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/frame/FormLeccion.h"
#include "shell/look/Aspecto.h"
#include "shell/start/Escenario.h"
#include "shell/start/FormPrincipal.h"
#include "tests/numora/Estudiante.h"
#include "tests/numora/Medidas.h"

namespace {

/// What a screen of 1366 by 768 shows at 150 %: the narrowest and lowest.
constexpr QSize Menor(911, 512);
/// One of 1024 by 600, and one of 1920 by 1080 at 200 %.
constexpr std::array Otros{QSize(1024, 600), QSize(960, 540)};

/// In steps of the type size.
constexpr int LetraGrande = 4;

} // namespace

/// Whether all that the windows say can be read on small screens, in both languages: each topic and
/// tab as it opens, and with large type on the narrowest, where what does not fit is most, in the
/// states that the gallery's scenes bring about as well.
/// One theme is enough: a theme is a palette, which measures nothing.
class TestMedidas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { m_estudiante.prepara(); }
    void cleanup() { Aspecto::ponPasosDeLetra(0); }

    void nadaSeCorta_data()
    {
        QTest::addColumn<QString>("idioma");
        QTest::addColumn<int>("fila");
        for (const QString &idioma : {IdiomaPropio.toString(), u"English"_s}) {
            for (int fila = FormPrincipal::FilaPracticas; fila < m_contenido.lecciones.size();
                 ++fila)
                QTest::addRow("%s, %s", qPrintable(idioma), qPrintable(leccionDe(fila).rotulo))
                    << idioma << fila;
        }
    }
    void nadaSeCorta()
    {
        QFETCH(QString, idioma);
        QFETCH(int, fila);
        Idioma() = idioma;
        m_faltas.clear();
        FormPrincipal principal(m_contenido);
        principal.setUpdatesEnabled(false); // what is measured need not be painted
        principal.showNormal();
        FormLeccion *leccion = principal.abreLeccion(fila);
        leccion->parentWidget()->showMaximized();
        recorreTemas(principal, *leccion, {Menor, Otros[0], Otros[1]});
        // Another size of the type costs more than all else: it is changed once.
        Aspecto::ponPasosDeLetra(LetraGrande);
        recorreTemas(principal, *leccion, {Menor});
        for (const Escena &escena : leccionDe(fila).escenas()) {
            if (!escena.durante)
                representa(principal, fila, escena);
        }
        principal.terminaSinPreguntar();
        for (const QString &falta : std::as_const(m_faltas))
            qInfo("%s", qPrintable(falta));
        QVERIFY(m_faltas.isEmpty());
    }

    /// What the check is for, it finds.
    void hallaLoQueSeCorta_data()
    {
        QTest::addColumn<QString>("falta");
        for (const char *falta :
             {"rotulo: «Algoritmo de los restos» is cut", "rotulo: sticks out",
              "campo: «hasta 2000» is cut", "campo: lies over rotulo", "boton: has no size",
              "tabla: header «Coeficiente» is cut", "tabla: column 0 is wider than the grid"})
            QTest::addRow("%s", falta) << QString::fromUtf8(falta);
    }
    void hallaLoQueSeCorta()
    {
        QFETCH(QString, falta);
        QWidget ventana;
        ventana.setObjectName(u"ventana"_s);
        ventana.resize(300, 200);
        auto *rotulo = new QLabel(u"Algoritmo de los restos"_s, &ventana);
        rotulo->setObjectName(u"rotulo"_s);
        auto *campo = new QLineEdit(&ventana);
        campo->setObjectName(u"campo"_s);
        campo->setPlaceholderText(u"hasta 2000"_s);
        auto *boton = new QPushButton(u"Calcular"_s, &ventana);
        boton->setObjectName(u"boton"_s);
        auto *tabla = new QTableWidget(1, 1, &ventana);
        tabla->setObjectName(u"tabla"_s);
        tabla->setHorizontalHeaderLabels({u"Coeficiente"_s});
        rotulo->setGeometry({{0, 0}, rotulo->sizeHint()});
        campo->setGeometry(0, 40, 250, campo->sizeHint().height());
        boton->setGeometry({{0, 80}, boton->sizeHint()});
        tabla->setGeometry(0, 120, 250, 80);
        ventana.show();
        QVERIFY2(faltasDeMedida(ventana).isEmpty(),
                 qPrintable(faltasDeMedida(ventana).join(u'\n')));
        if (falta.startsWith(u"rotulo: «"))
            rotulo->resize(40, rotulo->height());
        else if (falta.startsWith(u"rotulo"))
            rotulo->move(280, 0);
        else if (falta.startsWith(u"campo: «"))
            campo->resize(30, campo->height());
        else if (falta.startsWith(u"campo"))
            campo->move(0, 4);
        else if (falta.startsWith(u"boton"))
            boton->resize(0, 0);
        else
            tabla->setColumnWidth(0, falta.contains(u"header") ? 30 : 400);
        QVERIFY2(faltasDeMedida(ventana).filter(falta).size() == 1,
                 qPrintable(faltasDeMedida(ventana).join(u'\n')));
    }

private:
    const Leccion &leccionDe(int fila) const
    {
        if (fila == FormPrincipal::FilaPracticas)
            return m_contenido.practicas.ventana;
        return fila < 0 ? m_contenido.hojaDeCalculo : m_contenido.lecciones[fila];
    }

    void recorreTemas(FormPrincipal &principal, const FormLeccion &leccion,
                      const QList<QSize> &tamanos)
    {
        auto *tira = control<QTabBar>(&leccion, u"tsTema"_s);
        for (int i = 0; i < tira->count(); ++i) {
            tira->setCurrentIndex(i);
            recorrePestanas(principal, leccion, tamanos, tira->tabText(i));
        }
    }

    void recorrePestanas(FormPrincipal &principal, const FormLeccion &leccion,
                         const QList<QSize> &tamanos, const QString &donde)
    {
        QTabWidget *pestanas = nullptr;
        for (QTabWidget *unas : leccion.findChildren<QTabWidget *>()) {
            if (unas->isVisible())
                pestanas = unas;
        }
        for (int i = 0; i < (pestanas ? pestanas->count() : 1); ++i) {
            if (pestanas)
                pestanas->setCurrentIndex(i);
            mide(principal, tamanos, donde);
        }
    }

    /// A run that takes longer is measured as it stands.
    static void espera(const FormLeccion &leccion)
    {
        QCoreApplication::processEvents();
        const QDeadlineTimer fin(500);
        while (hayCorridas(leccion) && !fin.hasExpired())
            QTest::qWait(5);
    }

    /// On a lesson that is opened anew, as the scenes expect.
    void representa(FormPrincipal &principal, int fila, const Escena &escena)
    {
        Sesión().anota(u"Pasos/Todos"_s, false);
        principal.leccionActiva()->cierraSinPreguntar();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        FormLeccion *leccion = principal.abreLeccion(fila);
        leccion->parentWidget()->showMaximized();
        leccion->abreTema(escena.tema);
        for (const Gesto &gesto : escena.gestos) {
            espera(*leccion);
            if (gesto.control == u"listaDePasos")
                QTest::qWait(50); // a long list is laid out bit by bit
            daGesto(gesto, *leccion);
        }
        espera(*leccion);
        QTest::qWait(25); // lists measure themselves once their entries have stood still
        mide(principal, {Menor}, escena.nombre);
        leccion->detenCorrida();
    }

    void mide(FormPrincipal &principal, const QList<QSize> &tamanos, const QString &donde)
    {
        for (const QSize &tamano : tamanos) {
            principal.resize(tamano);
            // Columns and wrapped texts ask for a second turn of the layouts, bars for a third.
            QStringList faltas(1);
            for (int vez = 0; vez < 8 && !faltas.isEmpty(); ++vez) {
                QCoreApplication::processEvents();
                faltas = faltasDeMedida(principal);
            }
            for (const QString &falta : faltas)
                anota(falta, u"%1 at %2, type +%3"_s.arg(donde)
                                 .arg(tamano.width())
                                 .arg(Aspecto::pasosDeLetra()));
        }
    }

    /// Each fault once, where it was first seen.
    void anota(const QString &falta, const QString &donde)
    {
        if (m_faltas.filter(falta.section(u": "_s, 0, 0) + u": "_s).isEmpty())
            m_faltas << falta + u" ("_s + donde + u')';
    }

    Estudiante m_estudiante;
    Contenido m_contenido = contenidoDelPrograma();
    QStringList m_faltas;
};

NUMORA_TEST_MAIN(TestMedidas)
#include "tst_Medidas.moc"
