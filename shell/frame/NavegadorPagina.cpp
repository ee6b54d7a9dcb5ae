// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/NavegadorPagina.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QScrollBar>
#include <QTextBlock>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where a figure keeps the width that its page gives it.
constexpr int AnchoNatural = QTextFormat::UserProperty;

/// The figures that have a size, and the place of each in the text.
QList<std::pair<int, QTextImageFormat>> figurasDe(const QTextDocument &pagina)
{
    QList<std::pair<int, QTextImageFormat>> figuras;
    for (QTextBlock bloque = pagina.begin(); bloque.isValid(); bloque = bloque.next()) {
        for (auto trozo = bloque.begin(); !trozo.atEnd(); ++trozo) {
            const QTextImageFormat figura = trozo.fragment().charFormat().toImageFormat();
            if (figura.isValid() && figura.width() > 0)
                figuras.emplace_back(trozo.fragment().position(), figura);
        }
    }
    return figuras;
}

} // namespace

NavegadorPagina::NavegadorPagina(QWidget *padre) : QTextBrowser(padre)
{
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(2 * Aspecto::Margen);
    connect(this, &QTextBrowser::anchorClicked, this, &NavegadorPagina::sigueEnlace);
    connect(this, &QTextBrowser::sourceChanged, this, [this](const QUrl &direccion) {
        ajustaFiguras();
        // What stands above the place has become lower.
        if (direccion.hasFragment())
            scrollToAnchor(direccion.fragment());
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
    document()->setDefaultStyleSheet(u"a { color: %1; } h1, h2, h3 { color: %2; }"_s.arg(
        palette().link().color().name(), Aspecto::acento().name()));
}

void NavegadorPagina::ajustaFiguras()
{
    const qreal hueco = viewport()->width() - 2 * document()->documentMargin() - 1;
    const auto figuras = figurasDe(*document());
    QTextCursor cursor(document());
    cursor.beginEditBlock(); // one layout for all of them
    for (const auto &[lugar, formato] : figuras) {
        QTextImageFormat figura = formato;
        if (!figura.hasProperty(AnchoNatural))
            figura.setProperty(AnchoNatural, figura.width());
        const qreal ancho = std::min(figura.doubleProperty(AnchoNatural), hueco);
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
    const bool dibujo = tipo == QTextDocument::ImageResource && direccion.isLocalFile() &&
                        direccion.path().endsWith(u".svg"_s, Qt::CaseInsensitive);
    if (!dibujo)
        return QTextBrowser::loadResource(tipo, nombre);
    const QPixmap imagen = ImagenDeArchivo(direccion.toLocalFile(), devicePixelRatioF());
    return imagen.isNull() ? QVariant() : QVariant(imagen);
}

void NavegadorPagina::sigueEnlace(const QUrl &enlace)
{
    const QUrl destino = source().resolved(enlace);
    if (destino.isLocalFile())
        setSource(destino);
    else
        interlocutor().abre(destino.toString());
}

void NavegadorPagina::showEvent(QShowEvent *suceso)
{
    QTextBrowser::showEvent(suceso);
    if (m_pendiente)
        muestra();
}

void NavegadorPagina::resizeEvent(QResizeEvent *suceso)
{
    QTextBrowser::resizeEvent(suceso);
    ajustaFiguras();
}

void NavegadorPagina::changeEvent(QEvent *suceso)
{
    QTextBrowser::changeEvent(suceso);
    if (suceso->type() != QEvent::PaletteChange || m_pendiente || source().isEmpty())
        return;
    const int posicion = verticalScrollBar()->value();
    ponColores();
    reload();
    verticalScrollBar()->setValue(posicion);
}
