// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

class MenuLecciones;
class TarjetasDeLecciones;

/// What the work area shows while no lesson is open: a word of welcome and the lessons as cards.
class PanelBienvenida : public QWidget
{
    Q_OBJECT

public:
    explicit PanelBienvenida(MenuLecciones *lecciones, QWidget *padre = nullptr);

Q_SIGNALS:
    /// The user wants to open the lesson of this row.
    void elegida(int fila);

protected:
    void changeEvent(QEvent *suceso) override;

private:
    void ajustaAncho();

    QWidget *m_contenido;
    TarjetasDeLecciones *m_tarjetas;
};
