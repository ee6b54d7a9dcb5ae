#include "lessons/rsa/mailbox/Borrador.h"

#include "lessons/rsa/mailbox/Descriptor.h"

#include <QFile>
#include <QRandomGenerator>
#include <cstdio>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

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

Borrador::Borrador(const CarpetaBuzon &carpeta, const QByteArray &contenido)
    : m_carpeta(carpeta),
      m_provisional(".numora-" + QByteArray::number(QRandomGenerator::system()->generate64(), 16) +
                    ".tmp")
{
    Descriptor archivo(::openat(m_carpeta.fd(), m_provisional.constData(),
                                O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, 0600));
    if (!archivo.abierto())
        falla(m_carpeta.ruta());
    // Readable by whoever may read the folder, whatever the mask of this account.
    const mode_t permisos = 0600 | (m_carpeta.modo() & 0444);
    static_cast<void>(::fchmod(archivo.fd(), permisos));
    if (escribeTodo(archivo.fd(), contenido) && archivo.cierra())
        return;
    const int codigo = errno;
    ::unlinkat(m_carpeta.fd(), m_provisional.constData(), 0);
    falla(m_carpeta.ruta(), codigo);
}

Borrador::~Borrador()
{
    if (!m_provisional.isEmpty())
        ::unlinkat(m_carpeta.fd(), m_provisional.constData(), 0);
}

bool Borrador::nombraSiLibre(const QString &nombre)
{
    const int fd = m_carpeta.fd();
    const QByteArray definitivo = QFile::encodeName(nombre);
    if (::linkat(fd, m_provisional.constData(), fd, definitivo.constData(), 0) == 0)
        return true;
    // A file system without hard links (a memory stick) can rename without replacing instead.
    const bool sinEnlaces = errno == EPERM || errno == EOPNOTSUPP || errno == ENOSYS;
    if (sinEnlaces && ::renameat2(fd, m_provisional.constData(), fd, definitivo.constData(),
                                  RENAME_NOREPLACE) == 0) {
        m_provisional.clear();
        return true;
    }
    if (errno == EEXIST)
        return false;
    falla(m_carpeta.rutaDe(nombre));
}

void Borrador::nombra(const QString &nombre)
{
    const QByteArray definitivo = QFile::encodeName(nombre);
    if (::renameat(m_carpeta.fd(), m_provisional.constData(), m_carpeta.fd(),
                   definitivo.constData()) != 0)
        falla(m_carpeta.rutaDe(nombre));
    m_provisional.clear();
}
