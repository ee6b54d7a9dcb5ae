// SPDX-License-Identifier: GPL-3.0-or-later
#include "AviWriter.h"
#include "Drawing.h"
#include "Scenes.h"

#include <QCoreApplication>
#include <QDir>

#include <cmath>
#include <cstdio>

namespace {

constexpr int frameSide = 320;
constexpr int framesPerSecond = 25;

struct Film
{
    const char *file;
    double seconds;
    bool seamless;
    void (*draw)(QPainter &, double);
};

constexpr Film films[] = {
    {"escudo.avi", 3.6, true, drawShield},       {"RUEDAS.AVI", 2.4, true, drawGearWheels},
    {"EUREKA01.AVI", 2.8, false, drawLightBulb}, {"EUREKA02.AVI", 2.8, false, drawStar},
    {"ERROR01.AVI", 2.6, false, drawTryAgain},   {"ERROR02.AVI", 2.4, false, drawQuestionMark},
    {"ERROR03.AVI", 3.0, false, drawEraser},
};

QImage frame(const Film &film, double t)
{
    QImage picture(frameSide, frameSide, QImage::Format_RGB32);
    picture.fill(drawing::background);
    QPainter painter(&picture);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(frameSide / 2.0, frameSide / 2.0);
    painter.scale(frameSide / drawing::side, frameSide / drawing::side);
    film.draw(painter, t);
    return picture;
}

QList<QImage> frames(const Film &film)
{
    const int count = static_cast<int>(std::lround(film.seconds * framesPerSecond));
    // The frame after the last one of a seamless film is its first.
    const int whole = film.seamless ? count : count - 1;
    QList<QImage> pictures;
    for (int i = 0; i < count; ++i)
        pictures.append(frame(film, static_cast<double>(i) / whole));
    return pictures;
}

} // namespace

int main(int argc, char *argv[])
{
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("usage: numora_clipart FOLDER\n", stderr);
        return 2;
    }
    const QDir folder(arguments.at(1));
    for (const Film &film : films) {
        const QString path = folder.filePath(QString::fromLatin1(film.file));
        const QString error = writeAvi(path, frames(film), framesPerSecond);
        if (!error.isEmpty()) {
            std::fprintf(stderr, "%s: %s\n", qPrintable(path), qPrintable(error));
            return 1;
        }
    }
    return 0;
}
