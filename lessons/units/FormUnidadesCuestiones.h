#pragma once

#include "lessons/units/CuestionUnidades.h"

#include <QWidget>
#include <array>
#include <memory>

class QLabel;
class QLineEdit;
class QPushButton;
class ReproductorAVI;

namespace Ui {
class FormUnidadesCuestiones;
}

/// The topic "Cuestiones": two questions drawn at random, one on the group and one on Euler's
/// function.
class FormUnidadesCuestiones : public QWidget
{
    Q_OBJECT

public:
    explicit FormUnidadesCuestiones(QWidget *leccion);
    ~FormUnidadesCuestiones() override;

private:
    /// A question with the controls of its half of the panel.
    struct Mitad
    {
        QList<CuestionUnidades::Tipo> tipos;
        CuestionUnidades cuestion;
        QLabel *lblEnunciado;
        QLineEdit *txtRespuesta;
        QPushButton *cmdComprobar;
        QPushButton *cmdOtra;
        QLabel *lblVeredicto;
        ReproductorAVI *ccrpAnimation;
    };

    void prepara(Mitad &mitad);
    static void ponVeredicto(Mitad &mitad, const CuestionUnidades::Juicio &juicio);

    static void cmdComprobar_Click(Mitad &mitad);
    static void cmdOtra_Click(Mitad &mitad);
    static void txtRespuesta_Change(Mitad &mitad);

    std::unique_ptr<Ui::FormUnidadesCuestiones> ui;
    std::array<std::unique_ptr<Mitad>, 2> m_mitades;
};
