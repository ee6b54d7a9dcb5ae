#include "shell/Grafica.h"

#include "shell/Aspecto.h"
#include "shell/EjeDeGrafica.h"
#include "shell/Formatos.h"
#include "shell/ModGlobal.h"

#include <QApplication>
#include <QClipboard>
#include <QLabel>
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

template <typename Control>
Control *adorno(Control *control, const QString &nombre)
{
    control->setObjectName(nombre);
    control->setAttribute(Qt::WA_TransparentForMouseEvents);
    control->hide();
    return control;
}

QFrame *regla(QWidget *padre, QFrame::Shape forma, const QString &nombre)
{
    auto *linea = adorno(new QFrame(padre), nombre);
    linea->setFrameStyle(forma | QFrame::Plain);
    return linea;
}

QLabel *rotulo(QWidget *padre, const QString &nombre)
{
    auto *label = adorno(new QLabel(padre), nombre);
    label->setMargin(2);
    label->setAutoFillBackground(true);
    label->setBackgroundRole(QPalette::ToolTipBase);
    label->setForegroundRole(QPalette::ToolTipText);
    label->setFrameStyle(QFrame::Box | QFrame::Plain);
    return label;
}

} // namespace

Grafica::Grafica(QWidget *padre)
    : QWidget(padre),
      m_ejeX(adorno(new EjeDeGrafica(m_encuadre, Qt::Horizontal, this), u"EjeX"_s)),
      m_ejeY(adorno(new EjeDeGrafica(m_encuadre, Qt::Vertical, this), u"EjeY"_s)),
      m_punto(adorno(new Anillo(this), u"PuntoFunción"_s)),
      m_reglaHorizontal(regla(this, QFrame::HLine, u"ReglaHorizontal"_s)),
      m_reglaVertical(regla(this, QFrame::VLine, u"ReglaVertical"_s)),
      m_labelX(rotulo(this, u"LabelX"_s)),
      m_labelY(rotulo(this, u"LabelY"_s))
{
    setMouseTracking(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_punto->resize(LadoDelPunto, LadoDelPunto);
}

void Grafica::ponPuntos(const QList<QPointF> &puntos, const QRectF &limites)
{
    m_puntos = puntos;
    m_tramoDesde = m_tramoHasta = 0;
    m_rectaDesde = m_rectaHasta = {};
    m_encuadre.ponLimites(limites);
    m_ejeX->setVisible(!puntos.isEmpty());
    m_ejeY->setVisible(!puntos.isEmpty());
    quitaReglas();
    coloca();
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
    const int alto = fontMetrics().height() + EjeDeGrafica::Muesca + 4;
    const int anchoDeNumero = std::max(
        fontMetrics().horizontalAdvance(formatoEntero(std::llround(m_encuadre.visible().top()))),
        fontMetrics().horizontalAdvance(
            formatoEntero(std::llround(m_encuadre.visible().bottom()))));
    const int ancho = anchoDeNumero + EjeDeGrafica::Muesca + Aspecto::Espacio;
    // Half a number stands out beyond either end of an axis.
    QRect lienzo = rect().adjusted(ancho, fontMetrics().height(),
                                   -fontMetrics().horizontalAdvance(u"000"_s), -alto);
    lienzo.setSize(lienzo.size().expandedTo({1, 1}));
    m_encuadre.ponLienzo(lienzo);
    m_ejeX->setGeometry(0, lienzo.bottom() + 1, width(), alto);
    m_ejeY->setGeometry(0, 0, ancho, height());
    m_ejeX->update();
    m_ejeY->update();
    colocaPunto();
    update();
}

void Grafica::amplia(qreal factor)
{
    m_encuadre.amplia(factor, m_encuadre.lienzo().center());
    ocultaReglas();
    coloca();
}

void Grafica::muestraTodo()
{
    m_encuadre.muestraTodo();
    ocultaReglas();
    coloca();
}

void Grafica::sigue(QPointF pixel)
{
    const QRectF &lienzo = m_encuadre.lienzo();
    if (m_puntos.isEmpty() || !lienzo.contains(pixel)) {
        quitaReglas();
        return;
    }
    const QPoint p = pixel.toPoint();
    const QRect l = lienzo.toRect();
    m_reglaHorizontal->setGeometry(l.left(), p.y(), l.width(), 1);
    m_reglaVertical->setGeometry(p.x(), l.top(), 1, l.height());
    const QPointF mundo = m_encuadre.aMundo(pixel);
    m_labelX->setText(formatoEntero(std::llround(mundo.x())));
    m_labelY->setText(formatoEntero(std::llround(mundo.y())));
    m_labelX->adjustSize();
    m_labelY->adjustSize();
    m_labelX->move(std::min(p.x() - m_labelX->width() / 2, width() - m_labelX->width()),
                   l.bottom() + EjeDeGrafica::Muesca);
    m_labelY->move(std::max(0, l.left() - EjeDeGrafica::Muesca - m_labelY->width()),
                   p.y() - m_labelY->height() / 2);
    for (QWidget *control :
         {static_cast<QWidget *>(m_reglaHorizontal), static_cast<QWidget *>(m_reglaVertical),
          static_cast<QWidget *>(m_labelX), static_cast<QWidget *>(m_labelY)})
        control->show();
    senala(puntoCercano(mundo.x()));
}

void Grafica::ocultaReglas()
{
    m_reglaHorizontal->hide();
    m_reglaVertical->hide();
    m_labelX->hide();
    m_labelY->hide();
}

void Grafica::quitaReglas()
{
    ocultaReglas();
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

/// Pans just as far as the marked point needs to be seen.
void Grafica::muestraPunto()
{
    const QPointF punto = m_encuadre.aPixel(m_puntos.at(m_senalado));
    const QRectF &l = m_encuadre.lienzo();
    const QPointF cerca(std::clamp(punto.x(), l.left(), l.right()),
                        std::clamp(punto.y(), l.top(), l.bottom()));
    if (cerca == punto)
        return;
    m_encuadre.desplaza(cerca - punto);
    coloca();
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
    pintor.setRenderHint(QPainter::Antialiasing);
    if (m_puntos.isEmpty()) {
        pintor.setPen(Aspecto::atenuado());
        pintor.drawText(rect(), Qt::AlignCenter | Qt::TextWordWrap, m_textoVacio);
        return;
    }
    const QRectF &lienzo = m_encuadre.lienzo();
    pintor.fillRect(lienzo, palette().base());
    pintor.setClipRect(lienzo.adjusted(-4, -4, 4, 4));
    if (m_tramoHasta > m_tramoDesde) {
        QColor fondo = Aspecto::acento();
        fondo.setAlpha(34);
        const QRectF tramo(m_encuadre.aPixel({m_tramoDesde, 0}),
                           m_encuadre.aPixel({m_tramoHasta, 0}));
        pintor.fillRect(
            QRectF(QPointF(tramo.left(), lienzo.top()), QPointF(tramo.right(), lienzo.bottom())) &
                lienzo,
            fondo);
    }
    pintaRejilla(pintor);
    pintaFuncion(pintor);
    pintaRecta(pintor);
    if (hasFocus()) {
        pintor.setClipping(false);
        pintor.setPen(QPen(palette().highlight().color(), 1));
        pintor.setBrush(Qt::NoBrush);
        pintor.drawRect(lienzo);
    }
}

void Grafica::pintaRejilla(QPainter &pintor) const
{
    QColor raya = palette().color(QPalette::Mid);
    raya.setAlpha(120);
    pintor.setPen(QPen(raya, 1));
    const QRectF &lienzo = m_encuadre.lienzo();
    for (const qint64 marca : m_ejeX->marcas()) {
        const qreal x = m_encuadre.aPixel({static_cast<qreal>(marca), 0}).x();
        pintor.drawLine(QPointF(x, lienzo.top()), QPointF(x, lienzo.bottom()));
    }
    for (const qint64 marca : m_ejeY->marcas()) {
        const qreal y = m_encuadre.aPixel({0, static_cast<qreal>(marca)}).y();
        pintor.drawLine(QPointF(lienzo.left(), y), QPointF(lienzo.right(), y));
    }
}

void Grafica::pintaFuncion(QPainter &pintor) const
{
    // One point beyond either edge, so that the lines that lead out of the picture are drawn.
    const QRectF &visible = m_encuadre.visible();
    const int desde = std::max(0, puntoCercano(visible.left()) - 1);
    const int hasta =
        std::min(static_cast<int>(m_puntos.size()) - 1, puntoCercano(visible.right()) + 1);
    QPolygonF linea;
    for (int i = desde; i <= hasta; ++i)
        linea << m_encuadre.aPixel(m_puntos.at(i));
    QColor tenue = Aspecto::acento();
    tenue.setAlpha(110);
    pintor.setPen(QPen(tenue, 1));
    pintor.setBrush(Qt::NoBrush);
    pintor.drawPolyline(linea);
    const qreal paso = linea.size() > 1 ? (linea.last().x() - linea.first().x()) /
                                              static_cast<qreal>(linea.size() - 1)
                                        : 8.0;
    const qreal radio = std::clamp(paso * 0.4, 1.8, 4.0);
    pintor.setPen(Qt::NoPen);
    pintor.setBrush(Aspecto::acento());
    for (const QPointF &punto : std::as_const(linea))
        pintor.drawEllipse(punto, radio, radio);
}

void Grafica::pintaRecta(QPainter &pintor) const
{
    if (m_rectaDesde == m_rectaHasta)
        return;
    pintor.setPen(QPen(Aspecto::error(), 2, Qt::DashLine));
    pintor.drawLine(m_encuadre.aPixel(m_rectaDesde), m_encuadre.aPixel(m_rectaHasta));
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
        senala(std::max(0, m_senalado - 1));
        muestraPunto();
        break;
    case Qt::Key_Right:
        senala(std::min(ultimo, m_senalado + 1));
        muestraPunto();
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
    QMenu menu(this);
    menu.addAction(Traduce(u"&Copiar la gráfica"_s), this,
                   [this] { QApplication::clipboard()->setPixmap(grab()); });
    menu.addAction(Traduce(u"&Ver todo"_s), this, &Grafica::muestraTodo);
    menu.setEnabled(!m_puntos.isEmpty());
    menu.exec(suceso->globalPos());
}
