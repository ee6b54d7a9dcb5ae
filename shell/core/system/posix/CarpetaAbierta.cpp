// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/CarpetaAbierta.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/posix/Descriptor.h"

#include <QFile>
#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr int SoloCarpeta = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

mode_t permisosDe(const Descriptor &carpeta, const QString &ruta)
{
    return carpeta.estado(ruta).st_mode & 07777;
}

bool esCarpeta(int carpeta, const dirent &entrada)
{
    struct stat estado;
    return entrada.d_type == DT_DIR ||
           (entrada.d_type == DT_UNKNOWN &&
            ::fstatat(carpeta, entrada.d_name, &estado, AT_SYMLINK_NOFOLLOW) == 0 &&
            S_ISDIR(estado.st_mode));
}

} // namespace

CarpetaAbierta::CarpetaAbierta(std::shared_ptr<Descriptor> carpeta, const QString &ruta)
    : m_carpeta(std::move(carpeta)), m_ruta(ruta)
{
    if (!m_carpeta->abierto())
        falla(m_ruta);
}

CarpetaAbierta::CarpetaAbierta(const QString &ruta)
    : CarpetaAbierta(std::make_shared<Descriptor>(
                         ::open(QFile::encodeName(rutaExistente(ruta)).constData(), SoloCarpeta)),
                     ruta)
{
}

CarpetaAbierta CarpetaAbierta::subcarpeta(const QString &nombre) const
{
    return CarpetaAbierta(
        std::make_shared<Descriptor>(::openat(
            m_carpeta->fd(), QFile::encodeName(nombre).constData(), SoloCarpeta | O_NOFOLLOW)),
        rutaDe(nombre));
}

CarpetaAbierta CarpetaAbierta::subcarpetaCreada(const QString &nombre) const
{
    const mode_t permisos = permisosDe(*m_carpeta, m_ruta);
    const bool nueva =
        ::mkdirat(m_carpeta->fd(), QFile::encodeName(nombre).constData(), permisos) == 0;
    if (!nueva && errno != EEXIST)
        falla(rutaDe(nombre));
    CarpetaAbierta hija = subcarpeta(nombre);
    // Whoever writes first to somebody makes a folder in which the other must be able to publish,
    // whatever the mask of this account. A file system without permissions refuses, and needs none.
    if (nueva)
        static_cast<void>(::fchmod(hija.m_carpeta->fd(), permisos));
    return hija;
}

bool CarpetaAbierta::tiene(const QString &nombre) const
{
    struct stat estado;
    return ::fstatat(m_carpeta->fd(), QFile::encodeName(nombre).constData(), &estado,
                     AT_SYMLINK_NOFOLLOW) == 0;
}

QList<CarpetaAbierta::Entrada> CarpetaAbierta::entradas() const
{
    // A descriptor of its own, because reading moves the place in the folder.
    const int fd = ::openat(m_carpeta->fd(), ".", SoloCarpeta);
    DIR *lista = fd < 0 ? nullptr : ::fdopendir(fd);
    if (!lista) {
        const int codigo = errno;
        if (fd >= 0)
            ::close(fd);
        falla(m_ruta, codigo);
    }
    const std::unique_ptr<DIR, int (*)(DIR *)> duena(lista, ::closedir);
    QList<Entrada> halladas;
    while (const dirent *entrada = ::readdir(lista)) {
        const QByteArray nombre(entrada->d_name);
        const QString texto = QFile::decodeName(nombre);
        // A name that is no text in the system's encoding could not be opened again.
        if (nombre != "." && nombre != ".." && QFile::encodeName(texto) == nombre)
            halladas << Entrada{texto, esCarpeta(fd, *entrada)};
    }
    return halladas;
}

QByteArray CarpetaAbierta::lee(const QString &nombre, qint64 maximo) const
{
    // Without O_NONBLOCK, opening a pipe would wait for its writer.
    const Descriptor archivo(::openat(m_carpeta->fd(), QFile::encodeName(nombre).constData(),
                                      O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!archivo.abierto() && errno == ENOENT)
        throw ErrorEjecucion(ErrorEjecucion::ArchivoNoEncontrado, rutaDePlataforma(rutaDe(nombre)));
    if (!archivo.abierto())
        falla(rutaDe(nombre));
    if (!S_ISREG(archivo.estado(rutaDe(nombre)).st_mode))
        falla(rutaDe(nombre), EACCES);
    QByteArray bytes;
    constexpr qint64 trozo = 1 << 20;
    while (bytes.size() < maximo) {
        const qsizetype leido = bytes.size();
        const auto cabe = std::min<qint64>(trozo, maximo - leido);
        bytes.resize(leido + cabe);
        const auto n = ::read(archivo.fd(), bytes.data() + leido, static_cast<std::size_t>(cabe));
        if (n < 0 && errno != EINTR)
            falla(rutaDe(nombre));
        bytes.resize(leido + std::max<qsizetype>(n, 0));
        if (n == 0)
            break;
    }
    return bytes;
}
