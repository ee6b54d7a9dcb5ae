// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/Grafica.h"
#include "tests/shell/support/Entorno.h"

#include <QLabel>
#include <QSignalSpy>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

/// The plot: what it shows of the plane, and what follows the pointer.
class TestGrafica : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_encuadre = {};
        m_encuadre.ponLimites({0, 0, 250, 1000});
        m_encuadre.ponLienzo({50, 10, 500, 200});
    }

    void deIdaYVuelta()
    {
        QCOMPARE(m_encuadre.aPixel({0, 0}), QPointF(50, 210));
        QCOMPARE(m_encuadre.aPixel({250, 1000}), QPointF(550, 10));
        m_encuadre.amplia(3.7, {123, 45});
        QCOMPARE(m_encuadre.aMundo(m_encuadre.aPixel({101, 502})), QPointF(101, 502));
    }

    void ampliarDejaQuietoLoQueSenala()
    {
        const QPointF pixel(123, 45);
        const QPointF mundo = m_encuadre.aMundo(pixel);
        m_encuadre.amplia(4, pixel);
        QCOMPARE(m_encuadre.aMundo(pixel), mundo);
        QCOMPARE(m_encuadre.visible().size(), QSizeF(62.5, 250));
        m_encuadre.amplia(1.0 / 4, pixel);
        QVERIFY(m_encuadre.todoVisible());
    }

    void nadaSaleDeLosLimites()
    {
        for (int i = 0; i < 100; ++i)
            m_encuadre.amplia(1.3, {550, 210});
        QCOMPARE(m_encuadre.visible().size(), QSizeF(Encuadre::LadoMinimo, Encuadre::LadoMinimo));
        m_encuadre.desplaza({1e6, 1e6});
        QCOMPARE(m_encuadre.visible().topLeft(), QPointF(0, 1000 - Encuadre::LadoMinimo));
        m_encuadre.desplaza({-1e6, -1e6});
        QCOMPARE(m_encuadre.visible().topLeft(), QPointF(250 - Encuadre::LadoMinimo, 0));
        for (int i = 0; i < 100; ++i)
            m_encuadre.amplia(1 / 1.3, {50, 10});
        QCOMPARE(m_encuadre.visible(), QRectF(0, 0, 250, 1000));
    }

    void unaFuncionConstante()
    {
        m_encuadre.ponLimites({0, 0, 250, 0});
        QCOMPARE(m_encuadre.aPixel({0, 0}).y(), 210.0);
        m_encuadre.amplia(8, {300, 100});
        QCOMPARE(m_encuadre.visible().height(), 1.0);
    }

    void marcas_data()
    {
        QTest::addColumn<qreal>("desde");
        QTest::addColumn<qreal>("hasta");
        QTest::addColumn<int>("maximo");
        QTest::addColumn<QList<qint64>>("marcas");
        QTest::newRow("every one") << 0.0 << 3.0 << 4 << QList<qint64>{0, 1, 2, 3};
        QTest::newRow("every second") << 0.0 << 9.0 << 6 << QList<qint64>{0, 2, 4, 6, 8};
        QTest::newRow("every fifth") << 3.2 << 21.0 << 5 << QList<qint64>{5, 10, 15, 20};
        QTest::newRow("every tenth") << 0.0 << 30.0 << 4 << QList<qint64>{0, 10, 20, 30};
        QTest::newRow("below zero")
            << -250.0 << 260.0 << 6 << QList<qint64>{-200, -100, 0, 100, 200};
        QTest::newRow("large") << 0.0 << 2147483647.0 << 5
                               << QList<qint64>{0, 500'000'000, 1'000'000'000, 1'500'000'000,
                                                2'000'000'000};
        QTest::newRow("between two") << 0.2 << 0.8 << 5 << QList<qint64>{};
        QTest::newRow("no room") << 0.0 << 10.0 << 0 << QList<qint64>{};
    }
    void marcas()
    {
        QFETCH(qreal, desde);
        QFETCH(qreal, hasta);
        QFETCH(int, maximo);
        QTEST(Encuadre::marcas(desde, hasta, maximo), "marcas");
    }

    void elPunteroYSusReglas()
    {
        Grafica grafica;
        llena(grafica);
        QSignalSpy senalado(&grafica, &Grafica::senalado);
        const QPointF sitio = grafica.encuadre().aPixel({39.7, 700});
        QTest::mouseMove(&grafica, sitio.toPoint());
        QCOMPARE(rotulo(grafica, u"LabelX"_s), u"40"_s);
        const auto y = rotulo(grafica, u"LabelY"_s).remove(u'.').toInt();
        QVERIFY2(std::abs(y - 700) < 10, qPrintable(QString::number(y)));
        const auto *horizontal = control<QWidget>(&grafica, u"ReglaHorizontal"_s);
        const auto *vertical = control<QWidget>(&grafica, u"ReglaVertical"_s);
        QVERIFY(horizontal->isVisible() && vertical->isVisible());
        QCOMPARE(QPoint(vertical->x(), horizontal->y()), sitio.toPoint());
        QCOMPARE(grafica.puntoSenalado(), 39);
        QCOMPARE(senalado.count(), 1);
        const QPointF punto = grafica.encuadre().aPixel({40, 400});
        const QRect anillo = control<QWidget>(&grafica, u"PuntoFunción"_s)->geometry();
        QVERIFY(QRectF(anillo).contains(punto));
        QTest::mouseMove(&grafica, QPoint(1, 1));
        QVERIFY(!horizontal->isVisible() && !vertical->isVisible());
        QCOMPARE(grafica.puntoSenalado(), -1);
    }

    void ruedaArrastreYDobleClic()
    {
        Grafica grafica;
        llena(grafica);
        const QPoint centro = grafica.encuadre().lienzo().center().toPoint();
        QWheelEvent rueda(centro, grafica.mapToGlobal(centro), {}, {0, 480}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&grafica, &rueda);
        const QRectF ampliado = grafica.encuadre().visible();
        QVERIFY(ampliado.width() < 250 / 2.0);
        QTest::mousePress(&grafica, Qt::LeftButton, {}, centro);
        QMouseEvent mueve(QEvent::MouseMove, centro + QPoint(40, 0),
                          grafica.mapToGlobal(centro + QPoint(40, 0)), Qt::NoButton, Qt::LeftButton,
                          Qt::NoModifier);
        QApplication::sendEvent(&grafica, &mueve);
        QTest::mouseRelease(&grafica, Qt::LeftButton, {}, centro + QPoint(40, 0));
        QVERIFY(grafica.encuadre().visible().left() < ampliado.left());
        QCOMPARE(grafica.encuadre().visible().top(), ampliado.top());
        QTest::mouseDClick(&grafica, Qt::LeftButton, {}, centro);
        QVERIFY(grafica.encuadre().todoVisible());
    }

    void conElTeclado()
    {
        Grafica grafica;
        llena(grafica);
        QTest::keyClick(&grafica, Qt::Key_Right);
        QTest::keyClick(&grafica, Qt::Key_Right);
        QCOMPARE(grafica.puntoSenalado(), 1);
        for (int i = 0; i < 10; ++i)
            QTest::keyClick(&grafica, Qt::Key_Plus);
        QVERIFY(!grafica.encuadre().visible().contains(QPointF(3, 30)));
        QTest::keyClick(&grafica, Qt::Key_Right);
        QVERIFY(grafica.encuadre().visible().adjusted(-1, -1, 1, 1).contains(QPointF(3, 30)));
        QTest::keyClick(&grafica, Qt::Key_Home);
        QVERIFY(grafica.encuadre().todoVisible());
        for (int i = 0; i < 300; ++i)
            QTest::keyClick(&grafica, Qt::Key_Right);
        QCOMPARE(grafica.puntoSenalado(), 249);
    }

    /// A line to compare with is drawn over the points, and goes with them.
    void rectaDeComparacion()
    {
        Grafica grafica;
        llena(grafica);
        const QImage sola = grafica.grab().toImage();
        grafica.ponRecta({0, 0}, {250, 999});
        QVERIFY(grafica.grab().toImage() != sola);
        llena(grafica);
        QCOMPARE(grafica.grab().toImage(), sola);
    }

    void sinPuntos()
    {
        Grafica grafica;
        llena(grafica);
        QTest::keyClick(&grafica, Qt::Key_Right);
        grafica.borra();
        QCOMPARE(grafica.puntoSenalado(), -1);
        QVERIFY(!control<QWidget>(&grafica, u"EjeX"_s)->isVisible());
        QTest::mouseMove(&grafica, grafica.rect().center());
        QTest::keyClick(&grafica, Qt::Key_Right);
        QCOMPARE(grafica.puntoSenalado(), -1);
        grafica.resize(1, 1);
        llena(grafica);
        grafica.resize(1, 1);
        QVERIFY(!grafica.grab().isNull());
    }

private:
    static void llena(Grafica &grafica)
    {
        QList<QPointF> puntos;
        for (int n = 1; n <= 250; ++n)
            puntos << QPointF(n, n * 10 % 1000);
        grafica.resize(800, 500);
        grafica.ponPuntos(puntos, {0, 0, 250, 999});
        grafica.show();
        QVERIFY(QTest::qWaitForWindowExposed(&grafica));
    }

    static QString rotulo(const Grafica &grafica, const QString &nombre)
    {
        return control<QLabel>(&grafica, nombre)->text();
    }

    Encuadre m_encuadre;
};

NUMORA_TEST_MAIN(TestGrafica)
#include "tst_Grafica.moc"
