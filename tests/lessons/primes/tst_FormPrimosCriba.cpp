// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimos.h"
#include "shell/controls/ReproductorAVI.h"
#include "shell/grid/Rejilla.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Entorno.h"

#include <utility>

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
        filasDeTexto<QString, bool, int, QString, QString, int>(uR"(
            own | 65000 | no | 1624 | 64.997 | 6.493 primos; el mayor es 64.997 | 99
            library | 65000 | yes | 1624 | 64.997 | 6.493 primos; el mayor es 64.997 | 100
            expression | 2^3+2 | no | 1 | 7 | 4 primos; el mayor es 7 | 70
            own, 2 | 2 | no | 1 | 3 | 2 primos; el mayor es 3 | 0
            library, 2 | 2 | yes | 1 | 2 | Un solo primo: 2 | 100
            library, none | 1 | yes | 0 |  | No hay primos hasta ese número | 100)"_s);
    }
    void cribas()
    {
        const auto [cota, servicio, filas, ultimo, resumen, porcentaje] =
            estaFila<QString, bool, int, QString, QString, int>();
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
        QCOMPARE(m_resumen->text(), resumen);
        QCOMPARE(m_boton->toolTip(), u"Realizar la criba"_s);
        QCOMPARE(m_ruedas->estado(), ReproductorAVI::Parado);
        const auto *barra = control<QProgressBar>(m_ventana, u"ProgressBar"_s);
        QCOMPARE(barra->value(), porcentaje);
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
        filasDeTexto<QString, QString>(uR"(
            empty              | "  "   |
            half an expression | 10^    |
            fraction           | 5/2    |
            too large          | 10^8+1 | El mayor número permitido es 100000000
            far below zero     | -10^40 | Desbordamiento.)"_s);
    }
    void entradasRechazadas()
    {
        const auto [cota, aviso] = estaFila<QString, QString>();
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

    void seDetiene_data() { filasDeTexto<bool>(uR"(own | no || library | yes)"_s); }
    void seDetiene()
    {
        const bool servicio = estaFila<bool>();
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
        filasDeTexto<int>(uR"(behind the click | 0 || later | 30)"_s);
    }
    void cerrarMientrasCriba()
    {
        const int tras = estaFila<int>();
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
