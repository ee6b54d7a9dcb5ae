#pragma once

#include "shell/Cuestion.h"

#include <QWidget>
#include <memory>
#include <vector>

namespace Ui {
class PanelCuestiones;
}

/// The topic "Cuestiones" of a lesson that asks two questions: each is drawn at random, judged with
/// a word and an animation, and can be drawn anew.
class PanelCuestiones : public QWidget
{
    Q_OBJECT

public:
    using Sorteo = std::function<Cuestion()>;

    PanelCuestiones(const Sorteo &primera, const Sorteo &segunda, QWidget *padre);
    ~PanelCuestiones() override;

private:
    struct Lugar;

    void plantea(Lugar &lugar);
    void cmdComprobar_Click(Lugar &lugar);

    std::unique_ptr<Ui::PanelCuestiones> ui;
    std::vector<Lugar> m_lugares;
};
