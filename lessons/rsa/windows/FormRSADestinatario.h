// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/mailbox/Corresponsal.h"

#include <QObject>
#include <memory>

class FormClaveRSA;
class QComboBox;
class QLabel;

/// The recipient of a message: the field in which one is named, the caption that tells who it is,
/// and the small window with the key of the chosen one.
class FormRSADestinatario : public QObject
{
    Q_OBJECT

public:
    /// `campo`, `rotulo` and the list of messages are parts of `panel`; `clave` is the student's
    /// own key.
    FormRSADestinatario(QComboBox *campo, QLabel *rotulo, const QWidget *lista,
                        std::shared_ptr<ClsRSA> clave, QWidget *panel);

    const QString &usuario() const { return m_corresponsal.usuario(); }
    Corresponsal &corresponsal() { return m_corresponsal; }
    /// The private exponent that stands in the small window.
    QString t() const;

    /// Chooses the user to whom a message of the list is addressed. Throws what Corresponsal::elige
    /// throws, with the user chosen all the same.
    void elige(const QString &usuario);
    /// The correspondent may have published a key, or another one, since being chosen.
    void actualiza();
    /// Offers users in the field; what is written there stays.
    void ofrece(const QStringList &usuarios);

    /// The topic comes to the front, or leaves it.
    void aparece();
    void desaparece();

Q_SIGNALS:
    /// The student has named this user, who is about to be chosen; nobody when empty. Not told when
    /// a field is left that names the chosen one.
    void nombrado(const QString &usuario);
    /// There is another correspondent, or another exponent.
    void cambia();

private:
    void cmbDestinatario_Click();
    void cmbDestinatario_Validate();
    void nombra(const QString &usuario);
    void olvida();

    QComboBox *m_campo;
    QLabel *m_rotulo;
    QWidget *m_panel;
    Corresponsal m_corresponsal;
    FormClaveRSA *m_ventanaClave;
};
