// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QImage>
#include <QObject>

/// What plays one animation for a ReproductorAVI: a player of Qt Multimedia, or nothing at all
/// where that is missing.
class MotorAVI : public QObject
{
    Q_OBJECT

public:
    /// Whether animations can be played here at all. Without, no engine is ever made.
    static bool disponible();
    /// An engine for a file, which must exist; it belongs to `padre`.
    static MotorAVI *nuevo(const QString &archivo, QObject *padre);

    /// Plays from the beginning, once or over and over. False if the file cannot be played.
    virtual bool reproduce(bool sinFin) = 0;
    virtual void pausa() = 0;

Q_SIGNALS:
    void fotograma(const QImage &imagen);
    /// The end of the file was reached, or it turned out not to be playable.
    void acabada();

protected:
    using QObject::QObject;
};
