// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class clsSesión;

/// Where the private key of the logged-on user lies: in the working folder under the login name,
/// or, where nothing can be written there, in the user's data folder. While the file holds the
/// numbers of somebody else, a copy beside it keeps the user's own key, which stands nowhere else.
class FicheroDeClave
{
public:
    /// `sesion` tells the user and the working folder, and outlives this.
    explicit FicheroDeClave(clsSesión &sesion) : m_sesion(sesion) {}

    QString usuario() const;

    /// The path to write to; its folder need not be there yet.
    QString rutaParaGuardar() const;
    /// The path of the key that exists; empty when there is none.
    QString rutaGuardada() const;

    /// Whether the key that exists has numbers whose test may take more than a moment.
    bool esLarga() const;

    /// Copies the user's own key beside its file, if the file holds it. Throws ErrorEjecucion
    /// naming the copy when that cannot be done: the file is not to be overwritten then.
    void aparta() const;
    /// The own key is in its file: the copy goes.
    void retiraCopia() const;
    /// Puts the own key back into its file, where a copy tells that an earlier session has left
    /// somebody else's numbers there; whether it was so. Throws ErrorEjecucion naming the file when
    /// it cannot be written; the copy stays then.
    bool recupera() const;

    /// The sub-folder of the mailbox that is the user's: the login name. Throws ArgumentoNoValido
    /// when the account has none that could be a folder.
    QString subcarpetaPropia() const;

private:
    QString enCarpeta(const QString &carpeta) const;

    clsSesión &m_sesion;
};

/// The name of the public key file in the sub-folder of a user.
extern const QString FicheroClavePublica;
