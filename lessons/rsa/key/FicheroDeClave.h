#pragma once

#include <QString>

/// Where the private key of the logged-on user lies: in the working folder under the login name,
/// or, where nothing can be written there, in the user's data folder.

/// The path to write to; its folder need not be there yet.
QString rutaParaGuardarClave();

/// The path of the key that exists; empty when there is none.
QString rutaDeClaveGuardada();

/// The sub-folder of the mailbox that is the user's: the login name. Throws ArgumentoNoValido when
/// the account has none that could be a folder.
QString subcarpetaPropia();

/// The name of the public key file in such a sub-folder.
extern const QString FicheroClavePublica;
