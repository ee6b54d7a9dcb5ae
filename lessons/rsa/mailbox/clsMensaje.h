// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/ClsRSA.h"

#include <QObject>
#include <QString>
#include <QStringList>

/// A message of the mailbox: sender, recipient, subject, the text, its encrypted blocks, and the
/// key that encrypts or decrypts them. It outlives the runs that it is asked for, which use the key
/// as it was when they were asked for.
class clsMensaje : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Whether the message is fit to be encrypted; a text or a subject that could confuse its
    /// reader makes it false.
    bool MensajeOK() const { return m_mensajeOK; }
    void ponMensajeOK(bool bien) { m_mensajeOK = bien; }

    /// The key, which belongs to somebody else and outlives its use here.
    ClsRSA *Clave() const { return m_clave; }
    void ponClave(ClsRSA *clave) { m_clave = clave; }

    /// Validates the key and decrypts the blocks into the text; the text becomes empty when the key
    /// is not good.
    Tarea<> DescodificaTexto(Billete billete);
    /// Encrypts the text into the blocks; a single empty block when the message is not fit. Throws
    /// what ClsRSA::Codifica throws.
    Tarea<> CodificaTexto(Billete billete);

    /// Puts the message into the recipient's folder under the first free name of RSA1.msg,
    /// RSA2.msg, …, RSAA.msg, …; never in the place of another, and never visible half written.
    /// The folder is made if missing. Nothing is put there when the run is stopped. Throws
    /// ErrorEjecucion when that cannot be done.
    Tarea<> Envia(Billete billete);
    /// Reads the file NombreFichero and decrypts it into the text. Throws ErrorEjecucion when the
    /// file cannot be read.
    Tarea<> Recibe(Billete billete);

    /// The full path of the file that was read, found or written.
    const QString &NombreFichero() const { return m_nombreFichero; }
    void ponNombreFichero(const QString &ruta) { m_nombreFichero = ruta; }
    const QString &TextoOriginal() const { return m_textoOriginal; }
    /// An unfit text raises ErrorMensaje, and is stored all the same.
    void ponTextoOriginal(const QString &texto);
    const QString &Asunto() const { return m_asunto; }
    /// An unfit subject raises ErrorMensaje and is not stored.
    void ponAsunto(const QString &asunto);
    const QString &Destinatario() const { return m_destinatario; }
    void ponDestinatario(const QString &usuario) { m_destinatario = usuario; }
    const QString &Remitente() const { return m_remitente; }
    void ponRemitente(const QString &usuario) { m_remitente = usuario; }

    /// The encrypted blocks, a decimal number each.
    const QStringList &Bloques() const { return m_bloques; }

Q_SIGNALS:
    /// Why the message is not fit.
    void ErrorMensaje(QString &motivo);

private:
    void rechazaTexto();

    ClsRSA *m_clave = nullptr;
    QString m_nombreFichero, m_textoOriginal, m_asunto, m_destinatario, m_remitente;
    QStringList m_bloques;
    bool m_mensajeOK = false;
};
