// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/grid/AvanceDeCopia.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"

#include <QHBoxLayout>
#include <QProgressBar>
#include <QPushButton>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

AvanceDeCopia::AvanceDeCopia(QWidget *rejilla) : QFrame(rejilla), m_barra(new QProgressBar(this))
{
    setAutoFillBackground(true);
    setFrameShape(QFrame::StyledPanel);
    m_barra->setObjectName(u"AvanceDeCopia"_s);
    m_barra->setAccessibleName(Traduce(u"Copiando…"_s));
    m_barra->setFormat(Traduce(u"Copiando…"_s) + u" %p %"_s);
    auto *boton = new QPushButton(this);
    boton->setObjectName(u"cmdDetenCopia"_s);
    boton->setFocusPolicy(Qt::NoFocus);
    const BotonDeCorrida::Aspecto detener{u"STOP"_s, Traduce(u"&Detener"_s),
                                          Traduce(u"Detener la copia"_s)};
    m_corrida = new BotonDeCorrida(boton, detener, detener);
    conecta(boton, &QPushButton::clicked, this, [this] { m_corrida->detiene(); });
    auto *fila = new QHBoxLayout(this);
    fila->addWidget(m_barra, 1);
    fila->addWidget(boton);
    // The first time a little later: most copies are done at once.
    m_timer.setInterval(200ms);
    connect(&m_timer, &QTimer::timeout, this, &AvanceDeCopia::muestra);
    for (const auto senal : {&BotonDeCorrida::detenida, &BotonDeCorrida::terminada}) {
        connect(m_corrida, senal, this, [this] {
            m_timer.stop();
            hide();
        });
    }
    hide();
}

BotonDeCorrida::Marcha AvanceDeCopia::empieza(int filas, Billete billete)
{
    m_hechas = 0;
    m_barra->setRange(0, filas);
    m_timer.start();
    return m_corrida->empieza(std::move(billete));
}

void AvanceDeCopia::muestra()
{
    m_barra->setValue(m_hechas);
    const QRect pie = parentWidget()->rect();
    const int alto = sizeHint().height();
    setGeometry(0, pie.height() - alto, pie.width(), alto);
    raise();
    show();
}
