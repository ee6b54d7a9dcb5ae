// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/Grafica.h"
#include "tests/shell/support/Entorno.h"

#include <QSignalSpy>

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
        m_grafica = std::make_unique<Grafica>();
        llena();
    }

    void ampliarDejaQuietoLoQueSenala()
    {
        QCOMPARE(m_encuadre.aPixel({0, 0}), QPointF(50, 210));
        QCOMPARE(m_encuadre.aPixel({250, 1000}), QPointF(550, 10));
        const QPointF pixel(123, 45);
        const QPointF mundo = m_encuadre.aMundo(pixel);
        m_encuadre.amplia(4, pixel);
        QCOMPARE(m_encuadre.aMundo(pixel), mundo);
        QCOMPARE(m_encuadre.aMundo(m_encuadre.aPixel({101, 502})), QPointF(101, 502));
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
        m_encuadre.ponLimites({0, 0, 250, 0});
        QCOMPARE(m_encuadre.aPixel({0, 0}).y(), 210.0); // of a constant function
        m_encuadre.amplia(8, {300, 100});
        QCOMPARE(m_encuadre.visible().height(), 1.0);
    }

    void marcas()
    {
        const QList<std::tuple<qreal, qreal, int, QList<qint64>>> filas{
            {0, 3, 4, {0, 1, 2, 3}},
            {0, 9, 6, {0, 2, 4, 6, 8}},
            {3.2, 21, 5, {5, 10, 15, 20}},
            {0, 30, 4, {0, 10, 20, 30}},
            {-250, 260, 6, {-200, -100, 0, 100, 200}},
            {0, 2147483647, 5, {0, 500'000'000, 1'000'000'000, 1'500'000'000, 2'000'000'000}},
            {0.2, 0.8, 5, {}},
            {0, 10, 0, {}}};
        for (const auto &[desde, hasta, maximo, esperadas] : filas)
            QCOMPARE(Encuadre::marcas(desde, hasta, maximo), esperadas);
    }

    void elPunteroYSusReglas()
    {
        QSignalSpy senalado(m_grafica.get(), &Grafica::senalado);
        const QPointF sitio = m_grafica->encuadre().aPixel({39.7, 700});
        QTest::mouseMove(m_grafica.get(), sitio.toPoint());
        QCOMPARE(rotulo(u"LabelX"_s), u"40"_s);
        const auto y = rotulo(u"LabelY"_s).remove(u'.').toInt();
        QVERIFY2(std::abs(y - 700) < 10, qPrintable(QString::number(y)));
        const auto *horizontal = control<QWidget>(m_grafica.get(), u"ReglaHorizontal"_s);
        const auto *vertical = control<QWidget>(m_grafica.get(), u"ReglaVertical"_s);
        QVERIFY(horizontal->isVisible() && vertical->isVisible());
        QCOMPARE(QPoint(vertical->x(), horizontal->y()), sitio.toPoint());
        QCOMPARE(m_grafica->puntoSenalado(), 39);
        QCOMPARE(senalado.count(), 1);
        const QPointF punto = m_grafica->encuadre().aPixel({40, 400});
        const QRect anillo = control<QWidget>(m_grafica.get(), u"PuntoFunción"_s)->geometry();
        QVERIFY(QRectF(anillo).contains(punto));
        QTest::mouseMove(m_grafica.get(), QPoint(1, 1));
        QVERIFY(!horizontal->isVisible() && !vertical->isVisible());
        QCOMPARE(m_grafica->puntoSenalado(), -1);
    }

    void ruedaArrastreYDobleClic()
    {
        const QPoint centro = m_grafica->encuadre().lienzo().center().toPoint();
        QWheelEvent rueda(centro, m_grafica->mapToGlobal(centro), {}, {0, 480}, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(m_grafica.get(), &rueda);
        const QRectF ampliado = m_grafica->encuadre().visible();
        QVERIFY(ampliado.width() < 250 / 2.0);
        QTest::mousePress(m_grafica.get(), Qt::LeftButton, {}, centro);
        QMouseEvent mueve(QEvent::MouseMove, centro + QPoint(40, 0),
                          m_grafica->mapToGlobal(centro + QPoint(40, 0)), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_grafica.get(), &mueve);
        QTest::mouseRelease(m_grafica.get(), Qt::LeftButton, {}, centro + QPoint(40, 0));
        QVERIFY(m_grafica->encuadre().visible().left() < ampliado.left());
        QCOMPARE(m_grafica->encuadre().visible().top(), ampliado.top());
        QTest::mouseDClick(m_grafica.get(), Qt::LeftButton, {}, centro);
        QVERIFY(m_grafica->encuadre().todoVisible());
    }

    void conElTeclado()
    {
        QTest::keyClick(m_grafica.get(), Qt::Key_Right);
        QTest::keyClick(m_grafica.get(), Qt::Key_Right);
        QCOMPARE(m_grafica->puntoSenalado(), 1);
        for (int i = 0; i < 10; ++i)
            QTest::keyClick(m_grafica.get(), Qt::Key_Plus);
        QVERIFY(!m_grafica->encuadre().visible().contains(QPointF(3, 30)));
        QTest::keyClick(m_grafica.get(), Qt::Key_Right);
        QVERIFY(m_grafica->encuadre().visible().adjusted(-1, -1, 1, 1).contains(QPointF(3, 30)));
        QTest::keyClick(m_grafica.get(), Qt::Key_Home);
        QVERIFY(m_grafica->encuadre().todoVisible());
        for (int i = 0; i < 300; ++i)
            QTest::keyClick(m_grafica.get(), Qt::Key_Right);
        QCOMPARE(m_grafica->puntoSenalado(), 249);
    }

    /// A line to compare with is drawn over the points, and goes with them.
    void rectaDeComparacion()
    {
        const QImage sola = m_grafica->grab().toImage();
        m_grafica->ponRecta({0, 0}, {250, 999});
        QVERIFY(m_grafica->grab().toImage() != sola);
        llena();
        QCOMPARE(m_grafica->grab().toImage(), sola);
    }

    void sinPuntos()
    {
        QTest::keyClick(m_grafica.get(), Qt::Key_Right);
        m_grafica->borra();
        QCOMPARE(m_grafica->puntoSenalado(), -1);
        QVERIFY(!control<QWidget>(m_grafica.get(), u"EjeX"_s)->isVisible());
        QTest::mouseMove(m_grafica.get(), m_grafica->rect().center());
        QTest::keyClick(m_grafica.get(), Qt::Key_Right);
        QCOMPARE(m_grafica->puntoSenalado(), -1);
        m_grafica->resize(1, 1);
        llena();
        m_grafica->resize(1, 1);
        QVERIFY(!m_grafica->grab().isNull());
    }

private:
    void llena()
    {
        QList<QPointF> puntos;
        for (int n = 1; n <= 250; ++n)
            puntos << QPointF(n, n * 10 % 1000);
        m_grafica->resize(800, 500);
        m_grafica->ponPuntos(puntos, {0, 0, 250, 999});
        m_grafica->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_grafica.get()));
    }

    QString rotulo(const QString &nombre) const
    {
        return control<QLabel>(m_grafica.get(), nombre)->text();
    }

    Encuadre m_encuadre;
    std::unique_ptr<Grafica> m_grafica;
};

NUMORA_TEST_MAIN(TestGrafica)
#include "tst_Grafica.moc"
