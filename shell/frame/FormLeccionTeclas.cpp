// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/steps/SeparadorDePasos.h"

#include <QKeyEvent>
#include <QTabBar>
#include <functional>

// The keys that every lesson window answers, wherever in it the keyboard is. They are taken before
// the controls see them, because fields and grids keep F1 and Escape for themselves.

using namespace Qt::Literals::StringLiterals;

/// A key of the frame: what it does, in words as well, and when it is none.
struct FormLeccion::Tecla
{
    QKeyCombination combinacion;
    QString que; ///< Spanish
    std::function<void(FormLeccion &, QWidget &)> hace;
    std::function<bool(const FormLeccion &, const QWidget &)> cabe =
        [](const FormLeccion &, const QWidget &) { return true; };
    QEvent::Type cuando = QEvent::KeyPress;
};

const QList<FormLeccion::Tecla> &FormLeccion::teclasDelMarco()
{
    const auto enTira = [](const FormLeccion &, const QWidget &control) {
        return qobject_cast<const QTabBar *>(&control) != nullptr;
    };
    const auto vaALaFicha = [](QWidget &tira, bool ultima) {
        auto &fichas = static_cast<QTabBar &>(tira);
        fichas.setCurrentIndex(ultima ? fichas.count() - 1 : 0);
    };
    static const QList<Tecla> teclas{
        {Qt::Key_F1, u"Abrir en el navegador la página de la lección, por el tema de delante"_s,
         [](FormLeccion &l, QWidget &) { l.muestraAyuda(); },
         [](const FormLeccion &, const QWidget &) { return true; }, QEvent::KeyRelease},
        {Qt::Key_F8, u"Ir a los pasos; desde ellos, ocultarlos"_s,
         [](FormLeccion &l, QWidget &) { l.teclaDePasos(); },
         [](const FormLeccion &l, const QWidget &) { return l.pasosALaVista() != nullptr; }},
        {Qt::Key_Escape, u"Detener el cálculo en marcha"_s,
         [](FormLeccion &l, QWidget &) { l.detenCorrida(); },
         [](const FormLeccion &l, const QWidget &) { return l.botonEnMarcha() != nullptr; }},
        {Qt::ALT | Qt::Key_Left, u"Volver a la página que trajo aquí"_s,
         [](FormLeccion &l, QWidget &) { l.cmdVolver_Click(); },
         [](const FormLeccion &l, const QWidget &) { return !l.introduccionAlFrente(); }},
        {Qt::Key_Home, u"En la tira de temas: el primero"_s,
         [vaALaFicha](FormLeccion &, QWidget &tira) { vaALaFicha(tira, false); }, enTira},
        {Qt::Key_End, u"En la tira de temas: el último"_s,
         [vaALaFicha](FormLeccion &, QWidget &tira) { vaALaFicha(tira, true); }, enTira}};
    return teclas;
}

QList<std::pair<QKeySequence, QString>> FormLeccion::teclas() const
{
    QList<std::pair<QKeySequence, QString>> dichas;
    for (const Tecla &tecla : teclasDelMarco()) {
        // A lesson without steps may have their key for something else.
        const bool dePasos = tecla.combinacion == QKeyCombination(Qt::Key_F8);
        const bool conPasos = findChild<const SeparadorDePasos *>() != nullptr;
        if (!dePasos || conPasos)
            dichas << std::pair(QKeySequence(tecla.combinacion), Traduce(tecla.que));
        if (dePasos && conPasos)
            dichas << std::pair(QKeySequence(Qt::CTRL | Qt::Key_F8),
                                Traduce(u"Predecir la tabla del paso"_s));
    }
    return dichas;
}

/// What the frame does at a key, if anything.
const FormLeccion::Tecla *FormLeccion::teclaPara(const QKeyEvent &suceso,
                                                 const QWidget &control) const
{
    const auto con = suceso.modifiers() & ~Qt::KeypadModifier;
    for (const Tecla &tecla : teclasDelMarco()) {
        if (tecla.cuando == suceso.type() && tecla.combinacion.key() == suceso.key() &&
            tecla.combinacion.keyboardModifiers() == con && tecla.cabe(*this, control))
            return &tecla;
    }
    return nullptr;
}

bool FormLeccion::eventFilter(QObject *objeto, QEvent *suceso)
{
    const bool pulsacion =
        suceso->type() == QEvent::KeyRelease || suceso->type() == QEvent::KeyPress;
    if (!pulsacion || !objeto->isWidgetType())
        return QWidget::eventFilter(objeto, suceso);
    auto *control = static_cast<QWidget *>(objeto);
    const auto &deTeclado = *static_cast<QKeyEvent *>(suceso);
    const bool mia = control == this || isAncestorOf(control);
    const Tecla *tecla =
        mia && !deTeclado.isAutoRepeat() ? teclaPara(deTeclado, *control) : nullptr;
    if (!tecla)
        return QWidget::eventFilter(objeto, suceso);
    evento(this, [this, tecla, control] { tecla->hace(*this, *control); });
    return true;
}
