// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormPrincipal.h"

#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/grid/Rejilla.h"
#include "shell/look/Imagenes.h"
#include "shell/page/PaginaDeLeccion.h"
#include "shell/start/FormTeclas.h"
#include "shell/start/MenuIr.h"
#include "shell/start/PaletaDeOrdenes.h"
#include "shell/start/TeclaPropia.h"
#include "ui_FormPrincipal.h"

#include <QPointer>

// All commands in one place: the menus of lessons and topics, the palette that finds a command by
// its name, and the page that tells the keys.

using namespace Qt::Literals::StringLiterals;

namespace {

QString sinTecla(QString rotulo)
{
    return rotulo.remove(u'&').remove(u'…');
}

QString teclasDe(const QAction &accion)
{
    QStringList textos;
    for (const QKeySequence &tecla : accion.shortcuts())
        textos << tecla.toString(QKeySequence::NativeText);
    return textos.join(u"  "_s);
}

/// The commands of a menu and of those within it, each with the way that leads there.
QList<std::pair<QAction *, QString>> accionesDe(const QMenu &menu, const QString &camino)
{
    QList<std::pair<QAction *, QString>> todas;
    for (QAction *accion : menu.actions()) {
        if (const QMenu *otro = accion->menu())
            todas << accionesDe(*otro, camino + u" › "_s + sinTecla(otro->title()));
        else if (!accion->isSeparator() && accion->isVisible())
            todas << std::pair(accion, camino);
    }
    return todas;
}

/// The commands that a window of a lesson has of its own.
QList<QAction *> accionesDe(const FormLeccion &leccion)
{
    return leccion.findChildren<QAction *>(Qt::FindDirectChildrenOnly);
}

OrdenDePaleta ordenDe(QAction *accion, const QString &grupo)
{
    return {.titulo = sinTecla(accion->text()),
            .grupo = grupo,
            .tecla = teclasDe(*accion),
            .detalle = accion->toolTip(),
            .icono = accion->icon(),
            .hace = [accion = QPointer(accion)] {
                if (accion)
                    accion->trigger();
            }};
}

} // namespace

void FormPrincipal::preparaIr()
{
    m_menuIr = new MenuIr(ui->mnuLecciones, ui->mnuTemas, m_lecciones);
    conecta(m_menuIr, &MenuIr::leccionElegida, this, &FormPrincipal::abreLeccion);
    conecta(m_menuIr, &MenuIr::temaElegido, this, [this](int indice) {
        if (FormLeccion *leccion = leccionActiva())
            leccion->vaATema(indice);
    });
    conecta(m_menuIr, &MenuIr::temaVecino, this, [this](int sentido) {
        if (FormLeccion *leccion = leccionActiva())
            leccion->vaATemaVecino(sentido);
    });
    // On some desktops this key deletes to the end of a line.
    new TeclaPropia(ui->mnuBuscarOrden, this);
    conecta(ui->mnuBuscarOrden, &QAction::triggered, this, &FormPrincipal::mnuBuscarOrden_Click);
    conecta(ui->mnuTeclas, &QAction::triggered, this, &FormPrincipal::mnuTeclas_Click);
}

void FormPrincipal::muestraTemas()
{
    const FormLeccion *leccion = leccionActiva();
    m_menuIr->muestraTemas(leccion ? leccion->temas() : QStringList(),
                           leccion ? leccion->temaAlFrente() : -1);
}

void FormPrincipal::mnuBuscarOrden_Click()
{
    auto *paleta = new PaletaDeOrdenes(ordenes(), this);
    conecta(paleta, &PaletaDeOrdenes::elegida, this, [this](const std::function<void()> &hace) {
        activateWindow();
        hace();
    });
    paleta->show();
}

void FormPrincipal::mnuTeclas_Click()
{
    if (!m_teclas)
        m_teclas = new FormTeclas(this);
    m_teclas->muestra(teclas());
    m_teclas->show();
    m_teclas->raise();
    m_teclas->activateWindow();
}

QList<OrdenDePaleta> FormPrincipal::ordenes()
{
    QList<OrdenDePaleta> todas;
    for (int fila = 0; fila < m_lecciones.size(); ++fila)
        todas << ordenesDe(fila);
    for (const int fila : {FilaHojaDeCalculo, FilaPracticas})
        todas << ordenesDe(fila);
    if (const FormLeccion *leccion = leccionActiva()) {
        for (QAction *accion : accionesDe(*leccion)) {
            if (accion->isEnabled() && !accion->text().isEmpty())
                todas << ordenDe(accion, leccion->windowTitle());
        }
    }
    return todas << ordenesDeMenus();
}

/// What a lesson offers: itself, its topics, its page, and its exercises.
QList<OrdenDePaleta> FormPrincipal::ordenesDe(int fila)
{
    const Leccion *leccion = ventanaDe(fila);
    if (!leccion)
        return {};
    const QString rotulo = Traduce(leccion->rotulo);
    const QIcon icono = Icono(leccion->icono);
    const QAction *entrada = m_menuIr->leccion(fila);
    QList<OrdenDePaleta> suyas;
    const auto agrega = [&](const QString &titulo, const QString &grupo,
                            const std::function<void()> &hace) {
        suyas << OrdenDePaleta{.titulo = titulo, .grupo = grupo, .icono = icono, .hace = hace};
    };
    agrega(rotulo, fila < 0 ? Traduce(u"Herramienta"_s) : Traduce(u"Lección"_s),
           [this, fila] { abreLeccion(fila); });
    suyas.last().tecla = entrada ? teclasDe(*entrada) : QString();
    suyas.last().detalle = Traduce(leccion->descripcion);
    for (const TemaDePagina &tema : leccion->temas) {
        QStringList nombres{Traduce(tema.rotulo)};
        for (const QString &pestana : tema.rotulosDePestanas)
            nombres << Traduce(pestana);
        for (int i = 0; i < nombres.size(); ++i)
            agrega(rotulo + u" › "_s + nombres[i], Traduce(u"Tema"_s),
                   [this, fila, clave = tema.clave, i] { abreTemaDe(fila, clave, i - 1); });
    }
    agrega(Traduce(u"Página: %1"_s).arg(rotulo), Traduce(u"Página"_s),
           [this, fila] { abrePaginaDe(fila); });
    if (m_practicas.practica && !leccion->palabra.isEmpty())
        agrega(Traduce(u"Practicar: %1"_s).arg(rotulo), Traduce(u"Práctica"_s),
               [this, clave = leccion->palabra] { practica(clave); });
    return suyas;
}

/// What stands in the toolbar and in the menus, but for the menus of lessons and topics.
QList<OrdenDePaleta> FormPrincipal::ordenesDeMenus() const
{
    QList<OrdenDePaleta> todas;
    for (QAction *accion : {ui->Calculadora, ui->Algoritmos}) {
        if (accion->isEnabled())
            todas << ordenDe(accion, Traduce(u"Herramienta"_s));
    }
    for (const QMenu *menu : {ui->mnuArchivo, ui->mnuVer, ui->mnuVentana, ui->mnuAyuda}) {
        for (QAction *accion : menu->actions()) {
            const bool ya = accion == ui->mnuPracticas || accion == ui->mnuBuscarOrden;
            if (!accion->menu() && !accion->isSeparator() && accion->isVisible() &&
                accion->isEnabled() && !ya)
                todas << ordenDe(accion, sinTecla(menu->title()));
        }
    }
    return todas;
}

void FormPrincipal::abreTemaDe(int fila, const QString &clave, int pestana)
{
    FormLeccion *leccion = abreLeccion(fila);
    if (!leccion || !leccion->abreTema(clave)) {
        interlocutor().avisa(this, Interlocutor::Icono::Informacion,
                             Traduce(u"Ese tema no está disponible ahora."_s), Traduce(u"Tema"_s));
        return;
    }
    leccion->vaATema(leccion->temaAlFrente());
    if (pestana >= 0)
        leccion->abrePestana(pestana);
}

/// In the program where the lesson has its page as a topic, else in the browser.
void FormPrincipal::abrePaginaDe(int fila)
{
    FormLeccion *leccion = abreLeccion(fila);
    if (!leccion)
        return;
    if (leccion->pagina() && leccion->abreTema(u"intro"_s))
        leccion->vaATema(leccion->temaAlFrente());
    else
        leccion->muestraAyuda();
}

QList<QStringList> FormPrincipal::teclas() const
{
    QList<QStringList> filas;
    const auto agrega = [&filas](const QAction &accion, const QString &donde) {
        if (!accion.shortcut().isEmpty())
            filas << QStringList{teclasDe(accion), sinTecla(accion.text()), donde};
    };
    for (const QMenu *menu : {ui->mnuArchivo, ui->mnuVer, ui->mnuVentana, ui->mnuAyuda}) {
        for (const auto &[accion, camino] : accionesDe(*menu, sinTecla(menu->title())))
            agrega(*accion, camino);
    }
    const FormLeccion *leccion = leccionActiva();
    if (!leccion)
        return filas;
    for (const auto &[tecla, que] : leccion->teclas())
        filas << QStringList{tecla.toString(QKeySequence::NativeText), que,
                             Traduce(u"Cualquier lección"_s)};
    for (const QAction *accion : accionesDe(*leccion))
        agrega(*accion, leccion->windowTitle());
    for (const Rejilla *rejilla : leccion->findChildren<Rejilla *>()) {
        if (!rejilla->teclaDeSalida().isEmpty())
            filas << QStringList{rejilla->teclaDeSalida().toString(QKeySequence::NativeText),
                                 Traduce(u"Salir de la tabla"_s), rejilla->accessibleName()};
    }
    return filas;
}
