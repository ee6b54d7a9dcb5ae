// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/Cuestion.h"
#include "shell/core/ModeloFilas.h"

#include <QWidget>
#include <memory>
#include <vector>

namespace Ui {
class PanelCuestiones;
}

/// The topic "Cuestiones" of a lesson that asks two questions: each is drawn at random, judged with
/// a word and an animation, and can be drawn anew. What has been read of an answer stands below it
/// at each key; what cannot be read is named and not judged. What was judged is noted below.
class PanelCuestiones : public QWidget
{
    Q_OBJECT

public:
    using Sorteo = std::function<Cuestion()>;

    PanelCuestiones(const Sorteo &primera, const Sorteo &segunda, QWidget *padre);
    ~PanelCuestiones() override;

protected:
    void resizeEvent(QResizeEvent *suceso) override;

private:
    struct Lugar;

    void preparaIntentos();
    static void plantea(Lugar &lugar);
    static void txtRespuesta_Change(Lugar &lugar);
    static void cmdOtra_Click(Lugar &lugar);
    void cmdComprobar_Click(Lugar &lugar);

    std::unique_ptr<Ui::PanelCuestiones> ui;
    std::vector<Lugar> m_lugares;
    ModeloFilas m_intentos;
};
