#include "lessons/rsa/mailbox/Corresponsal.h"

#include "bignum/gateway/ModBignum.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

Corresponsal::Corresponsal(ClsRSA &propia) : m_propia(propia), m_clave(propia.sesion())
{
    QObject::connect(&m_propia, &ClsRSA::ValidaClave, &m_clave, [this](bool &bien) {
        if (bien)
            haVuelto();
    });
}

Corresponsal::Numeros Corresponsal::numerosDe(const QString &usuario) const
{
    // The user's folder is found without regard to case, so the name is compared so as well.
    const bool esPropio = usuario.compare(m_propia.fichero().usuario(), Qt::CaseInsensitive) == 0;
    return {leeClavePublica(m_propia.DirMensajes(), usuario), esPropio ? m_propia.t() : QString()};
}

void Corresponsal::elige(const QString &usuario)
{
    m_usuario = usuario;
    m_numeros = numerosDe(usuario);
    m_clave.ponq(0, m_numeros.publica.q);
    m_clave.pons(m_numeros.publica.s);
    m_clave.ponr(1);
    m_clave.pont(m_numeros.t);
    m_propia.fichero().aparta();
    m_propiaPisada = true;
    m_clave.ponClaveOK(true);
}

bool Corresponsal::claveSirve() const
{
    return PotenciaMod(u"0"_s, m_clave.s(), m_clave.q(0)) != TextoError;
}

bool Corresponsal::haCambiado() const
{
    return !m_usuario.isEmpty() && numerosDe(m_usuario) != m_numeros;
}

void Corresponsal::devuelveClavePropia()
{
    if (!m_propiaPisada)
        return;
    if (m_propia.ClaveOK())
        m_propia.SalvaClave();
    else
        m_propia.fichero().recupera();
    haVuelto();
}

/// The own key is in its file again.
void Corresponsal::haVuelto()
{
    if (std::exchange(m_propiaPisada, false))
        m_propia.fichero().retiraCopia();
}
