// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimos.h"
#include "shell/controls/ReproductorAVI.h"
#include "shell/grid/Rejilla.h"
#include "tests/shell/support/Entorno.h"

#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <utility>

using namespace Qt::Literals::StringLiterals;

/// The topic "Criba de Eratóstenes", by its controls.
class TestFormPrimosCriba : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_ventana = new FormPrimos;
        m_cota = control<QLineEdit>(m_ventana, u"txtMaxPrimo"_s);
        m_boton = control<QPushButton>(m_ventana, u"BtnCriba"_s);
        m_rejilla = control<Rejilla>(m_ventana, u"FlexPrimos"_s);
        m_resumen = control<QLabel>(m_ventana, u"lblResumen"_s);
        m_ruedas = control<ReproductorAVI>(m_ventana, u"ccrpAniCriba"_s);
    }
    void cleanup() { delete m_ventana; }

    void cribas_data()
    {
        QTest::addColumn<QString>("cota");
        QTest::addColumn<bool>("servicio");
        QTest::addColumn<int>("filas");
        QTest::addColumn<QString>("ultimo");
        QTest::addColumn<QString>("resumen");
        QTest::addColumn<int>("porcentaje");
        const QString alAbrir = u"6.493 primos; el mayor es 64.997"_s;
        QTest::newRow("own") << u"65000"_s << false << 1624 << u"64.997"_s << alAbrir << 99;
        QTest::newRow("library") << u"65000"_s << true << 1624 << u"64.997"_s << alAbrir << 100;
        QTest::newRow("expression")
            << u"2^3+2"_s << false << 1 << u"7"_s << u"4 primos; el mayor es 7"_s << 70;
        QTest::newRow("own, 2") << u"2"_s << false << 1 << u"3"_s << u"2 primos; el mayor es 3"_s
                                << 0;
        QTest::newRow("library, 2")
            << u"2"_s << true << 1 << u"2"_s << u"Un solo primo: 2"_s << 100;
        QTest::newRow("library, none")
            << u"1"_s << true << 0 << QString() << u"No hay primos hasta ese número"_s << 100;
    }
    void cribas()
    {
        QFETCH(QString, cota);
        QFETCH(bool, servicio);
        QFETCH(int, filas);
        QFETCH(QString, ultimo);
        m_cota->setText(cota);
        if (servicio)
            control<QRadioButton>(m_ventana, u"optTipoCriba_1"_s)->click();
        criba();
        const QAbstractItemModel *tabla = m_rejilla->model();
        QCOMPARE(tabla->rowCount(), filas);
        QCOMPARE(tabla->columnCount(), 4);
        QString hallado;
        for (int c = 0; filas > 0 && c < 4; ++c) {
            const QString celda = tabla->index(filas - 1, c).data().toString();
            hallado = celda.isEmpty() ? hallado : celda;
        }
        QCOMPARE(hallado, ultimo);
        QTEST(m_resumen->text(), "resumen");
        QCOMPARE(m_boton->toolTip(), u"Realizar la criba"_s);
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Parado);
        const auto *barra = control<QProgressBar>(m_ventana, u"ProgressBar"_s);
        QTEST(barra->value(), "porcentaje");
        QCOMPARE(barra->text(), u"Terminada"_s);
    }

    void primerasFilas()
    {
        criba();
        m_rejilla->setCurrentIndex(m_rejilla->model()->index(0, 0));
        m_rejilla->selectionModel()->select(
            QItemSelection(m_rejilla->model()->index(0, 0), m_rejilla->model()->index(1, 3)),
            QItemSelectionModel::ClearAndSelect);
        QCOMPARE(m_rejilla->seleccion(FormaDeCopia::Texto).completa().texto,
                 u"2\t3\t5\t7\n11\t13\t17\t19\n"_s);
        // The columns have no names, and their numbers would pass for primes.
        m_rejilla->selectAll();
        QVERIFY(m_rejilla->seleccion(FormaDeCopia::Texto)
                    .completa()
                    .texto.startsWith(u"2\t3\t5\t7\n"_s));
    }

    void entradasRechazadas_data()
    {
        QTest::addColumn<QString>("cota");
        QTest::addColumn<QString>("aviso");
        QTest::newRow("empty") << u"  "_s << QString();
        QTest::newRow("half an expression") << u"10^"_s << QString();
        QTest::newRow("fraction") << u"5/2"_s << QString();
        QTest::newRow("too large") << u"10^8+1"_s << u"El mayor número permitido es 100000000"_s;
        QTest::newRow("far below zero") << u"-10^40"_s << u"Desbordamiento."_s;
    }
    void entradasRechazadas()
    {
        QFETCH(QString, aviso);
        QFETCH(QString, cota);
        m_cota->setText(cota);
        m_boton->click();
        QVERIFY(m_ruedas->estado() == ReproductorAVI::Parado);
        QCOMPARE(m_rejilla->model()->rowCount(), 0);
        QCOMPARE(m_boton->toolTip(), u"Realizar la criba"_s);
        if (aviso.isEmpty()) {
            QVERIFY(Entorno::grabadora().mensajes.isEmpty());
            QCOMPARE(m_ventana->focusWidget(), m_cota);
        } else {
            QCOMPARE(Entorno::grabadora().unico().texto, aviso);
        }
    }

    void seDetiene_data()
    {
        QTest::addColumn<bool>("servicio");
        QTest::newRow("own") << false;
        QTest::newRow("library") << true;
    }
    void seDetiene()
    {
        QFETCH(bool, servicio);
        control<QRadioButton>(m_ventana, u"optTipoCriba_%1"_s.arg(int(servicio)))->click();
        m_cota->setText(u"10^8"_s);
        m_boton->click();
        QCOMPARE(m_boton->toolTip(), u"Detener cálculo"_s);
        QCOMPARE(m_boton->accessibleName(), u"Detener cálculo"_s);
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Reproduciendo);
        // The button is at rest at once; what has been found comes when the run has seen the stop.
        bool enReposo = false;
        connect(control<QProgressBar>(m_ventana, u"ProgressBar"_s), &QProgressBar::valueChanged,
                m_boton, [&, detenida = false](int porcentaje) mutable {
                    if (porcentaje < 3 || std::exchange(detenida, true))
                        return;
                    m_boton->click();
                    enReposo = m_boton->toolTip() == u"Realizar la criba"_s &&
                               m_ruedas->estado() == ReproductorAVI::Parado;
                });
        QTRY_VERIFY(enReposo);
        QTRY_VERIFY(m_resumen->text().startsWith(u"Criba detenida: "_s));
        QVERIFY(m_rejilla->model()->rowCount() < 1'440'000);
        m_cota->setText(u"10"_s);
        criba();
        QCOMPARE(m_resumen->text(), u"4 primos; el mayor es 7"_s);
    }

    /// Stop, then start: the first run, which has not seen the stop yet, finds its window taken
    /// over and shows nothing.
    void otraCribaAntesDeQueAcabeLaPrimera()
    {
        m_cota->setText(u"3*10^7"_s);
        m_boton->click();
        m_boton->click();
        m_cota->setText(u"10"_s);
        criba();
        QTest::qWait(50);
        QCOMPARE(m_resumen->text(), u"4 primos; el mayor es 7"_s);
    }

    void cerrarMientrasCriba_data()
    {
        QTest::addColumn<int>("tras");
        QTest::newRow("behind the click") << 0;
        QTest::newRow("later") << 30;
    }
    void cerrarMientrasCriba()
    {
        QFETCH(int, tras);
        const QPointer<FormPrimos> viva = m_ventana;
        m_cota->setText(u"10^8"_s);
        m_ventana->show();
        m_boton->click();
        QTest::qWait(tras);
        m_ventana->cierra();
        QTRY_VERIFY(!viva);
        m_ventana = nullptr;
    }

private:
    /// Begins a run and waits for its end.
    void criba()
    {
        m_boton->click();
        QTRY_COMPARE(m_ruedas->estado(), ReproductorAVI::Parado);
    }

    FormPrimos *m_ventana = nullptr;
    QLineEdit *m_cota = nullptr;
    QPushButton *m_boton = nullptr;
    Rejilla *m_rejilla = nullptr;
    QLabel *m_resumen = nullptr;
    ReproductorAVI *m_ruedas = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosCriba)
#include "tst_FormPrimosCriba.moc"
