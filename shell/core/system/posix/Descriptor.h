// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <cerrno>
#include <utility>

struct stat;

/// An open file or folder of a POSIX system, closed when it goes out of scope. For the sources of
/// this folder alone.
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor() { cierra(); }
    Descriptor(Descriptor &&otro) noexcept : m_fd(std::exchange(otro.m_fd, -1)) {}
    Descriptor &operator=(Descriptor &&) = delete;

    int fd() const { return m_fd; }
    bool abierto() const { return m_fd >= 0; }

    /// What the system knows of it. Throws ErrorEjecucion naming `ruta` when it cannot be asked.
    struct stat estado(const QString &ruta) const;

    /// Closes it now; false when what was written could not be kept.
    bool cierra();

private:
    int m_fd;
};

/// Throws the ErrorEjecucion that an error of the operating system is, naming the path.
[[noreturn]] void falla(const QString &ruta, int codigo = errno);
