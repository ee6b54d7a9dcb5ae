// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>

struct Contenido;
class MenuLecciones;
class TarjetasDeLecciones;

/// What the work area shows while no lesson is open: a word of welcome, the lessons as cards, and
/// the practice window as one or two more.
class PanelBienvenida : public QWidget
{
    Q_OBJECT

public:
    explicit PanelBienvenida(const Contenido &contenido, QWidget *padre = nullptr);

    /// What the student is invited to go on practising; empty takes that card away.
    void invita(const QString &invitacion);

Q_SIGNALS:
    /// The user wants to open the lesson of this row.
    void elegida(int fila);
    /// The user wants to practise.
    void practicas();
    /// The user wants to go on with what is due.
    void sigue();

protected:
    void changeEvent(QEvent *suceso) override;

private:
    void ajustaAncho();
    void tarjeta_Click(int fila);

    int m_lecciones;
    int m_primera; ///< the row of the first lesson
    MenuLecciones *m_modelo;
    QWidget *m_contenido;
    TarjetasDeLecciones *m_tarjetas;
};
