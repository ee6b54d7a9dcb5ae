// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/progress/EjercicioEnCurso.h"

#include <algorithm>

EjercicioEnCurso::EjercicioEnCurso(const TipoDeEjercicio &tipo, int nivel, Ejercicio ejercicio)
    : m_ejercicio(std::move(ejercicio))
{
    m_hecho.clave = tipo.clave;
    m_hecho.nivel = nivel;
}

EjercicioEnCurso::Respuesta EjercicioEnCurso::responde(const QString &texto)
{
    Respuesta respuesta{leeRespuesta(texto, m_ejercicio.forma), {}, false};
    if (respuesta.leida.estado != RespuestaLeida::Leida)
        return respuesta;
    respuesta.fallo = m_ejercicio.juzga(respuesta.leida);
    if (terminado())
        return respuesta;
    respuesta.cuenta = true;
    ++m_hecho.intentos;
    if (respuesta.fallo->acertada) {
        m_hecho.estado = EstadoDeEjercicio::Acertado;
    } else {
        m_hecho.estado = EstadoDeEjercicio::Fallado;
        m_hecho.notas << respuesta.fallo->nota;
    }
    return respuesta;
}

QString EjercicioEnCurso::pidePista()
{
    const int todas = static_cast<int>(m_ejercicio.pistas.size());
    m_pistasVistas = std::min(m_pistasVistas + 1, todas);
    if (!terminado())
        m_hecho.pistas = m_pistasVistas;
    return m_ejercicio.pistas.value(m_pistasVistas - 1);
}

Pasos EjercicioEnCurso::pideSolucion()
{
    if (!terminado())
        m_hecho.estado = EstadoDeEjercicio::SolucionVista;
    return m_ejercicio.solucion();
}
