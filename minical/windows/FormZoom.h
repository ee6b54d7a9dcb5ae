// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QWidget>
#include <memory>

namespace Ui {
class FormZoom;
}

/// The text of a cell in large type, in a window of its own above the sheet's.
class FormZoom : public QWidget
{
    Q_OBJECT

public:
    /// The window is a third as wide and as high as `hoja`.
    explicit FormZoom(QWidget *hoja);
    ~FormZoom() override;

    /// Makes ready to show texts: they can be read and not changed, and the slider stands at the
    /// type size.
    void prepara();

    void ponTexto(const QString &texto);

Q_SIGNALS:
    /// Escape was pressed in the text, or the window was closed.
    void soltada();

protected:
    void closeEvent(QCloseEvent *suceso) override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void SliderZoom_Scroll(int puntos);
    void ponPuntos(int puntos);

    std::unique_ptr<Ui::FormZoom> ui;
};
