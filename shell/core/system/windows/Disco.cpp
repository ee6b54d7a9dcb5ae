// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Disco.h"

#include <QFileDevice>
#include <aclapi.h>
#include <array>
#include <io.h>
#include <memory>
#include <vector>
#include <windows.h>

namespace {

HANDLE asaDe(const QFileDevice &archivo)
{
    return reinterpret_cast<HANDLE>(::_get_osfhandle(archivo.handle()));
}

/// The path of an open file, whatever the name that it will have; empty when it cannot be told.
std::vector<wchar_t> rutaDe(HANDLE archivo)
{
    std::vector<wchar_t> ruta(
        ::GetFinalPathNameByHandleW(archivo, nullptr, 0, FILE_NAME_NORMALIZED));
    const DWORD letras = ::GetFinalPathNameByHandleW(
        archivo, ruta.data(), static_cast<DWORD>(ruta.size()), FILE_NAME_NORMALIZED);
    return letras > 0 && letras < ruta.size() ? ruta : std::vector<wchar_t>();
}

/// Who runs the program, as the system's rights name him; empty when it cannot be told.
std::vector<std::max_align_t> duena()
{
    HANDLE ficha = nullptr;
    if (!::OpenProcessToken(::GetCurrentProcess(), TOKEN_QUERY, &ficha))
        return {};
    DWORD bytes = 0;
    ::GetTokenInformation(ficha, TokenUser, nullptr, 0, &bytes);
    std::vector<std::max_align_t> bufer(bytes / sizeof(std::max_align_t) + 1);
    const bool bien = ::GetTokenInformation(ficha, TokenUser, bufer.data(), bytes, &bytes);
    ::CloseHandle(ficha);
    return bien ? bufer : std::vector<std::max_align_t>();
}

} // namespace

bool llegaAlDisco(QFileDevice &archivo)
{
    return archivo.flush() && ::FlushFileBuffers(asaDe(archivo));
}

/// A list of rights with one entry, closed to what the folder would hand down.
bool soloParaSuDuena(QFileDevice &archivo)
{
    auto ruta = rutaDe(asaDe(archivo));
    auto quien = duena();
    if (ruta.empty() || quien.empty())
        return false;
    EXPLICIT_ACCESSW entrada = {};
    entrada.grfAccessPermissions = FILE_ALL_ACCESS;
    entrada.grfAccessMode = SET_ACCESS;
    entrada.grfInheritance = NO_INHERITANCE;
    entrada.Trustee.TrusteeForm = TRUSTEE_IS_SID;
    entrada.Trustee.TrusteeType = TRUSTEE_IS_USER;
    entrada.Trustee.ptstrName =
        static_cast<LPWSTR>(reinterpret_cast<TOKEN_USER *>(quien.data())->User.Sid);
    PACL lista = nullptr;
    if (::SetEntriesInAclW(1, &entrada, nullptr, &lista) != ERROR_SUCCESS)
        return false;
    const std::unique_ptr<ACL, HLOCAL(WINAPI *)(HLOCAL)> suya(lista, ::LocalFree);
    SECURITY_DESCRIPTOR permisos = {};
    // Not by SetNamedSecurityInfo: Wine's adds what the folder hands down whatever it is told.
    return ::InitializeSecurityDescriptor(&permisos, SECURITY_DESCRIPTOR_REVISION) &&
           ::SetSecurityDescriptorDacl(&permisos, TRUE, lista, FALSE) &&
           ::SetSecurityDescriptorControl(&permisos, SE_DACL_PROTECTED, SE_DACL_PROTECTED) &&
           ::SetFileSecurityW(ruta.data(),
                              DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION,
                              &permisos);
}
