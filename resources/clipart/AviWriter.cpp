// SPDX-License-Identifier: GPL-3.0-or-later
#include "AviWriter.h"

#include <QProcess>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int minute = 60'000; // ms, far more than any of the films needs

QStringList options(QSize size, int fps)
{
    const QString pictures = u"%1x%2"_s.arg(size.width()).arg(size.height());
    const QString rate = QString::number(fps);
    // Frames that only serve others (alt-ref) have no place in an AVI file.
    // Without "bitexact" the file would carry the encoder's version.
    return u"-v error -y -f rawvideo -pixel_format bgra -video_size %1 -framerate %2 -i - "
           "-vf scale=out_color_matrix=bt601:out_range=tv:flags=accurate_rnd+full_chroma_int "
           "-pix_fmt yuv420p -c:v libvpx -auto-alt-ref 0 -deadline best -threads 1 "
           "-qmin 2 -crf 8 -b:v 750k -g 1000 -fflags +bitexact -flags:v +bitexact -f avi"_s
               .arg(pictures, rate)
               .split(u' ');
}

} // namespace

QString writeAvi(const QString &path, const QList<QImage> &frames, int fps)
{
    QProcess encoder;
    encoder.start(u"ffmpeg"_s, options(frames.first().size(), fps) << path);
    if (!encoder.waitForStarted())
        return encoder.errorString();
    for (const QImage &frame : frames) {
        const QImage raw = frame.convertToFormat(QImage::Format_RGB32);
        encoder.write(reinterpret_cast<const char *>(raw.constBits()), raw.sizeInBytes());
    }
    encoder.closeWriteChannel();
    if (!encoder.waitForFinished(minute))
        return encoder.errorString();
    return QString::fromLocal8Bit(encoder.readAllStandardError());
}
