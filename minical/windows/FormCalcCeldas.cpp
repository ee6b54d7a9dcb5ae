// The window of the sheet: what its commands and the grid do with cells.

#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Moneda.h"
#include "minical/ExplicacionDeCelda.h"
#include "minical/windows/FormCalc.h"
#include "minical/windows/FormCalcExpresion.h"
#include "minical/windows/FormCalcModelo.h"
#include "minical/windows/FormCalcRejilla.h"
#include "minical/windows/FormZoom.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString MaximaPrecision = u"1000"_s;

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

void FormCalc::txtExpresion_Editada(Celda celda, const QString &expresion, bool conIntro)
{
    m_modelo->setData(m_modelo->indice(celda), expresion, Qt::EditRole);
    if (!conIntro)
        return;
    m_rejilla->setFocus();
    m_rejilla->bajaTrasEdicion();
}

/// What is being typed, in a cell or above the grid, is taken.
void FormCalc::terminaEdiciones()
{
    m_rejilla->terminaEdicion();
    m_expresion->termina();
}

void FormCalc::muestraActual()
{
    const Celda celda = m_rejilla->actual();
    const bool esError = m_hoja.Resultados(celda.fila, celda.columna) == TextoError;
    QPalette colores = palette();
    colores.setColor(QPalette::WindowText, esError ? Aspecto::error() : Aspecto::atenuado());
    m_estado->setPalette(colores);
    const QString explicacion = explicacionDeCelda(m_hoja, celda);
    m_estado->setText(esError ? u"✗ "_s + explicacion : explicacion);
    m_expresion->muestra(celda, m_hoja.Expresiones(celda.fila, celda.columna));
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
