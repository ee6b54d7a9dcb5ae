// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/Borradores.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

Borradores::Borrador Borradores::ultimoPara(const QString &destinatario) const
{
    const auto suyo =
        std::find_if(m_borradores.rbegin(), m_borradores.rend(), [&](const Borrador &borrador) {
            return borrador.destinatario.compare(destinatario, Qt::CaseInsensitive) == 0;
        });
    return suyo == m_borradores.rend() ? Borrador() : *suyo;
}

QStringList Borradores::destinatarios() const
{
    QStringList nombres;
    for (const Borrador &borrador : m_borradores) {
        if (!borrador.destinatario.isEmpty() &&
            !nombres.contains(borrador.destinatario, Qt::CaseInsensitive))
            nombres << borrador.destinatario;
    }
    nombres.sort(Qt::CaseInsensitive);
    return nombres;
}

int Borradores::pon(Borrador borrador)
{
    const int numero = borrador.numero;
    if (borrador.vacio()) {
        quita(numero);
        return 0;
    }
    const auto mismo = std::find_if(m_borradores.begin(), m_borradores.end(),
                                    [numero](const Borrador &b) { return b.numero == numero; });
    if (mismo != m_borradores.end()) {
        *mismo = std::move(borrador);
        return numero;
    }
    borrador.numero = ++m_ultimoNumero;
    m_borradores << std::move(borrador);
    return m_ultimoNumero;
}

void Borradores::quita(int numero)
{
    m_borradores.removeIf([numero](const Borrador &b) { return b.numero == numero; });
}

QByteArray Borradores::bytes() const
{
    QJsonArray lista;
    for (const Borrador &borrador : m_borradores)
        lista << QJsonObject{{u"para"_s, borrador.destinatario},
                             {u"asunto"_s, borrador.asunto},
                             {u"texto"_s, borrador.texto}};
    return lista.isEmpty() ? QByteArray() : QJsonDocument(lista).toJson();
}

void Borradores::lee(const QByteArray &bytes)
{
    m_borradores.clear();
    const QJsonArray lista = QJsonDocument::fromJson(bytes).array();
    for (const QJsonValue &uno : lista)
        pon({0, uno[u"para"_s].toString(), uno[u"asunto"_s].toString(),
             uno[u"texto"_s].toString()});
}
