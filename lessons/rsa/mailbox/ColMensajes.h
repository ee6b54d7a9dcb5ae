// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/mailbox/clsMensaje.h"

#include <QHash>
#include <QList>
#include <memory>

/// The messages of the mailbox in the order in which they were met, each under the key that sender,
/// recipient and subject make.
class ColMensajes
{
public:
    using Mensaje = std::shared_ptr<clsMensaje>;

    /// Trim(sender) + "." + Trim(recipient) + "." + Trim(subject).
    static QString clave(const QString &remitente, const QString &destinatario,
                         const QString &asunto);

    /// Adds a message and gives it. An unfit subject is left empty. Throws ArgumentoNoValido when
    /// its key is taken.
    clsMensaje &Add(const QString &remitente, const QString &destinatario, const QString &asunto,
                    const QString &nombreFichero);

    /// The message of a key; null when there is none.
    Mensaje Item(const QString &clave) const { return m_porClave.value(clave); }
    /// The message at a place from 1 to Count(). Throws IndiceFueraDeRango.
    clsMensaje &Item(qsizetype indice) const;

    qsizetype Count() const { return m_mensajes.size(); }

    /// Takes away the message at a place from 1 to Count(). Throws IndiceFueraDeRango.
    void Remove(qsizetype indice);

    /// Adds the message of a file, or points the one that has its key to that file.
    void Anota(const QString &remitente, const QString &destinatario, const QString &asunto,
               const QString &nombreFichero);

    auto begin() const { return m_mensajes.cbegin(); }
    auto end() const { return m_mensajes.cend(); }

private:
    QList<Mensaje> m_mensajes;
    QList<QString> m_claves; ///< of the messages, in their order
    QHash<QString, Mensaje> m_porClave;
};
