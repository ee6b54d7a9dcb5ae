// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <utility>
#include <windows.h>

/// An open file or folder of Windows, closed when it goes out of scope. For the sources of this
/// folder alone.
class Descriptor
{
public:
    explicit Descriptor(HANDLE asa) : m_asa(asa) {}
    ~Descriptor() { cierra(); }
    Descriptor(Descriptor &&otro) noexcept : m_asa(std::exchange(otro.m_asa, INVALID_HANDLE_VALUE))
    {
    }
    Descriptor &operator=(Descriptor &&) = delete;

    HANDLE asa() const { return m_asa; }
    bool abierto() const { return m_asa != INVALID_HANDLE_VALUE; }

    /// What the system knows of it. Throws ErrorEjecucion naming `ruta` when it cannot be asked.
    BY_HANDLE_FILE_INFORMATION estado(const QString &ruta) const;

    /// Closes it now; false when what was written could not be kept.
    bool cierra();

private:
    HANDLE m_asa;
};

/// What is wanted of an entry that is opened.
struct Apertura
{
    ACCESS_MASK acceso;
    ULONG disposicion; ///< FILE_OPEN, FILE_CREATE or FILE_OPEN_IF
    ULONG opciones;    ///< FILE_DIRECTORY_FILE, FILE_NON_DIRECTORY_FILE, …
};

/// Opens an entry of a folder by its one name; in the place of a reparse point, the point itself is
/// opened. Others may do what they like with it meanwhile. Failing, it is not open and GetLastError
/// tells why.
Descriptor abreEntrada(const Descriptor &carpeta, const QString &nombre, const Apertura &como);

/// Seconds since 1970 of a time of the system.
qint64 segundosDe(const FILETIME &tiempo);

/// Throws the ErrorEjecucion that an error of the operating system is, naming the path.
[[noreturn]] void falla(const QString &ruta, DWORD codigo = ::GetLastError());
