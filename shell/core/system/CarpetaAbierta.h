// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <memory>
#include <optional>

class Descriptor;

/// A folder held open and what the system does in it: whatever happens to its path meanwhile, the
/// names are those of its own entries, and no link (reparse point) is followed. Names are taken as
/// they are; see CarpetaCompartida for those that come from outside. Failures throw ErrorEjecucion
/// naming the path.
class CarpetaAbierta
{
public:
    struct Entrada
    {
        QString nombre;
        bool esCarpeta; ///< a link is none
    };

    /// Opens a folder by its path, which may lead through links.
    explicit CarpetaAbierta(const QString &ruta);

    CarpetaAbierta subcarpeta(const QString &nombre) const;
    /// The same, making it when it is missing, as open to others as this one is.
    CarpetaAbierta subcarpetaCreada(const QString &nombre) const;

    bool tiene(const QString &nombre) const;
    /// All entries whose names are text, in no order.
    QList<Entrada> entradas() const;

    /// The first bytes of an ordinary file, at most `maximo`.
    QByteArray lee(const QString &nombre, qint64 maximo) const;
    /// Makes a file that was not there, as open to readers as the folder is, and brings it to the
    /// disk. Gives the time of writing, in seconds of the folder's clock.
    qint64 escribeNuevo(const QString &nombre, const QByteArray &contenido) const;
    /// When an ordinary file was written; nothing for anything else.
    std::optional<qint64> escritoEn(const QString &nombre) const;

    /// Gives a file a second name, or another one where files have only one; false when the name is
    /// taken, which is never replaced.
    bool nombraSiLibre(const QString &archivo, const QString &nombre) const;
    /// Gives a file another name, in the place of what bore it.
    void renombra(const QString &archivo, const QString &nombre) const;
    /// Removes a file, if it is there and can be removed.
    void quita(const QString &nombre) const;

    const QString &ruta() const { return m_ruta; }
    QString rutaDe(const QString &nombre) const { return m_ruta + u'\\' + nombre; }

private:
    CarpetaAbierta(std::shared_ptr<Descriptor> carpeta, const QString &ruta);

    std::shared_ptr<Descriptor> m_carpeta;
    QString m_ruta;
};
