#pragma once

#include <QString>
#include <QWidget>
#include <memory>
#include <optional>

class QLabel;

namespace Ui {
class FormUnidadesGrandes;
}

/// The topic "Números grandes": greatest common divisor, inverse and Euler's function for numbers
/// of hundreds of digits.
class FormUnidadesGrandes : public QWidget
{
    Q_OBJECT

public:
    explicit FormUnidadesGrandes(QWidget *leccion);
    ~FormUnidadesGrandes() override;

private:
    std::optional<QString> modulo(QLabel *rotulo);
    std::optional<QString> elemento();

    void txtGrande_Change();
    void cmdInverso_Click();
    void cmdFi_Click();
    void cmdEjemplo_Click();

    std::unique_ptr<Ui::FormUnidadesGrandes> ui;
    QWidget *m_leccion;
};
