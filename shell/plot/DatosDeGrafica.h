// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QList>
#include <QStringList>

/// The points of a plot as a table that can be read cell by cell and copied, in a window of its
/// own, which Escape closes. Deletes itself.
class DatosDeGrafica : public QDialog
{
    Q_OBJECT

public:
    DatosDeGrafica(const QStringList &cabeceras, const QList<QStringList> &filas, QWidget *grafica);

    /// The row in front, from 0 on; one that is not there changes nothing.
    void vaAFila(int fila);

private:
    class Rejilla *m_rejilla;
};
