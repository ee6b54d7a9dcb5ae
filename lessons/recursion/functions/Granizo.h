// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/CurvaGranizo.h"
#include "shell/core/run/Billete.h"
#include "shell/core/run/Tarea.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <deque>
#include <memory>

/// The step that follows h: a half of an even number, three times an odd one plus 1. "Error" when h
/// is no whole number, or when the result is too long for the big-number service.
QString siguienteGranizo(const QString &h);

/// How many digits a value has; none where it is no number.
qsizetype cifrasDe(const QString &valor);

/// The values of a hailstone sequence, by their step. Memory is bounded however long the sequence
/// and its numbers grow: of the values only every so many are kept, and those between are computed
/// again when they are looked at; of a sequence that does not end only the last steps are kept.
class HistoriaGranizo
{
public:
    /// The most steps that are kept.
    static constexpr int MaximoDePasos = 1'000'000;
    /// The most memory that the values kept take, in bytes.
    static constexpr qint64 MaximoDeBytes = qint64{32} * 1024 * 1024;
    /// The most values that are kept: to thin out more at once would keep a click waiting.
    static constexpr std::size_t MaximoDeHitos = 50'000;

    /// Forgets everything; step 0 is `inicio`.
    void reinicia(const QString &inicio);

    /// The value of the next step, which is what `siguienteGranizo` gives for the last one.
    void agrega(const QString &valor);

    bool vacia() const { return m_ultimo < 0; }
    qint64 primero() const;
    /// The number of the last step; -1 when there is none.
    qint64 ultimo() const { return m_ultimo; }

    /// The value of a step from the first to the last one kept.
    QString valor(qint64 paso) const;

    /// The whole course of the sequence, of which this keeps the last steps.
    const CurvaGranizo &curva() const { return m_curva; }

    /// How much memory the values kept take, in bytes.
    qint64 bytes() const { return m_bytes; }

private:
    void guardaHito(const QString &valor);
    void aligera();
    void olvidaLoAntiguo();

    /// Consecutive values, for a view that draws rows that stand together.
    struct Tramo
    {
        qint64 inicio = 0;
        QStringList valores;

        qint64 fin() const { return inicio + valores.size(); }
        void agrega(const QString &valor);
    };

    qint64 m_ultimo = -1;
    /// The distance between two values kept, and the step of the first of them.
    qint64 m_distancia = 1;
    qint64 m_primerHito = 0;
    std::deque<QByteArray> m_hitos;
    qint64 m_bytes = 0;
    CurvaGranizo m_curva;
    Tramo m_recientes;
    mutable Tramo m_vistos;
};

/// How a hailstone run ended.
enum class FinDeGranizo {
    EnUno,
    Detenido,
    SinEntero,       ///< the start is no whole number in digits that the big-number service reads
    DemasiadasCifras ///< the numbers grew beyond the big-number service
};

/// Runs the hailstone sequence from a big number until it reaches 1; the ticket stops it. The start
/// is not looked at: 1 goes through 4 and 2 before it ends. No number of steps is too many.
Tarea<FinDeGranizo> correGranizo(QString inicio, std::shared_ptr<HistoriaGranizo> historia,
                                 Billete billete);
