// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/progress/Eleccion.h"

#include "practice/engine/Banco.h"
#include "practice/progress/Curso.h"

#include <algorithm>

using namespace Qt::Literals::StringLiterals;

std::optional<Eleccion> Eleccion::deClave(const QString &clave, int nivel)
{
    const int suyo = std::clamp(nivel, 0, Niveles);
    if (const TipoDeEjercicio *tipo = tipoDeEjercicio(clave))
        return Eleccion{tipo->leccion(), tipo->clave, suyo};
    if (clave.isEmpty() || !clavesDelBanco(clave).isEmpty())
        return Eleccion{clave, {}, suyo};
    return {};
}

QStringList clavesDelBanco(const QString &leccion)
{
    QStringList claves;
    for (const LeccionDelCurso &una : curso()) {
        for (const TipoDeEjercicio &tipo : banco()) {
            if (tipo.leccion() == una.clave && (leccion.isEmpty() || leccion == una.clave))
                claves << tipo.clave;
        }
    }
    return claves;
}

Propuesta propuestaDe(const Eleccion &eleccion, const QHash<QString, Dominio> &dominios, qint64 hoy)
{
    Propuesta propuesta;
    if (eleccion.clave.isEmpty())
        propuesta = loQueToca(clavesDelBanco(eleccion.leccion), dominios, hoy);
    else
        propuesta = {eleccion.clave, dominios.value(eleccion.clave).propuesto,
                     Propuesta::Siguiente};
    if (eleccion.nivel > 0)
        propuesta.nivel = eleccion.nivel;
    return propuesta;
}
