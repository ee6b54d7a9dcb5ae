#pragma once

#include "lessons/rsa/Buzon.h"

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

    /// Puts somebody's key in the fields; `t` is empty where the reader does not know it.
    void ponCorresponsal(const QString &usuario, const ClavePublica &clave, const QString &t);

    /// Shows the window at the edge of the screen, without taking the focus.
    void muestra();

    QString q() const;
    QString s() const;
    QString t() const;

Q_SIGNALS:
    /// Whether there is a private exponent to read with.
    void puedeRecibir(bool puede);

private:
    void TxtDestT_Change();

    std::unique_ptr<Ui::FormClaveRSA> ui;
    bool m_colocada = false;
};
