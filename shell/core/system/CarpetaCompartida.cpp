// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/CarpetaCompartida.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/ArchivoProvisional.h"
#include "shell/core/system/Descriptor.h"

#include <QFile>
#include <algorithm>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int SoloCarpeta = O_RDONLY | O_DIRECTORY | O_CLOEXEC;

/// Calls `visita` with each entry of a folder but "." and "..": its name, and whether it is a
/// folder (a link is none).
template <typename Visita>
void recorre(int carpeta, const QString &ruta, Visita visita)
{
    // A descriptor of its own, because reading moves the place in the folder.
    const int fd = ::openat(carpeta, ".", SoloCarpeta);
    DIR *lista = fd < 0 ? nullptr : ::fdopendir(fd);
    if (!lista) {
        const int codigo = errno;
        if (fd >= 0)
            ::close(fd);
        falla(ruta, codigo);
    }
    const std::unique_ptr<DIR, int (*)(DIR *)> duena(lista, ::closedir);
    while (const dirent *entrada = ::readdir(lista)) {
        const QByteArray nombre(entrada->d_name);
        if (nombre == "." || nombre == "..")
            continue;
        bool esCarpeta = entrada->d_type == DT_DIR;
        struct stat estado;
        if (entrada->d_type == DT_UNKNOWN)
            esCarpeta = ::fstatat(carpeta, entrada->d_name, &estado, AT_SYMLINK_NOFOLLOW) == 0 &&
                        S_ISDIR(estado.st_mode);
        const QString texto = QFile::decodeName(nombre);
        // A name that is no text in the system's encoding could not be opened again.
        if (QFile::encodeName(texto) == nombre)
            visita(texto, esCarpeta);
    }
}

mode_t permisosDe(const Descriptor &carpeta, const QString &ruta)
{
    return carpeta.estado(ruta).st_mode & 07777;
}

} // namespace

CarpetaCompartida::CarpetaCompartida(std::shared_ptr<Descriptor> carpeta, const QString &ruta)
    : m_carpeta(std::move(carpeta)), m_ruta(ruta)
{
}

CarpetaCompartida::CarpetaCompartida(const QString &ruta)
    : m_carpeta(std::make_shared<Descriptor>(
          ::open(QFile::encodeName(rutaExistente(ruta)).constData(), SoloCarpeta))),
      m_ruta(ruta)
{
    if (!m_carpeta->abierto())
        falla(m_ruta);
}

int CarpetaCompartida::fd() const
{
    return m_carpeta->fd();
}

QString CarpetaCompartida::rutaDe(const QString &nombre) const
{
    return m_ruta + u'\\' + nombre;
}

/// The name of an entry but for case; a name as written is preferred, and given back when there is
/// none at all.
QString CarpetaCompartida::nombreReal(const QString &nombre) const
{
    if (!esNombreSimple(nombre))
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido, nombre.left(255));
    struct stat estado;
    if (::fstatat(fd(), QFile::encodeName(nombre).constData(), &estado, AT_SYMLINK_NOFOLLOW) == 0)
        return nombre;
    QString real = nombre;
    recorre(fd(), m_ruta, [&](const QString &entrada, bool) {
        if (entrada.compare(nombre, Qt::CaseInsensitive) == 0)
            real = entrada;
    });
    return real;
}

CarpetaCompartida CarpetaCompartida::subcarpeta(const QString &nombre) const
{
    const QByteArray real = QFile::encodeName(nombreReal(nombre));
    auto hija =
        std::make_shared<Descriptor>(::openat(fd(), real.constData(), SoloCarpeta | O_NOFOLLOW));
    if (!hija->abierto())
        falla(rutaDe(nombre));
    return CarpetaCompartida(std::move(hija), rutaDe(nombre));
}

CarpetaCompartida CarpetaCompartida::subcarpetaCreada(const QString &nombre) const
{
    const QByteArray real = QFile::encodeName(nombreReal(nombre));
    const bool nueva = ::mkdirat(fd(), real.constData(), permisosDe(*m_carpeta, m_ruta)) == 0;
    if (!nueva && errno != EEXIST)
        falla(rutaDe(nombre));
    CarpetaCompartida hija = subcarpeta(nombre);
    // Whoever writes first to somebody makes a folder in which the other must be able to publish,
    // whatever the mask of this account. A file system without permissions refuses, and needs none.
    if (nueva)
        static_cast<void>(::fchmod(hija.fd(), permisosDe(*m_carpeta, m_ruta)));
    return hija;
}

QStringList CarpetaCompartida::subcarpetas() const
{
    QStringList nombres;
    recorre(fd(), m_ruta, [&](const QString &nombre, bool esCarpeta) {
        if (esCarpeta && esNombreSimple(nombre))
            nombres << nombre;
    });
    nombres.sort(Qt::CaseInsensitive);
    return nombres;
}

QStringList CarpetaCompartida::entradas() const
{
    QStringList nombres;
    recorre(fd(), m_ruta, [&](const QString &nombre, bool esCarpeta) {
        if (!esCarpeta && esNombreSimple(nombre))
            nombres << nombre;
    });
    return nombres;
}

Descriptor CarpetaCompartida::abreArchivo(const QString &nombre) const
{
    // Without O_NONBLOCK, opening a pipe would wait for its writer.
    Descriptor archivo(::openat(fd(), QFile::encodeName(nombreReal(nombre)).constData(),
                                O_RDONLY | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC));
    if (!archivo.abierto() && errno == ENOENT)
        throw ErrorEjecucion(ErrorEjecucion::ArchivoNoEncontrado, rutaDePlataforma(rutaDe(nombre)));
    if (!archivo.abierto())
        falla(rutaDe(nombre));
    if (!S_ISREG(archivo.estado(rutaDe(nombre)).st_mode))
        falla(rutaDe(nombre), EACCES);
    return archivo;
}

QByteArray CarpetaCompartida::leePrincipio(const QString &nombre, qint64 maximo) const
{
    const Descriptor archivo = abreArchivo(nombre);
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

QByteArray CarpetaCompartida::lee(const QString &nombre, qint64 maximo) const
{
    QByteArray bytes = leePrincipio(nombre, maximo + 1);
    if (bytes.size() > maximo)
        throw ErrorEjecucion(ErrorEjecucion::ErrorDeArchivo,
                             rutaDePlataforma(rutaDe(nombre)) + u'\n' +
                                 Traduce(u"El archivo es demasiado grande."_s));
    return bytes;
}

void CarpetaCompartida::sustituye(const QString &nombre, const QByteArray &contenido) const
{
    const QString real = nombreReal(nombre);
    ArchivoProvisional archivo(*this, contenido);
    archivo.quitaAbandonados(entradas());
    archivo.nombra(real);
}
