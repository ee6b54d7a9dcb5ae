// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QDialog>
#include <memory>

namespace Ui {
class formAcercaDe;
}

/// The about box, which is also the splash at start-up. It goes away by its button, by Escape, or
/// when it loses the focus, and says so by `descargada`.
class formAcercaDe : public QDialog
{
    Q_OBJECT

public:
    explicit formAcercaDe(QWidget *padre = nullptr);
    ~formAcercaDe() override;

Q_SIGNALS:
    void descargada();

protected:
    void changeEvent(QEvent *suceso) override;
    void closeEvent(QCloseEvent *suceso) override;
    void showEvent(QShowEvent *suceso) override;
    void reject() override;
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void cmdOK_Click();
    void cmdSysInfo_Click();
    void lblDisclaimer_Click();

    std::unique_ptr<Ui::formAcercaDe> ui;
    bool m_tuvoElFoco = false;
};
