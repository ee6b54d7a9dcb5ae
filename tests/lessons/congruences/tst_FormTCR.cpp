// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/windows/FormTCR.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

/// The window of the Chinese remainder theorem, by its controls.
class TestFormTCR : public QObject, private VentanaDeLeccion<FormTCR>
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        abre({960, 600});
        abreTema(1);
        m_rejilla = rejilla(u"FlexTCR"_s);
        m_ecuaciones = campo(u"txtNumEcuaciones"_s);
        m_solucion = el<CampoLargo>(u"txtSol1"_s);
        m_comprueba = boton(u"cmdSol1"_s);
        m_plantea = boton(u"cmdProblema1"_s);
        m_resuelve = boton(u"cmdResolver1"_s);
    }
    void cleanup() { m_ventana.reset(); }

    void alAbrir()
    {
        QVERIFY(m_ventana->URL().endsWith(u"\\Doc\\TCR.html"_s));
        QVERIFY(!el<QTimer>(u"TimerTCR"_s)->isActive());
        QVERIFY(!m_comprueba->icon().isNull());
        QCOMPARE(m_rejilla->model()->headerData(0, Qt::Horizontal).toString(), u"n da resto"_s);
        QCOMPARE(m_rejilla->model()->headerData(1, Qt::Horizontal).toString(),
                 u"al dividirlo entre"_s);
        m_resuelve->click();
        m_comprueba->click();
        QCOMPARE(m_solucion->text(), QString());
        QVERIFY(m_comprueba->isEnabled());
    }

    void planteaYResuelve()
    {
        m_ecuaciones->setText(u"6*2"_s);
        m_plantea->click();
        QCOMPARE(m_rejilla->model()->rowCount(), 13);
        QCOMPARE(QApplication::focusWidget(), m_ecuaciones);
        // The keys find a cell when the grid gets the focus.
        QCOMPARE(m_rejilla->currentIndex(), celda(0, 0));
        QTRY_COMPARE(m_rejilla->horizontalScrollBar()->maximum(), 0);
        m_resuelve->click();
        QVERIFY(m_solucion->text().size() > 60);
        QVERIFY(m_solucion->isReadOnly() && !m_comprueba->isEnabled());
        QCOMPARE(m_solucion->viewport()->backgroundRole(), QPalette::Button);
        m_ecuaciones->setText(u"1"_s);
        m_plantea->click();
        QVERIFY(!m_solucion->isReadOnly() && m_comprueba->isEnabled());
        QCOMPARE(m_solucion->text(), QString());
        QCOMPARE(m_solucion->viewport()->backgroundRole(), QPalette::Base);
        QVERIFY(celda(1, 0).data().toString().isEmpty());
    }

    void cuantasEcuaciones_data()
    {
        filasDeTexto<QString, int>(uR"(
            none | 0 | 0 || empty |  | 0 || negative | -3 | 0 || no number | doce | 0
            too many | 13 | 1 || far too few | -10^30 | 0)"_s);
    }
    void cuantasEcuaciones()
    {
        const auto [texto, avisos] = estaFila<QString, int>();
        escribe({u"2"_s, u"3"_s});
        m_ecuaciones->setText(texto);
        m_plantea->click();
        QCOMPARE(int(Entorno::grabadora().mensajes.size()), avisos);
        QCOMPARE(celda(0, 1).data().toString(), u"3"_s);
    }

    void filasDelAlumno()
    {
        m_rejilla->setCurrentIndex(celda(0, 0));
        m_rejilla->setFocus();
        for (const QString &texto : {u"2"_s, u"3"_s, u"3"_s, u"5"_s, u"2"_s, u"7"_s}) {
            QTest::keyClicks(QApplication::focusWidget(), texto);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        }
        m_rejilla->setFocus();
        m_resuelve->click();
        QCOMPARE(m_solucion->text(), u"23"_s);
        // Another row: the solution that was shown is none of it.
        escribe({u"1"_s, u"2"_s}, 3);
        QVERIFY(m_comprueba->isEnabled());
        QCOMPARE(m_solucion->text(), QString());
        m_resuelve->click();
        QCOMPARE(m_solucion->text(), u"23"_s);
    }

    void sinSolucion()
    {
        const auto *aviso = el<QLabel>(u"lblAviso"_s);
        escribe({u"1"_s, u"6"_s, u"8"_s, u"10"_s});
        m_resuelve->click();
        QCOMPARE(m_solucion->text(), u"Error"_s);
        QCOMPARE(aviso->text(),
                 u"✗ Las filas 1 y 2 se contradicen módulo 2: piden los restos 1 y 0."_s);
        escribe({u"1"_s}, 1);
        QCOMPARE(aviso->text(), QString());
    }

    void filaConDefecto()
    {
        escribe({u"2"_s, u"3"_s, u"1"_s, u"0"_s});
        for (QPushButton *boton : {m_resuelve, m_comprueba}) {
            boton->click();
            QCOMPARE(el<QLabel>(u"lblAviso"_s)->text(),
                     u"✗ Fila 2: El módulo tiene que ser un número entero mayor que 0."_s);
            QCOMPARE(m_rejilla->currentIndex(), celda(1, 1));
        }
        QCOMPARE(m_solucion->text(), QString());
        escribe({u"5"_s}, 3);
        QCOMPARE(el<QLabel>(u"lblAviso"_s)->text(), QString());
    }

    /// The button says nothing, whether the answer is right, wrong or no number at all.
    void comprobarNoDaVeredicto()
    {
        escribe({u"2"_s, u"3"_s});
        for (const QString &respuesta : {u"2"_s, u"5"_s, u"hola"_s}) {
            m_solucion->setText(respuesta);
            m_comprueba->click();
            QCOMPARE(m_solucion->text(), respuesta);
            QVERIFY(m_comprueba->isEnabled());
        }
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QVERIFY(pasos(1).vacios());
        // They come with the solution and go with it.
        m_resuelve->click();
        QVERIFY(!pasos(1).vacios());
        escribe({u"1"_s}, 0);
        QVERIFY(pasos(1).vacios());
    }

    void copiarPegarBorrar()
    {
        QApplication::clipboard()->setText(u"2\t3\r\n3\t5\r\n2\t1.001\t9\r\n"_s);
        m_rejilla->setCurrentIndex(celda(0, 0));
        m_rejilla->setFocus();
        QTest::keyClick(m_rejilla, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(celda(2, 1).data(Qt::EditRole).toString(), u"1001"_s);
        m_rejilla->selectionModel()->select({celda(0, 0), celda(1, 1)},
                                            QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(m_rejilla, Qt::Key_C, Qt::ControlModifier);
        QTRY_COMPARE(QApplication::clipboard()->text(), u"2\t3\n3\t5\n"_s);
        m_rejilla->clearSelection();
        QCOMPARE(m_rejilla->seleccion(FormaDeCopia::Texto).completa().texto,
                 u"n da resto\tal dividirlo entre\n2\t3\n3\t5\n2\t1.001\n"_s);
        m_rejilla->selectionModel()->select({celda(0, 0), celda(1, 1)},
                                            QItemSelectionModel::ClearAndSelect);
        QTest::keyClick(m_rejilla, Qt::Key_Delete);
        QCOMPARE(celda(1, 1).data().toString(), QString());
        m_resuelve->click();
        QCOMPARE(m_solucion->text(), u"2"_s);
    }

private:
    QModelIndex celda(int fila, int columna) const
    {
        return m_rejilla->model()->index(fila, columna);
    }

    /// Remainders and moduli in turn, from a row on.
    void escribe(const QStringList &textos, int fila = 0)
    {
        for (int i = 0; i < textos.size(); ++i)
            m_rejilla->model()->setData(celda(fila + i / 2, i % 2), textos[i], Qt::EditRole);
    }

    Rejilla *m_rejilla = nullptr;
    QLineEdit *m_ecuaciones = nullptr;
    CampoLargo *m_solucion = nullptr;
    QPushButton *m_comprueba = nullptr, *m_plantea = nullptr, *m_resuelve = nullptr;
};

NUMORA_TEST_MAIN(TestFormTCR)
#include "tst_FormTCR.moc"
