// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/steps/PanelDePasos.h"
#include "tests/Tabla.h"
#include "tests/lessons/rsa/support/VentanaRSA.h"
#include "tests/shell/support/RevisorDeFormulas.h"

/// What stands beside the tools of the lesson: the steps of the key and of a text, and the bench of
/// attacks.
class TestFormRSAPasos : public QObject, private VentanaRSA
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        nueva();
    }
    void cleanup() { cierra(); }

    /// Each with the key that it is about; what is found or not found, and why.
    void ataques_data()
    {
        filasDeTexto<int, int, QString>(uR"(
            table, own key     | 0 | 0 | Encontrado: los paquetes dicen «Hola»
            factors, own key   | 1 | 0 | Encontrado: con t se descodifican
            Fermat, near       | 2 | 2 | Encontrado: con t se descodifican
            root, small s      | 3 | 3 | Encontrado: los paquetes dicen
            known φ, of 1978   | 4 | 1 | Encontrado: con t se descodifican
            factors, 129       | 1 | 4 | No se ha podido: q tiene 426 bits
            table, 129         | 0 | 4 | No se ha podido
            root, large s      | 3 | 4 | No hay raíz que valga)"_s);
    }
    void ataques()
    {
        const auto [ataque, victima, dicho] = estaFila<int, int, QString>();
        abreConClave();
        elige(u"cmbVictima"_s, victima);
        elige(u"cmbAtaque"_s, ataque);
        pulsa(u"cmdAtacar"_s);
        QVERIFY2(ultimo().frase.startsWith(dicho), qPrintable(ultimo().frase));
        QCOMPARE(RevisorDeFormulas().revisa(panel()->pasos()), QString());
        QVERIFY(panel()->isVisible());
        // The key is as it was, and its steps come back with it.
        QCOMPARE(campo(u"txtT"_s)->text(), u"26829"_s);
        escribe(u"txtS"_s, u"7"_s);
        QVERIFY(!ultimo().frase.startsWith(dicho));
    }

    void sinClaveSeDice()
    {
        abre();
        pulsa(u"cmdAtacar"_s);
        QVERIFY(ultimo().frase.startsWith(u"Su clave no está comprobada"_s));
        abreConClave();
        linea(u"txtR"_s)->setText(u"0"_s);
        pulsa(u"cmdAtacar"_s);
        QVERIFY(ultimo().frase.startsWith(u"Cada paquete ha de tener"_s));
    }

    /// Stopped by a click, by Escape, and by a key that takes the place of the steps.
    void detenido_data() { filasDeTexto<int>(u"click | 0 || Escape | 1 || another key | 2"_s); }
    void detenido()
    {
        const int como = estaFila<int>();
        abreConClave();
        elige(u"cmbVictima"_s, 4);
        elige(u"cmbAtaque"_s, 1);
        boton(u"cmdAtacar"_s)->click();
        QCOMPARE(boton(u"cmdAtacar"_s)->toolTip(), u"Detener el ataque"_s);
        if (como == 0)
            boton(u"cmdAtacar"_s)->click();
        else if (como == 1)
            QTest::keyClick(campo(u"txtQ_1"_s), Qt::Key_Escape);
        else
            escribe(u"txtS"_s, u"7"_s);
        acaba();
        QCoreApplication::processEvents();
        QTRY_COMPARE(ultimo().frase.startsWith(u"Ataque detenido"_s), como < 2);
    }

    /// The window goes while an attack is on, and takes it along.
    void cerradaMientrasAtaca()
    {
        abre();
        elige(u"cmbVictima"_s, 4);
        elige(u"cmbAtaque"_s, 2);
        boton(u"cmdAtacar"_s)->click();
        QTest::qWait(30);
        m_ventana.reset();
        QTest::qWait(30);
    }

    /// One block all the way and back; none for a text that nobody has encoded.
    void unCaracterTodoElCamino()
    {
        abreConClave();
        temasDe()->setCurrentIndex(2);
        QVERIFY(panel()->pasos().vacios());
        area(u"txtTextoOriginal"_s)->setPlainText(u"ñandú"_s);
        pulsa(u"cmdCodificar"_s);
        QVERIFY(panel()->pasos().cuantos() > 5);
        QCOMPARE(RevisorDeFormulas().revisa(panel()->pasos()), QString());
        QVERIFY2(ultimo().frase.contains(u"«ñ»"_s), qPrintable(ultimo().frase));
        area(u"txtTextoOriginal"_s)->setPlainText({});
        pulsa(u"cmdCodificar"_s);
        QVERIFY(panel()->pasos().vacios());
    }

private:
    void elige(const QString &lista, int fila) const
    {
        control<QComboBox>(m_ventana.get(), lista)->setCurrentIndex(fila);
    }
    /// That of the topic in front.
    PanelDePasos *panel() const
    {
        const auto todos = m_ventana->findChildren<PanelDePasos *>();
        return *std::ranges::find_if(todos, &QWidget::isVisible);
    }
    Paso ultimo() const
    {
        const Pasos pasos = panel()->pasos();
        return pasos.paso(pasos.cuantos() - 1);
    }
};

NUMORA_TEST_MAIN(TestFormRSAPasos)
#include "tst_FormRSAPasos.moc"
