// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>
#include <memory>

/// Hears when the system asks the program to end: a session that ends, a terminal that goes, a
/// kill. One who asks a second time is not made to wait. There is one at a time.
class SenalesDeFin : public QObject
{
    Q_OBJECT

public:
    explicit SenalesDeFin(QObject *padre = nullptr);
    ~SenalesDeFin() override;

Q_SIGNALS:
    void oida();

private:
    struct Oidos;
    std::unique_ptr<Oidos> m_oidos;
};
