// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/page/PaginaDeLeccion.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/page/EnlaceDePagina.h"
#include "shell/look/Aspecto.h"
#include "shell/page/BarraDeBusqueda.h"
#include "shell/page/BarraDePregunta.h"
#include "shell/page/ImpresionDePagina.h"

#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QListWidget>
#include <QScrollBar>
#include <QShortcut>
#include <QSignalBlocker>
#include <QWheelEvent>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString AjusteDeLetra = u"Pagina/Letra"_s;

/// The contents take as much as this many letters of a line.
constexpr int LetrasDelContenido = 32;

} // namespace

PaginaDeLeccion::PaginaDeLeccion(QWidget *padre)
    : QWidget(padre),
      m_navegador(new NavegadorPagina(this)),
      m_contenido(new QListWidget(this)),
      m_busqueda(new BarraDeBusqueda(m_navegador, this)),
      m_pregunta(new BarraDePregunta(this)),
      m_aviso(new QLabel(this))
{
    m_navegador->setObjectName(u"wbIntro"_s);
    m_navegador->setAccessibleName(Traduce(u"Introducción"_s));
    m_navegador->ponPasosDeLetra(Sesión().recuerda(AjusteDeLetra).toInt());
    m_contenido->setObjectName(u"lstContenido"_s);
    m_contenido->setAccessibleName(Traduce(u"Contenido de la página"_s));
    m_contenido->setFrameShape(QFrame::NoFrame);
    m_contenido->setWordWrap(true);
    m_contenido->setSpacing(Aspecto::Espacio / 4);
    m_contenido->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    m_contenido->viewport()->setBackgroundRole(QPalette::Window);
    m_contenido->hide();
    m_aviso->setObjectName(u"lblAvisoDePagina"_s);
    m_aviso->setWordWrap(true);
    m_aviso->setContentsMargins(Aspecto::Margen, Aspecto::Espacio / 2, Aspecto::Margen,
                                Aspecto::Espacio / 2);
    m_aviso->hide();
    auto *fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->setSpacing(0);
    fila->addWidget(m_contenido);
    auto *columna = new QVBoxLayout;
    columna->setSpacing(0);
    columna->addWidget(m_navegador, 1);
    for (QWidget *barra : {static_cast<QWidget *>(m_busqueda), static_cast<QWidget *>(m_pregunta),
                           static_cast<QWidget *>(m_aviso)})
        columna->addWidget(barra);
    fila->addLayout(columna, 1);
    conecta(m_navegador, &NavegadorPagina::enlacePulsado, this, &PaginaDeLeccion::sigueEnlace);
    conecta(m_navegador, &NavegadorPagina::sourceChanged, this, &PaginaDeLeccion::rellenaContenido);
    conecta(m_navegador->verticalScrollBar(), &QScrollBar::valueChanged, this,
            &PaginaDeLeccion::marcaApartado);
    conecta(m_contenido, &QListWidget::itemClicked, this,
            [this] { lstContenido_Click(m_contenido->currentRow()); });
    conecta(m_contenido, &QListWidget::itemActivated, this,
            [this] { lstContenido_Click(m_contenido->currentRow()); });
    // Also from the strip of topics and from the contents.
    auto *busca = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_F), this);
    conecta(busca, &QShortcut::activated, this, [this] { m_busqueda->abre(); });
    conecta(m_pregunta, &BarraDePregunta::cerrada, this, &PaginaDeLeccion::cierraBarras);
}

void PaginaDeLeccion::rellenaContenido()
{
    dice({});
    QStringList titulos;
    for (const PaginaPlegable::Apartado &apartado : m_navegador->pagina().contenido())
        titulos << apartado.titulo;
    const QSignalBlocker callado(m_contenido);
    m_contenido->clear();
    m_contenido->addItems(titulos);
    muestraContenido();
    marcaApartado();
}

void PaginaDeLeccion::muestraContenido()
{
    const int ancho = LetrasDelContenido * fontMetrics().averageCharWidth();
    m_contenido->setFixedWidth(ancho);
    // Before a page is there as well, which would be laid out anew when its contents come.
    const bool algo = m_contenido->count() > 0 || m_navegador->source().isEmpty();
    m_contenido->setVisible(algo && width() >= ancho + m_navegador->anchoDeColumna());
}

void PaginaDeLeccion::marcaApartado()
{
    if (m_contenido->isHidden())
        return;
    const QSignalBlocker callado(m_contenido);
    m_contenido->setCurrentRow(m_navegador->apartadoALaVista());
}

void PaginaDeLeccion::lstContenido_Click(int fila)
{
    const auto &apartados = m_navegador->pagina().contenido();
    if (fila < 0 || fila >= apartados.size())
        return;
    QUrl destino = m_navegador->source();
    destino.setFragment(apartados[fila].lugar);
    m_navegador->setSource(destino);
    m_navegador->setFocus();
}

void PaginaDeLeccion::sigueEnlace(const QUrl &enlace)
{
    const EnlaceDePagina leido = leeEnlace(enlace);
    if (const auto *rota = std::get_if<EnlaceRoto>(&leido))
        dice(rota->frase);
    else if (const auto *una = std::get_if<EnlaceDePregunta>(&leido))
        dice(pregunta(una->lugar));
    else
        dice(m_guia ? m_guia(enlace)
                    : Traduce(u"Este enlace se sigue desde la ventana principal."_s));
}

QString PaginaDeLeccion::pregunta(const QString &lugar)
{
    const auto hallada = m_navegador->pagina().pregunta(lugar);
    if (!hallada)
        return Traduce(u"La página no tiene esa pregunta."_s);
    m_busqueda->hide();
    m_pregunta->pregunta(*hallada);
    return {};
}

void PaginaDeLeccion::dice(const QString &frase)
{
    m_aviso->setText(frase);
    m_aviso->setVisible(!frase.isEmpty());
    m_navegador->setAccessibleDescription(frase);
}

void PaginaDeLeccion::cierraBarras()
{
    for (QWidget *barra : {static_cast<QWidget *>(m_busqueda), static_cast<QWidget *>(m_pregunta)})
        barra->hide();
    m_navegador->setFocus();
}

void PaginaDeLeccion::cambiaLetra(int pasos)
{
    m_navegador->ponPasosDeLetra(pasos);
    Sesión().anota(AjusteDeLetra, m_navegador->pasosDeLetra());
    muestraContenido();
}

PaginaDeLeccion::Orden PaginaDeLeccion::ordenDe(const QKeyEvent &tecla)
{
    const int pasos = m_navegador->pasosDeLetra();
    const bool barras = m_busqueda->isVisible() || m_pregunta->isVisible();
    const bool busca = m_busqueda->isVisible();
    const bool conOtra = tecla.modifiers() & (Qt::ShiftModifier | Qt::AltModifier);
    if (tecla.modifiers() & Qt::ControlModifier) {
        switch (tecla.key()) {
        case Qt::Key_Plus:
        case Qt::Key_Equal:
            return [this, pasos] { cambiaLetra(pasos + 1); };
        case Qt::Key_Minus:
            return [this, pasos] { cambiaLetra(pasos - 1); };
        case Qt::Key_0:
            return [this] { cambiaLetra(0); };
        case Qt::Key_F:
            return conOtra ? Orden() : [this] { m_busqueda->abre(); };
        case Qt::Key_P:
            return conOtra ? Orden() : [this] { m_tareas.lanza(imprimePagina(m_navegador)); };
        default:
            return {};
        }
    }
    if (tecla.key() == Qt::Key_Escape && barras)
        return [this] { cierraBarras(); };
    if (tecla.key() == Qt::Key_F3 && busca)
        return [this, atras = tecla.modifiers() & Qt::ShiftModifier] {
            m_busqueda->avanza(atras ? -1 : 1);
        };
    return {};
}

/// Where a window has the same keys for something else, they are the page's while it has the focus.
bool PaginaDeLeccion::event(QEvent *suceso)
{
    const bool aviso = suceso->type() == QEvent::ShortcutOverride;
    if (!aviso && suceso->type() != QEvent::KeyPress)
        return QWidget::event(suceso);
    const Orden orden = ordenDe(*static_cast<QKeyEvent *>(suceso));
    if (!orden)
        return QWidget::event(suceso);
    suceso->accept();
    if (!aviso)
        evento(this, orden);
    return true;
}

void PaginaDeLeccion::resizeEvent(QResizeEvent *suceso)
{
    QWidget::resizeEvent(suceso);
    muestraContenido();
}

void PaginaDeLeccion::wheelEvent(QWheelEvent *suceso)
{
    const int giro = suceso->angleDelta().y();
    if ((suceso->modifiers() & Qt::ControlModifier) && giro != 0)
        cambiaLetra(m_navegador->pasosDeLetra() + (giro > 0 ? 1 : -1));
    else
        QWidget::wheelEvent(suceso);
}
