#pragma once

#include "shell/core/TextoDeRejilla.h"

#include <QItemSelection>
#include <QTableView>

/// The grid of every lesson: a table view whose cells can be copied by Ctrl+C and from its context
/// menu, as text, CSV or TeX, with headers when whole columns are taken; with a hint in the middle
/// while it is empty.
class Rejilla : public QTableView
{
    Q_OBJECT

public:
    explicit Rejilla(QWidget *padre = nullptr);

    /// What is shown in the middle of the grid while it has no rows.
    void ponTextoVacio(const QString &texto);

    /// Whether copies bear the labels of the rows in front; not so at first.
    void ponRotulosDeFilaEnCopia(bool con) { m_rotulosDeFila = con; }

    /// The selected cells (all when none or one is selected), in their form; empty without rows.
    QString seleccion(FormaDeCopia forma) const;

protected:
    void keyPressEvent(QKeyEvent *suceso) override;
    void contextMenuEvent(QContextMenuEvent *suceso) override;
    void paintEvent(QPaintEvent *suceso) override;

private:
    QItemSelectionRange elegido() const;
    QItemSelectionRange contenido() const;
    QStringList cabecera(const QItemSelectionRange &rango) const;
    QStringList fila(int numero, const QItemSelectionRange &rango) const;
    void copia(FormaDeCopia forma) const;

    QString m_textoVacio;
    bool m_rotulosDeFila = false;
};
