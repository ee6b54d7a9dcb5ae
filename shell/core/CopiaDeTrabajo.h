// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QObject>
#include <QString>
#include <QTimer>
#include <chrono>
#include <functional>

class ErrorEjecucion;

/// A copy of the work that a window holds and that stands nowhere else: a text not sent, a sheet
/// not saved. It lies in a file of its own beside the settings, readable by its owner alone and
/// written whole or not at all, and follows the work by a few seconds, so that no end of the
/// program loses more than that. The window takes it up again when it opens.
///
/// A window owns it as the last of its members: it is gone before what `contenido` looks at.
class CopiaDeTrabajo : public QObject
{
    Q_OBJECT

public:
    /// The longest that a change waits to be written. Together with the writing it stays below the
    /// ten seconds that may be lost.
    static constexpr std::chrono::milliseconds Plazo{5000};
    /// The longest copy that is written or read, in bytes.
    static constexpr qint64 MaximoDeBytes = 256LL * 1024 * 1024;

    /// The copy lies in `carpeta` (the folder of the settings) and is called `nombre`, a plain
    /// name. `contenido` gives what is to be kept now; nothing of it, when there is no work that
    /// could be lost, takes the file away.
    CopiaDeTrabajo(const QString &carpeta, const QString &nombre,
                   std::function<QByteArray()> contenido, QObject *padre);
    /// Writes what is due, as the closing of a window does.
    ~CopiaDeTrabajo() override;

    /// What was kept last, by this window or by one before it; empty when there is nothing. Throws
    /// ErrorEjecucion when it is there and cannot be read.
    QByteArray guardada() const;
    const QString &ruta() const { return m_ruta; }

    /// The work has changed: the copy follows within `Plazo`.
    void cambia();
    /// Brings the copy up to date now, as before the end of a session. Throws ErrorEjecucion naming
    /// the file when that cannot be done.
    void guarda();

Q_SIGNALS:
    /// The copy that was due cannot be written. Told once, and again only after it could be.
    void fallida(const ErrorEjecucion &motivo);

private:
    void escribe(const QByteArray &contenido);
    void guardaCallando();

    QString m_ruta;
    std::function<QByteArray()> m_contenido;
    QTimer m_espera{this};
    bool m_haFallado = false;
};
