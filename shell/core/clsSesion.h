// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSettings>
#include <QString>
#include <cstdint>
#include <memory>

/// The settings of the user who runs the program. Every property but the working folder is read
/// from or written to the settings store on each access.
class clsSesión
{
public:
    /// Opens the user's settings store; `carpetaPrograma` is the folder of the executable, without
    /// a trailing separator.
    explicit clsSesión(const QString &carpetaPrograma);

    /// The working folder: the stored one, else the program's own.
    QString carpeta();
    /// Stores any text as it is given, checking nothing.
    void ponCarpeta(const QString &carpeta);

    const QString &carpetaPrograma() const { return m_carpetaPrograma; }

    /// The folder of the user's settings file.
    QString carpetaDeAjustes() const;

    QString DptoURL() const;
    QString TarvoURL() const;

    /// The path, relative to the working folder, of an animation that rewards a right answer. Drawn
    /// at each reading: number 01 with probability 6/11, 02 with 5/11.
    QString AVIEureka() const;
    /// The same for a wrong answer: numbers 01 and 02 with probability 4/11, 03 with 3/11.
    QString AVIError() const;

    /// The login name in the account database; empty when the account has none.
    QString UserName() const;

    /// The number of digits that the big-number service works with; 0 for a damaged setting. Throws
    /// Desbordamiento for one beyond 32 bits.
    std::int32_t Precisión() const;
    /// Stores the precision and restarts the big-number service with it.
    void ponPrecisión(std::int32_t digitos);

    QString lee(const QString &seccion, const QString &clave, const QString &defecto = {}) const;
    void guarda(const QString &seccion, const QString &clave, const QString &valor);

    /// A value of the program's own book-keeping (window sizes, appearance), any type.
    QVariant recuerda(const QString &clave, const QVariant &defecto = {}) const;
    void anota(const QString &clave, const QVariant &valor);

private:
    mutable QSettings m_almacen;
    QString m_carpetaPrograma;
    QString m_carpeta;
};

/// The one session of the process, created at its first use.
clsSesión &Sesión();

/// Puts another one there and gives back the one that stood there; after null the next use creates
/// one.
std::unique_ptr<clsSesión> ponSesión(std::unique_ptr<clsSesión> otra);
