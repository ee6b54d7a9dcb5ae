// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormRSARedaccion.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/rsa/windows/FormRSATexto.h"
#include "shell/core/ModGlobal.h"

#include <QLineEdit>
#include <QScopedValueRollback>
#include <utility>

using namespace Qt::Literals::StringLiterals;

FormRSARedaccion::FormRSARedaccion(QLineEdit *asunto, FormRSATexto *texto, const QString &carpeta,
                                   QObject *padre)
    : QObject(padre),
      m_asunto(asunto),
      m_texto(texto),
      m_copia(
          carpeta, u"RSA.borradores"_s,
          [this] {
              recoge();
              return m_borradores.bytes();
          },
          this)
{
    connect(asunto, &QLineEdit::textChanged, this, &FormRSARedaccion::alCambiar);
    connect(texto, &FormRSATexto::textChanged, this, &FormRSARedaccion::alCambiar);
    connect(&m_copia, &CopiaDeTrabajo::fallida, this, [this](const ErrorEjecucion &motivo) {
        Q_EMIT avisa(Traduce(u"No se pueden guardar los borradores."_s) + u' ' + motivo.texto());
    });
}

void FormRSARedaccion::recupera()
{
    m_borradores.lee(m_copia.guardada());
    dirige({});
}

QString FormRSARedaccion::asunto() const
{
    return m_asunto->text();
}

QString FormRSARedaccion::texto() const
{
    return m_texto->toPlainText();
}

void FormRSARedaccion::pon(const QString &asunto, const QString &texto)
{
    const QScopedValueRollback<bool> mostrando(m_mostrando, true);
    m_asunto->setText(asunto);
    m_texto->ponTexto(texto);
}

void FormRSARedaccion::alCambiar()
{
    if (!m_mostrando) {
        m_escrito = true;
        m_copia.cambia();
    }
    Q_EMIT cambiada();
}

/// Brings the draft up to what was written.
void FormRSARedaccion::recoge()
{
    if (std::exchange(m_escrito, false))
        m_numero = m_borradores.pon({m_numero, m_destinatario, asunto(), texto()});
}

void FormRSARedaccion::muestraMensaje(const QString &destinatario, const QString &asunto,
                                      const QString &texto)
{
    recoge();
    if (m_numero != 0)
        Q_EMIT avisa(
            m_destinatario.isEmpty()
                ? Traduce(u"Lo que escribía se guarda como borrador."_s)
                : Traduce(u"Lo que escribía a %1 se guarda como borrador."_s).arg(m_destinatario));
    m_numero = 0;
    m_destinatario = destinatario;
    pon(asunto, texto);
}

bool FormRSARedaccion::dirige(const QString &destinatario)
{
    recoge();
    const QString anterior = std::exchange(m_destinatario, destinatario);
    const auto borrador = m_borradores.ultimoPara(destinatario);
    if (borrador.numero != 0 && borrador.numero != m_numero) {
        m_numero = borrador.numero;
        pon(borrador.asunto, borrador.texto);
        Q_EMIT avisa(Traduce(u"Este borrador está sin enviar."_s));
        return true;
    }
    // A draft stays with the one whom it was written to, or goes to the first who is named.
    if (borrador.numero == 0 && !anterior.isEmpty())
        m_numero = 0;
    m_escrito = m_numero != 0;
    return false;
}

void FormRSARedaccion::enviado(const QString &asunto, const QString &texto)
{
    // What was changed while the message was on its way has not been sent.
    if (asunto != this->asunto() || texto != this->texto())
        return;
    m_borradores.quita(m_numero);
    m_numero = 0;
    m_escrito = false;
    m_copia.cambia();
}

QStringList FormRSARedaccion::pendientes()
{
    recoge();
    QStringList nombres = m_borradores.destinatarios();
    nombres.removeIf([this](const QString &nombre) {
        return nombre.compare(m_destinatario, Qt::CaseInsensitive) == 0;
    });
    return nombres;
}
