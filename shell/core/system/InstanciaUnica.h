// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>
#include <memory>

/// The rule that one user runs one copy of the program at a time: a lock on a file beside the
/// user's settings. The kernel holds it, so that it cannot outlive the process, crashed or not; two
/// settings folders are two users.
class InstanciaUnica
{
public:
    explicit InstanciaUnica(const QString &archivo);
    ~InstanciaUnica();
    InstanciaUnica(const InstanciaUnica &) = delete;
    InstanciaUnica &operator=(const InstanciaUnica &) = delete;

    /// Whether another process holds the lock. A file that cannot be made does not count: a
    /// read-only home must not keep a student out.
    bool hayOtra() const { return m_hayOtra; }

private:
    struct Cerrojo;
    std::unique_ptr<Cerrojo> m_cerrojo;
    bool m_hayOtra = false;
};
