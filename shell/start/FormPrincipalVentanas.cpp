// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormPrincipal.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/FormTeclas.h"
#include "shell/start/MenuLecciones.h"
#include "ui_FormPrincipal.h"

#include <QCloseEvent>
#include <QMdiSubWindow>
#include <QScopeGuard>

// The lessons as child windows: how they open, what size they have, and how they close.

using namespace Qt::Literals::StringLiterals;

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
        connect(abierta, &FormLeccion::cambianTemas, this, &FormPrincipal::muestraTemas);
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

FormLeccion *FormPrincipal::leccionActiva() const
{
    const QMdiSubWindow *ventana = ui->AreaDeTrabajo->currentSubWindow();
    return ventana && ventana->isVisible() ? qobject_cast<FormLeccion *>(ventana->widget())
                                           : nullptr;
}

/// Another lesson is in front, or none.
void FormPrincipal::cambiaDeLeccion()
{
    const FormLeccion *leccion = leccionActiva();
    ui->Algoritmos->setToolTip(
        leccion ? Traduce(u"Abrir en el navegador la página de «%1»"_s).arg(leccion->windowTitle())
                : Traduce(u"Abre en el navegador la página de la lección que esté delante"_s));
    marcaLecciones();
    muestraTemas();
    if (m_teclas)
        m_teclas->muestra(teclas());
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
    // The user has closed everything already, or the end is told a second time.
    if (m_cierrePermitido)
        return;
    guardaLoPendiente();
    anotaSesion();
    for (const QPointer<FormLeccion> &leccion : abiertas())
        leccion->cierraSinPreguntar();
    m_cierrePermitido = true;
    close();
}
