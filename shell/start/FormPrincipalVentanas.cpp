// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormPrincipal.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/MenuLecciones.h"
#include "ui_FormPrincipal.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QScopeGuard>
#include <QStyle>

// The lessons as child windows: how they open, what size they have, and how they close.

using namespace Qt::Literals::StringLiterals;

namespace {

/// Where the session keeps the size of a lesson's window.
QString claveDeTamano(const QWidget &leccion)
{
    return u"Ventanas/%1"_s.arg(leccion.objectName());
}

} // namespace

/// What a row opens; null where it opens nothing.
const Leccion *FormPrincipal::ventanaDe(int fila) const
{
    const Leccion *leccion = nullptr;
    if (fila == FilaHojaDeCalculo)
        leccion = &m_hojaDeCalculo;
    else if (fila == FilaPracticas)
        leccion = &m_practicas.ventana;
    else if (fila >= 0 && fila < m_lecciones.size())
        leccion = &m_lecciones[fila];
    return leccion && leccion->crea ? leccion : nullptr;
}

FormLeccion *FormPrincipal::abreLeccion(int fila)
{
    const Leccion *leccion = ventanaDe(fila);
    if (!leccion)
        return nullptr;
    QPointer<FormLeccion> &abierta = m_abiertas[fila];
    if (!abierta) {
        abierta = leccion->crea(nullptr);
        if (m_practicas.practica && !leccion->palabra.isEmpty())
            abierta->ofrecePracticas([this, clave = leccion->palabra] { practica(clave); });
        preparaEnlaces(abierta, fila);
        connect(abierta, &FormLeccion::descargada, this, [this, fila] {
            m_abiertas.remove(fila);
            marcaLecciones();
        });
        colocaVentana(abierta);
    }
    auto *ventana = qobject_cast<QMdiSubWindow *>(abierta->parentWidget());
    if (ventana->isMinimized())
        ventana->showNormal();
    ui->AreaDeTrabajo->setActiveSubWindow(ventana);
    return abierta;
}

QString FormPrincipal::practica(const QString &clave, int nivel)
{
    FormLeccion *ventana = abreLeccion(FilaPracticas);
    return ventana && m_practicas.practica ? m_practicas.practica(*ventana, clave, nivel)
                                           : Traduce(u"No hay ejercicios de «%1»."_s).arg(clave);
}

void FormPrincipal::colocaVentana(FormLeccion *leccion)
{
    auto *ventana = new QMdiSubWindow;
    // The system menu of a child window has a Ctrl+W of its own, which would make the main window's
    // ambiguous; everything in it is in the menu "Ventana" and on the title bar.
    ventana->setSystemMenu(nullptr);
    ventana->setWidget(leccion);
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ui->AreaDeTrabajo->addSubWindow(ventana);
    ventana->setWindowIcon(leccion->windowIcon());

    const int escalon = ventana->style()->pixelMetric(QStyle::PM_TitleBarHeight);
    const int desplazamiento = escalon * static_cast<int>((m_abiertas.size() - 1) % 4);
    const QSize area = ui->AreaDeTrabajo->viewport()->size();
    const QSize libre = area - QSize(desplazamiento, desplazamiento);
    const QSize propuesto = ventana->sizeHint().expandedTo(area * 0.9).boundedTo(libre);
    ventana->resize(Sesión().recuerda(claveDeTamano(*leccion), propuesto).toSize().boundedTo(area));
    ventana->move(desplazamiento, desplazamiento);
    ventana->show();
    ventana->installEventFilter(this);
}

FormLeccion *FormPrincipal::leccionActiva() const
{
    const QMdiSubWindow *ventana = ui->AreaDeTrabajo->currentSubWindow();
    return ventana && ventana->isVisible() ? qobject_cast<FormLeccion *>(ventana->widget())
                                           : nullptr;
}

/// The rows of the menu tell which lessons are open, and which one is in front.
void FormPrincipal::marcaLecciones()
{
    const FormLeccion *activa = leccionActiva();
    for (int fila = 0; fila < m_lecciones.size(); ++fila) {
        const QPointer<FormLeccion> leccion = m_abiertas.value(fila);
        m_menu->ponMarca(fila, !leccion            ? MenuLecciones::Cerrada
                               : leccion == activa ? MenuLecciones::Activa
                                                   : MenuLecciones::Abierta);
    }
}

/// Sizes are noted a moment after they have changed, so that the end of the program writes nothing.
void FormPrincipal::anotaTamanos()
{
    Sesión().anota(u"Ventana/Geometria"_s, saveGeometry());
    Sesión().anota(u"Ventana/Division"_s, ui->Divisor->saveState());
    const auto ventanas = ui->AreaDeTrabajo->subWindowList();
    for (const QMdiSubWindow *ventana : ventanas) {
        const bool suyo = !ventana->isMaximized() && !ventana->isMinimized();
        if (ventana->widget() && ventana->isVisible() && suyo)
            Sesión().anota(claveDeTamano(*ventana->widget()), ventana->size());
    }
}

void FormPrincipal::closeEvent(QCloseEvent *suceso)
{
    if (!m_cierrePermitido && !m_preguntando) {
        m_enCierre = true;
        m_tareas.lanza(pideCierre());
        m_enCierre = false;
    }
    suceso->setAccepted(m_cierrePermitido);
}

/// Asks the lessons one after the other; all close or none. Where an answer is waited for the event
/// is over by then, and the window is closed again.
Tarea<> FormPrincipal::pideCierre()
{
    m_preguntando = true;
    const auto respondido = qScopeGuard([this] { m_preguntando = false; });
    const auto lecciones = abiertas();
    for (const QPointer<FormLeccion> &leccion : lecciones) {
        if (!leccion)
            continue;
        const bool puede = co_await leccion->puedeCerrarse();
        if (!puede)
            co_return;
    }
    for (const QPointer<FormLeccion> &leccion : lecciones) {
        if (leccion)
            leccion->cierraSinPreguntar();
    }
    m_cierrePermitido = true;
    if (!m_enCierre)
        close();
}

QList<QPointer<FormLeccion>> FormPrincipal::abiertas() const
{
    QList<QPointer<FormLeccion>> lecciones = m_abiertas.values();
    lecciones.removeAll(nullptr);
    return lecciones;
}

void FormPrincipal::guardaLoPendiente()
{
    for (const QPointer<FormLeccion> &leccion : abiertas())
        evento(this, [&] { leccion->guardaLoPendiente(); });
}

void FormPrincipal::terminaSinPreguntar()
{
    guardaLoPendiente();
    for (const QPointer<FormLeccion> &leccion : abiertas())
        leccion->cierraSinPreguntar();
    m_cierrePermitido = true;
    close();
}
