// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "minical/HojaDeCalculo.h"
#include "shell/frame/FormLeccion.h"

#include <QHash>
#include <memory>
#include <variant>

class FormCalcDocumento;
class FormCalcExpresion;
class FormCalcModelo;
class FormCalcPortapapeles;
class FormCalcRejilla;
class FormZoom;
class QAction;
class QLabel;
class QLineEdit;
class PanelDePasos;
class QToolBar;

/// The spreadsheet: a grid of exact expressions, its commands, its page of help, and a zoom of the
/// current cell.
class FormCalc : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormCalc(QWidget *padre = nullptr);
    ~FormCalc() override;

    Tareas &tareas() { return m_tareas; }

    Tarea<bool> puedeCerrarse() override;
    void guardaLoPendiente() override;

protected:
    void showEvent(QShowEvent *suceso) override;
    void closeEvent(QCloseEvent *suceso) override;

private:
    struct Orden;
    static const QList<Orden> &ordenes();

    void preparaBarra();
    void preparaPrecision();
    QAction *agregaOrden(const Orden &orden);
    void preparaHoja();
    void conectaHoja();
    QWidget *preparaEstado(QWidget *panel);
    QAction *accion(const QString &clave) const { return m_acciones.value(clave); }

    Tarea<> Toolbar_ButtonClick(const Orden *orden);
    void ValorDecimal();
    void Recalcular();
    void ExplicarCelda();
    void MostrarExpresiones();
    void MostrarResultados();
    void Zoom();
    void ValidarPrecision();
    void CopiarExpresion();
    void CopiarResultado();
    void Cortar();
    Tarea<> Nuevo();
    Tarea<> Abrir();
    Tarea<> Guardar();
    Tarea<> GuardarComo();
    Tarea<> Exportar();
    Tarea<> Imprimir();
    void Deshacer();
    void Rehacer();

    void FlexCalc_Click(Celda celda);
    void FlexCalc_Borrar();
    Tarea<> FlexCalc_Pegar();
    void FlexCalc_Menu(const QPoint &donde);
    void txtExpresion_Editada(Celda celda, const QString &expresion, bool conIntro);

    void ponPegando(bool pegando);
    void enfocaCambiadas(const QList<Celda> &celdas);
    void terminaEdiciones();
    void muestraActual();
    void ponPasos();
    void muestraPrecision();
    void alCambiarHoja();
    void actualizaZoom(Celda celda);
    void ponZoomEn(Celda rotulo);

    HojaDeCalculo m_hoja;
    FormCalcModelo *m_modelo = nullptr;
    FormCalcRejilla *m_rejilla = nullptr;
    FormCalcExpresion *m_expresion = nullptr;
    FormCalcPortapapeles *m_portapapeles = nullptr;
    QLabel *m_estado = nullptr;
    QToolBar *m_barra = nullptr;
    QLineEdit *m_txtPrecision = nullptr;
    QLabel *m_lblPrecision = nullptr;
    QAction *m_avisoDePrecision = nullptr;
    FormZoom *m_zoom = nullptr;
    PanelDePasos *m_pasos = nullptr;
    QHash<QString, QAction *> m_acciones;
    bool m_mostrada = false;    ///< whether it has been shown before
    bool m_preguntando = false; ///< whether the window may be closed
    // What follows goes first, and looks at what stands above: the tasks, the copy of the sheet,
    // and the grid with all that stands around it.
    std::unique_ptr<QWidget> m_panel;
    std::unique_ptr<FormCalcDocumento> m_documento;
    TareasDeVentana m_tareas{this, parada()};
};
