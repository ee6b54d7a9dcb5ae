// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/core/steps/TablaConHuecos.h"

#include <QWidget>
#include <memory>

class ModeloDeHuecos;
class QModelIndex;

namespace Ui {
class TablaPorRellenar;
}

/// A table whose cells can be hidden, one, two or all, and filled in by the student, each answer
/// judged at once; "¿Por qué?" tells why the current cell holds what it holds.
class TablaPorRellenar : public QWidget
{
    Q_OBJECT

public:
    explicit TablaPorRellenar(QWidget *padre = nullptr);
    ~TablaPorRellenar() override;

    /// Shows this table in place of the one before.
    void pon(const TablaConHuecos &tabla);
    const TablaConHuecos &tabla() const;

    /// What a screen reader calls the grid, where a window has more than one; translated.
    void ponNombre(const QString &nombre);
    /// Its controls get the keyboard one by one after that one.
    void sigueA(QWidget *control);

Q_SIGNALS:
    /// An answer was judged.
    void respondida(int fila, int columna, bool bien);
    /// The last hidden cell was filled in rightly.
    void completa();

private:
    template <typename Cambio>
    void oculta(Cambio cambio);
    void juzga(const QModelIndex &celda);
    void cmdPorQue_Click();

    std::unique_ptr<Ui::TablaPorRellenar> ui;
    ModeloDeHuecos *m_modelo;
};
