// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/FormPrincipal.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/page/EnlaceDePagina.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/page/PaginaDeLeccion.h"

#include <QAbstractItemView>
#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

// Links of pages that act: what they name is looked up in the table of lessons, and nothing that
// does not stand there can be reached.

using namespace Qt::Literals::StringLiterals;

namespace {

/// The name of a cell ("C12", also behind "Celda_") as the headers of a grid name it.
QRegularExpressionMatch comoCelda(const QString &campo)
{
    static const QRegularExpression forma(u"^(?:Celda_)?([A-Z])([1-9][0-9]{0,2})$"_s);
    return forma.match(campo);
}

bool puedeRellenarse(const TemaDePagina &tema, const QString &campo)
{
    return tema.campos.contains(campo) || (!tema.celdas.isEmpty() && comoCelda(campo).hasMatch());
}

/// A field as the lesson's window knows it: a cell is written into its grid.
QPair<QString, QString> enLaVentana(const TemaDePagina &tema, const QPair<QString, QString> &campo)
{
    const auto celda = comoCelda(campo.first);
    if (tema.campos.contains(campo.first) || !celda.hasMatch())
        return campo;
    const int fila = celda.captured(2).toInt() - 1;
    const int columna = celda.captured(1).front().unicode() - u'A';
    return {tema.celdas, u"%1,%2:%3"_s.arg(fila).arg(columna).arg(campo.second)};
}

/// Empties the cells of a grid that the user may fill, but for those that the link fills itself.
void vacia(QAbstractItemView &rejilla, const QStringList &casillas)
{
    const QAbstractItemModel &modelo = *rejilla.model();
    for (int fila = 0; fila < modelo.rowCount(); ++fila) {
        for (int columna = 0; columna < modelo.columnCount(); ++columna) {
            const QModelIndex indice = modelo.index(fila, columna);
            if (indice.flags() & Qt::ItemIsEditable && !indice.data().toString().isEmpty() &&
                !casillas.contains(u"%1,%2"_s.arg(fila).arg(columna)))
                rejilla.model()->setData(indice, QString(), Qt::EditRole);
        }
    }
}

/// What another example has left in the grids that the link fills. A sheet is the user's own.
void vaciaRejillas(FormLeccion &leccion, const TemaDePagina &tema, const EnlaceDeLeccion &enlace)
{
    for (const QString &nombre : tema.campos) {
        QStringList casillas;
        for (const QPair<QString, QString> &campo : enlace.campos) {
            if (campo.first == nombre)
                casillas << campo.second.section(u':', 0, 0);
        }
        auto *rejilla = leccion.findChild<QAbstractItemView *>(nombre);
        if (rejilla && !casillas.isEmpty())
            vacia(*rejilla, casillas);
    }
}

/// What the lesson's window could not be filled with, as a sentence.
QString rellena(FormLeccion &leccion, const TemaDePagina &tema, const EnlaceDeLeccion &enlace)
{
    // What the user was writing is taken over before anything else is written.
    if (QWidget *anterior = leccion.focusWidget())
        anterior->clearFocus();
    vaciaRejillas(leccion, tema, enlace);
    QStringList rechazados;
    QWidget *enfocado = nullptr;
    for (const QPair<QString, QString> &campo : enlace.campos) {
        const auto [nombre, valor] = enLaVentana(tema, campo);
        auto *control = leccion.findChild<QWidget *>(nombre);
        if (!leccion.rellenaCampo(nombre, valor))
            rechazados << campo.first;
        else if (!enfocado && control->isVisible() && control->isEnabled())
            enfocado = control;
    }
    if (enfocado)
        enfocado->setFocus();
    return rechazados.isEmpty()
               ? QString()
               : Traduce(u"No se ha podido escribir en %1."_s).arg(rechazados.join(u", "_s));
}

} // namespace

void FormPrincipal::preparaEnlaces(FormLeccion *leccion, int fila)
{
    leccion->ponTemasDePagina(ventanaDe(fila)->temas);
    if (PaginaDeLeccion *pagina = leccion->pagina())
        pagina->ponGuia([this, fila](const QUrl &enlace) { return sigueEnlace(enlace, fila); });
}

void FormPrincipal::llega(const QUrl &enlace)
{
    // What the session has open comes back first, and the windows get their sizes.
    QTimer::singleShot(0, this, [this, enlace] {
        evento(this, [&] {
            const QString frase = sigueEnlace(enlace, NingunaFila);
            if (!frase.isEmpty())
                interlocutor().avisa(this, Interlocutor::Icono::Informacion, frase,
                                     Traduce(u"Enlace"_s));
        });
    });
}

QString FormPrincipal::sigueEnlace(const QUrl &direccion, int desde)
{
    const EnlaceDePagina leido = leeEnlace(direccion);
    if (const auto *practicas = std::get_if<EnlaceDePracticas>(&leido)) {
        const auto vuelta = vueltaA(desde);
        QString frase = practica(practicas->clase, practicas->nivel);
        if (const QPointer<FormLeccion> ventana = m_abiertas.value(FilaPracticas))
            ventana->ofreceVuelta(vuelta);
        return frase;
    }
    if (const auto *leccion = std::get_if<EnlaceDeLeccion>(&leido))
        return sigueEnlace(*leccion, desde);
    const auto *roto = std::get_if<EnlaceRoto>(&leido);
    return roto ? roto->frase : Traduce(u"La página no tiene esa pregunta."_s);
}

QString FormPrincipal::sigueEnlace(const EnlaceDeLeccion &enlace, int desde)
{
    int fila = FilaHojaDeCalculo;
    const auto esOtra = [&](const Leccion *leccion) {
        return !leccion || leccion->palabra != enlace.leccion;
    };
    while (fila < m_lecciones.size() && esOtra(ventanaDe(fila)))
        ++fila;
    if (fila == m_lecciones.size())
        return Traduce(u"El enlace nombra una lección que no existe: %1."_s).arg(enlace.leccion);
    const QList<TemaDePagina> &temas = ventanaDe(fila)->temas;
    const auto tema = std::find_if(temas.begin(), temas.end(),
                                   [&](const TemaDePagina &t) { return t.nombre == enlace.tema; });
    if (tema == temas.end())
        return Traduce(u"El enlace nombra un tema que no existe: %1."_s).arg(enlace.tema);
    for (const auto &[campo, valor] : enlace.campos) {
        if (!puedeRellenarse(*tema, campo))
            return Traduce(u"El enlace nombra un campo que no se puede rellenar: %1."_s).arg(campo);
    }
    const auto vuelta = vueltaA(desde);
    FormLeccion *leccion = abreLeccion(fila);
    if (!leccion || !leccion->abreTema(tema->clave))
        return Traduce(u"Ese tema no está disponible ahora."_s);
    leccion->ofreceVuelta(vuelta);
    return rellena(*leccion, *tema, enlace);
}

std::function<void()> FormPrincipal::vueltaA(int fila)
{
    if (fila == NingunaFila)
        return {};
    const QPointer<FormLeccion> leccion = m_abiertas.value(fila);
    const auto lugar = leccion && leccion->pagina() ? leccion->pagina()->navegador()->lugar()
                                                    : NavegadorPagina::Lugar();
    return [this, fila, lugar] {
        FormLeccion *origen = abreLeccion(fila);
        if (!origen || !origen->pagina())
            return;
        origen->abreTema(u"intro"_s);
        origen->pagina()->navegador()->ve(lugar);
        origen->pagina()->navegador()->setFocus();
    };
}
