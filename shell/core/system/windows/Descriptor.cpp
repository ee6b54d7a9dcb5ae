// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/windows/Descriptor.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/Rutas.h"

#include <winternl.h>

namespace {

// Missing from the headers of mingw-w64.
constexpr DWORD CuotaAgotada = 1295;

ErrorEjecucion::Numero numeroDe(DWORD codigo)
{
    switch (codigo) {
    case ERROR_FILE_NOT_FOUND:
    case ERROR_PATH_NOT_FOUND:
    case ERROR_DIRECTORY: // a file or a link where a folder was looked for
    case ERROR_BAD_NETPATH:
    case ERROR_BAD_NET_NAME:
    case ERROR_INVALID_NAME:
    case ERROR_NOT_READY:
        return ErrorEjecucion::RutaNoEncontrada;
    case ERROR_ACCESS_DENIED:
    case ERROR_SHARING_VIOLATION:
    case ERROR_LOCK_VIOLATION:
    case ERROR_WRITE_PROTECT:
        return ErrorEjecucion::PermisoDenegado;
    case ERROR_DISK_FULL:
    case ERROR_HANDLE_DISK_FULL:
    case CuotaAgotada:
        return ErrorEjecucion::DiscoLleno;
    case ERROR_ALREADY_EXISTS:
    case ERROR_FILE_EXISTS:
        return ErrorEjecucion::ArchivoYaExiste;
    default:
        return ErrorEjecucion::ErrorDeArchivo;
    }
}

} // namespace

bool Descriptor::cierra()
{
    const HANDLE asa = std::exchange(m_asa, INVALID_HANDLE_VALUE);
    return asa == INVALID_HANDLE_VALUE || ::CloseHandle(asa);
}

BY_HANDLE_FILE_INFORMATION Descriptor::estado(const QString &ruta) const
{
    BY_HANDLE_FILE_INFORMATION resultado = {};
    if (!::GetFileInformationByHandle(m_asa, &resultado))
        falla(ruta);
    return resultado;
}

Descriptor abreEntrada(const Descriptor &carpeta, const QString &nombre, const Apertura &como)
{
    constexpr qsizetype masLargo = 255;
    if (nombre.size() > masLargo) {
        ::SetLastError(ERROR_INVALID_NAME);
        return Descriptor(INVALID_HANDLE_VALUE);
    }
    std::wstring letras = nombre.toStdWString();
    const auto bytes = static_cast<USHORT>(letras.size() * sizeof(wchar_t));
    UNICODE_STRING texto = {bytes, bytes, letras.data()};
    OBJECT_ATTRIBUTES objeto = {};
    InitializeObjectAttributes(&objeto, &texto, OBJ_CASE_INSENSITIVE, carpeta.asa(), nullptr);
    IO_STATUS_BLOCK suceso = {};
    HANDLE asa = INVALID_HANDLE_VALUE;
    const NTSTATUS estado = ::NtCreateFile(
        &asa, como.acceso | SYNCHRONIZE, &objeto, &suceso, nullptr, FILE_ATTRIBUTE_NORMAL,
        FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE, como.disposicion,
        como.opciones | FILE_OPEN_REPARSE_POINT | FILE_SYNCHRONOUS_IO_NONALERT, nullptr, 0);
    if (estado >= 0)
        return Descriptor(asa);
    ::SetLastError(::RtlNtStatusToDosError(estado));
    return Descriptor(INVALID_HANDLE_VALUE);
}

qint64 segundosDe(const FILETIME &tiempo)
{
    constexpr qint64 hasta1970 = 11'644'473'600, porSegundo = 10'000'000;
    const qint64 decimas = static_cast<qint64>(tiempo.dwHighDateTime) << 32 |
                           static_cast<qint64>(tiempo.dwLowDateTime);
    return decimas / porSegundo - hasta1970;
}

void falla(const QString &ruta, DWORD codigo)
{
    throw ErrorEjecucion(numeroDe(codigo), rutaDePlataforma(ruta));
}
