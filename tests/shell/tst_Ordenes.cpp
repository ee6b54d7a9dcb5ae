// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Afinidad.h"
#include "shell/start/FormPrincipal.h"
#include "shell/start/FormTeclas.h"
#include "shell/start/PaletaDeOrdenes.h"
#include "tests/Tabla.h"
#include "tests/shell/support/LeccionesDePrueba.h"

/// How commands are reached without the mouse: keys of lessons and topics, the palette, the page of
/// keys.
class TestOrdenes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_principal = std::make_unique<FormPrincipal>(contenidoDePrueba());
        m_principal->show();
        QVERIFY(QTest::qWaitForWindowActive(m_principal.get()));
    }
    void cleanup() { m_principal.reset(); }

    void comoResponde_data()
    {
        filasDeTexto<QString, QString, QString, int>(uR"(
            nothing typed |  | Criba | números | 1
            cri | Primos › Criba | números | 4
            CRÍ  prim | Primos › Criba | números | 4
            imos | Primos › Criba | números | 3
            teoremachino | Teorema chino del resto | | 2
            numeros criba | Criba | Los números | 1
            dosotro | Dos › Otro | | 2
            un | Numora | | 0
            cribas | Criba | números | 0)"_s);
    }
    void comoResponde()
    {
        const auto [buscado, titulo, detalle, cuanto] = estaFila<QString, QString, QString, int>();
        QCOMPARE(afinidad(buscado, titulo, detalle), cuanto);
    }

    void teclasDeLeccionesYTemas()
    {
        pulsa(Qt::Key_2, Qt::ControlModifier);
        QCOMPARE(leccion()->windowTitle(), u"Uno"_s);
        pulsa(Qt::Key_7, Qt::ControlModifier); // the lesson that does not exist yet
        QCOMPARE(leccion()->windowTitle(), u"Uno"_s);
        using Paso = std::tuple<Qt::Key, Qt::KeyboardModifier, int>;
        for (const auto &[tecla, con, tema] : {Paso{Qt::Key_3, Qt::AltModifier, 2},
                                               {Qt::Key_9, Qt::AltModifier, 2},
                                               {Qt::Key_PageDown, Qt::ControlModifier, 0},
                                               {Qt::Key_PageUp, Qt::ControlModifier, 2},
                                               {Qt::Key_PageUp, Qt::ControlModifier, 1}}) {
            pulsa(tecla, con);
            QCOMPARE(leccion()->temaAlFrente(), tema);
            QVERIFY(qobject_cast<QLineEdit *>(QApplication::focusWidget()));
        }
        auto *tira = control<QTabBar>(leccion(), u"tsTema"_s);
        tira->setFocus();
        for (const auto &[tecla, tema] : {std::pair{Qt::Key_End, 2}, {Qt::Key_Home, 0}}) {
            QTest::keyClick(tira, tecla);
            QCOMPARE(tira->currentIndex(), tema);
        }
        pulsa(Qt::Key_PageDown, Qt::ControlModifier);
        QVERIFY(tira->hasFocus() && tira->currentIndex() == 1);
        leccion()->cierra();
        QVERIFY(!control<QMenu>(m_principal.get(), u"mnuTemas"_s)->menuAction()->isEnabled());
    }

    void laPaletaHallaYHace()
    {
        auto *campo = m_principal->abreLeccion(0)->findChild<QLineEdit *>(u"PanelFicha_0"_s);
        campo->setFocus();
        QTest::keyClicks(campo, u"abc"_s);
        campo->setCursorPosition(0);
        PaletaDeOrdenes *paleta = abre();
        QCOMPARE(campo->text(), u"abc"_s); // on some desktops the key deletes to the end
        escribe(u"TRÉS otr"_s);
        QCOMPARE(elegida(), u"Tres › Otro"_s);
        escribe(u"euler"_s);
        QCOMPARE(elegida(), u"Cero"_s);
        QTest::keyClick(m_campo, Qt::Key_Down);
        QCOMPARE(elegida(), u"Uno"_s);
        QVERIFY(m_campo->accessibleDescription().startsWith(u"Uno"));
        escribe(u"dosotro"_s);
        const QPointer<PaletaDeOrdenes> cerrada = paleta;
        QTest::keyClick(m_campo, Qt::Key_Return);
        QTRY_VERIFY(!cerrada);
        QCOMPARE(leccion()->windowTitle(), u"Dos"_s);
        QCOMPARE(leccion()->temaAlFrente(), 1);

        abre();
        escribe(u"colores oscuros"_s);
        QCOMPARE(elegida(), u"Colores oscuros"_s);
        escribe(u"dos nunca"_s);
        QTest::keyClick(m_campo, Qt::Key_Enter);
        QCOMPARE(Entorno::grabadora().unico().texto, u"Ese tema no está disponible ahora."_s);
        abre();
        escribe(u"página: cinco"_s);
        QTest::keyClick(m_campo, Qt::Key_Return);
        QVERIFY(Entorno::grabadora().abiertas.value(0).endsWith(u"Cinco.html"));
    }

    void laPaletaSeCierraSinHacer()
    {
        QPointer<PaletaDeOrdenes> paleta = abre();
        escribe(u"qqq"_s);
        auto *nada = control<QLabel>(paleta, u"lblNada"_s);
        QVERIFY(nada->isVisible() && nada->text().contains(u"«qqq»"));
        QCOMPARE(m_campo->accessibleDescription(), nada->text());
        QTest::keyClick(m_campo, Qt::Key_Return);
        QVERIFY(paleta && paleta->isVisible());
        QTest::keyClick(m_campo, Qt::Key_Escape);
        QTRY_VERIFY(!paleta);
        paleta = abre();
        QEvent otra(QEvent::WindowDeactivate);
        QApplication::sendEvent(paleta, &otra);
        QTRY_VERIFY(!paleta);
        QVERIFY(!leccion());
    }

    /// No key stands there twice, and none that another lesson has.
    void laPaginaDeTeclas()
    {
        pulsa(Qt::Key_Question, Qt::ControlModifier);
        auto *teclas = control<QTableView>(m_principal.get(), u"FlexTeclas"_s);
        QVERIFY(teclas->isVisible());
        const auto enLaPagina = [&] {
            QStringList textos;
            for (int f = 0; f < teclas->model()->rowCount(); ++f)
                textos << teclas->model()->index(f, 0).data().toString();
            return textos;
        };
        const auto como = [](const char *tecla) {
            return QKeySequence(QLatin1StringView(tecla)).toString(QKeySequence::NativeText);
        };
        QVERIFY(enLaPagina().contains(como("Ctrl+K")) && !enLaPagina().contains(como("F8")));
        QVERIFY(enLaPagina().contains(como("Ctrl+6")) && !enLaPagina().contains(como("Alt+1")));
        m_principal->abreLeccion(0);
        const QStringList ahora = enLaPagina();
        for (const char *tecla : {"F1", "Esc", "Home", "End", "Alt+3", "Ctrl+PgDown"})
            QVERIFY2(ahora.contains(como(tecla)), tecla);
        QCOMPARE(QSet<QString>(ahora.begin(), ahora.end()).size(), ahora.size());
    }

private:
    FormLeccion *leccion() const { return m_principal->leccionActiva(); }
    void pulsa(Qt::Key tecla, Qt::KeyboardModifier con)
    {
        QWidget *enfocado = QApplication::focusWidget();
        QTest::keyClick(enfocado ? enfocado : m_principal.get(), tecla, con);
    }
    PaletaDeOrdenes *abre()
    {
        m_principal->activateWindow();
        [this] { QVERIFY(QTest::qWaitForWindowActive(m_principal.get())); }();
        pulsa(Qt::Key_K, Qt::ControlModifier);
        auto *paleta = m_principal->findChild<PaletaDeOrdenes *>();
        m_campo = control<QLineEdit>(paleta, u"txtOrden"_s);
        return paleta;
    }
    void escribe(const QString &texto) const { m_campo->setText(texto); }
    QString elegida() const
    {
        const auto *lista = control<QTreeWidget>(m_campo->parent(), u"listaDeOrdenes"_s);
        return lista->currentItem() ? lista->currentItem()->text(0) : QString();
    }

    std::unique_ptr<FormPrincipal> m_principal;
    QLineEdit *m_campo = nullptr;
};

NUMORA_TEST_MAIN(TestOrdenes)
#include "tst_Ordenes.moc"
