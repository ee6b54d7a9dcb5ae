// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/Imagenes.h"
#include "shell/start/FormAcercaDe.h"
#include "tests/shell/support/Entorno.h"

namespace {

/// Whether anything was painted.
bool tieneTrazos(const QImage &imagen)
{
    for (int y = 0; y < imagen.height(); ++y)
        for (int x = 0; x < imagen.width(); ++x)
            if (qAlpha(imagen.pixel(x, y)) > 128)
                return true;
    return false;
}

} // namespace

/// The pictures, drawn by Qt SVG or taken from bitmaps: the same sizes either way.
class TestImagenes : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void dibujos()
    {
        for (const QString &nombre : {u"PRIMOS"_s, u"SEMAFOROVERDE"_s, u"ESCUDO"_s}) {
            for (const auto &[alto, escala] :
                 {std::pair{16, 1.0}, {32, 1.0}, {32, 1.5}, {32, 2.0}, {150, 1.0}, {150, 2.0}}) {
                const QPixmap imagen = Imagen(nombre, alto, escala);
                QCOMPARE(imagen.height(), qRound(alto * escala));
                QCOMPARE(imagen.devicePixelRatioF(), escala);
                QVERIFY(tieneTrazos(imagen.toImage()));
            }
            QVERIFY(tieneTrazos(Icono(nombre).pixmap(16).toImage()));
        }
        QVERIFY(Imagen(u"NINGUNA"_s, 32, 1).isNull());
    }

    void figuras()
    {
        const QString figura = QStringLiteral(FIGURAS) + u"/euclides-divisiones.svg"_s;
        const QSizeF natural = ImagenDeArchivo(figura, 1).deviceIndependentSize();
        QVERIFY(natural.width() > 100);
        for (const double escala : {1.0, 1.25, 1.5, 2.0, 3.0}) {
            const QPixmap clara = ImagenDeArchivo(figura, escala);
            const QPixmap oscura = ImagenDeArchivo(figura, escala, true);
            for (const QPixmap &esta : {clara, oscura}) {
                QVERIFY(tieneTrazos(esta.toImage()));
                const QSizeF deMas = esta.deviceIndependentSize() - natural;
                QVERIFY(std::abs(deMas.width()) <= 1 && std::abs(deMas.height()) <= 1);
                QVERIFY(esta.devicePixelRatioF() >= std::min(escala, 2.0));
            }
            QVERIFY(clara.toImage() != oscura.toImage());
        }
        QVERIFY(ImagenDeArchivo(figura + u".no.svg"_s, 1).isNull());
    }

    /// What goes another way here is told where something does, and nowhere else.
    void carencias()
    {
        formAcercaDe acercaDe;
        auto *rotulo = control<QLabel>(&acercaDe, u"lblCarencias"_s);
        QCOMPARE(rotulo->isVisibleTo(&acercaDe), CARENCIAS > 0);
        QCOMPARE(rotulo->text().count(u'\n'), std::max(CARENCIAS, 1));
    }
};

NUMORA_TEST_MAIN(TestImagenes)
#include "tst_Imagenes.moc"
