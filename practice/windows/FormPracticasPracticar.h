// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/progress/Eleccion.h"
#include "practice/sheets/HojaDeEjercicios.h"
#include "practice/store/Cuaderno.h"

#include <QElapsedTimer>
#include <QTimer>
#include <QWidget>
#include <memory>
#include <optional>

class PanelDePasos;

namespace Ui {
class FormPracticasPracticar;
}

/// The topic "Practicar": one exercise after the other of what was chosen, with what is read of the
/// answer at each key, verdict, two hints and the worked solution.
class FormPracticasPracticar : public QWidget
{
    Q_OBJECT

public:
    FormPracticasPracticar(Cuaderno &cuaderno, QWidget *padre);
    ~FormPracticasPracticar() override;

    /// Goes on with this choice.
    void practica(const Eleccion &eleccion);
    /// Goes through a sheet, in so many minutes or, with 0, in whatever time.
    void haceHoja(const EncargoDeHoja &encargo, int minutos);

Q_SIGNALS:
    /// Something was put down.
    void anotado();
    /// That part of it is to be in sight, however small the window is.
    void aLaVista(QWidget *parte);

protected:
    void showEvent(QShowEvent *suceso) override;

private:
    void conectaControles();
    void rellenaLecciones();
    void rellenaTipos();
    void cmbLeccion_Change();
    void cmbTipo_Change();
    void cmbNivel_Change();
    void txtRespuesta_Change();
    void cmdComprobar_Click();
    void cmdPista_Click();
    void cmdSolucion_Click();
    void cmdSiguiente_Click();

    void plantea();
    void planteaDeHoja();
    void ponHoja(bool en);
    void cmdDejarHoja_Click();
    void relojDeHoja_Timer();
    void terminaHoja(const QString &palabra);
    void muestraMarchaDeHoja();
    void cuentaDeHoja();
    void dejaEjercicio();
    void muestraEnunciado(const Propuesta &propuesta);
    void muestraAyudas();
    void muestraProgreso();
    void anota();

    Cuaderno &m_cuaderno;
    std::unique_ptr<Ui::FormPracticasPracticar> ui;
    PanelDePasos *m_pasos;
    Eleccion m_eleccion;
    /// The sheet that is being done.
    struct Hoja
    {
        QString codigo;
        QList<EjercicioDeHoja> ejercicios;
        qsizetype cual = 0;
        qsizetype sinAyuda = 0;
        qint64 milisegundos = 0; ///< the limit; 0 none
        QElapsedTimer desde;
    };
    std::optional<Hoja> m_hoja;
    QTimer *m_relojDeHoja;
    std::optional<EjercicioEnCurso> m_curso;
    Cuaderno::Lugar m_lugar;
    QElapsedTimer m_reloj;
    quint64 m_serie;
    int m_sorteo = 0;
};
