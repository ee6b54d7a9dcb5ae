// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSADestinatario.h"

#include "lessons/rsa/windows/FormClaveRSA.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

FormRSADestinatario::FormRSADestinatario(QComboBox *campo, QLabel *rotulo, const QWidget *lista,
                                         std::shared_ptr<ClsRSA> clave, QWidget *panel)
    : QObject(panel),
      m_campo(campo),
      m_rotulo(rotulo),
      m_panel(panel),
      m_corresponsal(std::move(clave)),
      m_ventanaClave(new FormClaveRSA(panel, lista))
{
    campo->setCurrentText({});
    // The field within has the focus, and screen readers tell its name.
    campo->lineEdit()->setAccessibleName(campo->accessibleName());
    const auto elegido = [this] { evento(m_panel, [this] { cmbDestinatario_Click(); }); };
    connect(campo, &QComboBox::activated, this, elegido);
    connect(campo->lineEdit(), &QLineEdit::returnPressed, this, elegido);
    connect(campo->lineEdit(), &QLineEdit::editingFinished, this,
            [this] { evento(m_panel, [this] { cmbDestinatario_Validate(); }); });
    connect(m_ventanaClave, &FormClaveRSA::puedeRecibir, this, &FormRSADestinatario::cambia);
}

QString FormRSADestinatario::t() const
{
    return m_ventanaClave->t();
}

void FormRSADestinatario::elige(const QString &usuario)
{
    m_campo->setCurrentText(usuario);
    m_rotulo->setText(Traduce(u"Mensaje para "_s) + usuario);
    const auto alFinal = qScopeGuard([this] {
        m_ventanaClave->ponCorresponsal(m_corresponsal.usuario(), m_corresponsal.clave());
        if (m_panel->isVisible())
            m_ventanaClave->muestra();
        Q_EMIT cambia();
    });
    m_corresponsal.elige(usuario);
}

void FormRSADestinatario::actualiza()
{
    if (m_corresponsal.haCambiado())
        elige(m_corresponsal.usuario());
}

void FormRSADestinatario::olvida()
{
    m_corresponsal.olvida();
    m_rotulo->setText(Traduce(u"Mensaje"_s));
    m_ventanaClave->hide();
    Q_EMIT cambia();
}

void FormRSADestinatario::ofrece(const QStringList &usuarios)
{
    const QString escrito = m_campo->currentText();
    m_campo->clear();
    m_campo->addItems(usuarios);
    m_campo->setCurrentText(escrito);
}

void FormRSADestinatario::aparece()
{
    if (m_corresponsal.usuario().isEmpty())
        return;
    m_ventanaClave->muestra();
    evento(m_panel, [this] { actualiza(); });
}

void FormRSADestinatario::desaparece()
{
    m_ventanaClave->hide();
    // Before the topic is left, so that no way of going on loses the own key.
    evento(m_panel, [this] { m_corresponsal.devuelveClavePropia(); });
}

void FormRSADestinatario::cmbDestinatario_Click()
{
    nombra(m_campo->currentText().trimmed());
}

void FormRSADestinatario::cmbDestinatario_Validate()
{
    // A field that is merely left chooses nobody anew.
    const QString usuario = m_campo->currentText().trimmed();
    if (usuario != m_corresponsal.usuario())
        nombra(usuario);
}

void FormRSADestinatario::nombra(const QString &usuario)
{
    const bool esOtro = usuario != m_corresponsal.usuario();
    Q_EMIT nombrado(usuario);
    if (usuario.isEmpty())
        olvida();
    else if (esOtro)
        elige(usuario);
    else
        actualiza();
}
