// The window of the sheet: what its commands and the grid do with cells.

#include "bignum/ModBignum.h"
#include "bignum/Moneda.h"
#include "minical/FormCalc.h"
#include "minical/FormCalcModelo.h"
#include "minical/FormCalcRejilla.h"
#include "minical/FormZoom.h"
#include "shell/Evento.h"
#include "shell/Interlocutor.h"
#include "shell/ModGlobal.h"
#include "shell/TextoDeRejilla.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QLineEdit>
#include <QPushButton>
#include <QToolBar>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString MaximaPrecision = u"1000"_s;

/// The cells of a text from the clipboard: lines of fields between tabs.
QList<QStringList> bloqueDe(QString texto)
{
    texto.replace(u"\r\n"_s, u"\n"_s);
    if (texto.endsWith(u'\n'))
        texto.chop(1);
    QList<QStringList> bloque;
    const QStringList lineas = texto.split(u'\n');
    for (const QString &linea : lineas)
        bloque << linea.split(u'\t');
    return bloque;
}

} // namespace

void FormCalc::ValorDecimal()
{
    const RelojDeArena reloj;
    if (m_hoja.ValorDecimal(m_rejilla->actual()))
        actualizaZoom(m_rejilla->actual());
}

void FormCalc::Recalcular()
{
    const RelojDeArena reloj;
    if (m_hoja.Recalcular(m_rejilla->actual()))
        actualizaZoom(m_rejilla->actual());
}

void FormCalc::MostrarExpresiones()
{
    m_hoja.MostrarExpresiones();
}

void FormCalc::MostrarResultados()
{
    m_hoja.MostrarResultados();
}

void FormCalc::ValidarPrecision()
{
    const QString resultado = Evalua(m_txtPrecision->text(), MaximaPrecision);
    if (!EsNumerico(resultado))
        return;
    if (const auto digitos = Moneda::deTexto(resultado))
        Sesión().ponPrecisión(digitos->aEntero32());
}

void FormCalc::CopiarExpresion()
{
    copia(true);
}

void FormCalc::CopiarResultado()
{
    copia(false);
}

/// One cell as it is; several as lines with tabs, as every spreadsheet takes them.
void FormCalc::copia(bool expresiones)
{
    const auto texto = [&](Celda celda) {
        return expresiones ? m_hoja.Expresiones(celda.fila, celda.columna)
                           : m_hoja.Resultados(celda.fila, celda.columna);
    };
    const QList<Celda> celdas = m_rejilla->seleccionadas();
    if (celdas.size() <= 1) {
        QApplication::clipboard()->setText(texto(m_rejilla->actual()));
        return;
    }
    QList<QStringList> filas;
    int fila = 0;
    for (const Celda celda : celdas) {
        if (celda.fila != fila)
            filas << QStringList();
        fila = celda.fila;
        filas.last() << texto(celda);
    }
    QApplication::clipboard()->setText(textoDeRejilla(filas, FormaDeCopia::Texto));
}

void FormCalc::Deshacer()
{
    enfocaCambiadas(m_hoja.deshace());
}

void FormCalc::Rehacer()
{
    enfocaCambiadas(m_hoja.rehace());
}

void FormCalc::enfocaCambiadas(const QList<Celda> &celdas)
{
    if (celdas.isEmpty())
        return;
    m_rejilla->setCurrentIndex(m_modelo->indice(celdas.constFirst()));
    actualizaZoom(celdas.constFirst());
}

void FormCalc::FlexCalc_Borrar()
{
    m_hoja.borra(m_rejilla->seleccionadas());
    actualizaZoom(m_rejilla->actual());
    alCambiarHoja();
}

/// A large block takes its time: only the stop button answers meanwhile.
void FormCalc::ponPegando(bool pegando)
{
    m_rejilla->setDisabled(pegando);
    m_barra->setDisabled(pegando);
    for (QAction *orden : std::as_const(m_acciones))
        orden->setDisabled(pegando);
    m_aviso->setVisible(pegando);
    if (pegando)
        m_cmdDetener->setFocus();
    else
        m_rejilla->setFocus();
}

void FormCalc::FlexCalc_Pegar()
{
    const QString texto = QApplication::clipboard()->text();
    if (texto.isEmpty() || corrida().enCurso())
        return;
    if (!m_rejilla->actual().esDeDatos())
        m_rejilla->setCurrentIndex(m_modelo->index(0, 0));
    const Corrida::Tramo tramo(corrida());
    corrida().permitir();
    ponPegando(true);
    const bool todo = m_hoja.pega(m_rejilla->actual(), bloqueDe(texto), corrida());
    ponPegando(false);
    actualizaZoom(m_rejilla->actual());
    alCambiarHoja();
    if (!todo)
        interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion,
                               Traduce(u"Parte de lo que se ha pegado no cabe en la hoja."_s),
                               Traduce(u"Mini hoja de cálculo"_s));
}

void FormCalc::Zoom()
{
    QAction *boton = accion(u"Zoom"_s);
    if (!m_zoom) {
        m_zoom = new FormZoom(this);
        // Released by the window itself, it stays as it is; only a click on the button hides it.
        conecta(m_zoom, &FormZoom::soltada, this, [boton] { boton->setChecked(false); });
    }
    m_zoom->prepara();
    m_zoom->setVisible(boton->isChecked());
    if (m_rejilla->actual().esDeDatos())
        ponZoomEn(m_rejilla->actual());
}

/// A click on a header names the header, while the text stays that of the current cell.
void FormCalc::FlexCalc_Click(Celda celda)
{
    ponZoomEn(celda);
}

void FormCalc::ponZoomEn(Celda rotulo)
{
    if (!accion(u"Zoom"_s)->isChecked())
        return;
    m_zoom->setWindowTitle(Traduce(u"Zoom de "_s) + NombreCelda(rotulo));
    m_zoom->ponTexto(m_hoja.texto(m_rejilla->actual()));
}

void FormCalc::actualizaZoom(Celda celda)
{
    if (m_zoom && m_zoom->isVisible())
        m_zoom->ponTexto(m_hoja.Resultados(celda.fila, celda.columna));
}
