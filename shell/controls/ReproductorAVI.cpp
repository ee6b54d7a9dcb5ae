// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/controls/ReproductorAVI.h"

#include "shell/access/Papel.h"
#include "shell/controls/MotorAVI.h"
#include "shell/controls/SinFondo.h"
#include "shell/core/Rutas.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QDir>
#include <QFileInfo>
#include <QPainter>

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
    m_motor = nullptr;
    qDeleteAll(m_motores); // while this is still whole
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
    if (Aspecto::movimientoReducido() || !MotorAVI::disponible() || !QFileInfo(archivo).isFile()) {
        if (m_modo == Modo::UnaVez)
            QTimer::singleShot(0, this, &ReproductorAVI::fin);
        return;
    }
    m_motor = motorDe(archivo);
    if (!m_motor->reproduce(m_modo == Modo::Continuo) && m_modo == Modo::UnaVez)
        QTimer::singleShot(0, this, &ReproductorAVI::fin);
}

void ReproductorAVI::para()
{
    m_estado = Parado;
    m_arranque.stop();
    // To stop it would wait for its threads, a third of a second, with every click waiting too.
    if (m_motor)
        m_motor->pausa();
}

/// An engine for each file: handed another one, or the same one again, a player of Qt 6.4 may wait
/// for ever for the thread that delivers its pictures.
MotorAVI *ReproductorAVI::motorDe(const QString &archivo)
{
    MotorAVI *&motor = m_motores[archivo];
    if (motor)
        return motor;
    motor = MotorAVI::nuevo(archivo, this);
    connect(motor, &MotorAVI::fotograma, this, [this, este = motor](const QImage &imagen) {
        if (este != m_motor)
            return;
        // The player hands over an empty frame when it stops; the last picture stays.
        if (!imagen.isNull())
            m_fotograma = imagen;
        update();
        if (Aspecto::movimientoReducido() && m_estado == Reproduciendo)
            quedaQuieto();
    });
    connect(motor, &MotorAVI::acabada, this, [this, este = motor] {
        if (este == m_motor && m_estado == Reproduciendo && m_modo == Modo::UnaVez)
            fin();
    });
    return motor;
}

/// The user has just asked that nothing move: the frame in sight stays. From the event queue,
/// because the player is handing over a frame.
void ReproductorAVI::quedaQuieto()
{
    QMetaObject::invokeMethod(m_motor, &MotorAVI::pausa, Qt::QueuedConnection);
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
