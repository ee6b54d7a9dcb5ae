// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/windows/FormClaveRSA.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormClaveRSA.h"

#include <QScreen>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Geometria = u"Ventana/ClaveRSA"_s;

QRect enPantalla(const QWidget *control)
{
    return {control->mapToGlobal(QPoint()), control->size()};
}

} // namespace

FormClaveRSA::FormClaveRSA(QWidget *padre, const QWidget *debajo)
    : QWidget(padre, Qt::Tool | Qt::WindowStaysOnTopHint),
      ui(std::make_unique<Ui::FormClaveRSA>()),
      m_debajo(debajo)
{
    ui->setupUi(this);
    traduceVentana(this);
    setWindowIcon(Icono(u"RSA"_s));
    setAttribute(Qt::WA_ShowWithoutActivating);
    conecta(ui->TxtDestT, &CampoLargo::textoCambiado, this, &FormClaveRSA::TxtDestT_Change);
}

FormClaveRSA::~FormClaveRSA() = default;

void FormClaveRSA::ponCorresponsal(const QString &usuario, const ClsRSA &clave)
{
    setWindowTitle(Traduce(u"Clave de "_s) + usuario);
    ui->txtDestQ->setText(clave.q(0));
    ui->txtDestS->setText(clave.s());
    ui->TxtDestT->setText(clave.t());
}

QPoint FormClaveRSA::lugarJunto(const QRect &leccion, const QRect &debajo, const QRect &pantalla,
                                const QSize &tamano)
{
    constexpr int hueco = Aspecto::Espacio;
    const QPoint lugares[] = {
        {leccion.right() + hueco, leccion.top()},
        {leccion.left(), leccion.bottom() + hueco},
        {leccion.left() - hueco - tamano.width(), leccion.top()},
        {leccion.left(), leccion.top() - hueco - tamano.height()},
    };
    for (const QPoint &lugar : lugares) {
        if (pantalla.contains(QRect(lugar, tamano)))
            return lugar;
    }
    return {std::max(debajo.left(), pantalla.left()),
            std::min(debajo.bottom(), pantalla.bottom()) - tamano.height()};
}

void FormClaveRSA::muestra()
{
    if (m_puesta.isNull() && !restoreGeometry(Sesión().recuerda(Geometria).toByteArray()))
        coloca();
    m_puesta = geometry();
    show();
}

void FormClaveRSA::coloca()
{
    const QRect pantalla = screen()->availableGeometry();
    resize(std::min({sizeHint().width(), pantalla.width() / 3, m_debajo->width()}),
           sizeHint().height());
    // The frame that the window manager adds is not known before the first time.
    const QSize conMarco = size() + QSize(Aspecto::Margen, 3 * Aspecto::Margen);
    move(lugarJunto(enPantalla(parentWidget()), enPantalla(m_debajo), pantalla, conMarco));
}

void FormClaveRSA::hideEvent(QHideEvent *suceso)
{
    QWidget::hideEvent(suceso);
    const bool movida =
        (geometry().topLeft() - m_puesta.topLeft()).manhattanLength() > 4 * Aspecto::Margen;
    if (movida || size() != m_puesta.size())
        Sesión().anota(Geometria, saveGeometry());
}

QString FormClaveRSA::t() const
{
    return ui->TxtDestT->text();
}

void FormClaveRSA::TxtDestT_Change()
{
    Q_EMIT puedeRecibir(!t().trimmed().isEmpty());
}
