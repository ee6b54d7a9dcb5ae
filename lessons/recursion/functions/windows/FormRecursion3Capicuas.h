#pragma once

#include "lessons/recursion/functions/Capicua.h"
#include "shell/core/ModeloFilas.h"

#include <QTimer>
#include <QWidget>
#include <memory>

class QAbstractButton;

namespace Ui {
class FormRecursion3Capicuas;
}

/// The tab "Capicúas": adding a number and its reverse until a palindrome stands there.
class FormRecursion3Capicuas : public QWidget
{
    Q_OBJECT

public:
    FormRecursion3Capicuas(Corrida &corrida, QWidget *padre);
    ~FormRecursion3Capicuas() override;

    /// The button that stops the run; null without one.
    QAbstractButton *botonDeParada() const;

private:
    void empieza();
    void termina();
    void ponColor(const QColor &color);
    void muestraAvance();
    void muestraSumas();
    void muestraFin(Capicua::Fin fin);

    void cmdCap_Click();
    void TxtCapInicial_Change();

    std::unique_ptr<Ui::FormRecursion3Capicuas> ui;
    Corrida &m_corrida;
    Capicua m_capicua;
    ModeloFilas m_sumas; ///< number, its reverse and their sum, step by step
    QTimer m_pantalla{this};
    bool m_calculando = false;
};
