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
#include <QApplication>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBrowser>
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

/// Titles and commands of the menus, one a line.
std::string menus()
{
    QStringList textos;
    for (const QMenu *menu : principalDeLaPuerta()->menuBar()->findChildren<QMenu *>()) {
        textos << menu->title();
        for (const QAction *accion : menu->actions())
            textos << accion->text();
    }
    for (const QAction *accion : principalDeLaPuerta()->menuBar()->actions())
        textos << accion->text();
    return textos.join(u'\n').toStdString();
}

/// Chooses a command of the menu bar by its text.
bool ordena(const std::string &texto)
{
    for (const QAction *menu : principalDeLaPuerta()->menuBar()->actions()) {
        for (QAction *accion : menu->menu()->actions()) {
            if (accion->text() == QString::fromStdString(texto) && accion->isEnabled()) {
                accion->trigger();
                return true;
            }
        }
    }
    return false;
}

/// Presses a button of the box that is open, by its text; with none, gives the box's text.
std::string contesta(const std::string &boton)
{
    for (QWidget *caja : QApplication::topLevelWidgets()) {
        auto *dialogo = qobject_cast<QDialog *>(caja);
        if (!dialogo || !dialogo->isVisible())
            continue;
        QStringList textos;
        for (const QLabel *rotulo : dialogo->findChildren<QLabel *>())
            textos << rotulo->text();
        for (QAbstractButton *uno : dialogo->findChildren<QAbstractButton *>()) {
            if (!boton.empty() && uno->text().remove(u'&') == QString::fromStdString(boton))
                uno->click();
        }
        return textos.join(u'\n').toStdString();
    }
    return {};
}

/// Writes a line into the box that is open.
void escribeEnLaCaja(const std::string &texto)
{
    for (QWidget *caja : QApplication::topLevelWidgets()) {
        auto *linea = caja->isVisible() && qobject_cast<QDialog *>(caja)
                          ? caja->findChild<QLineEdit *>()
                          : nullptr;
        if (linea)
            linea->setText(QString::fromStdString(texto));
    }
}

/// Chooses one of what the box that is open offers.
bool eligeEnLaCaja(const std::string &texto)
{
    for (QWidget *caja : QApplication::topLevelWidgets()) {
        auto *lista = caja->isVisible() && qobject_cast<QDialog *>(caja)
                          ? caja->findChild<QComboBox *>()
                          : nullptr;
        if (lista) {
            lista->setCurrentText(QString::fromStdString(texto));
            return lista->currentText() == QString::fromStdString(texto);
        }
    }
    return false;
}

/// Writes into a field and leaves it by Enter.
bool entra(const std::string &nombre, const std::string &texto)
{
    QWidget *campo = control(QString::fromStdString(nombre));
    if (!campo)
        return false;
    if (auto *lista = qobject_cast<QComboBox *>(campo))
        campo = lista->lineEdit();
    campo->setFocus();
    principalDeLaPuerta()->leccionActiva()->rellenaCampo(QString::fromStdString(nombre),
                                                         QString::fromStdString(texto));
    for (const auto tipo : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent intro(tipo, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(campo, &intro);
    }
    return true;
}

bool escribe(const std::string &nombre, const std::string &texto)
{
    QWidget *donde = control(QString::fromStdString(nombre));
    return donde && principalDeLaPuerta()->leccionActiva()->rellenaCampo(
                        QString::fromStdString(nombre), QString::fromStdString(texto));
}

std::string practica(const std::string &clave)
{
    return principalDeLaPuerta()->practica(QString::fromStdString(clave), 1).toStdString();
}

/// Whether a run is going on in the lesson in front.
bool enMarcha()
{
    for (const auto *corrida :
         principalDeLaPuerta()->leccionActiva()->findChildren<BotonDeCorrida *>()) {
        if (corrida->enMarcha())
            return true;
    }
    return false;
}

void cierraLeccion()
{
    principalDeLaPuerta()->leccionActiva()->cierraSinPreguntar();
}

/// How far the page of the lesson in front is scrolled, in pixels.
int desplazado()
{
    const auto *pagina = principalDeLaPuerta()->leccionActiva()->findChild<QTextBrowser *>();
    return pagina ? pagina->verticalScrollBar()->value() : -1;
}

/// "x y" of the middle of a control, in the page.
std::string lugarDe(const std::string &nombre)
{
    const QWidget *uno = control(QString::fromStdString(nombre));
    const QPoint medio = uno ? uno->mapToGlobal(uno->rect().center()) : QPoint(-1, -1);
    return (QString::number(medio.x()) + u' ' + QString::number(medio.y())).toStdString();
}

bool hayMenu()
{
    return QApplication::activePopupWidget() != nullptr;
}

bool oscuro()
{
    return QApplication::palette().window().color().lightness() < 128;
}

double puntos()
{
    return QApplication::font().pointSizeF();
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
    emscripten::function("menus", &menus);
    emscripten::function("ordena", &ordena);
    emscripten::function("contesta", &contesta);
    emscripten::function("escribeEnLaCaja", &escribeEnLaCaja);
    emscripten::function("escribe", &escribe);
    emscripten::function("eligeEnLaCaja", &eligeEnLaCaja);
    emscripten::function("entra", &entra);
    emscripten::function("practica", &practica);
    emscripten::function("enMarcha", &enMarcha);
    emscripten::function("cierraLeccion", &cierraLeccion);
    emscripten::function("desplazado", &desplazado);
    emscripten::function("lugarDe", &lugarDe);
    emscripten::function("hayMenu", &hayMenu);
    emscripten::function("oscuro", &oscuro);
    emscripten::function("puntos", &puntos);
}
