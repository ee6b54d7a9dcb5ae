// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSA.h"

#include "lessons/rsa/windows/FormRSAClave.h"
#include "lessons/rsa/windows/FormRSACodificacion.h"
#include "lessons/rsa/windows/FormRSAComun.h"
#include "lessons/rsa/windows/FormRSAMensajes.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

#include <QScopeGuard>
#include <QTimer>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString TemaMensajes = u"env-rec"_s;

} // namespace

FormRSA::FormRSA(QWidget *padre)
    : FormLeccion(u"RSA.html"_s, padre),
      m_clave(std::make_shared<ClsRSA>(Sesión())),
      m_panelClave(new FormRSAClave(m_clave, this)),
      m_panelCodificacion(new FormRSACodificacion(m_clave, this)),
      m_panelMensajes(new FormRSAMensajes(m_clave, this))
{
    setObjectName(u"FormRSA"_s);
    setWindowTitle(Traduce(u"R.S.A."_s));
    setWindowIcon(Icono(u"RSA"_s));
    agregaIntroduccion(u"Introducción"_s);
    agregaTema(u"Elección de clave"_s, {}, m_panelClave, m_panelClave->pasos());
    agregaTema(u"Codificación y descodificación"_s, u"cod-decod"_s, m_panelCodificacion,
               m_panelCodificacion->pasos());
    m_panelMensajes->hide();

    conecta(m_clave.get(), &ClsRSA::ValidaClave, this, &FormRSA::Clave_ValidaClave);
    conecta(m_clave.get(), &ClsRSA::CambiaBuzon, this, &FormRSA::Clave_CambiaBuzon);
    conecta(m_panelClave, &FormRSAClave::validada, this, &FormRSA::actualizaBuzon);
    conecta(m_panelMensajes, &FormRSAMensajes::buzonPerdido, this, &FormRSA::actualizaBuzon);
    // A long key is tested once the window is there to say so.
    if (m_clave->fichero().esLarga())
        QTimer::singleShot(0, this, [this] { evento(this, [this] { abre(); }); });
    else
        evento(this, [this] { abre(); });
}

FormRSA::~FormRSA()
{
    // The panels go after the window, and share the key until then; what still happens in them is
    // nobody's any more.
    m_clave->disconnect(this);
    m_panelClave->disconnect(this);
    m_panelMensajes->disconnect(this);
}

void FormRSA::abre()
{
    const auto alFinal = qScopeGuard([this] { unsetCursor(); });
    if (isVisible()) {
        setCursor(Qt::WaitCursor);
        m_panelClave->avisaDeEspera();
        repaint();
    }
    // A damaged key file is told, and does not keep the mailbox away.
    evento(this, [this] { recuperaClave(); });
    m_panelClave->muestraClave();
    m_clave->ponDirMensajes(m_clave->DirMensajes());
}

void FormRSA::recuperaClave()
{
    if (m_clave->fichero().recupera())
        interlocutor().avisa(
            this, Interlocutor::Icono::Informacion,
            Traduce(
                u"La última sesión acabó de repente. Su clave privada ha vuelto a su archivo."_s),
            Traduce(u"Clave recuperada"_s));
    m_clave->RecuperaClave();
}

void FormRSA::Clave_ValidaClave(bool bien, const QString &mensaje)
{
    if (bien)
        m_panelClave->muestraClave();
    m_panelClave->muestraVeredicto(bien, mensaje);
    m_panelCodificacion->permiteCodificar(bien);
    if (!bien)
        avisa(Interlocutor::Icono::Critico, abreviaNumeros(mensaje),
              Traduce(u"Error en la clave"_s));
}

/// A box finds its place over a window that is there: one that is being opened is waited for.
void FormRSA::avisa(Interlocutor::Icono icono, const QString &texto, const QString &titulo)
{
    const auto muestra = [this, icono, texto, titulo] {
        interlocutor().avisa(this, icono, texto, titulo);
    };
    if (isVisible())
        muestra();
    else
        QTimer::singleShot(0, this, muestra);
}

void FormRSA::Clave_CambiaBuzon()
{
    actualizaBuzon();
    m_panelMensajes->revisaPronto();
}

/// The topic of messages is there for as long as there is a mailbox and a key to use it with.
void FormRSA::actualizaBuzon()
{
    const bool listo = ExisteFichero(m_clave->DirMensajes()) && m_clave->ClaveOK();
    m_panelClave->muestraBuzon(listo);
    if (listo && !tieneTema(TemaMensajes))
        agregaTema(u"Enviar y recibir"_s, TemaMensajes, m_panelMensajes);
    else if (!listo)
        quitaTema(TemaMensajes);
}
