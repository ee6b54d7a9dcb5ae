// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QHash>
#include <QImage>
#include <QString>
#include <QTimer>
#include <QWidget>

class MotorAVI;

/// Plays a short AVI animation without sound, scaled to fit; in a dark theme without its ground.
/// Until the first frame comes, and for good where a codec or the file is missing or the user wants
/// nothing to move, it shows a still picture.
class ReproductorAVI : public QWidget
{
    Q_OBJECT

public:
    /// What `estado()` gives while the animation plays.
    static constexpr int Reproduciendo = 2;
    static constexpr int Parado = 0;

    explicit ReproductorAVI(QWidget *padre = nullptr);
    ~ReproductorAVI() override;

    /// The file to play, relative to the working folder or absolute, with any separators; and the
    /// resource name of its still picture. Stops what was playing. Nothing is opened before
    /// `reproduce`, because starting the media machinery costs more than opening a lesson.
    void carga(const QString &ruta, const QString &imagenFija);

    /// An animation that goes on as long as some work does (`Continuo`) starts after a quarter of a
    /// second, so that short work does not wait for the media machinery.
    enum class Modo { UnaVez, Continuo };
    void reproduce(Modo modo);
    void para();

    /// Reproduciendo from `reproduce` until `para` or the end of the file, whether or not the
    /// machine can decode it.
    int estado() const { return m_estado; }

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    void terminada();

protected:
    void paintEvent(QPaintEvent *suceso) override;

private:
    void arranca();
    MotorAVI *motorDe(const QString &archivo);
    void quedaQuieto();
    void fin();

    QString m_ruta;
    QString m_imagenFija;
    QImage m_fotograma;
    MotorAVI *m_motor = nullptr; ///< the engine in use; null before the first
    QHash<QString, MotorAVI *> m_motores;
    QTimer m_arranque;
    Modo m_modo = Modo::UnaVez;
    int m_estado = Parado;
};
