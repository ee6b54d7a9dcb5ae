// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QScrollArea>

class QStackedWidget;

/// The panels of a lesson's topics, one in front of the others. Where the window has less room than
/// the panel in front needs, it scrolls, and follows the keyboard.
class PanelesDeTemas : public QScrollArea
{
    Q_OBJECT

public:
    explicit PanelesDeTemas(QWidget *padre = nullptr);

    int agrega(QWidget *panel);
    void quita(QWidget *panel);
    void ponAlFrente(int indice);

    /// Null where there is no such panel.
    QWidget *panel(int indice) const;
    QWidget *alFrente() const;

    /// Gives the keyboard to the control of the panel in front that had it last, else to its first;
    /// false where there is none.
    bool enfoca();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

private:
    QStackedWidget *m_pila;
};
