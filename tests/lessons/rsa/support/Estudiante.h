// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"
#include "tests/shell/support/Entorno.h"

/// A student at the program: a working folder and a mailbox of their own, both empty.
class Estudiante
{
public:
    Estudiante()
    {
        QDir(m_carpeta.path()).mkpath(QStringLiteral("trabajo"));
        QDir(m_carpeta.path()).mkpath(QStringLiteral("buzon"));
        Sesión().ponCarpeta(m_carpeta.filePath(QStringLiteral("trabajo")));
    }

    QString buzon() const { return m_carpeta.filePath(QStringLiteral("buzon")); }
    QString usuario() const { return Sesión().UserName(); }
    QString ficheroPrivado() const
    {
        return m_carpeta.filePath(QStringLiteral("trabajo/") + usuario() + QStringLiteral(".RSA"));
    }
    QString enBuzon(const QString &nombre) const { return buzon() + u'/' + nombre; }

    /// Writes a file of the mailbox, making its folder; without the care that costs time.
    void escribe(const QString &nombre, const QByteArray &bytes) const
    {
        QDir().mkpath(QFileInfo(enBuzon(nombre)).absolutePath());
        QFile archivo(enBuzon(nombre));
        if (!archivo.open(QIODevice::WriteOnly) || archivo.write(bytes) != bytes.size())
            qFatal("cannot write %s", qPrintable(nombre));
    }
    QByteArray leeDelBuzon(const QString &nombre) const { return lee(enBuzon(nombre)); }
    QByteArray clavePrivada() const { return lee(ficheroPrivado()); }
    /// The files in a folder of the mailbox, the hidden ones too.
    QStringList ficheros(const QString &carpeta) const
    {
        return QDir(enBuzon(carpeta)).entryList(QDir::Files | QDir::Hidden);
    }
    static QByteArray lee(const QString &ruta) { return leeArchivo(ruta, 100'000'000); }

    /// Gives a key its numbers: without any, the least that encrypts one character a block.
    template <typename Clave>
    static void ponClave(Clave &clave, const QString &q1 = QStringLiteral("257"),
                         const QString &q2 = QStringLiteral("263"),
                         const QString &s = QStringLiteral("5"), std::int16_t r = 1)
    {
        clave.ponq(1, q1);
        clave.ponq(2, q2);
        clave.pons(s);
        clave.ponr(r);
    }

private:
    QTemporaryDir m_carpeta;
};

/// The number of the run-time error that `accion` ends in; 0 when it ends well.
template <typename Accion>
int numeroDeError(Accion accion)
{
    try {
        accion();
    } catch (const ErrorEjecucion &error) {
        return error.numero();
    }
    return 0;
}
/// What is done ends in that run-time error.
#define QCOMPARE_ERROR(Error, ...)                                                                 \
    QCOMPARE(numeroDeError([&] { __VA_ARGS__; }), int(ErrorEjecucion::Error))
