// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QList>
#include <QPointF>
#include <QRectF>
#include <QString>

/// What a colour of a drawing means; the painter chooses it for the light and the dark theme.
struct Tono
{
    enum Clase {
        Tinta,   ///< lines and texts
        Suave,   ///< what stands back: axes, what is crossed out
        Acento,  ///< what the step is about
        Acierto, ///< what holds
        Fallo,   ///< what does not hold
        Serie ///< one of a series of colours that can be told apart; `indice` from 0, of any size
    };
    Clase clase = Tinta;
    int indice = 0;

    static Tono serie(int indice) { return {Serie, indice}; }
};

/// One piece of a drawing.
struct Figura
{
    enum Clase { Rectangulo, Elipse, Linea, Flecha, Texto };
    Clase clase = Rectangulo;
    QRectF lugar;       ///< Linea and Flecha go from its top left to its bottom right corner
    QString texto = {}; ///< in the middle of a rectangle or an ellipse, or the text itself
    Tono tono = {};
    bool rellena = false;
};

/// A drawing as data, made by logic and painted by the shell: rectangles, circles, lines, arrows
/// and texts in units of its own.
class Lamina
{
public:
    Lamina() = default;
    /// `descripcion` is what the drawing shows in words, for whoever cannot see it.
    explicit Lamina(const QString &descripcion) : m_descripcion(descripcion) {}

    bool vacia() const { return m_figuras.isEmpty(); }
    const QString &descripcion() const { return m_descripcion; }
    const QList<Figura> &figuras() const { return m_figuras; }
    /// The smallest rectangle that holds all figures.
    QRectF marco() const;

    void rectangulo(const QRectF &lugar, Tono tono, bool rellena = false,
                    const QString &texto = {});
    /// An ellipse that fills the rectangle.
    void elipse(const QRectF &lugar, Tono tono, bool rellena = false, const QString &texto = {});
    void linea(QPointF desde, QPointF hasta, Tono tono = {});
    /// A line with a head at its end.
    void flecha(QPointF desde, QPointF hasta, Tono tono = {});
    /// A text in the middle of the rectangle, whose height is that of its letters.
    void texto(const QRectF &lugar, const QString &texto, Tono tono = {});

private:
    QString m_descripcion;
    QList<Figura> m_figuras;
};
