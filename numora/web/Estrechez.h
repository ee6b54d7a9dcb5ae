// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QObject>

class FormPrincipal;

/// On a page as narrow as a telephone the list of lessons gives its room to the lesson: it is in
/// the menu "Ver" as well, and on the welcome.
class Estrechez : public QObject
{
    Q_OBJECT

public:
    explicit Estrechez(FormPrincipal *principal);

protected:
    bool eventFilter(QObject *objeto, QEvent *suceso) override;

private:
    void acomoda();

    FormPrincipal *m_principal;
};
