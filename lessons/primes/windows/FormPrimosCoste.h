// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/primes/AjustePotencial.h"
#include "lessons/primes/CosteDeFactorizar.h"
#include "shell/core/ModeloFilas.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"

#include <QWidget>
#include <memory>

class FormLeccion;
struct SerieDeGrafica;

namespace Ui {
class FormPrimosCoste;
}

/// The experiment "Cómo crece el coste": the three algorithms of factoring on numbers of growing
/// size, timed until they take too long, with the growth that fits.
class FormPrimosCoste : public QWidget
{
    Q_OBJECT

public:
    explicit FormPrimosCoste(FormLeccion *leccion);
    ~FormPrimosCoste() override;

    Tareas &tareas() { return m_tareas; }

private:
    struct Punto
    {
        qsizetype medida = 0;
        int algoritmo = 0;
    };

    Tarea<> cmdCoste_Click();
    void PicCoste_Senalado(int indice);

    Tarea<> mide();
    void limpia();
    void agrega(const MedidaDeCoste &medida);
    void representa();
    SerieDeGrafica serie(int algoritmo) const;
    QString ajuste(int algoritmo) const;
    QString desenlace(const CosteDeFactorizar &carrera) const;

    std::unique_ptr<Ui::FormPrimosCoste> ui;
    ModeloFilas m_modelo;
    QList<MedidaDeCoste> m_medidas;
    QList<Punto> m_puntos; ///< those of the plot, in its order
    BotonDeCorrida *m_boton;
    TareasDeVentana m_tareas;
};
