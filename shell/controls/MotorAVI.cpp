// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/MotorAVI.h"

#include "shell/controls/Fotograma.h"

#include <QMediaFormat>
#include <QMediaPlayer>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

namespace {

class MotorDeQt : public MotorAVI
{
public:
    MotorDeQt(const QString &archivo, QObject *padre) : MotorAVI(padre), m_motor(new QMediaPlayer)
    {
        auto *salida = new QVideoSink(m_motor);
        m_motor->setVideoSink(salida);
        connect(salida, &QVideoSink::videoFrameChanged, this,
                [this](const QVideoFrame &este) { Q_EMIT fotograma(imagenDe(este)); });
        connect(m_motor, &QMediaPlayer::mediaStatusChanged, this, [this](auto estado) {
            if (estado == QMediaPlayer::EndOfMedia || estado == QMediaPlayer::InvalidMedia)
                Q_EMIT acabada();
        });
        m_motor->setSource(QUrl::fromLocalFile(archivo));
    }
    ~MotorDeQt() override
    {
        // A player that goes hands over an empty frame and a status.
        blockSignals(true);
        delete m_motor;
    }
    Q_DISABLE_COPY_MOVE(MotorDeQt)

    bool reproduce(bool sinFin) override
    {
        m_motor->setLoops(sinFin ? QMediaPlayer::Infinite : QMediaPlayer::Once);
        // It has said so once, and will not again.
        if (m_motor->mediaStatus() == QMediaPlayer::InvalidMedia)
            return false;
        m_motor->setPosition(0);
        m_motor->play();
        return true;
    }

    void pausa() override { m_motor->pause(); }

private:
    QMediaPlayer *m_motor;
};

} // namespace

/// A player of Qt 6.4 crashes where the plug-ins of the media machinery are missing; the container
/// is not asked for, because Qt does not know its AVI.
bool MotorAVI::disponible()
{
    static const bool hay = QMediaFormat()
                                .supportedVideoCodecs(QMediaFormat::Decode)
                                .contains(QMediaFormat::VideoCodec::VP8);
    return hay;
}

MotorAVI *MotorAVI::nuevo(const QString &archivo, QObject *padre)
{
    return new MotorDeQt(archivo, padre);
}
