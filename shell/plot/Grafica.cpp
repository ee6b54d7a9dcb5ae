// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/Grafica.h"

#include "shell/access/Anuncio.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/plot/AccesoDeGrafica.h"
#include "shell/plot/DatosDeGrafica.h"
#include "shell/plot/EjeDeGrafica.h"
#include "shell/plot/PintorDeGrafica.h"
#include "shell/steps/TintasDePaso.h"

#include <QApplication>
#include <QClipboard>
#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qreal PasoDeZoom = 1.25;
constexpr int LadoDelPunto = 11;

/// Marks the chosen point by a ring.
class Anillo : public QWidget
{
public:
    using QWidget::QWidget;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setPen(QPen(Aspecto::error(), 2));
        pintor.drawEllipse(QRectF(rect()).adjusted(1.5, 1.5, -1.5, -1.5));
    }
};

} // namespace

Grafica::Grafica(QWidget *padre)
    : QWidget(padre),
      m_ejeX(new EjeDeGrafica(m_encuadre, Qt::Horizontal, this)),
      m_ejeY(new EjeDeGrafica(m_encuadre, Qt::Vertical, this)),
      m_punto(new Anillo(this)),
      m_reglas(m_encuadre, this)
{
    m_ejeX->setObjectName(u"EjeX"_s);
    m_ejeY->setObjectName(u"EjeY"_s);
    m_punto->setObjectName(u"PuntoFunción"_s);
    for (QWidget *adorno :
         {static_cast<QWidget *>(m_ejeX), static_cast<QWidget *>(m_ejeY), m_punto}) {
        adorno->setAttribute(Qt::WA_TransparentForMouseEvents);
        adorno->hide();
    }
    instalaAccesoDeGrafica();
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_punto->resize(LadoDelPunto, LadoDelPunto);
}

void Grafica::ponPuntos(const QList<QPointF> &puntos, const QRectF &limites)
{
    m_puntos = puntos;
    m_series.clear();
    m_tramoDesde = m_tramoHasta = 0;
    m_rectaDesde = m_rectaHasta = {};
    m_trazo.periodo = 0;
    if (m_datos)
        m_datos->close();
    m_encuadre.ponLimites(limites);
    m_ejeX->setVisible(!puntos.isEmpty());
    m_ejeY->setVisible(!puntos.isEmpty());
    quitaReglas();
    coloca();
}

void Grafica::ponSeries(const QList<SerieDeGrafica> &series, const QRectF &limites)
{
    QList<QPointF> todos;
    for (const SerieDeGrafica &serie : series)
        todos << serie.puntos;
    std::stable_sort(todos.begin(), todos.end(),
                     [](QPointF a, QPointF b) { return a.x() < b.x(); });
    ponPuntos(todos, limites);
    m_series = series;
}

void Grafica::ponTramo(qreal desde, qreal hasta)
{
    m_tramoDesde = desde;
    m_tramoHasta = hasta;
    update();
}

void Grafica::ponRecta(QPointF desde, QPointF hasta)
{
    m_rectaDesde = desde;
    m_rectaHasta = hasta;
    update();
}

void Grafica::ponPeriodo(qreal inicio, qreal longitud)
{
    m_trazo.inicio = inicio;
    m_trazo.periodo = longitud;
    update();
}

void Grafica::ponUnida(bool unida)
{
    m_trazo.unido = unida;
    update();
}

void Grafica::borra()
{
    ponPuntos({}, {});
}

void Grafica::ponTextoVacio(const QString &texto)
{
    m_textoVacio = texto;
    update();
}

QSize Grafica::sizeHint() const
{
    return minimumSizeHint() * 2;
}

QSize Grafica::minimumSizeHint() const
{
    const int linea = fontMetrics().height();
    return {linea * 18, linea * 9};
}

/// Gives axes and plot their places: the axes are as wide as their largest number needs.
void Grafica::coloca()
{
    const int linea = fontMetrics().height();
    const int alto =
        linea + EjeDeGrafica::Muesca + (m_ejeX->titulo().isEmpty() ? Aspecto::Espacio : linea + 2);
    const int cima = m_ejeY->titulo().isEmpty() ? linea : linea * 3 / 2;
    const int anchoDeNumero = std::max(
        fontMetrics().horizontalAdvance(formatoEntero(std::llround(m_encuadre.visible().top()))),
        fontMetrics().horizontalAdvance(
            formatoEntero(std::llround(m_encuadre.visible().bottom()))));
    const int ancho = anchoDeNumero + EjeDeGrafica::Muesca + Aspecto::Espacio;
    // Half a number stands out beyond either end of an axis.
    QRect lienzo = rect().adjusted(ancho, cima, -fontMetrics().horizontalAdvance(u"000"_s), -alto);
    lienzo.setSize(lienzo.size().expandedTo({1, 1}));
    m_encuadre.ponLienzo(lienzo);
    m_ejeX->setGeometry(0, lienzo.bottom() + 1, width(), alto);
    m_ejeY->setGeometry(
        0, 0, std::max(ancho, fontMetrics().horizontalAdvance(m_ejeY->titulo()) + 2), height());
    m_ejeX->update();
    m_ejeY->update();
    colocaPunto();
    update();
}

void Grafica::amplia(qreal factor)
{
    m_encuadre.amplia(factor, m_encuadre.lienzo().center());
    m_reglas.oculta();
    coloca();
}

void Grafica::muestraTodo()
{
    m_encuadre.muestraTodo();
    m_reglas.oculta();
    coloca();
}

void Grafica::sigue(QPointF pixel)
{
    if (m_puntos.isEmpty() || !m_encuadre.lienzo().contains(pixel)) {
        quitaReglas();
        return;
    }
    m_reglas.sigue(pixel);
    senala(puntoCercano(m_encuadre.aMundo(pixel).x()));
}

void Grafica::quitaReglas()
{
    m_reglas.oculta();
    senala(-1);
}

void Grafica::senala(int indice)
{
    if (indice != m_senalado) {
        m_senalado = indice;
        Q_EMIT senalado(indice);
    }
    colocaPunto();
}

void Grafica::colocaPunto()
{
    if (m_senalado < 0) {
        m_punto->hide();
        return;
    }
    const QPoint centro = m_encuadre.aPixel(m_puntos.at(m_senalado)).toPoint();
    m_punto->move(centro - QPoint(LadoDelPunto / 2, LadoDelPunto / 2));
    m_punto->setVisible(m_encuadre.lienzo().adjusted(-1, -1, 1, 1).contains(centro));
}

/// Marks a point that the keyboard has chosen, and pans just as far as it needs to be seen.
void Grafica::eligePunto(int indice)
{
    m_reglas.oculta();
    senala(indice);
    const QPointF punto = m_encuadre.aPixel(m_puntos.at(m_senalado));
    const QRectF &l = m_encuadre.lienzo();
    const QPointF cerca(std::clamp(punto.x(), l.left(), l.right()),
                        std::clamp(punto.y(), l.top(), l.bottom()));
    if (cerca != punto) {
        m_encuadre.desplaza(cerca - punto);
        coloca();
    }
    anuncia(m_lectura ? m_lectura.data() : this);
}

/// The point whose x is nearest; the points stand by rising x.
int Grafica::puntoCercano(qreal x) const
{
    const auto menor = [](QPointF punto, qreal valor) { return punto.x() < valor; };
    const auto siguiente = std::lower_bound(m_puntos.cbegin(), m_puntos.cend(), x, menor);
    if (siguiente == m_puntos.cbegin())
        return 0;
    const auto anterior = siguiente - 1;
    const bool esAnterior = siguiente == m_puntos.cend() || x - anterior->x() <= siguiente->x() - x;
    return static_cast<int>((esAnterior ? anterior : siguiente) - m_puntos.cbegin());
}

void Grafica::paintEvent(QPaintEvent *)
{
    QPainter pintor(this);
    if (m_puntos.isEmpty()) {
        pintor.setPen(Aspecto::atenuado());
        pintor.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_textoVacio);
        return;
    }
    PintorDeGrafica dibujo(m_encuadre, palette(), pintor);
    dibujo.fondo();
    dibujo.tramo(m_tramoDesde, m_tramoHasta);
    dibujo.rejilla(m_ejeX->marcas(), m_ejeY->marcas());
    if (!m_series.isEmpty())
        pintaSeries(dibujo);
    else
        pintaFuncion(dibujo);
    if (hasFocus())
        dibujo.marcoDelFoco();
}

void Grafica::pintaSeries(PintorDeGrafica &dibujo) const
{
    const TintasDePaso tintas = TintasDePaso::dePantalla();
    QList<std::pair<QString, QColor>> leyenda;
    for (const SerieDeGrafica &serie : m_series) {
        const QColor color = tintas.de(Tono::serie(static_cast<int>(leyenda.size())));
        dibujo.funcion(serie.puntos, color, m_trazo);
        dibujo.recta(serie.rectaDesde, serie.rectaHasta, color);
        leyenda.append({serie.nombre, color});
    }
    dibujo.leyenda(leyenda);
}

void Grafica::pintaFuncion(PintorDeGrafica &dibujo) const
{
    // One point beyond either edge, so that the lines that lead out of the picture are drawn.
    const QRectF &visible = m_encuadre.visible();
    const int desde = std::max(0, puntoCercano(visible.left()) - 1);
    const int hasta = puntoCercano(visible.right()) + 2;
    dibujo.funcion(m_puntos.mid(desde, hasta - desde), Aspecto::acento(), m_trazo);
    dibujo.recta(m_rectaDesde, m_rectaHasta, Aspecto::error());
}

void Grafica::resizeEvent(QResizeEvent *)
{
    quitaReglas();
    coloca();
}

void Grafica::mouseMoveEvent(QMouseEvent *suceso)
{
    if (suceso->buttons() & Qt::LeftButton && !m_encuadre.todoVisible()) {
        m_encuadre.desplaza(suceso->position() - m_agarre);
        m_agarre = suceso->position();
        coloca();
    }
    sigue(suceso->position());
}

void Grafica::mousePressEvent(QMouseEvent *suceso)
{
    if (suceso->button() != Qt::LeftButton)
        return;
    m_agarre = suceso->position();
    if (!m_encuadre.todoVisible())
        setCursor(Qt::ClosedHandCursor);
}

void Grafica::mouseReleaseEvent(QMouseEvent *)
{
    unsetCursor();
}

void Grafica::mouseDoubleClickEvent(QMouseEvent *suceso)
{
    muestraTodo();
    sigue(suceso->position());
}

void Grafica::wheelEvent(QWheelEvent *suceso)
{
    if (m_puntos.isEmpty())
        return;
    m_encuadre.amplia(std::pow(PasoDeZoom, suceso->angleDelta().y() / 120.0), suceso->position());
    coloca();
    sigue(suceso->position());
    suceso->accept();
}

void Grafica::leaveEvent(QEvent *)
{
    quitaReglas();
}

void Grafica::keyPressEvent(QKeyEvent *suceso)
{
    const int ultimo = static_cast<int>(m_puntos.size()) - 1;
    switch (ultimo < 0 ? 0 : suceso->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        muestraDatos();
        break;
    case Qt::Key_Plus:
        amplia(PasoDeZoom);
        break;
    case Qt::Key_Minus:
        amplia(1 / PasoDeZoom);
        break;
    case Qt::Key_Home:
        muestraTodo();
        break;
    case Qt::Key_Left:
        eligePunto(std::max(0, m_senalado - 1));
        break;
    case Qt::Key_Right:
        eligePunto(std::min(ultimo, m_senalado + 1));
        break;
    default:
        QWidget::keyPressEvent(suceso);
    }
}

void Grafica::changeEvent(QEvent *suceso)
{
    QWidget::changeEvent(suceso);
    if (suceso->type() == QEvent::FontChange || suceso->type() == QEvent::PaletteChange)
        coloca();
}

void Grafica::contextMenuEvent(QContextMenuEvent *suceso)
{
    auto *menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    conecta(menu->addAction(Traduce(u"&Copiar la gráfica"_s)), &QAction::triggered, this,
            [this] { QApplication::clipboard()->setPixmap(grab()); });
    conecta(menu->addAction(Traduce(u"&Ver todo"_s)), &QAction::triggered, this,
            &Grafica::muestraTodo);
    conecta(menu->addAction(Traduce(u"Ver los &datos"_s)), &QAction::triggered, this,
            &Grafica::muestraDatos);
    menu->setEnabled(!m_puntos.isEmpty());
    menu->popup(suceso->globalPos());
}
