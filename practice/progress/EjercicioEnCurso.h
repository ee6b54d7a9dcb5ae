// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

#include <optional>

/// How far an exercise has come. What has been reached is never lost by trying again: after
/// Acertado and SolucionVista nothing counts any more.
enum class EstadoDeEjercicio { NoContestado, Fallado, SolucionVista, Acertado };

/// What is kept of an exercise that was tried.
struct Hecho
{
    QString clave; ///< of its kind
    int nivel = 1;
    EstadoDeEjercicio estado = EstadoDeEjercicio::NoContestado;
    int intentos = 0;        ///< answers that were judged until it was over
    int pistas = 0;          ///< hints that were asked for before that
    QStringList notas{};     ///< of the wrong answers, in their order
    qint64 milisegundos = 0; ///< from the statement to the end
    QString hoja{};          ///< the code of the sheet; empty when it was not part of one
    qint64 dia = 0;          ///< Julian day of the last change, by the clock of that moment

    /// Right at once and without any help: what counts for mastery.
    bool sinAyuda() const
    {
        return estado == EstadoDeEjercicio::Acertado && intentos == 1 && pistas == 0;
    }
};

/// An exercise that a student is about: it reads and judges answers, gives hints one by one and the
/// solution, and keeps account of it.
class EjercicioEnCurso
{
public:
    EjercicioEnCurso(const TipoDeEjercicio &tipo, int nivel, Ejercicio ejercicio);

    const Ejercicio &ejercicio() const { return m_ejercicio; }
    /// What is to be kept; times and sheets are the caller's.
    const Hecho &hecho() const { return m_hecho; }

    struct Respuesta
    {
        RespuestaLeida leida;
        std::optional<Fallo> fallo; ///< nothing where it could not be judged, which costs nothing
        bool cuenta = false;        ///< the account has changed
    };
    /// Reads an answer, and judges it where it can be read.
    Respuesta responde(const QString &texto);

    /// The next hint; after the last one that one again.
    QString pidePista();
    /// How many hints have been shown.
    int pistasVistas() const { return m_pistasVistas; }
    /// The worked solution. Shown before a right answer, it ends the exercise.
    Pasos pideSolucion();

    bool terminado() const { return m_hecho.estado >= EstadoDeEjercicio::SolucionVista; }

private:
    Ejercicio m_ejercicio;
    Hecho m_hecho;
    int m_pistasVistas = 0;
};
