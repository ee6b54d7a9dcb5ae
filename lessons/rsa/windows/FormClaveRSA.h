#pragma once

#include "lessons/rsa/key/ClsRSA.h"

#include <QWidget>
#include <memory>

namespace Ui {
class FormClaveRSA;
}

/// The small window that shows the key of the chosen correspondent, above the other windows. The
/// private exponent can be typed: who finds it reads the messages.
class FormClaveRSA : public QWidget
{
    Q_OBJECT

public:
    explicit FormClaveRSA(QWidget *padre);
    ~FormClaveRSA() override;

    /// Shows the key of a user: q(0), s, and t, which is empty where the student does not know it.
    void ponCorresponsal(const QString &usuario, const ClsRSA &clave);

    /// Shows the window at the edge of the screen, without taking the focus.
    void muestra();

    QString t() const;

Q_SIGNALS:
    /// Whether there is a private exponent to read with.
    void puedeRecibir(bool puede);

private:
    void TxtDestT_Change();

    std::unique_ptr<Ui::FormClaveRSA> ui;
    bool m_colocada = false;
};
