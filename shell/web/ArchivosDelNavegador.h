// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDateTime>
#include <QHash>
#include <QString>
#include <QTimer>

/// The files that stand between the program, which reads and writes paths, and a browser, which
/// knows files that are given and taken: a folder whose files are handed out as downloads when
/// somebody has written to them.
class ArchivosDelNavegador
{
public:
    explicit ArchivosDelNavegador(const QString &carpeta);

    /// The path under which a file of that name is read and written.
    QString rutaDe(const QString &nombre) const;

    /// Keeps a file that the student has given, and gives its path.
    QString recibe(const QString &nombre, const QByteArray &contenido);

private:
    void entregaLoEscrito();

    QString m_carpeta;
    QHash<QString, QDateTime> m_conocidos; ///< when those were written that are handed out already
    QTimer m_ronda;
};
