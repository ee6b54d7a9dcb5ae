// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QIcon>
#include <functional>

class QLabel;
class QLineEdit;
class QTreeWidget;

/// A command as the palette shows it, in the interface's language.
struct OrdenDePaleta
{
    QString titulo;
    QString grupo; ///< what kind of command it is
    QString tecla = {};
    QString detalle = {}; ///< more words by which it is found
    QIcon icono = {};
    std::function<void()> hace;
};

/// All commands of the program in one list, which grows shorter as one types. Arrows choose, Enter
/// does what is chosen, Escape or a click elsewhere closes it. The keyboard never leaves the field.
class PaletaDeOrdenes : public QDialog
{
    Q_OBJECT

public:
    PaletaDeOrdenes(QList<OrdenDePaleta> ordenes, QWidget *padre);

Q_SIGNALS:
    /// A command was chosen; the palette is closed.
    void elegida(const std::function<void()> &hace);

protected:
    bool event(QEvent *suceso) override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void filtra();
    void dice();
    void elige();

    QList<OrdenDePaleta> m_ordenes;
    QLineEdit *m_campo;
    QTreeWidget *m_lista;
    QLabel *m_nada;
};
