// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/ArchivoProvisional.h"

#include <QRandomGenerator>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Principio = u".numora-", Fin = u".tmp";

} // namespace

ArchivoProvisional::ArchivoProvisional(const CarpetaCompartida &carpeta,
                                       const QByteArray &contenido)
    : m_carpeta(carpeta.m_carpeta),
      m_provisional(u"%1%2%3"_s.arg(
          Principio, QString::number(QRandomGenerator::system()->generate64(), 16), Fin)),
      m_hecho(m_carpeta.escribeNuevo(m_provisional, contenido))
{
}

/// Under the first name it is gone already where files have only one.
ArchivoProvisional::~ArchivoProvisional()
{
    m_carpeta.quita(m_provisional);
}

bool ArchivoProvisional::nombraSiLibre(const QString &nombre)
{
    return m_carpeta.nombraSiLibre(m_provisional, nombre);
}

void ArchivoProvisional::nombra(const QString &nombre)
{
    m_carpeta.renombra(m_provisional, nombre);
}

void ArchivoProvisional::quitaAbandonados(const QStringList &entradas) const
{
    constexpr qint64 dia = 24 * 60 * 60;
    for (const QString &entrada : entradas) {
        if (!entrada.startsWith(Principio) || !entrada.endsWith(Fin))
            continue;
        const auto escrito = m_carpeta.escritoEn(entrada);
        if (escrito && *escrito <= m_hecho - dia)
            m_carpeta.quita(entrada);
    }
}
