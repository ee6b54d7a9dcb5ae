// SPDX-License-Identifier: GPL-3.0-or-later

// What packaging/web/check.sh asks the program in a browser: in the build for checks alone.

#include "numora/Lecciones.h"
#include "numora/web/Puerta.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/FormPrincipal.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QLabel>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QUrl>
#include <emscripten/bind.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// "palabra/tema" of everything that a link can open, one a line.
std::string lugares()
{
    const Contenido contenido = contenidoDelPrograma();
    QStringList nombres;
    for (const Leccion &leccion : contenido.lecciones + QList<Leccion>{contenido.hojaDeCalculo}) {
        for (const TemaDePagina &tema : leccion.temas)
            nombres << leccion.palabra + u'/' + tema.nombre;
    }
    return nombres.join(u'\n').toStdString();
}

/// Follows a link without "numora:"; what the program says against it.
std::string sigue(const std::string &lugar)
{
    return principalDeLaPuerta()
        ->sigueEnlace(QUrl(u"numora:"_s + QString::fromStdString(lugar)), -3)
        .toStdString();
}

bool abreTema(const std::string &clave)
{
    FormLeccion *leccion = principalDeLaPuerta()->leccionActiva();
    return leccion && leccion->abreTema(QString::fromStdString(clave));
}

/// Of several controls of one name, the one in sight.
QWidget *control(const QString &nombre)
{
    QWidget *hallado = nullptr;
    for (QWidget *uno : principalDeLaPuerta()->leccionActiva()->findChildren<QWidget *>(nombre))
        hallado = !hallado || uno->isVisible() ? uno : hallado;
    return hallado;
}

bool pulsa(const std::string &nombre)
{
    auto *boton = qobject_cast<QAbstractButton *>(control(QString::fromStdString(nombre)));
    if (!boton || !boton->isEnabled())
        return false;
    boton->click();
    return true;
}

QString celdas(const QAbstractItemModel &modelo)
{
    QStringList textos;
    for (int fila = 0; fila < modelo.rowCount(); ++fila) {
        for (int columna = 0; columna < modelo.columnCount(); ++columna)
            textos << modelo.index(fila, columna).data().toString();
    }
    return textos.join(u'|');
}

QString textoDe(const QString &nombre)
{
    static const QRegularExpression celda(u"^([A-Z])([0-9]+)$"_s);
    const auto hallada = celda.match(nombre);
    QWidget *widget = control(hallada.hasMatch() ? u"FlexCalc"_s : nombre);
    if (const auto *rejilla = qobject_cast<QAbstractItemView *>(widget)) {
        const QAbstractItemModel &modelo = *rejilla->model();
        if (!hallada.hasMatch())
            return celdas(modelo);
        const int columna = hallada.captured(1).front().unicode() - u'A';
        return modelo.index(hallada.captured(2).toInt() - 1, columna).data().toString();
    }
    if (const auto *texto = qobject_cast<QPlainTextEdit *>(widget))
        return texto->toPlainText();
    return widget ? widget->property("text").toString() : u"no such control"_s;
}

std::string lee(const std::string &nombre)
{
    return textoDe(QString::fromStdString(nombre)).toStdString();
}

std::string titulo()
{
    const FormLeccion *leccion = principalDeLaPuerta()->leccionActiva();
    return leccion ? leccion->windowTitle().toStdString() : std::string();
}

void deten()
{
    principalDeLaPuerta()->leccionActiva()->detenCorrida();
}

bool lista()
{
    return principalDeLaPuerta() != nullptr;
}

} // namespace

EMSCRIPTEN_BINDINGS(numora_checks)
{
    emscripten::function("lugares", &lugares);
    emscripten::function("sigue", &sigue);
    emscripten::function("abreTema", &abreTema);
    emscripten::function("pulsa", &pulsa);
    emscripten::function("lee", &lee);
    emscripten::function("titulo", &titulo);
    emscripten::function("deten", &deten);
    emscripten::function("lista", &lista);
}
