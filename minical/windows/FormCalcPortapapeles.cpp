// The window of the sheet: copying, cutting and pasting.

#include "minical/windows/FormCalc.h"
#include "minical/windows/FormCalcExpresion.h"
#include "minical/windows/FormCalcModelo.h"
#include "minical/windows/FormCalcRejilla.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/TextoDeRejilla.h"
#include "shell/frame/Interlocutor.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QPushButton>
#include <QToolBar>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

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

/// One cell goes into each of those that are selected; a larger block stays as it is.
QList<QStringList> repetido(const QList<QStringList> &bloque, const QList<Celda> &elegidas)
{
    if (bloque.size() != 1 || bloque.constFirst().size() != 1)
        return bloque;
    const Celda primera = elegidas.constFirst();
    const Celda ultima = elegidas.constLast();
    const QStringList fila(ultima.columna - primera.columna + 1, bloque.constFirst().constFirst());
    return QList<QStringList>(ultima.fila - primera.fila + 1, fila);
}

int anchoDe(const QList<QStringList> &bloque)
{
    qsizetype ancho = 1;
    for (const QStringList &fila : bloque)
        ancho = std::max(ancho, fila.size());
    return static_cast<int>(ancho);
}

} // namespace

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

/// What is cut is what can be entered elsewhere again: the expressions.
void FormCalc::Cortar()
{
    copia(true);
    FlexCalc_Borrar();
}

/// A large block takes its time: only the stop button answers meanwhile.
void FormCalc::ponPegando(bool pegando)
{
    m_rejilla->setDisabled(pegando);
    m_expresion->setDisabled(pegando);
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
    const QList<Celda> elegidas = m_rejilla->seleccionadas();
    const QList<QStringList> bloque = repetido(bloqueDe(texto), elegidas);
    const Celda esquina = elegidas.constFirst();
    const Corrida::Tramo tramo(corrida());
    corrida().permitir();
    ponPegando(true);
    const bool todo = m_hoja.pega(esquina, bloque, corrida());
    ponPegando(false);
    m_rejilla->elige(esquina, {esquina.fila + static_cast<int>(bloque.size()) - 1,
                               esquina.columna + anchoDe(bloque) - 1});
    actualizaZoom(m_rejilla->actual());
    alCambiarHoja();
    if (!todo)
        interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion,
                               Traduce(u"Parte de lo que se ha pegado no cabe en la hoja."_s),
                               Traduce(u"Mini hoja de cálculo"_s));
}
