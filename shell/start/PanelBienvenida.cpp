// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/PanelBienvenida.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Leccion.h"
#include "shell/look/Aspecto.h"
#include "shell/start/MenuLecciones.h"
#include "shell/start/TarjetasDeLecciones.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The invitation to go on practising, where it is seen at once on the smallest screen, then the
/// lessons, and behind them the practice window.
QList<Leccion> tarjetasDe(const Contenido &contenido)
{
    const Leccion &practicas = contenido.practicas.ventana;
    if (!practicas.crea)
        return contenido.lecciones;
    Leccion sigue = practicas;
    sigue.icono = u"SIGUIENTE"_s;
    sigue.rotulo = u"Seguir practicando"_s;
    return QList{sigue} + contenido.lecciones + QList{practicas};
}

/// The order of the course, for those who do not know where to begin; empty without one.
QString ordenDelCurso(QList<Leccion> lecciones)
{
    lecciones.removeIf([](const Leccion &leccion) { return leccion.orden == 0; });
    std::sort(lecciones.begin(), lecciones.end(),
              [](const Leccion &una, const Leccion &otra) { return una.orden < otra.orden; });
    QStringList rotulos;
    for (const Leccion &leccion : lecciones)
        rotulos << Traduce(leccion.rotulo);
    if (rotulos.isEmpty())
        return {};
    const QString primera = rotulos.takeFirst();
    return Traduce(u"Empiece por «%1» y siga en este orden: %2."_s)
        .arg(primera, rotulos.join(u", "_s));
}

} // namespace

PanelBienvenida::PanelBienvenida(const Contenido &contenido, QWidget *padre)
    : QWidget(padre),
      m_lecciones(static_cast<int>(contenido.lecciones.size())),
      m_primera(contenido.practicas.ventana.crea ? 1 : 0),
      m_modelo(new MenuLecciones(tarjetasDe(contenido), this)),
      m_contenido(new QWidget(this)),
      m_tarjetas(new TarjetasDeLecciones)
{
    auto *titulo = new QLabel(Traduce(u"Matemática discreta, paso a paso"_s), m_contenido);
    titulo->setObjectName(u"lblBienvenida"_s);
    titulo->setWordWrap(true);
    Aspecto::destaca(titulo, 2);
    auto *invitacion = new QLabel(
        Traduce(u"Cada lección trae herramientas para experimentar y una página que las explica. "
                "Los ejercicios que el programa corrige están en «Prácticas»."_s) +
            u' ' + ordenDelCurso(contenido.lecciones),
        m_contenido);
    invitacion->setObjectName(u"lblInvitacion"_s);
    invitacion->setWordWrap(true);
    Aspecto::destaca(invitacion, 1.1);

    m_tarjetas->setObjectName(u"TarjetasDeLecciones"_s);
    m_tarjetas->setAccessibleName(Traduce(u"Lecciones"_s));
    m_tarjetas->setModel(m_modelo);
    setFocusProxy(m_tarjetas);
    connect(m_tarjetas, &TarjetasDeLecciones::elegida, this, &PanelBienvenida::tarjeta_Click);

    auto *columna = new QVBoxLayout(m_contenido);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(Aspecto::Espacio);
    columna->addStretch(1);
    columna->addWidget(titulo);
    columna->addWidget(invitacion);
    columna->addSpacing(Aspecto::Margen);
    columna->addWidget(m_tarjetas, 100);
    columna->addStretch(2);

    auto *fila = new QHBoxLayout(this);
    const int margen = 2 * Aspecto::Margen;
    fila->setContentsMargins(margen, margen, margen, margen);
    fila->addStretch(1);
    fila->addWidget(m_contenido, 100);
    fila->addStretch(1);
    ajustaAncho();
}

void PanelBienvenida::tarjeta_Click(int fila)
{
    if (fila < m_primera)
        Q_EMIT sigue();
    else if (fila < m_primera + m_lecciones)
        Q_EMIT elegida(fila - m_primera);
    else
        Q_EMIT practicas();
}

void PanelBienvenida::invita(const QString &invitacion)
{
    if (m_primera == 0)
        return;
    m_modelo->ponDescripcion(0, invitacion);
    m_tarjetas->setRowHidden(0, invitacion.isEmpty());
}

void PanelBienvenida::changeEvent(QEvent *suceso)
{
    QWidget::changeEvent(suceso);
    if (suceso->type() == QEvent::FontChange)
        ajustaAncho();
}

void PanelBienvenida::ajustaAncho()
{
    constexpr int letras = 190; // three cards whose lines are still easy to read
    m_contenido->setMaximumWidth(letras * fontMetrics().averageCharWidth());
}
