// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDir>
#include <QFileInfo>
#include <QScopeGuard>

#if defined(Q_OS_WIN)
#include <aclapi.h>
#endif

/// Whether nobody but who runs the test has a right to a file.
inline bool esSoloDeSuDuena(const QString &ruta)
{
#if defined(Q_OS_WIN)
    PACL lista = nullptr;
    PSID duena = nullptr;
    PSECURITY_DESCRIPTOR todo = nullptr;
    if (::GetNamedSecurityInfoW(QDir::toNativeSeparators(ruta).toStdWString().c_str(),
                                SE_FILE_OBJECT,
                                DACL_SECURITY_INFORMATION | OWNER_SECURITY_INFORMATION, &duena,
                                nullptr, &lista, nullptr, &todo) != ERROR_SUCCESS)
        return false;
    const auto alFinal = qScopeGuard([todo] { ::LocalFree(todo); });
    // Wine adds the system itself to every list.
    bool solo = lista != nullptr;
    for (DWORD i = 0; solo && i < lista->AceCount; ++i) {
        ACCESS_ALLOWED_ACE *entrada = nullptr;
        solo = ::GetAce(lista, i, reinterpret_cast<void **>(&entrada)) &&
               (::EqualSid(&entrada->SidStart, duena) ||
                ::IsWellKnownSid(&entrada->SidStart, WinLocalSystemSid));
    }
    return solo;
#else
    const auto duena = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    return (QFileInfo(ruta).permissions() & ~duena) == QFile::Permissions();
#endif
}
