// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/Corresponsal.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"

#include <utility>

using namespace Qt::Literals::StringLiterals;

Corresponsal::Corresponsal(std::shared_ptr<ClsRSA> propia)
    : m_propia(std::move(propia)), m_clave(m_propia->sesion())
{
    QObject::connect(m_propia.get(), &ClsRSA::ValidaClave, &m_clave, [this](bool &bien) {
        if (bien)
            haVuelto();
    });
}

Corresponsal::~Corresponsal()
{
    try {
        devuelveClavePropia();
    } catch (const ErrorEjecucion &) {
        // The window is gone; there is nobody left to tell.
    }
}

Corresponsal::Numeros Corresponsal::numerosDe(const QString &usuario) const
{
    // The user's folder is found without regard to case, so the name is compared so as well.
    const bool esPropio = usuario.compare(m_propia->fichero().usuario(), Qt::CaseInsensitive) == 0;
    return {leeClavePublica(m_propia->DirMensajes(), usuario),
            esPropio ? m_propia->t() : QString()};
}

void Corresponsal::elige(const QString &usuario)
{
    m_usuario = usuario;
    m_numeros = numerosDe(usuario);
    m_clave.ponq(0, m_numeros.publica.q);
    m_clave.pons(m_numeros.publica.s);
    m_clave.ponr(1);
    m_clave.pont(m_numeros.t);
    m_propia->fichero().aparta();
    m_propiaPisada = true;
    m_clave.ponClaveOK(true);
}

bool Corresponsal::claveSirve() const
{
    return !esError(PotenciaMod(u"0"_s, m_clave.s(), m_clave.q(0)));
}

bool Corresponsal::haCambiado() const
{
    return !m_usuario.isEmpty() && numerosDe(m_usuario) != m_numeros;
}

void Corresponsal::devuelveClavePropia()
{
    if (!m_propiaPisada)
        return;
    if (m_propia->ClaveOK())
        m_propia->SalvaClave();
    else
        m_propia->fichero().recupera();
    haVuelto();
}

/// The own key is in its file again.
void Corresponsal::haVuelto()
{
    if (std::exchange(m_propiaPisada, false))
        m_propia->fichero().retiraCopia();
}
