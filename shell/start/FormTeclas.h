// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <QStringList>

class ModeloFilas;

/// The page of keys: a table that is made from the commands themselves, so that it tells no key
/// that does nothing. It stays open beside the lessons.
class FormTeclas : public QDialog
{
    Q_OBJECT

public:
    explicit FormTeclas(QWidget *padre);

    /// Rows of key, what it does, and where.
    void muestra(const QList<QStringList> &teclas);

private:
    ModeloFilas *m_modelo;
};
