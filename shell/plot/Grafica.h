// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/plot/Encuadre.h"
#include "shell/plot/ReglasDeGrafica.h"
#include "shell/plot/TrazoDeGrafica.h"

#include <QList>
#include <QPointer>
#include <QWidget>

class DatosDeGrafica;
class EjeDeGrafica;
class PintorDeGrafica;

/// Points of one kind among others, with a line to compare them with; none when its ends are equal.
struct SerieDeGrafica
{
    QString nombre;
    QList<QPointF> puntos; ///< by rising x
    QPointF rectaDesde = {};
    QPointF rectaHasta = {};
};

/// A plot of a function of whole numbers: axes (`EjeX`, `EjeY`), points joined by thin lines or
/// not, and under the mouse two rulers (`ReglaHorizontal`, `ReglaVertical`) with their coordinates
/// (`LabelX`, `LabelY`). The point nearest to the pointer, or chosen with the arrow keys, is marked
/// (`PuntoFunción`). The wheel and the keys + and - zoom, dragging pans, a double click or the key
/// Home shows everything again. Enter opens the points as a table.
class Grafica : public QWidget
{
    Q_OBJECT

public:
    explicit Grafica(QWidget *padre = nullptr);

    /// The points, by rising x, and the part of the plane that holds them, which is shown whole.
    void ponPuntos(const QList<QPointF> &puntos, const QRectF &limites);
    /// Several kinds of points in one plot, each in a colour of its own that a legend tells. Among
    /// the points that can be marked they stand by rising x, at one x in the order of the series.
    void ponSeries(const QList<SerieDeGrafica> &series, const QRectF &limites);
    /// A stretch of x that stands out; nothing when its ends are equal.
    void ponTramo(qreal desde, qreal hasta);
    /// A straight line to compare the points with, dashed; none when its ends are equal. Like the
    /// stretch, it goes when other points come.
    void ponRecta(QPointF desde, QPointF hasta);
    /// From `inicio` on the points repeat themselves every `longitud`: each turn takes the other of
    /// two colours, and those before stand pale. All alike again when other points come.
    void ponPeriodo(qreal inicio, qreal longitud);
    /// Whether lines join the points; true at first.
    void ponUnida(bool unida);
    void borra();

    /// What the axes measure, with their units; they stand beside the axes, in the table of data,
    /// and in what screen readers say.
    void ponEjes(const QString &x, const QString &y);
    /// The label that tells about the marked point: read out when the keyboard marks another.
    void ponLectura(QWidget *rotulo) { m_lectura = rotulo; }

    /// What is shown while there are no points.
    void ponTextoVacio(const QString &texto);

    const Encuadre &encuadre() const { return m_encuadre; }

    /// The index of the marked point; -1 when none is.
    int puntoSenalado() const { return m_senalado; }

    /// How many points there are and between which values they lie; that there are none.
    QString resumen() const;
    /// The marked point with its coordinates; empty when none is.
    QString puntoEnPalabras() const;
    /// Opens the points as a table, at the marked one. Does nothing without points.
    void muestraDatos();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// Another point is marked, or none (-1).
    void senalado(int indice);

protected:
    void paintEvent(QPaintEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;
    void mouseMoveEvent(QMouseEvent *suceso) override;
    void mousePressEvent(QMouseEvent *suceso) override;
    void mouseReleaseEvent(QMouseEvent *suceso) override;
    void mouseDoubleClickEvent(QMouseEvent *suceso) override;
    void wheelEvent(QWheelEvent *suceso) override;
    void leaveEvent(QEvent *suceso) override;
    void keyPressEvent(QKeyEvent *suceso) override;
    void changeEvent(QEvent *suceso) override;
    void contextMenuEvent(QContextMenuEvent *suceso) override;

private:
    void coloca();
    void amplia(qreal factor);
    void muestraTodo();
    void sigue(QPointF pixel);
    void quitaReglas();
    void senala(int indice);
    void colocaPunto();
    QList<QStringList> filasDeDatos() const;
    void eligePunto(int indice);
    int puntoCercano(qreal x) const;
    void pintaSeries(PintorDeGrafica &dibujo) const;
    void pintaFuncion(PintorDeGrafica &dibujo) const;

    Encuadre m_encuadre;
    QList<QPointF> m_puntos;
    QList<SerieDeGrafica> m_series; ///< where there are several: the points of all are m_puntos
    QString m_textoVacio;
    QString m_nombreX = QStringLiteral("x");
    QString m_nombreY = QStringLiteral("y");
    QPointer<QWidget> m_lectura;
    QPointer<DatosDeGrafica> m_datos; ///< open, of the points that are shown
    qreal m_tramoDesde = 0;
    qreal m_tramoHasta = 0;
    QPointF m_rectaDesde, m_rectaHasta;
    TrazoDeGrafica m_trazo;
    QPointF m_agarre;
    int m_senalado = -1;

    EjeDeGrafica *m_ejeX, *m_ejeY;
    QWidget *m_punto;
    ReglasDeGrafica m_reglas;
};
