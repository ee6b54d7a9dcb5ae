// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/HuecosDePaso.h"
#include "shell/grid/Rejilla.h"
#include "shell/steps/ModeloDeHuecos.h"
#include "shell/steps/TablaPorRellenar.h"
#include "tests/shell/support/Entorno.h"

#include <QAbstractItemModelTester>
#include <QLabel>
#include <QSignalSpy>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

/// A table that the student fills in, by the keyboard.
class tst_TablaPorRellenar : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_tabla = std::make_unique<TablaPorRellenar>();
        m_rejilla = control<Rejilla>(m_tabla.get(), u"FlexHuecos"_s);
        TablaConHuecos tabla({u"n"_s, u"n²"_s}, {{u"7"_s, u"49"_s}, {u"-12345"_s, QString()}},
                             [](qsizetype fila, qsizetype columna) {
                                 return u"porque %1,%2"_s.arg(fila).arg(columna);
                             });
        tabla.fija(0, 0);
        m_tabla->pon(tabla);
        m_tabla->show();
        QVERIFY(QTest::qWaitForWindowActive(m_tabla.get()));
    }
    void cleanup() { m_tabla.reset(); }

    void unaDosTodas()
    {
        const QAbstractItemModelTester inspector(m_rejilla->model());
        pulsa(u"cmdOcultarUna"_s);
        QCOMPARE(m_tabla->tabla().pendientes(), 1);
        pulsa(u"cmdMostrarTodas"_s);
        QCOMPARE(m_tabla->tabla().pendientes(), 0);
        // Two can be hidden: one was given, and one is empty.
        for (const QString &boton :
             {u"cmdOcultarDos"_s, u"cmdOcultarUna"_s, u"cmdOcultarTodas"_s}) {
            pulsa(boton);
            QCOMPARE(m_tabla->tabla().pendientes(), 2);
        }
        QCOMPARE(celda(0, 0).data().toString(), u"7"_s);
        QCOMPARE(celda(0, 1).data().toString(), u"?"_s);
    }

    void seRellenaConElTeclado()
    {
        const QSignalSpy completa(m_tabla.get(), &TablaPorRellenar::completa);
        pulsa(u"cmdOcultarTodas"_s);
        QCOMPARE(m_rejilla->currentIndex(), celda(0, 1));
        escribe(u"50"_s);
        QTRY_COMPARE(veredicto(), u"✗ Ahí no va 50."_s);
        QCOMPARE(celda(0, 1).data().toString(), u"✗ 50"_s);
        escribe(u"7^2"_s);
        QTRY_COMPARE(veredicto(), u"✓ Correcto: ahí va 49."_s);
        QVERIFY(!celda(0, 1).flags().testFlag(Qt::ItemIsEditable));
        m_rejilla->setCurrentIndex(celda(1, 0));
        escribe(u"siete"_s);
        QTRY_COMPARE(celda(1, 0).data().toString(), u"siete?"_s);
        QTRY_VERIFY(veredicto().contains(u"siete"_s) && !veredicto().startsWith(u"✗"_s));
        escribe(u"mod 3"_s);
        QTRY_COMPARE(celda(1, 0).data().toString(), u"mod 3?"_s);
        escribe(u" "_s);
        QTRY_COMPARE(celda(1, 0).data().toString(), u"?"_s);
        QCOMPARE(completa.size(), 0);
        escribe(u"-12345"_s);
        QTRY_COMPARE(completa.size(), 1);
        QTRY_VERIFY(veredicto().endsWith(u"La tabla está completa."_s));
        QCOMPARE(celda(1, 0).data().toString(), u"✓ -12.345"_s);
    }

    void porQue()
    {
        m_rejilla->setCurrentIndex({});
        pulsa(u"cmdPorQue"_s);
        QCOMPARE(veredicto(), u"Elija una casilla de la tabla."_s);
        m_rejilla->setCurrentIndex(celda(1, 0));
        pulsa(u"cmdPorQue"_s);
        QCOMPARE(veredicto(), u"porque 1,0"_s);
    }

    /// What is no whole number was given; a number that the table pads is answered without.
    void laTablaDeUnPaso()
    {
        Paso paso{u"A y −3"_s, {}, {}, {{u"Carácter"_s, u"Código"_s}, {{u"A"_s, u"065"_s}}}};
        paso.tabla.filas << QStringList{u"…"_s, u"−3"_s, u"más"_s} << QStringList{u"n − 1"_s};
        TablaConHuecos tabla = huecosDePaso(paso);
        tabla.ocultaTodas();
        QCOMPARE(tabla.pendientes(), 2);
        QCOMPARE(tabla.responde(0, 1, u"65"_s), TablaConHuecos::Estado::Acertada);
        QCOMPARE(tabla.responde(1, 1, u"3"_s), TablaConHuecos::Estado::Fallada);
        QCOMPARE(tabla.responde(1, 1, u"-3"_s), TablaConHuecos::Estado::Acertada);
        QCOMPARE(tabla.porQue(1, 1), paso.frase);
        QVERIFY(sePuedePredecir(paso) && !sePuedePredecir({paso.frase}));
        paso.tabla.filas = {{u"n − 1"_s, u"·"_s, u"7"_s}};
        QVERIFY(!sePuedePredecir(paso));
    }

private:
    QModelIndex celda(int fila, int columna) const
    {
        return m_rejilla->model()->index(fila, columna);
    }
    void pulsa(const QString &boton) { control<QToolButton>(m_tabla.get(), boton)->click(); }
    QString veredicto() const
    {
        return control<QLabel>(m_tabla.get(), u"lblVeredictoDeCasilla"_s)->text();
    }
    void escribe(const QString &texto)
    {
        m_rejilla->setFocus();
        QTest::keyClick(m_rejilla, Qt::Key_F2);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(QApplication::focusWidget(), texto);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    }

    std::unique_ptr<TablaPorRellenar> m_tabla;
    Rejilla *m_rejilla = nullptr;
};

NUMORA_TEST_MAIN(tst_TablaPorRellenar)
#include "tst_TablaPorRellenar.moc"
