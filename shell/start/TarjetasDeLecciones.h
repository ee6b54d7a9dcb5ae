// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QListView>

/// The lessons as cards in up to three columns that share the width: picture, name, and a line of
/// what the lesson teaches. Its model is a MenuLecciones.
class TarjetasDeLecciones : public QListView
{
    Q_OBJECT

public:
    explicit TarjetasDeLecciones(QWidget *padre = nullptr);

Q_SIGNALS:
    /// A card was clicked, or chosen by Enter or the space bar.
    void elegida(int fila);

protected:
    void keyPressEvent(QKeyEvent *suceso) override;
    void resizeEvent(QResizeEvent *suceso) override;
    void changeEvent(QEvent *suceso) override;

private:
    void reparte();
};
