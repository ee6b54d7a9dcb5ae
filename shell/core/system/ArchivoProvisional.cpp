// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/ArchivoProvisional.h"

#include "shell/core/system/Descriptor.h"

#include <QFile>
#include <QRandomGenerator>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr char Principio[] = ".numora-", Fin[] = ".tmp";

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

} // namespace

ArchivoProvisional::ArchivoProvisional(const CarpetaCompartida &carpeta,
                                       const QByteArray &contenido)
    : m_carpeta(carpeta),
      m_provisional(Principio + QByteArray::number(QRandomGenerator::system()->generate64(), 16) +
                    Fin)
{
    Descriptor archivo(::openat(m_carpeta.fd(), m_provisional.constData(),
                                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!archivo.abierto())
        falla(m_carpeta.ruta());
    const mode_t lectores = m_carpeta.m_carpeta->estado(m_carpeta.ruta()).st_mode & 0444;
    static_cast<void>(::fchmod(archivo.fd(), 0600 | lectores));
    if (escribeTodo(archivo.fd(), contenido)) {
        m_hecho = archivo.estado(m_carpeta.ruta()).st_mtim.tv_sec;
        if (archivo.cierra())
            return;
    }
    const int codigo = errno;
    ::unlinkat(m_carpeta.fd(), m_provisional.constData(), 0);
    falla(m_carpeta.ruta(), codigo);
}

ArchivoProvisional::~ArchivoProvisional()
{
    if (!m_provisional.isEmpty())
        ::unlinkat(m_carpeta.fd(), m_provisional.constData(), 0);
}

bool ArchivoProvisional::nombraSiLibre(const QString &nombre)
{
    const int fd = m_carpeta.fd();
    const QByteArray definitivo = QFile::encodeName(nombre);
    if (::linkat(fd, m_provisional.constData(), fd, definitivo.constData(), 0) == 0)
        return true;
    // A memory stick or a mount has no hard links.
    const bool sinEnlaces = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
    if (sinEnlaces && renombraSiLibre(definitivo))
        return true;
    if (errno == EEXIST)
        return false;
    falla(m_carpeta.rutaDe(nombre));
}

/// Failing, this leaves the reason in errno, as the calls of the system do.
bool ArchivoProvisional::renombraSiLibre(const QByteArray &nombre)
{
    const int fd = m_carpeta.fd();
    if (::renameat2(fd, m_provisional.constData(), fd, nombre.constData(), RENAME_NOREPLACE) == 0) {
        m_provisional.clear();
        return true;
    }
    const bool noSabe = errno == EINVAL || errno == ENOSYS || errno == EOPNOTSUPP;
    return noSabe && reservaYRenombra(nombre);
}

/// Where the file system can neither link nor refuse to replace: an empty file holds the name until
/// the finished one takes its place. Readers that come in between see a message that is not yet
/// there.
bool ArchivoProvisional::reservaYRenombra(const QByteArray &nombre)
{
    const int fd = m_carpeta.fd();
    const Descriptor reserva(::openat(fd, nombre.constData(),
                                      O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!reserva.abierto())
        return false;
    if (::renameat(fd, m_provisional.constData(), fd, nombre.constData()) == 0) {
        m_provisional.clear();
        return true;
    }
    const int codigo = errno;
    ::unlinkat(fd, nombre.constData(), 0);
    errno = codigo;
    return false;
}

void ArchivoProvisional::nombra(const QString &nombre)
{
    const QByteArray definitivo = QFile::encodeName(nombre);
    if (::renameat(m_carpeta.fd(), m_provisional.constData(), m_carpeta.fd(),
                   definitivo.constData()) != 0)
        falla(m_carpeta.rutaDe(nombre));
    m_provisional.clear();
}

void ArchivoProvisional::quitaAbandonados(const QStringList &entradas) const
{
    constexpr qint64 dia = 24 * 60 * 60;
    for (const QString &entrada : entradas) {
        const QByteArray nombre = QFile::encodeName(entrada);
        struct stat estado;
        if (nombre.startsWith(Principio) && nombre.endsWith(Fin) &&
            ::fstatat(m_carpeta.fd(), nombre.constData(), &estado, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISREG(estado.st_mode) && estado.st_mtim.tv_sec <= m_hecho - dia)
            ::unlinkat(m_carpeta.fd(), nombre.constData(), 0);
    }
}
