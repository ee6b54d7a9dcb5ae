// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/page/PaginaPlegable.h"

#include <QWidget>

class QLabel;
class QLineEdit;

/// Below a page: a question of it, a field for the answer, and the verdict, which counts nowhere.
/// Hidden until a question is asked.
class BarraDePregunta : public QWidget
{
    Q_OBJECT

public:
    explicit BarraDePregunta(QWidget *padre);

    /// Comes in sight with a question.
    void pregunta(const PaginaPlegable::Pregunta &pregunta);

Q_SIGNALS:
    /// The reader goes back to the page.
    void cerrada();

private:
    void cmdComprobarPregunta_Click();

    QLabel *m_enunciado;
    QLineEdit *m_respuesta;
    QLabel *m_veredicto;
    QString m_esperada;
};
