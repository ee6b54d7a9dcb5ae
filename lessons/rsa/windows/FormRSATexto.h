// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QPlainTextEdit>

/// The area where a text is written or a decrypted one appears. Lines are wrapped between words;
/// where there are thousands of characters without a blank, anywhere: Qt looks for a place to wrap
/// in a time that grows with the square of their number, minutes for what a message may hold.
class FormRSATexto : public QPlainTextEdit
{
public:
    explicit FormRSATexto(QWidget *padre = nullptr);

    /// Shows a text in the place of the one that is there, which setPlainText may take minutes for.
    void ponTexto(const QString &texto);

private:
    void ajustaRenglones(int lugar, int anadidos);

    bool m_poniendo = false;
};
