// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/page/NavegadorPagina.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/page/EnlaceDePagina.h"
#include "shell/core/page/TrozosDePagina.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QAbstractTextDocumentLayout>
#include <QApplication>
#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBlock>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

/// A figure in a page: what stands before its width, its name, width and height.
const QRegularExpression &formaDeFigura()
{
    static const QRegularExpression forma(
        u"(<img src=\"([^\"]*)\") width=\"(\\d{1,4})\" height=\"(\\d{1,4})\""_s);
    return forma;
}

/// Running text is read longer than a label: it is set larger than that.
constexpr qreal LetraDeLectura = 1.15;
constexpr qreal PasoDeLetra = 1.1;
constexpr int PasosComoMucho = 12;

constexpr auto EsquemaDePliegue = u"pliegue";

template <typename Haz>
void paraCadaTrozo(const QTextDocument &pagina, Haz haz)
{
    for (QTextBlock bloque = pagina.begin(); bloque.isValid(); bloque = bloque.next()) {
        for (auto trozo = bloque.begin(); !trozo.atEnd(); ++trozo)
            haz(trozo.fragment());
    }
}

/// The figures that have a size, and the place of each in the text.
QList<std::pair<int, QTextImageFormat>> figurasDe(const QTextDocument &pagina)
{
    QList<std::pair<int, QTextImageFormat>> figuras;
    paraCadaTrozo(pagina, [&](const QTextFragment &trozo) {
        const QTextImageFormat figura = trozo.charFormat().toImageFormat();
        if (figura.isValid() && figura.width() > 0)
            figuras.emplace_back(trozo.position(), figura);
    });
    return figuras;
}

QString hojaDeEstilo(const QColor &enlaces, const QColor &titulos)
{
    return u"a { color: %1; } h1, h2, h3 { color: %2; }"_s.arg(enlaces.name(), titulos.name());
}

bool esDibujo(const QUrl &direccion)
{
    return direccion.isLocalFile() && direccion.path().endsWith(u".svg"_s, Qt::CaseInsensitive);
}

} // namespace

NavegadorPagina::NavegadorPagina(QWidget *padre) : QTextBrowser(padre)
{
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    // What stands beside the column is paper as well.
    setBackgroundRole(QPalette::Base);
    setAutoFillBackground(true);
    document()->setDocumentMargin(2 * Aspecto::Margen);
    ponLetra();
    connect(this, &QTextBrowser::anchorClicked, this, &NavegadorPagina::sigueEnlace);
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl &direccion) {
        m_cargando = false;
        m_apartados.clear();
        ajustaFiguras();
        // What stands above the place has become lower.
        if (direccion.hasFragment())
            scrollToAnchor(direccion.fragment());
    });
    connect(document()->documentLayout(), &QAbstractTextDocumentLayout::documentSizeChanged, this,
            [this](const QSizeF &tamano) {
                const int pide = static_cast<int>(std::ceil(tamano.width()));
                // Figures take what there is, once all is read.
                if (m_cargando || pide <= std::max(m_anchoQuePide, viewport()->width()))
                    return;
                m_anchoQuePide = pide;
                ajustaColumna();
            });
}

void NavegadorPagina::navega(const QString &ruta)
{
    m_ruta = ruta;
    m_pendiente = true;
    if (isVisible())
        muestra();
}

void NavegadorPagina::muestra()
{
    m_pendiente = false;
    ponColores();
    const QString archivo = QDir::current().absoluteFilePath(rutaExistente(m_ruta));
    if (QFileInfo(archivo).isFile()) {
        setSource(QUrl::fromLocalFile(archivo));
        return;
    }
    setPlainText(Traduce(u"No se encuentra la página de introducción."_s) + u"\n\n"_s +
                 QDir::toNativeSeparators(archivo));
}

void NavegadorPagina::ponColores()
{
    document()->setDefaultStyleSheet(hojaDeEstilo(palette().link().color(), Aspecto::acento()));
}

void NavegadorPagina::ponLetra()
{
    QFont letra = QApplication::font();
    letra.setPointSizeF(letra.pointSizeF() * LetraDeLectura *
                        std::pow(PasoDeLetra, m_pasosDeLetra));
    setFont(letra);
    m_anchoQuePide = 0;
    ajustaColumna();
}

void NavegadorPagina::ponPasosDeLetra(int pasos)
{
    const int primero = cursorForPosition({}).position();
    m_pasosDeLetra = std::clamp(pasos, -PasosComoMucho / 2, PasosComoMucho);
    ponLetra();
    // The line that was the first one stays the first one.
    QTextCursor cursor(document());
    cursor.setPosition(primero);
    verticalScrollBar()->setValue(verticalScrollBar()->value() + cursorRect(cursor).top());
}

int NavegadorPagina::anchoDeColumna() const
{
    static const QString muestra =
        u"El algoritmo más antiguo que sigue en uso: con dividir y quedarse con el resto "
        "basta para hallar el máximo común divisor de dos números de mil cifras"_s;
    const qreal texto = QFontMetricsF(font()).horizontalAdvance(muestra) *
                        (qreal(CaracteresPorLinea) / qreal(muestra.size()));
    return static_cast<int>(std::ceil(texto + 2 * document()->documentMargin()));
}

void NavegadorPagina::ajustaColumna()
{
    const int sitio = width() - verticalScrollBar()->sizeHint().width();
    const int borde = std::max(0, (sitio - std::max(anchoDeColumna(), m_anchoQuePide)) / 2);
    if (viewportMargins().left() != borde)
        setViewportMargins(borde, 0, borde, 0);
}

qreal NavegadorPagina::huecoParaFiguras() const
{
    return viewport()->width() - 2 * document()->documentMargin() - 1;
}

/// The page with its figures as wide as there is room: changed afterwards, they would have it laid
/// out once more.
QString NavegadorPagina::conFigurasQueCaben(const QString &html)
{
    QString ajustada;
    qsizetype leido = 0;
    m_anchos.clear();
    for (const QRegularExpressionMatch &figura : formaDeFigura().globalMatch(html)) {
        const qreal ancho = figura.captured(3).toDouble(), alto = figura.captured(4).toDouble();
        m_anchos.insert(figura.captured(2), ancho);
        const qreal cabe = std::min(ancho, huecoParaFiguras());
        if (cabe <= 0 || cabe == ancho)
            continue;
        ajustada += QStringView(html).mid(leido, figura.capturedStart() - leido);
        ajustada += u"%1 width=\"%2\" height=\"%3\""_s.arg(
            figura.captured(1), QString::number(cabe), QString::number(alto * cabe / ancho));
        leido = figura.capturedEnd();
    }
    return ajustada + html.mid(leido);
}

void NavegadorPagina::ajustaFiguras()
{
    const qreal hueco = huecoParaFiguras();
    const auto figuras = figurasDe(*document());
    QTextCursor cursor(document());
    cursor.beginEditBlock(); // one layout for all of them
    for (const auto &[lugar, formato] : figuras) {
        QTextImageFormat figura = formato;
        const qreal ancho = std::min(m_anchos.value(figura.name(), figura.width()), hueco);
        if (ancho <= 0 || ancho == figura.width())
            continue;
        figura.setHeight(figura.height() * ancho / figura.width());
        figura.setWidth(ancho);
        cursor.setPosition(lugar);
        cursor.setPosition(lugar + 1, QTextCursor::KeepAnchor);
        cursor.setCharFormat(figura);
    }
    cursor.endEditBlock();
}

QVariant NavegadorPagina::loadResource(int tipo, const QUrl &nombre)
{
    const QUrl direccion = source().resolved(nombre);
    if (tipo == QTextDocument::ImageResource && esDibujo(direccion)) {
        const QPixmap imagen =
            ImagenDeArchivo(direccion.toLocalFile(), devicePixelRatioF(), Aspecto::esOscuro());
        return imagen.isNull() ? QVariant() : QVariant(imagen);
    }
    QVariant leido = QTextBrowser::loadResource(tipo, nombre);
    if (tipo == QTextDocument::StyleSheetResource)
        return estiloDelPrograma(QString::fromUtf8(leido.toByteArray()));
    if (tipo != QTextDocument::HtmlResource || leido.isNull())
        return leido;
    m_pagina = PaginaPlegable(QString::fromUtf8(leido.toByteArray()));
    m_buscado.clear();
    m_cargando = true;
    const QUrl pagina = nombre.adjusted(QUrl::RemoveFragment);
    if (std::exchange(m_leida, pagina.path()) != pagina.path())
        m_anchoQuePide = 0;
    QSet<int> &abiertos = m_abiertos[pagina.path()];
    // A link to a place leads there even where it is folded.
    for (const int pliegue : m_pagina.alrededor(m_pagina.pliegueDe(nombre.fragment())))
        abiertos << pliegue;
    return conFigurasQueCaben(m_pagina.muestra(abiertos));
}

void NavegadorPagina::recarga()
{
    const int posicion = verticalScrollBar()->value();
    const QString buscado = m_buscado;
    reload();
    m_buscado = buscado;
    verticalScrollBar()->setValue(posicion);
}

void NavegadorPagina::enfocaPliegue(int pliegue)
{
    const int posicion = verticalScrollBar()->value();
    const QString direccion = u"%1:%2"_s.arg(EsquemaDePliegue).arg(pliegue);
    QTextCursor cursor(document());
    paraCadaTrozo(*document(), [&](const QTextFragment &trozo) {
        if (trozo.charFormat().anchorHref() != direccion)
            return;
        if (!cursor.hasSelection())
            cursor.setPosition(trozo.position());
        cursor.setPosition(trozo.position() + trozo.length(), QTextCursor::KeepAnchor);
    });
    setTextCursor(cursor);
    verticalScrollBar()->setValue(posicion);
}

void NavegadorPagina::sigueEnlace(const QUrl &enlace)
{
    const QUrl destino = source().resolved(enlace);
    if (enlace.scheme() == EsquemaDePliegue)
        pliega(enlace.path().toInt());
    else if (esEnlaceDelPrograma(enlace))
        Q_EMIT enlacePulsado(enlace);
    else if (destino.isLocalFile()) {
        setSource(destino);
        // Within one page nothing is read again.
        if (destino.hasFragment()) {
            despliega(m_pagina.pliegueDe(destino.fragment()));
            scrollToAnchor(destino.fragment());
        }
    } else
        interlocutor().abre(destino.toString());
}

int NavegadorPagina::apartadoALaVista() const
{
    if (m_apartados.isEmpty()) {
        QHash<QString, int> lugares;
        const auto anota = [&](const QTextCharFormat &formato, int lugar) {
            for (const QString &nombre : formato.anchorNames())
                lugares.insert(nombre, lugar);
        };
        paraCadaTrozo(*document(), [&](const QTextFragment &trozo) {
            anota(trozo.charFormat(), trozo.position());
        });
        for (QTextBlock bloque = document()->begin(); bloque.isValid(); bloque = bloque.next())
            anota(bloque.charFormat(), bloque.position());
        for (const PaginaPlegable::Apartado &apartado : m_pagina.contenido())
            m_apartados << lugares.value(apartado.lugar, m_apartados.value(m_apartados.size() - 1));
    }
    // A heading that has just come to the top is what the reader went to.
    const int altura = static_cast<int>(document()->documentMargin());
    const int primero = cursorForPosition({viewport()->width() / 2, altura}).position();
    return static_cast<int>(std::upper_bound(m_apartados.begin(), m_apartados.end(), primero) -
                            m_apartados.begin()) -
           1;
}

NavegadorPagina::Lugar NavegadorPagina::lugar() const
{
    return {source(), verticalScrollBar()->value()};
}

void NavegadorPagina::ve(const Lugar &lugar)
{
    if (!lugar.pagina.isEmpty() && lugar.pagina != source())
        setSource(lugar.pagina);
    verticalScrollBar()->setValue(lugar.altura);
}

std::unique_ptr<QTextDocument> NavegadorPagina::paraPapel() const
{
    constexpr qreal finura = 3; // dots of the printer for one of the figure, roughly
    auto papel = std::make_unique<QTextDocument>();
    papel->setBaseUrl(source());
    papel->setDefaultFont(QApplication::font());
    papel->setDefaultStyleSheet(hojaDeEstilo(Qt::black, Qt::black));
    papel->setHtml(m_pagina.muestra(m_abiertos.value(source().path())));
    for (const auto &[lugar, figura] : figurasDe(*papel)) {
        const QUrl direccion = source().resolved(QUrl(figura.name()));
        if (esDibujo(direccion))
            papel->addResource(QTextDocument::ImageResource, direccion,
                               ImagenDeArchivo(direccion.toLocalFile(), finura));
    }
    return papel;
}

bool NavegadorPagina::event(QEvent *suceso)
{
    if (suceso->type() == QEvent::ApplicationFontChange)
        ponLetra();
    return QTextBrowser::event(suceso);
}

void NavegadorPagina::showEvent(QShowEvent *suceso)
{
    QTextBrowser::showEvent(suceso);
    if (m_pendiente)
        muestra();
}

void NavegadorPagina::resizeEvent(QResizeEvent *suceso)
{
    ajustaColumna();
    QTextBrowser::resizeEvent(suceso);
    ajustaFiguras();
}

void NavegadorPagina::changeEvent(QEvent *suceso)
{
    QTextBrowser::changeEvent(suceso);
    if (suceso->type() != QEvent::PaletteChange || m_pendiente || source().isEmpty())
        return;
    ponColores();
    recarga();
}

void NavegadorPagina::wheelEvent(QWheelEvent *suceso)
{
    // The zoom of the base class would be forgotten.
    if (suceso->modifiers() & Qt::ControlModifier)
        suceso->ignore();
    else
        QTextBrowser::wheelEvent(suceso);
}
