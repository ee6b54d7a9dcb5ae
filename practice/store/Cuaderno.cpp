// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/store/Cuaderno.h"

#include "practice/store/AlmacenDeProgreso.h"

#include <QDate>
#include <QFile>

Cuaderno::Cuaderno(const QString &carpeta, bool guarda) : m_carpeta(carpeta)
{
    if (!guarda)
        return;
    m_almacen = std::make_unique<AlmacenDeProgreso>(m_carpeta);
    m_hechos = m_almacen->hechos();
}

Cuaderno::~Cuaderno() = default;

QString Cuaderno::aviso() const
{
    return m_almacen ? m_almacen->aviso() : QString();
}

bool Cuaderno::guarda() const
{
    return m_almacen && m_almacen->abierto();
}

void Cuaderno::ponGuarda(bool guarda)
{
    if (!guarda) {
        m_almacen.reset();
    } else if (!this->guarda()) {
        m_almacen = std::make_unique<AlmacenDeProgreso>(m_carpeta);
        m_hechos = m_almacen->hechos();
        ++m_lectura;
    }
}

QString Cuaderno::anota(Hecho hecho, Lugar &lugar)
{
    hecho.dia = hoy();
    if (lugar.enMemoria < 0 || lugar.lectura != m_lectura) {
        lugar = {m_hechos.size(), 0, m_lectura};
        m_hechos << hecho;
    } else {
        m_hechos[lugar.enMemoria] = hecho;
    }
    return m_almacen ? m_almacen->anota(hecho, lugar.enBase) : QString();
}

QString Cuaderno::borraTodo()
{
    QString motivo;
    if (m_almacen)
        motivo = m_almacen->borraTodo();
    else if (QFile::exists(m_carpeta + u'/' + AlmacenDeProgreso::nombreDeArchivo()))
        motivo = AlmacenDeProgreso(m_carpeta).borraTodo();
    if (motivo.isEmpty()) {
        m_hechos.clear();
        ++m_lectura;
    }
    return motivo;
}

qint64 Cuaderno::hoy()
{
    return QDate::currentDate().toJulianDay();
}
