// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/Fotograma.h"
#include "tests/Tabla.h"

#include <QColor>
#include <QVideoFrame>
#include <array>
#include <cstring>

using namespace Qt::Literals::StringLiterals;

class TestFotograma : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    /// Known colours of a frame of two by two, and one that nobody can read.
    void fotogramas()
    {
        QVideoFrame fotograma(QVideoFrameFormat({2, 2}, QVideoFrameFormat::Format_YUV420P));
        QCOMPARE(imagenDe(QVideoFrame()), QImage());
        const QList<std::pair<std::array<int, 3>, QColor>> conocidos{{{16, 128, 128}, Qt::black},
                                                                     {{235, 128, 128}, Qt::white},
                                                                     {{81, 90, 240}, Qt::red},
                                                                     {{145, 54, 34}, Qt::green},
                                                                     {{41, 240, 110}, Qt::blue}};
        for (const auto &[planos, debido] : conocidos) {
            QVERIFY(fotograma.map(QVideoFrame::WriteOnly));
            for (int plano = 0; plano < 3; ++plano)
                std::memset(fotograma.bits(plano), planos[static_cast<std::size_t>(plano)],
                            static_cast<std::size_t>(fotograma.mappedBytes(plano)));
            fotograma.unmap();
            const QColor dado = imagenDe(fotograma).pixelColor(1, 1);
            for (const int lejos : {dado.red() - debido.red(), dado.green() - debido.green(),
                                    dado.blue() - debido.blue()})
                QVERIFY2(std::abs(lejos) <= 2, qPrintable(dado.name()));
        }
    }
};

QTEST_GUILESS_MAIN(TestFotograma)
#include "tst_Fotograma.moc"
