// SPDX-License-Identifier: GPL-3.0-or-later
// The window of the sheet: what its commands and the grid do with cells.

#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Moneda.h"
#include "minical/ExplicacionDeCelda.h"
#include "minical/PasosDeCelda.h"
#include "minical/windows/FormCalc.h"
#include "minical/windows/FormCalcAspecto.h"
#include "minical/windows/FormCalcDocumento.h"
#include "minical/windows/FormCalcExpresion.h"
#include "minical/windows/FormCalcModelo.h"
#include "minical/windows/FormCalcPortapapeles.h"
#include "minical/windows/FormCalcRejilla.h"
#include "minical/windows/FormZoom.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/steps/PanelDePasos.h"

#include <QAction>
#include <QLabel>
#include <QLineEdit>
#include <QToolBar>

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

void FormCalc::ExplicarCelda()
{
    m_pasos->pideVerse();
    m_pasos->enfoca();
}

/// Those of the current cell. The sheet is asked when they are looked at; whatever changes it puts
/// others in their place.
void FormCalc::ponPasos()
{
    const Celda celda = m_rejilla->actual();
    m_pasos->pon(Pasos::aplazados([this, celda] { return pasosDeCelda(m_hoja, celda); }));
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
    m_avisoDePrecision->setVisible(false);
}

/// A stored number that is too large for any precision is shown as it is, for it can be mended
/// nowhere but here.
void FormCalc::muestraPrecision()
{
    try {
        m_txtPrecision->setText(QString::number(Sesión().Precisión()));
        m_avisoDePrecision->setVisible(false);
    } catch (const ErrorEjecucion &) {
        m_txtPrecision->setText(Sesión().lee(u"Aritmética"_s, u"Precisión"_s).trimmed());
        m_txtPrecision->setCursorPosition(0);
        muestraVeredicto(m_lblPrecision, false,
                         Traduce(u"Pasa de %1: escriba otra y valídela."_s).arg(MaximaPrecision));
    }
}

void FormCalc::CopiarExpresion()
{
    m_portapapeles->copia(true);
}

void FormCalc::CopiarResultado()
{
    m_portapapeles->copia(false);
}

/// What is cut is what can be entered elsewhere again: the expressions.
void FormCalc::Cortar()
{
    m_portapapeles->copia(true);
    FlexCalc_Borrar();
}

Tarea<> FormCalc::FlexCalc_Pegar()
{
    return m_portapapeles->pega(m_tareas.billete());
}

/// A large block takes its time: only the stop button answers meanwhile.
void FormCalc::ponPegando(bool pegando)
{
    m_rejilla->setDisabled(pegando);
    m_expresion->setDisabled(pegando);
    m_barra->setDisabled(pegando);
    for (QAction *orden : std::as_const(m_acciones))
        orden->setDisabled(pegando);
    if (!pegando)
        m_rejilla->setFocus();
}

Tarea<> FormCalc::Nuevo()
{
    return m_documento->nuevo();
}

Tarea<> FormCalc::Abrir()
{
    return m_documento->abre();
}

Tarea<> FormCalc::Guardar()
{
    return m_documento->guarda();
}

Tarea<> FormCalc::GuardarComo()
{
    return m_documento->guardaComo();
}

Tarea<> FormCalc::Exportar()
{
    return m_documento->exporta();
}

Tarea<> FormCalc::Imprimir()
{
    return m_documento->imprime();
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
    const bool falla = esError(m_hoja.Resultados(celda.fila, celda.columna));
    const QString explicacion = explicacionDeCelda(m_hoja, celda);
    if (falla)
        muestraVeredicto(m_estado, false, explicacion);
    else
        muestraNeutro(m_estado, explicacion);
    m_expresion->muestra(celda, m_hoja.Expresiones(celda.fila, celda.columna));
    ponPasos();
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
