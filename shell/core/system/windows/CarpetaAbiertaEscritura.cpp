// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/CarpetaAbierta.h"
#include "shell/core/system/windows/Descriptor.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <vector>
#include <winternl.h>

namespace {

// Of FILE_RENAME_INFORMATION_EX: the name changes hands even while somebody reads the old file.
constexpr int RenombraYa = 65;
constexpr DWORD EnSuLugar = 1, ComoPosix = 2;

bool escribeTodo(HANDLE archivo, const QByteArray &contenido)
{
    constexpr qsizetype trozo = 1 << 20;
    for (qsizetype escrito = 0; escrito < contenido.size();) {
        DWORD n = 0;
        if (!::WriteFile(archivo, contenido.constData() + escrito,
                         static_cast<DWORD>(std::min(trozo, contenido.size() - escrito)), &n,
                         nullptr))
            return false;
        escrito += n;
    }
    return ::FlushFileBuffers(archivo);
}

/// Gives an open file a name in an open folder: another one or a second one, as `clase` says.
/// Failing, GetLastError tells why.
bool ponNombre(const Descriptor &archivo, const Descriptor &carpeta, const QString &nombre,
               int clase, DWORD orden)
{
    const std::wstring letras = nombre.toStdWString();
    const std::size_t bytes = letras.size() * sizeof(wchar_t);
    std::vector<std::max_align_t> bufer(
        (sizeof(FILE_RENAME_INFO) + bytes) / sizeof(std::max_align_t) + 1);
    auto *peticion = reinterpret_cast<FILE_RENAME_INFO *>(bufer.data());
    // A byte of its own before Windows 10, the lowest of a word of orders since.
    std::memcpy(peticion, &orden, sizeof orden);
    peticion->RootDirectory = carpeta.asa();
    peticion->FileNameLength = static_cast<DWORD>(bytes);
    std::memcpy(peticion->FileName, letras.data(), bytes);
    IO_STATUS_BLOCK suceso = {};
    const NTSTATUS estado = ::NtSetInformationFile(
        archivo.asa(), &suceso, peticion, static_cast<ULONG>(sizeof(FILE_RENAME_INFO) + bytes),
        static_cast<FILE_INFORMATION_CLASS>(clase));
    if (estado < 0)
        ::SetLastError(::RtlNtStatusToDosError(estado));
    return estado >= 0;
}

Descriptor paraRenombrar(const Descriptor &carpeta, const QString &nombre)
{
    return abreEntrada(carpeta, nombre,
                       {DELETE | FILE_READ_ATTRIBUTES | FILE_WRITE_ATTRIBUTES, FILE_OPEN,
                        FILE_NON_DIRECTORY_FILE});
}

bool estaOcupado(DWORD codigo)
{
    return codigo == ERROR_ALREADY_EXISTS || codigo == ERROR_FILE_EXISTS;
}

bool estaEnUso(DWORD codigo)
{
    return codigo == ERROR_ACCESS_DENIED || codigo == ERROR_SHARING_VIOLATION;
}

} // namespace

qint64 CarpetaAbierta::escribeNuevo(const QString &nombre, const QByteArray &contenido) const
{
    Descriptor archivo =
        abreEntrada(*m_carpeta, nombre,
                    {FILE_WRITE_DATA | FILE_READ_ATTRIBUTES, FILE_CREATE, FILE_NON_DIRECTORY_FILE});
    if (!archivo.abierto())
        falla(m_ruta);
    if (escribeTodo(archivo.asa(), contenido)) {
        const qint64 hecho = segundosDe(archivo.estado(m_ruta).ftLastWriteTime);
        if (archivo.cierra())
            return hecho;
    }
    const DWORD codigo = ::GetLastError();
    archivo.cierra();
    quita(nombre);
    falla(m_ruta, codigo);
}

std::optional<qint64> CarpetaAbierta::escritoEn(const QString &nombre) const
{
    const Descriptor archivo =
        abreEntrada(*m_carpeta, nombre, {FILE_READ_ATTRIBUTES, FILE_OPEN, 0});
    BY_HANDLE_FILE_INFORMATION estado = {};
    constexpr DWORD ninguno = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    if (!archivo.abierto() || !::GetFileInformationByHandle(archivo.asa(), &estado) ||
        estado.dwFileAttributes & ninguno)
        return {};
    return segundosDe(estado.ftLastWriteTime);
}

bool CarpetaAbierta::nombraSiLibre(const QString &archivo, const QString &nombre) const
{
    const Descriptor suyo = paraRenombrar(*m_carpeta, archivo);
    if (!suyo.abierto())
        falla(rutaDe(archivo));
    if (ponNombre(suyo, *m_carpeta, nombre, FileLinkInformation, 0))
        return true;
    // A memory stick has no hard links; a rename that does not replace is as good, since the system
    // itself looks whether the name is free.
    if (!estaOcupado(::GetLastError()) &&
        ponNombre(suyo, *m_carpeta, nombre, FileRenameInformation, 0))
        return true;
    if (estaOcupado(::GetLastError()))
        return false;
    falla(rutaDe(nombre));
}

void CarpetaAbierta::renombra(const QString &archivo, const QString &nombre) const
{
    const Descriptor suyo = paraRenombrar(*m_carpeta, archivo);
    if (!suyo.abierto())
        falla(rutaDe(archivo));
    if (ponNombre(suyo, *m_carpeta, nombre, RenombraYa, EnSuLugar | ComoPosix))
        return;
    // Where the system does not know that, somebody who reads is waited for.
    constexpr int veces = 20;
    constexpr DWORD milisegundos = 20;
    for (int i = 0; i < veces; ++i) {
        if (ponNombre(suyo, *m_carpeta, nombre, FileRenameInformation, EnSuLugar))
            return;
        if (!estaEnUso(::GetLastError()))
            break;
        ::Sleep(milisegundos);
    }
    falla(rutaDe(nombre));
}

void CarpetaAbierta::quita(const QString &nombre) const
{
    abreEntrada(*m_carpeta, nombre,
                {DELETE, FILE_OPEN, FILE_NON_DIRECTORY_FILE | FILE_DELETE_ON_CLOSE});
}
