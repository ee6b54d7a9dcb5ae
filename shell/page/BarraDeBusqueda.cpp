// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/page/BarraDeBusqueda.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/page/NavegadorPagina.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QStyle>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

BarraDeBusqueda::BarraDeBusqueda(NavegadorPagina *pagina, QWidget *padre)
    : QWidget(padre), m_pagina(pagina), m_texto(new QLineEdit(this)), m_cuenta(new QLabel(this))
{
    m_texto->setObjectName(u"txtBuscar"_s);
    m_texto->setAccessibleName(Traduce(u"Buscar en la página"_s));
    m_texto->setPlaceholderText(Traduce(u"Buscar en la página"_s));
    m_texto->setClearButtonEnabled(true);
    m_cuenta->setObjectName(u"lblHallazgos"_s);
    auto *fila = new QHBoxLayout(this);
    fila->setContentsMargins(Aspecto::Margen, Aspecto::Espacio / 2, Aspecto::Margen,
                             Aspecto::Espacio / 2);
    fila->addWidget(m_texto, 1);
    const auto agregaBoton = [&](const QString &nombre, const QString &rotulo, Qt::ArrowType flecha,
                                 auto hace) {
        auto *boton = new QToolButton(this);
        boton->setObjectName(nombre);
        boton->setToolTip(rotulo);
        boton->setAccessibleName(rotulo);
        boton->setAutoRaise(true);
        boton->setFocusPolicy(Qt::StrongFocus);
        boton->setArrowType(flecha);
        fila->addWidget(boton);
        conecta(boton, &QToolButton::clicked, this, hace);
        return boton;
    };
    agregaBoton(u"cmdHallazgoAnterior"_s, Traduce(u"Anterior en la página (Mayús+F3)"_s),
                Qt::UpArrow, [this] { avanza(-1); });
    agregaBoton(u"cmdHallazgoSiguiente"_s, Traduce(u"Siguiente en la página (F3)"_s), Qt::DownArrow,
                [this] { avanza(1); });
    fila->addWidget(m_cuenta);
    agregaBoton(u"cmdCerrarBusqueda"_s, Traduce(u"Cerrar la búsqueda (Esc)"_s), Qt::NoArrow,
                [this] {
                    hide();
                    m_pagina->setFocus();
                })
        ->setIcon(style()->standardIcon(QStyle::SP_TitleBarCloseButton));
    conecta(m_texto, &QLineEdit::textChanged, this, &BarraDeBusqueda::txtBuscar_Change);
    conecta(m_texto, &QLineEdit::returnPressed, this, [this] { avanza(1); });
    // Places are those of the page that was searched; one that is folded anew has the same.
    connect(m_pagina, &NavegadorPagina::sourceChanged, this, [this](const QUrl &direccion) {
        if (isVisible() && std::exchange(m_buscada, direccion.path()) != direccion.path())
            txtBuscar_Change();
    });
    hide();
}

void BarraDeBusqueda::abre()
{
    show();
    m_buscada = m_pagina->source().path();
    const QString elegido = m_pagina->textCursor().selectedText();
    constexpr qsizetype palabras = 60; // more than that was not selected to be looked for
    if (!elegido.isEmpty() && elegido.size() < palabras)
        m_texto->setText(elegido);
    m_texto->setFocus();
    m_texto->selectAll();
}

void BarraDeBusqueda::txtBuscar_Change()
{
    m_hallazgos = m_pagina->busca(m_texto->text());
    m_actual = 0;
    m_pagina->muestraHallazgo(m_actual);
    muestraCuenta();
}

void BarraDeBusqueda::avanza(int pasos)
{
    if (m_hallazgos == 0)
        return;
    m_actual = (m_actual + pasos + m_hallazgos) % m_hallazgos;
    m_pagina->muestraHallazgo(m_actual);
    muestraCuenta();
}

void BarraDeBusqueda::muestraCuenta()
{
    QString cuenta;
    if (m_hallazgos > 0)
        cuenta = Traduce(u"%1 de %2"_s).arg(m_actual + 1).arg(m_hallazgos);
    else if (!m_texto->text().isEmpty())
        cuenta = Traduce(u"No está en la página"_s);
    m_cuenta->setText(cuenta);
    m_texto->setAccessibleDescription(cuenta);
}
