// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/ReproductorAVI.h"

#include "shell/access/Papel.h"
#include "shell/controls/Fotograma.h"
#include "shell/controls/SinFondo.h"
#include "shell/core/Rutas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QDir>
#include <QFileInfo>
#include <QMediaFormat>
#include <QMediaPlayer>
#include <QPainter>
#include <QUrl>
#include <QVideoFrame>
#include <QVideoSink>

namespace {

/// Whether the machine can play the animations. A player of Qt 6.4 crashes where the plug-ins of
/// the media machinery are missing; the container is not asked for, because Qt does not know its
/// AVI.
bool hayConQueReproducir()
{
    static const bool hay = QMediaFormat()
                                .supportedVideoCodecs(QMediaFormat::Decode)
                                .contains(QMediaFormat::VideoCodec::VP8);
    return hay;
}

} // namespace

ReproductorAVI::ReproductorAVI(QWidget *padre) : QWidget(padre)
{
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    ponPapel(this, QAccessible::Animation);
    m_arranque.setSingleShot(true);
    m_arranque.setInterval(250);
    connect(&m_arranque, &QTimer::timeout, this, &ReproductorAVI::arranca);
}

ReproductorAVI::~ReproductorAVI()
{
    // While this is still whole: a player that goes hands over an empty frame and a status.
    m_motor = nullptr;
    qDeleteAll(m_motores);
}

void ReproductorAVI::carga(const QString &ruta, const QString &imagenFija)
{
    para();
    m_motor = nullptr;
    m_ruta = ruta;
    m_imagenFija = imagenFija;
    m_fotograma = {};
    update();
}

void ReproductorAVI::reproduce(Modo modo)
{
    m_modo = modo;
    m_estado = Reproduciendo;
    if (modo == Modo::UnaVez)
        arranca();
    else
        m_arranque.start();
}

void ReproductorAVI::arranca()
{
    const QString archivo = QDir::current().absoluteFilePath(rutaExistente(m_ruta));
    if (Aspecto::movimientoReducido() || !hayConQueReproducir() || !QFileInfo(archivo).isFile()) {
        if (m_modo == Modo::UnaVez)
            QTimer::singleShot(0, this, &ReproductorAVI::fin);
        return;
    }
    m_motor = motorDe(archivo);
    m_motor->setLoops(m_modo == Modo::Continuo ? QMediaPlayer::Infinite : QMediaPlayer::Once);
    if (m_motor->mediaStatus() == QMediaPlayer::InvalidMedia) {
        // It has said so once, and will not again.
        if (m_modo == Modo::UnaVez)
            QTimer::singleShot(0, this, &ReproductorAVI::fin);
        return;
    }
    m_motor->setPosition(0);
    m_motor->play();
}

void ReproductorAVI::para()
{
    m_estado = Parado;
    m_arranque.stop();
    // To stop it would wait for its threads, a third of a second, with every click waiting too.
    if (m_motor)
        m_motor->pause();
}

/// A player for each file: handed another one, or the same one again, that of Qt 6.4 may wait for
/// ever for the thread that delivers its pictures.
QMediaPlayer *ReproductorAVI::motorDe(const QString &archivo)
{
    QMediaPlayer *&motor = m_motores[archivo];
    if (motor)
        return motor;
    motor = new QMediaPlayer(this);
    auto *salida = new QVideoSink(motor);
    motor->setVideoSink(salida);
    connect(salida, &QVideoSink::videoFrameChanged, this,
            [this, este = motor](const QVideoFrame &fotograma) {
                if (este != m_motor)
                    return;
                // The player hands over an empty frame when it stops; the last picture stays.
                if (const QImage imagen = imagenDe(fotograma); !imagen.isNull())
                    m_fotograma = imagen;
                update();
                if (Aspecto::movimientoReducido() && m_estado == Reproduciendo)
                    quedaQuieto();
            });
    connect(
        motor, &QMediaPlayer::mediaStatusChanged, this, [this, este = motor](auto estadoDelMedio) {
            const bool acabada = estadoDelMedio == QMediaPlayer::EndOfMedia ||
                                 estadoDelMedio == QMediaPlayer::InvalidMedia;
            if (este == m_motor && acabada && m_estado == Reproduciendo && m_modo == Modo::UnaVez)
                fin();
        });
    motor->setSource(QUrl::fromLocalFile(archivo));
    return motor;
}

/// The user has just asked that nothing move: the frame in sight stays. From the event queue,
/// because the player is handing over a frame.
void ReproductorAVI::quedaQuieto()
{
    QMetaObject::invokeMethod(m_motor, &QMediaPlayer::pause, Qt::QueuedConnection);
    if (m_modo == Modo::UnaVez)
        fin();
}

void ReproductorAVI::fin()
{
    m_estado = Parado;
    Q_EMIT terminada();
}

QSize ReproductorAVI::sizeHint() const
{
    const int lado = fontMetrics().height() * 8;
    return {lado, lado};
}

QSize ReproductorAVI::minimumSizeHint() const
{
    return sizeHint() / 3;
}

void ReproductorAVI::paintEvent(QPaintEvent *)
{
    if (m_imagenFija.isEmpty())
        return; // nothing was loaded yet
    QPainter pintor(this);
    pintor.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const int lado = std::min(width(), height());
    QRect cuadro(0, 0, lado, lado);
    cuadro.moveCenter(rect().center());
    if (m_fotograma.isNull()) {
        const int alto = lado * 3 / 4;
        const QPixmap fija = Imagen(m_imagenFija, alto, devicePixelRatioF());
        QRectF destino(QPointF(), fija.deviceIndependentSize());
        destino.moveCenter(QRectF(cuadro).center());
        pintor.drawPixmap(destino.topLeft(), fija);
        return;
    }
    QSize tamano = m_fotograma.size().scaled(cuadro.size(), Qt::KeepAspectRatio);
    QRect destino(QPoint(), tamano);
    destino.moveCenter(cuadro.center());
    pintor.drawImage(destino,
                     Aspecto::esOscuro() ? sinFondo(m_fotograma, Aspecto::lienzo()) : m_fotograma);
}
