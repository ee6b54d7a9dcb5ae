// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/posix/Descriptor.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Rutas.h"

#include <sys/stat.h>
#include <unistd.h>

namespace {

ErrorEjecucion::Numero numeroDeErrno(int codigo)
{
    switch (codigo) {
    case ENOENT:
    case ENOTDIR:
        return ErrorEjecucion::RutaNoEncontrada;
    case EACCES:
    case EPERM:
    case EROFS:
    case ELOOP: // a link where none is followed
        return ErrorEjecucion::PermisoDenegado;
    case ENOSPC:
    case EDQUOT:
        return ErrorEjecucion::DiscoLleno;
    case EEXIST:
        return ErrorEjecucion::ArchivoYaExiste;
    default:
        return ErrorEjecucion::ErrorDeArchivo;
    }
}

} // namespace

bool Descriptor::cierra()
{
    return m_fd < 0 || ::close(std::exchange(m_fd, -1)) == 0;
}

struct stat Descriptor::estado(const QString &ruta) const
{
    struct stat resultado;
    if (::fstat(m_fd, &resultado) != 0)
        falla(ruta);
    return resultado;
}

void falla(const QString &ruta, int codigo)
{
    throw ErrorEjecucion(numeroDeErrno(codigo), rutaDePlataforma(ruta));
}
