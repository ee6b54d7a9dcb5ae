#pragma once

#include <QString>
#include <cerrno>
#include <utility>

/// An open file or folder, closed when it goes out of scope.
class Descriptor
{
public:
    explicit Descriptor(int fd) : m_fd(fd) {}
    ~Descriptor() { cierra(); }
    Descriptor(Descriptor &&otro) noexcept : m_fd(std::exchange(otro.m_fd, -1)) {}
    Descriptor &operator=(Descriptor &&) = delete;

    int fd() const { return m_fd; }
    bool abierto() const { return m_fd >= 0; }

    /// Closes it now; false when what was written could not be kept.
    bool cierra();

private:
    int m_fd;
};

/// Throws the ErrorEjecucion that an error of the operating system is, naming the path.
[[noreturn]] void falla(const QString &ruta, int codigo = errno);
