// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QStringList>
#include <QWidget>
#include <memory>
#include <vector>

class CopiaDeTrabajo;
class QLabel;
class QPlainTextEdit;
class QPushButton;

namespace Ui {
class FormRecursion2Cuestiones;
}

/// The topic "Cuestiones": what to think about and to prove. No machine judges a proof: the student
/// writes it beside hints that come one at a time, and finds it again when the lesson is opened
/// anew.
class FormRecursion2Cuestiones : public QWidget
{
    Q_OBJECT

public:
    explicit FormRecursion2Cuestiones(QWidget *leccion);
    ~FormRecursion2Cuestiones() override;

private:
    void ponApuntes(QPlainTextEdit *campo, const QString &archivo);
    void ponPistas(QPushButton *boton, QLabel *rotulo, const QStringList &pistas);

    std::unique_ptr<Ui::FormRecursion2Cuestiones> ui;
    std::vector<std::unique_ptr<CopiaDeTrabajo>> m_copias;
};
