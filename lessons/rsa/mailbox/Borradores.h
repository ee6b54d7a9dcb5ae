// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>

/// Messages that were begun and not sent, oldest first. Each has a number, from 1 on, by which it
/// is known for as long as the program runs.
class Borradores
{
public:
    struct Borrador
    {
        int numero = 0;       ///< 0: none
        QString destinatario; ///< empty while nobody has been named
        QString asunto;
        QString texto;
        bool vacio() const { return asunto.isEmpty() && texto.isEmpty(); }
    };

    /// The last draft for a user, whose name is compared without regard to case; none when there is
    /// none.
    Borrador ultimoPara(const QString &destinatario) const;

    /// Those who have drafts, each once, in the order of the alphabet.
    QStringList destinatarios() const;

    /// Keeps a draft: a new one when it has no number yet. An empty one is taken away. Gives the
    /// number that it has now, 0 for an empty one.
    int pon(Borrador borrador);
    void quita(int numero);

    /// All drafts as the bytes of a file; nothing when there are none.
    QByteArray bytes() const;
    /// Takes up the drafts of such a file in the place of those that are there; none from bytes
    /// that are no such file.
    void lee(const QByteArray &bytes);

private:
    QList<Borrador> m_borradores;
    int m_ultimoNumero = 0;
};
