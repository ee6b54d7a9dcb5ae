// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/recursion/functions/Capicua.h"
#include "shell/core/ModeloFilas.h"
#include "shell/core/steps/Pasos.h"
#include "shell/frame/Evento.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class BotonDeCorrida;

namespace Ui {
class FormRecursion3Capicuas;
}

/// The tab "Capicúas": adding a number and its reverse until a palindrome stands there.
class FormRecursion3Capicuas : public QWidget
{
    Q_OBJECT

public:
    /// Runs stop by the stop line that the tabs share.
    FormRecursion3Capicuas(std::shared_ptr<Parada> parada, QWidget *padre);
    ~FormRecursion3Capicuas() override;

Q_SIGNALS:
    /// Why the last result holds; none while there is no result.
    void hayPasos(const Pasos &pasos);

protected:
    void changeEvent(QEvent *suceso) override;

private:
    void preparaRejilla();
    void empieza();
    Tarea<> corre();
    void termina();
    void ponColor(const QColor &color);
    void ponTira();
    void muestraAvance();
    void muestraSumas();
    void muestraFin(Capicua::Fin fin);

    void cmdCap_Click();
    void TxtCapInicial_Change();

    std::unique_ptr<Ui::FormRecursion3Capicuas> ui;
    BotonDeCorrida *m_corrida;
    std::shared_ptr<const Capicua> m_capicua;
    ModeloFilas m_sumas; ///< number, its reverse and their sum, step by step
    QTimer m_pantalla{this};
    TareasDeVentana m_tareas;
};
