// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/CarpetaAbierta.h"
#include "shell/core/system/posix/Descriptor.h"

#include <QFile>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int Nuevo = O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC;

bool escribeTodo(int fd, const QByteArray &contenido)
{
    for (qsizetype escrito = 0; escrito < contenido.size();) {
        const auto n = ::write(fd, contenido.constData() + escrito,
                               static_cast<std::size_t>(contenido.size() - escrito));
        if (n < 0 && errno == EINTR)
            continue;
        if (n < 0)
            return false;
        escrito += n;
    }
    return ::fsync(fd) == 0;
}

/// Where the file system can neither link nor refuse to replace: an empty file holds the name until
/// the finished one takes its place. Readers that come in between see a message that is not yet
/// there. Failing, this leaves the reason in errno, as the calls of the system do.
bool reservaYRenombra(int carpeta, const char *archivo, const char *nombre)
{
    const Descriptor reserva(::openat(carpeta, nombre, Nuevo, 0600));
    if (!reserva.abierto())
        return false;
    if (::renameat(carpeta, archivo, carpeta, nombre) == 0)
        return true;
    const int codigo = errno;
    ::unlinkat(carpeta, nombre, 0);
    errno = codigo;
    return false;
}

bool renombraSiLibre(int carpeta, const char *archivo, const char *nombre)
{
#ifdef RENAME_NOREPLACE
    if (::renameat2(carpeta, archivo, carpeta, nombre, RENAME_NOREPLACE) == 0)
        return true;
    const bool noSabe = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    return noSabe && reservaYRenombra(carpeta, archivo, nombre);
#else
    return reservaYRenombra(carpeta, archivo, nombre);
#endif
}

} // namespace

qint64 CarpetaAbierta::escribeNuevo(const QString &nombre, const QByteArray &contenido) const
{
    const QByteArray suyo = QFile::encodeName(nombre);
    Descriptor archivo(::openat(m_carpeta->fd(), suyo.constData(), Nuevo, 0600));
    if (!archivo.abierto())
        falla(m_ruta);
    const mode_t lectores = m_carpeta->estado(m_ruta).st_mode & 0444;
    static_cast<void>(::fchmod(archivo.fd(), 0600 | lectores));
    if (escribeTodo(archivo.fd(), contenido)) {
        const qint64 hecho = archivo.estado(m_ruta).st_mtim.tv_sec;
        if (archivo.cierra())
            return hecho;
    }
    const int codigo = errno;
    ::unlinkat(m_carpeta->fd(), suyo.constData(), 0);
    falla(m_ruta, codigo);
}

std::optional<qint64> CarpetaAbierta::escritoEn(const QString &nombre) const
{
    struct stat estado;
    if (::fstatat(m_carpeta->fd(), QFile::encodeName(nombre).constData(), &estado,
                  AT_SYMLINK_NOFOLLOW) != 0 ||
        !S_ISREG(estado.st_mode))
        return {};
    return estado.st_mtim.tv_sec;
}

bool CarpetaAbierta::nombraSiLibre(const QString &archivo, const QString &nombre) const
{
    const int fd = m_carpeta->fd();
    const QByteArray primero = QFile::encodeName(archivo), segundo = QFile::encodeName(nombre);
    if (::linkat(fd, primero.constData(), fd, segundo.constData(), 0) == 0)
        return true;
    // A memory stick or a mount has no hard links, and neither has a page in a browser.
    const bool sinEnlaces =
        errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS || errno == EMLINK;
    if (sinEnlaces && renombraSiLibre(fd, primero.constData(), segundo.constData()))
        return true;
    if (errno == EEXIST)
        return false;
    falla(rutaDe(nombre));
}

void CarpetaAbierta::renombra(const QString &archivo, const QString &nombre) const
{
    const int fd = m_carpeta->fd();
    if (::renameat(fd, QFile::encodeName(archivo).constData(), fd,
                   QFile::encodeName(nombre).constData()) != 0)
        falla(rutaDe(nombre));
}

void CarpetaAbierta::quita(const QString &nombre) const
{
    ::unlinkat(m_carpeta->fd(), QFile::encodeName(nombre).constData(), 0);
}
