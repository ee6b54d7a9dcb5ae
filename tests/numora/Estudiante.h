// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "shell/core/clsSesion.h"
#include "tests/shell/support/Entorno.h"

/// A student in a working folder of their own, with a good key and a mailbox, so that the topics
/// that come and go are there.
class Estudiante
{
public:
    Estudiante() { Entorno::ponTrabajoEn(m_carpeta.path()); }

    /// Settings, language and key as new.
    void prepara() const
    {
        Entorno::limpia();
        Sesión().ponCarpeta(m_carpeta.path());
        ClsRSA clave(Sesión());
        clave.ponDirMensajes(m_carpeta.path());
        clave.ponr(1);
        clave.ponq(1, u"257"_s);
        clave.ponq(2, u"263"_s);
        clave.pons(u"5"_s);
        clave.Valida();
    }

private:
    QTemporaryDir m_carpeta;
};
