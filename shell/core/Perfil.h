// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPair>
#include <QString>
#include <memory>

/// An INI file of sections, keys and values, read and written as profile files are: names without
/// regard to case, blanks around "=" and quotes around a value dropped, the first of two equal keys
/// counting. Key files and the table of translations are such files.
class Perfil
{
public:
    enum class Lectura { Correcta, NoExiste, Ilegible };

    /// The longest file that is read, in bytes: a profile is a few kilobytes, so what is longer is
    /// not one.
    static constexpr qint64 TamanoMaximo = qint64{4} * 1024 * 1024;

    Perfil();
    ~Perfil();
    Perfil(Perfil &&) noexcept;
    Perfil &operator=(Perfil &&) noexcept;

    /// Reads a file whole: UTF-8 with or without a byte-order mark, else Windows-1252. What was
    /// read before is forgotten in any case.
    Lectura lee(const QString &ruta);

    /// Reads the bytes of such a file.
    Lectura leeBytes(const QByteArray &bytes);

    bool tieneSeccion(const QString &seccion) const;

    /// The value of a key, cut to `maximo` - 1 characters; `defecto` when it is missing.
    QString valor(const QString &seccion, const QString &clave, const QString &defecto = {},
                  int maximo = 8192) const;

    using Entradas = QList<QPair<QString, QString>>;
    enum class Acceso { Publico, Privado };

    /// The bytes of a profile of one section with its keys in the given order, lines ended by
    /// CR LF. Throws ArgumentoNoValido for a key or value that no line can hold.
    static QByteArray contenido(const QString &seccion, const Entradas &entradas);

    /// Writes such a profile, whole or not at all; a private file is readable by its owner alone
    /// from its first byte on. Throws ErrorEjecucion naming the file, and what `contenido` throws.
    static void escribe(const QString &ruta, const QString &seccion, const Entradas &entradas,
                        Acceso acceso = Acceso::Publico);

private:
    struct Datos;
    std::unique_ptr<Datos> m_datos;
};
