#include "shell/NavegadorPagina.h"

#include "shell/Aspecto.h"
#include "shell/Imagenes.h"
#include "shell/Interlocutor.h"
#include "shell/ModGlobal.h"
#include "shell/Rutas.h"

#include <QDir>
#include <QEvent>
#include <QFileInfo>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;

NavegadorPagina::NavegadorPagina(QWidget *padre) : QTextBrowser(padre)
{
    setOpenLinks(false);
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(2 * Aspecto::Margen);
    connect(this, &QTextBrowser::anchorClicked, this, &NavegadorPagina::sigueEnlace);
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
    document()->setDefaultStyleSheet(u"a { color: %1; } h1, h2, h3 { color: %2; }"_s.arg(
        palette().link().color().name(), Aspecto::acento().name()));
    const QString archivo = QDir::current().absoluteFilePath(rutaExistente(m_ruta));
    if (QFileInfo(archivo).isFile()) {
        setSource(QUrl::fromLocalFile(archivo));
        return;
    }
    setPlainText(Traduce(u"No se encuentra la página de introducción."_s) + u"\n\n"_s +
                 QDir::toNativeSeparators(archivo));
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

void NavegadorPagina::changeEvent(QEvent *suceso)
{
    QTextBrowser::changeEvent(suceso);
    if (suceso->type() != QEvent::PaletteChange || m_pendiente || source().isEmpty())
        return;
    const int posicion = verticalScrollBar()->value();
    muestra();
    verticalScrollBar()->setValue(posicion);
}
