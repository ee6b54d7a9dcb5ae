// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "lessons/rsa/key/Cifrado.h"
#include "lessons/rsa/key/FicheroDeClave.h"

#include <QHash>
#include <QObject>
#include <QString>
#include <QStringList>
#include <array>
#include <cstdint>

/// An RSA key: two primes q(1) and q(2), their product q(0), Fi(Q) = (q(1)-1)·(q(2)-1), the public
/// exponent s, the private exponent t (the inverse of s modulo Fi(Q)) and the number r of
/// characters in a block. Numbers are texts of decimal digits. After a change of the numbers,
/// `Valida` decides whether the key is good and computes the rest.
///
/// Source: R. L. Rivest, A. Shamir, L. Adleman, "A Method for Obtaining Digital Signatures and
/// Public-Key Cryptosystems", 1978; without padding, as befits a lesson and no secret.
class ClsRSA : public QObject
{
    Q_OBJECT

public:
    /// The most digits of a number of a key, which is what a value of a key file holds.
    static constexpr int MaximoDeCifras = 8191;

    /// `sesion` is whose settings and files these are; it outlives the key.
    explicit ClsRSA(clsSesión &sesion) : m_sesion(sesion), m_fichero(sesion) {}

    clsSesión &sesion() const { return m_sesion; }
    const FicheroDeClave &fichero() const { return m_fichero; }

    /// The shared mailbox folder, kept in the user's settings and read from there at each access.
    QString DirMensajes() const;
    /// Stores the folder and raises CambiaBuzon.
    void ponDirMensajes(const QString &carpeta);

    /// The size in bits that the lesson demands; 0 or less demands nothing.
    std::int16_t NBitsRequeridos() const { return m_nbitsRequeridos; }
    void ponNBitsRequeridos(std::int16_t bits) { m_nbitsRequeridos = bits; }

    const QString &FiQ() const { return m_fiQ; }
    void ponFiQ(const QString &valor) { m_fiQ = valor; }

    /// A text for the owner of the key to leave an error in; the key itself writes none.
    const QString &Errores() const { return m_errores; }
    void ponErrores(const QString &texto) { m_errores = texto; }

    /// Whether the key has passed the validation.
    bool ClaveOK() const { return m_claveOK; }
    /// Setting it to true saves the key at once; throws what SalvaClave throws.
    void ponClaveOK(bool bien);

    /// The size of q(0) in bits, as of the last validation.
    std::int16_t nbits() const { return m_nbits; }
    void ponnbits(std::int16_t bits) { m_nbits = bits; }

    /// Writes the private key file. Throws ErrorEjecucion naming the file when it cannot be.
    void SalvaClave() const;
    /// Reads the private key file, if there is one, and validates the key. Throws Desbordamiento
    /// for an r or a size beyond 16 bits.
    void RecuperaClave();

    std::int16_t r() const { return m_r; }
    void ponr(std::int16_t caracteres) { m_r = caracteres; }
    const QString &t() const { return m_t; }
    void pont(const QString &valor) { m_t = valor; }
    const QString &s() const { return m_s; }
    void pons(const QString &valor) { m_s = valor; }
    /// Indices 0 to 2; others throw IndiceFueraDeRango.
    const QString &q(int i) const;
    void ponq(int i, const QString &valor);

    /// Checks the primes, computes q(0), Fi(Q), nbits and t, and raises ValidaClave with the
    /// verdict; nothing is raised while a prime or s is missing. The key is saved as soon as it is
    /// found good, and again with its t. Throws Desbordamiento for numbers beyond MaximoDeCifras.
    void Valida();

    /// What Valida would object to in these numbers, in the same words and order; empty when
    /// nothing, or while one of them is missing. Changes nothing.
    QString Objecion() const;

    /// The numbers that Valida would test for being prime, and nobody has tested yet.
    QStringList porProbar() const;
    /// What is known of one of them: it is not tested again.
    void sabe(const QString &numero, bool primo) const;

    /// The path of the private key file: the working folder and the login name, or the user's data
    /// folder where the working folder cannot be written.
    QString FicheroClavePrivada() const;

    /// Writes q(0) and s into the user's sub-folder of the mailbox, which is made if missing.
    /// Throws ErrorEjecucion when that cannot be done.
    void PublicaClave() const;

    /// The text encrypted with s and q(0) as they are now, whatever becomes of them during the run;
    /// see `codifica`.
    Tarea<QStringList> Codifica(const QString &texto, Billete billete) const;

    /// The text that the blocks give when decrypted with t and q(0) as they are now; see
    /// `descodifica`.
    Tarea<QString> DesCodifica(const QStringList &bloques, Billete billete) const;
    /// The powers that decrypt a block, with t and q(0) as they are now.
    Potencias paraDescodificar() const { return {m_t, m_q[0]}; }

Q_SIGNALS:
    /// The verdict of Valida.
    void ValidaClave(bool &claveOK, const QString &mensaje);
    /// DirMensajes was set.
    void CambiaBuzon(QString &carpeta);

private:
    bool faltanDatos() const;
    bool cabe() const;
    void compruebaTamano() const;
    bool esPrimo(const QString &numero) const;
    QString objecionAPrimo(int i) const;
    QString objecionATamano(std::int32_t bits) const;
    void rechaza(const QString &mensaje);

    clsSesión &m_sesion;
    mutable QHash<QString, bool> m_probados; ///< of the numbers tested last, which are prime
    FicheroDeClave m_fichero;
    std::array<QString, 3> m_q;
    QString m_fiQ, m_s, m_t, m_errores;
    std::int16_t m_nbitsRequeridos = 0;
    std::int16_t m_nbits = 0;
    std::int16_t m_r = 0;
    bool m_claveOK = false;
};
