// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormPrincipal.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "ui_FormPrincipal.h"

#include <QMdiSubWindow>
#include <QScreen>
#include <QSplitter>
#include <QStyle>

// Where the windows stand, and how they come back: from one opening to the next, and after the end
// of a session.

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ClaveDeSesion = u"Ventanas/DeLaSesion"_s;
const QString ClaveDeMaximizada = u"Ventanas/Maximizada"_s;

/// Where the session keeps the place of a lesson's window.
QString claveDeLugar(const QWidget &leccion)
{
    return u"Ventanas/%1"_s.arg(leccion.objectName());
}

/// A place that lies within the area, as large as it may be there.
QRect dentroDe(const QRect &area, QRect lugar)
{
    lugar.setSize(lugar.size().boundedTo(area.size()));
    lugar.moveLeft(std::clamp(lugar.left(), area.left(), area.right() - lugar.width() + 1));
    lugar.moveTop(std::clamp(lugar.top(), area.top(), area.bottom() - lugar.height() + 1));
    return lugar;
}

} // namespace

void FormPrincipal::recuperaTamano()
{
    const QSize pantalla = screen()->availableSize();
    resize(pantalla * 0.85);
    const QByteArray geometria = Sesión().recuerda(u"Ventana/Geometria"_s).toByteArray();
    constexpr int pantallaPequena = 1440;
    if (!restoreGeometry(geometria) && pantalla.width() <= pantallaPequena)
        setWindowState(Qt::WindowMaximized);
    // Qt brings it back from a screen that is gone, though not to the size of a smaller one.
    const QRect libre = screen()->availableGeometry();
    const int borde = style()->pixelMetric(QStyle::PM_MdiSubWindowFrameWidth);
    const int titulo = style()->pixelMetric(QStyle::PM_TitleBarHeight);
    if (!isMaximized() && !libre.contains(geometry()))
        setGeometry(dentroDe(libre.adjusted(borde, titulo, -borde, -borde), geometry()));
    ui->Divisor->setStretchFactor(0, 0);
    ui->Divisor->setStretchFactor(1, 1);
    const QByteArray division = Sesión().recuerda(u"Ventana/Division"_s).toByteArray();
    if (!ui->Divisor->restoreState(division)) {
        const int menu = ui->FlexMenu->sizeHintForColumn(0) + 24;
        ui->Divisor->setSizes({menu, width() - menu});
    }
}

void FormPrincipal::colocaVentana(FormLeccion *leccion)
{
    const QMdiSubWindow *delante = ui->AreaDeTrabajo->currentSubWindow();
    const bool maximizada = delante && delante->isVisible()
                                ? delante->isMaximized()
                                : Sesión().recuerda(ClaveDeMaximizada, true).toBool();
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
    const QRect area = ui->AreaDeTrabajo->viewport()->rect();
    const QRect libre = area.adjusted(desplazamiento, desplazamiento, 0, 0);
    const QRect propuesto(
        libre.topLeft(), ventana->sizeHint().expandedTo(area.size() * 0.9).boundedTo(libre.size()));
    const QRect notado = Sesión().recuerda(claveDeLugar(*leccion)).toRect();
    ventana->setGeometry(dentroDe(area, notado.isValid() ? notado : propuesto));
    maximizada ? ventana->showMaximized() : ventana->show();
    ventana->installEventFilter(this);
}

/// Places are noted a moment after they have changed, so that the end of the program writes
/// nothing.
void FormPrincipal::anotaTamanos()
{
    Sesión().anota(u"Ventana/Geometria"_s, saveGeometry());
    Sesión().anota(u"Ventana/Division"_s, ui->Divisor->saveState());
    auto ventanas = ui->AreaDeTrabajo->subWindowList();
    ventanas.removeIf([](const QMdiSubWindow *v) { return !v->isVisible() || !v->widget(); });
    for (const QMdiSubWindow *ventana : std::as_const(ventanas)) {
        if (!ventana->isMaximized() && !ventana->isMinimized())
            Sesión().anota(claveDeLugar(*ventana->widget()), ventana->geometry());
    }
    // Several side by side are an arrangement for once.
    if (ventanas.size() == 1)
        Sesión().anota(ClaveDeMaximizada, ventanas.first()->isMaximized());
}

/// What is open, from the hindmost window to the one in front, for the next start.
void FormPrincipal::anotaSesion()
{
    QVariantList abiertas;
    for (const QMdiSubWindow *ventana : ui->AreaDeTrabajo->subWindowList(QMdiArea::StackingOrder)) {
        auto *leccion = qobject_cast<FormLeccion *>(ventana->widget());
        const int fila = leccion ? m_abiertas.key(leccion, NingunaFila) : NingunaFila;
        if (fila != NingunaFila)
            abiertas << QVariantMap{{u"fila"_s, fila},
                                    {u"tema"_s, leccion->claveAlFrente()},
                                    {u"lugar"_s, ventana->geometry()},
                                    {u"maximizada"_s, ventana->isMaximized()}};
    }
    Sesión().anota(ClaveDeSesion, abiertas);
}

/// Opens what the end of the last session has closed. It is forgotten before, so that a window that
/// cannot be opened is not tried again at each start.
void FormPrincipal::recuperaSesion()
{
    const QVariantList abiertas = Sesión().recuerda(ClaveDeSesion).toList();
    if (abiertas.isEmpty())
        return;
    Sesión().anota(ClaveDeSesion, QVariantList());
    for (const QVariant &una : abiertas) {
        const QVariantMap ventana = una.toMap();
        FormLeccion *leccion = abreLeccion(ventana.value(u"fila"_s).toInt());
        if (!leccion)
            continue;
        leccion->abreTema(ventana.value(u"tema"_s).toString());
        QWidget *marco = leccion->parentWidget();
        marco->setWindowState(Qt::WindowNoState);
        marco->setGeometry(
            dentroDe(ui->AreaDeTrabajo->viewport()->rect(), ventana.value(u"lugar"_s).toRect()));
        if (ventana.value(u"maximizada"_s).toBool())
            marco->showMaximized();
    }
}
