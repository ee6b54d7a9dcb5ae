#pragma once

#include "lessons/rsa/mailbox/CarpetaBuzon.h"

/// A file that is written whole under a name that nobody looks for, and goes away again unless it
/// is given a name of its own. Failures throw ErrorEjecucion naming the path.
class Borrador
{
public:
    Borrador(const CarpetaBuzon &carpeta, const QByteArray &contenido);
    ~Borrador();
    Borrador(const Borrador &) = delete;
    Borrador &operator=(const Borrador &) = delete;

    /// Gives the finished file its name in one step; false when the name is taken, which is never
    /// replaced.
    bool nombraSiLibre(const QString &nombre);
    /// Gives it a name whether taken or not.
    void nombra(const QString &nombre);

private:
    const CarpetaBuzon &m_carpeta;
    QByteArray m_provisional;
};
