// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QSplitter>

class PanelDePasos;

/// A tool and its panel of steps: side by side where there is room for both, else one below the
/// other. How the room is parted is remembered for each of the two.
class SeparadorDePasos : public QSplitter
{
    Q_OBJECT

public:
    SeparadorDePasos(QWidget *herramienta, PanelDePasos *pasos, QWidget *padre);

    PanelDePasos *pasos() const { return m_pasos; }

protected:
    void resizeEvent(QResizeEvent *suceso) override;

private:
    void acomoda();
    void recuerda();

    PanelDePasos *m_pasos;
    bool m_acomodado = false;
};
