// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/BotonDeCorrida.h"

#include "shell/controls/ReproductorAVI.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

#include <QAbstractButton>
#include <QLabel>

using namespace Qt::Literals::StringLiterals;

BotonDeCorrida::Aspecto BotonDeCorrida::calcular()
{
    return {u"CALCULAR"_s, Traduce(u"&Calcular"_s), Traduce(u"Calcular"_s)};
}

BotonDeCorrida::Aspecto BotonDeCorrida::detener()
{
    return {u"STOP"_s, Traduce(u"&Detener"_s), Traduce(u"Detener cálculo"_s)};
}

BotonDeCorrida::BotonDeCorrida(QAbstractButton *boton, Aspecto enReposo, Aspecto enMarcha)
    : QObject(boton),
      m_boton(boton),
      m_aspectoEnReposo(std::move(enReposo)),
      m_aspectoEnMarcha(std::move(enMarcha))
{
    connect(&m_timer, &QTimer::timeout, this, &BotonDeCorrida::muestraTiempo);
    viste(m_aspectoEnReposo);
}

QAbstractButton *BotonDeCorrida::boton() const
{
    return m_boton;
}

void BotonDeCorrida::ponReloj(QLabel *rotulo, std::chrono::milliseconds intervalo)
{
    m_reloj = rotulo;
    m_timer.setInterval(intervalo);
}

void BotonDeCorrida::ponEspera(QWidget *donde)
{
    m_espera = donde;
}

void BotonDeCorrida::ponAnimacion(ReproductorAVI *animacion)
{
    m_animacion = animacion;
}

void BotonDeCorrida::anuncia()
{
    ++m_turno;
    viste(m_aspectoEnMarcha);
    if (m_espera)
        m_espera->setCursor(Qt::WaitCursor);
}

BotonDeCorrida::Marcha BotonDeCorrida::empieza(Billete billete)
{
    m_billete = billete;
    m_enMarcha = true;
    m_inicio = std::chrono::steady_clock::now();
    anuncia();
    if (m_animacion && m_animacion->estado() != ReproductorAVI::Reproduciendo)
        m_animacion->reproduce(ReproductorAVI::Modo::Continuo);
    if (m_reloj)
        m_timer.start();
    muestraTiempo();
    Q_EMIT empezada();
    return {this, std::move(billete)};
}

void BotonDeCorrida::detiene()
{
    if (!m_enMarcha)
        return;
    m_billete.detener();
    if (m_reposo == Reposo::AlDetener)
        reposa();
    Q_EMIT detenida();
}

void BotonDeCorrida::vuelve(std::uint64_t turno)
{
    if (turno != m_turno)
        return;
    if (m_reloj)
        muestraTiempo();
    reposa();
    Q_EMIT terminada();
}

void BotonDeCorrida::reposa()
{
    m_enMarcha = false;
    m_timer.stop();
    viste(m_aspectoEnReposo);
    if (m_espera)
        m_espera->unsetCursor();
    if (m_animacion)
        m_animacion->para();
}

void BotonDeCorrida::viste(const Aspecto &aspecto)
{
    if (!m_boton)
        return;
    m_boton->setIcon(aspecto.imagen == u"STOP"_s ? ImgStop() : Icono(aspecto.imagen));
    m_boton->setText(aspecto.texto);
    m_boton->setToolTip(aspecto.consejo);
    m_boton->setAccessibleName(aspecto.consejo);
}

void BotonDeCorrida::muestraTiempo()
{
    if (m_reloj)
        m_reloj->setText(tiempo());
}

QString BotonDeCorrida::tiempo() const
{
    const auto ahora = std::chrono::steady_clock::now();
    return formatoTiempo(std::chrono::duration_cast<std::chrono::milliseconds>(ahora - m_inicio));
}

BotonDeCorrida::Marcha::Marcha(BotonDeCorrida *boton, Billete billete)
    : m_boton(boton), m_billete(std::move(billete)), m_turno(boton->m_turno)
{
}

BotonDeCorrida::Marcha::Marcha(Marcha &&otra) noexcept
    : m_boton(std::exchange(otra.m_boton, nullptr)),
      m_billete(std::move(otra.m_billete)),
      m_turno(otra.m_turno)
{
}

BotonDeCorrida::Marcha::~Marcha()
{
    termina();
}

bool BotonDeCorrida::Marcha::vigente() const
{
    return m_boton && m_boton->m_turno == m_turno;
}

void BotonDeCorrida::Marcha::termina()
{
    if (BotonDeCorrida *boton = std::exchange(m_boton, nullptr))
        boton->vuelve(m_turno);
}
