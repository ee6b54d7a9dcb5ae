// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"
#include "lessons/rsa/mailbox/Buzon.h"

#include <memory>

/// The user whom the student has chosen to write to or to read, with the key that this takes.
/// Choosing one writes the correspondent's numbers into the private key file, beside which the
/// student's own key is kept meanwhile; it goes back there with its next good validation, or when
/// it is told to.
class Corresponsal
{
public:
    /// `propia` is the student's own key.
    explicit Corresponsal(std::shared_ptr<ClsRSA> propia);
    /// Puts the own key back where it can; what cannot be written stays beside its file.
    ~Corresponsal();
    Corresponsal(const Corresponsal &) = delete;
    Corresponsal &operator=(const Corresponsal &) = delete;

    /// The user who was chosen; empty when nobody is.
    const QString &usuario() const { return m_usuario; }

    /// The published key of that user, one character a block; its private exponent is the student's
    /// own when the user is the student, and else empty.
    ClsRSA &clave() { return m_clave; }
    /// Whether something can be encrypted with that key: it is published, and it is one.
    bool claveSirve() const;

    /// Chooses a user and reads the key of that user from the mailbox; without one its numbers are
    /// empty. Throws what SalvaClave throws, with the user chosen all the same.
    void elige(const QString &usuario);
    void olvida() { m_usuario.clear(); }

    /// Whether the chosen user's key is no longer what it was when the user was chosen.
    bool haCambiado() const;

    /// Puts the student's own key back into its file, if it was overwritten and is good. Throws
    /// what SalvaClave throws.
    void devuelveClavePropia();

private:
    struct Numeros
    {
        ClavePublica publica;
        QString t;
        bool operator==(const Numeros &) const = default;
    };
    Numeros numerosDe(const QString &usuario) const;
    void haVuelto();

    std::shared_ptr<ClsRSA> m_propia;
    ClsRSA m_clave;
    Numeros m_numeros;
    QString m_usuario;
    bool m_propiaPisada = false; ///< the private key file holds the correspondent's numbers
};
