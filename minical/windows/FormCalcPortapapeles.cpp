// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcPortapapeles.h"

#include "minical/HojaDeCalculo.h"
#include "minical/TextosDeHoja.h"
#include "minical/windows/FormCalcRejilla.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"

#include <QApplication>
#include <QClipboard>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

int anchoDe(const QList<QStringList> &bloque)
{
    qsizetype ancho = 1;
    for (const QStringList &fila : bloque)
        ancho = std::max(ancho, fila.size());
    return static_cast<int>(ancho);
}

} // namespace

FormCalcPortapapeles::FormCalcPortapapeles(HojaDeCalculo &hoja, FormCalcRejilla &rejilla,
                                           QWidget *padre)
    : QWidget(padre), m_hoja(hoja), m_rejilla(rejilla)
{
    hide();
    auto *boton = new QPushButton(this);
    boton->setObjectName(u"cmdDetener"_s);
    const BotonDeCorrida::Aspecto aspecto{u"STOP"_s, Traduce(u"D&etener"_s),
                                          Traduce(u"Deja de pegar; lo pegado se queda"_s)};
    m_cmdDetener = new BotonDeCorrida(boton, aspecto, aspecto);
    auto *fila = new QHBoxLayout(this);
    fila->addWidget(new QLabel(Traduce(u"Calculando lo que se ha pegado…"_s), this));
    fila->addStretch();
    fila->addWidget(boton);
    conecta(boton, &QPushButton::clicked, this, [this] { m_cmdDetener->detiene(); });
    conecta(m_cmdDetener, &BotonDeCorrida::empezada, this, [this, boton] {
        show();
        Q_EMIT pegando(true);
        boton->setFocus();
    });
    conecta(m_cmdDetener, &BotonDeCorrida::terminada, this, [this] {
        hide();
        Q_EMIT pegando(false);
    });
}

void FormCalcPortapapeles::copia(bool expresiones)
{
    QList<Celda> celdas = m_rejilla.seleccionadas();
    // The commands look at no header; there the texts are empty.
    if (celdas.isEmpty())
        celdas << m_rejilla.actual();
    QApplication::clipboard()->setText(textoDeCeldas(m_hoja, celdas, expresiones));
}

Tarea<> FormCalcPortapapeles::pega(Billete billete)
{
    const QString texto = QApplication::clipboard()->text();
    if (texto.isEmpty() || m_cmdDetener->enMarcha())
        co_return;
    if (!m_rejilla.actual().esDeDatos())
        m_rejilla.setCurrentIndex(m_rejilla.model()->index(0, 0));
    const QList<Celda> elegidas = m_rejilla.seleccionadas();
    const QList<QStringList> bloque = bloqueParaPegar(texto, elegidas);
    const Celda esquina = elegidas.constFirst();
    auto marcha = m_cmdDetener->empieza(billete);
    const bool todo = co_await m_hoja.pega(esquina, bloque, billete);
    marcha.termina();
    m_rejilla.elige(esquina, {esquina.fila + static_cast<int>(bloque.size()) - 1,
                              esquina.columna + anchoDe(bloque) - 1});
    Q_EMIT pegada();
    if (!todo)
        interlocutor().avisa(this, Interlocutor::Icono::Exclamacion,
                             Traduce(u"Parte de lo que se ha pegado no cabe en la hoja."_s),
                             Traduce(u"Mini hoja de cálculo"_s));
}
