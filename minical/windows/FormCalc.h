#pragma once

#include "minical/HojaDeCalculo.h"
#include "shell/frame/FormLeccion.h"

#include <QHash>
#include <memory>

class FormCalcExpresion;
class FormCalcModelo;
class FormCalcRejilla;
class FormZoom;
class QAction;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolBar;

/// The spreadsheet: a grid of exact expressions, its commands, its page of help, and a zoom of the
/// current cell.
class FormCalc : public FormLeccion
{
    Q_OBJECT

public:
    explicit FormCalc(QWidget *padre = nullptr);
    ~FormCalc() override;

protected:
    QAbstractButton *botonDeParada() const override;
    bool permiteCerrar() override;
    void showEvent(QShowEvent *suceso) override;
    void closeEvent(QCloseEvent *suceso) override;

private:
    struct Orden;
    static const QList<Orden> &ordenes();

    void preparaBarra();
    QAction *agregaOrden(const Orden &orden);
    void preparaHoja();
    QWidget *preparaEstado(QWidget *panel);
    QWidget *preparaAviso(QWidget *panel);
    QAction *accion(const QString &clave) const { return m_acciones.value(clave); }

    void Toolbar_ButtonClick(const Orden &orden);
    void ValorDecimal();
    void Recalcular();
    void MostrarExpresiones();
    void MostrarResultados();
    void Zoom();
    void ValidarPrecision();
    void CopiarExpresion();
    void CopiarResultado();
    void Cortar();
    void Nuevo();
    void Abrir();
    void Guardar();
    void GuardarComo();
    void Exportar();
    void Imprimir();
    void Deshacer();
    void Rehacer();

    void FlexCalc_Click(Celda celda);
    void FlexCalc_Borrar();
    void FlexCalc_Pegar();
    void FlexCalc_Menu(const QPoint &donde);
    void txtExpresion_Editada(Celda celda, const QString &expresion, bool conIntro);

    void copia(bool expresiones);
    void ponPegando(bool pegando);
    void enfocaCambiadas(const QList<Celda> &celdas);
    void terminaEdiciones();
    void muestraActual();
    void alCambiarHoja();
    void actualizaZoom(Celda celda);
    void ponZoomEn(Celda rotulo);

    bool guardaEn(const QString &ruta);
    bool guardaComo();
    void abreArchivo(const QString &ruta);
    bool confirmaDescarte();
    void ponRuta(const QString &ruta);
    QString carpetaPropuesta() const;
    QString nombreDeHoja() const;

    HojaDeCalculo m_hoja;
    FormCalcModelo *m_modelo = nullptr;
    FormCalcRejilla *m_rejilla = nullptr;
    FormCalcExpresion *m_expresion = nullptr;
    QLabel *m_estado = nullptr;
    QWidget *m_aviso = nullptr;
    QPushButton *m_cmdDetener = nullptr;
    QToolBar *m_barra = nullptr;
    QLineEdit *m_txtPrecision = nullptr;
    FormZoom *m_zoom = nullptr;
    QHash<QString, QAction *> m_acciones;
    QString m_ruta; ///< the file of the sheet; empty while it has none
};
