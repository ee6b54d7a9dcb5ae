// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/store/Cuaderno.h"

#include <QWidget>

class LienzoDeLamina;
class ModeloFilas;
class QPushButton;
class Rejilla;

/// The topic "Mapa": the lessons and what they build on, and of each kind of exercise what is
/// mastered and when a review is due. A row is practised by Enter, a double click or the button.
class FormPracticasMapa : public QWidget
{
    Q_OBJECT

public:
    FormPracticasMapa(Cuaderno &cuaderno, QWidget *padre);

Q_SIGNALS:
    /// The student wants to practise this kind.
    void elegido(const QString &clave);

protected:
    void showEvent(QShowEvent *suceso) override;

private:
    void construye();
    void muestra();
    void practica(int fila);

    Cuaderno &m_cuaderno;
    LienzoDeLamina *m_lienzo = nullptr; ///< made when it is first seen, like the others
    ModeloFilas *m_filas = nullptr;
    Rejilla *m_rejilla = nullptr;
    QPushButton *m_practicar = nullptr;
};
