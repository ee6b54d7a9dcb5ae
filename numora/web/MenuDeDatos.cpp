// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/web/MenuDeDatos.h"

#include "lessons/rsa/key/FicheroDeClave.h"
#include "numora/web/Intercambio.h"
#include "numora/web/Puerta.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/Interlocutor.h"
#include "shell/start/FormPrincipal.h"
#include "shell/web/InterlocutorWeb.h"
#include "shell/web/NombreDeCuenta.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QMenu>
#include <QMenuBar>
#include <emscripten.h>
#include <emscripten/bind.h>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr qsizetype LetrasDelNombre = 60;

bool puedeElegirCarpeta()
{
    return EM_ASM_INT({ return Module.buzon.puedeElegir() ? 1 : 0; }) != 0;
}

QString titulo()
{
    return Traduce(u"Datos"_s);
}

MenuDeDatos *menuAbierto()
{
    return principalDeLaPuerta()->findChild<MenuDeDatos *>();
}

void buzonUnido(const std::string &carpeta)
{
    menuAbierto()->buzonUnido(QString::fromStdString(carpeta));
}

void copiaRechazada()
{
    menuAbierto()->copiaRechazada();
}

} // namespace

EMSCRIPTEN_BINDINGS(numora_datos)
{
    emscripten::function("buzonUnido", &buzonUnido);
    emscripten::function("copiaRechazada", &copiaRechazada);
}

MenuDeDatos::MenuDeDatos(FormPrincipal *principal)
    : QObject(principal), m_principal(principal), m_tareas(principal)
{
    auto *menu = new QMenu(Traduce(u"&Datos"_s), principal->menuBar());
    menu->setObjectName(u"mnuDatos"_s);
    principal->menuBar()->insertMenu(principal->menuBar()->actions().constLast(), menu);
    const auto orden = [&](const QString &rotulo, auto hace) {
        QAction *accion = menu->addAction(Traduce(rotulo));
        conecta(accion, &QAction::triggered, principal, hace);
    };
    orden(u"&Guardar una copia de todo…"_s, [this] { guardaCopia(); });
    orden(u"&Reponer una copia…"_s, [this] { m_tareas.lanza(reponCopia()); });
    menu->addSeparator();
    orden(u"&Nombre en el buzón…"_s, [this] { m_tareas.lanza(cambiaNombre()); });
    orden(u"&Sacar del buzón un mensaje o una clave…"_s,
          [this] { m_tareas.lanza(sacaDelBuzon()); });
    orden(u"&Traer al buzón un mensaje o una clave…"_s, [this] { m_tareas.lanza(traeAlBuzon()); });
    if (puedeElegirCarpeta())
        orden(u"&Unir el buzón a una carpeta del equipo…"_s, [] {
            EM_ASM({ Module.buzon.elige(UTF8ToString($0)); },
                   InterlocutorWeb::carpetaDelBuzon().toUtf8().constData());
        });
}

void MenuDeDatos::avisa(const QString &texto)
{
    interlocutor().avisa(m_principal, Interlocutor::Icono::Informacion, texto, titulo());
}

void MenuDeDatos::buzonUnido(const QString &carpeta)
{
    avisa(carpeta.isEmpty()
              ? Traduce(u"El buzón no está unido a ninguna carpeta: no se puede leer y escribir en "
                        u"la que ha elegido."_s)
              : Traduce(u"Hasta que se cierre la página, el buzón es la carpeta «%1» de este "
                        u"equipo. La clave privada no se escribe en ella."_s)
                    .arg(carpeta));
}

void MenuDeDatos::copiaRechazada()
{
    avisa(Traduce(u"Ese archivo no es una copia de Numora. Todo sigue como estaba."_s));
}

void MenuDeDatos::guardaCopia()
{
    m_principal->guardaLoPendiente();
    EM_ASM({
        const enlace = document.createElement('a');
        enlace.href = URL.createObjectURL(new Blob([Module.guardado.todo()]));
        enlace.download = 'Numora-' + new Date().toISOString().slice(0, 10) + '.numora';
        enlace.click();
        setTimeout(
            function() { URL.revokeObjectURL(enlace.href); }, 60000);
    });
    avisa(Traduce(u"La copia lleva los ajustes, las prácticas, la hoja, los borradores y el buzón. "
                  u"La clave privada no sale de este equipo."_s));
}

Tarea<> MenuDeDatos::reponCopia()
{
    const bool si = co_await interlocutor().preguntaSiNo(
        m_principal,
        Traduce(u"La copia ocupará el lugar de todo lo que hay guardado aquí. ¿Seguir?"_s),
        titulo());
    if (!si)
        co_return;
    const QString ruta = co_await interlocutor().eligeArchivoParaAbrir(
        m_principal, titulo(), {}, {Traduce(u"Copias de Numora (*.numora)"_s)});
    if (ruta.isEmpty())
        co_return;
    EM_ASM(
        {
            const texto = new TextDecoder().decode(Module.FS.readFile(UTF8ToString($0)));
            Module.guardado.repon(texto).catch(function() { Module.copiaRechazada(); });
        },
        ruta.toUtf8().constData());
}

Tarea<> MenuDeDatos::cambiaNombre()
{
    const QString antes = Sesión().UserName();
    const QString dicho = co_await interlocutor().preguntaTexto(
        m_principal,
        Traduce(u"Nombre con el que se firman y se reciben los mensajes (ahora, «%1»):"_s)
            .arg(antes),
        titulo());
    const QString nombre = dicho.trimmed();
    if (nombre.isEmpty() || nombre == antes)
        co_return;
    if (!esNombreSimple(nombre) || nombre.startsWith(u'.') || nombre.size() > LetrasDelNombre) {
        avisa(Traduce(u"Ese nombre no sirve para una carpeta."_s));
        co_return;
    }
    const FicheroDeClave fichero(Sesión());
    const QString clave = rutaExistente(fichero.rutaGuardada());
    ponNombreDeCuenta(nombre);
    if (!clave.isEmpty())
        QFile::rename(clave, rutaDePlataforma(fichero.rutaParaGuardar()));
}

Tarea<> MenuDeDatos::sacaDelBuzon()
{
    const QString buzon = InterlocutorWeb::carpetaDelBuzon();
    const QStringList hay = intercambiables(buzon);
    if (hay.isEmpty()) {
        avisa(Traduce(u"El buzón está vacío."_s));
        co_return;
    }
    const int elegido = co_await InterlocutorWeb::eligeDe(
        m_principal, titulo(),
        Traduce(u"Se baja un archivo que otro puede traer a su buzón o poner en una carpeta "
                u"compartida."_s),
        hay);
    if (elegido < 0)
        co_return;
    const QString cual = hay[elegido];
    QFileDialog::saveFileContent(leeIntercambiable(buzon, cual), nombreDeBajada(cual));
}

/// Whose folder a file goes to whose name does not tell.
Tarea<QString> MenuDeDatos::preguntaUsuario(QString archivo)
{
    const QString dicho = co_await interlocutor().preguntaTexto(
        m_principal,
        Traduce(u"¿A quién va el mensaje, o de quién es la clave? (%1)"_s).arg(archivo), titulo());
    co_return dicho.trimmed();
}

Tarea<> MenuDeDatos::traeAlBuzon()
{
    const QString ruta = co_await interlocutor().eligeArchivoParaAbrir(
        m_principal, titulo(), {}, {Traduce(u"Mensajes y claves públicas (*.msg *.RSA)"_s)});
    if (ruta.isEmpty())
        co_return;
    const QString archivo = QFileInfo(ruta).fileName();
    QString usuario = usuarioDeBajada(archivo);
    if (usuario.isEmpty())
        usuario = co_await preguntaUsuario(archivo);
    if (usuario.isEmpty())
        co_return;
    const QString puesto = recibeIntercambiable(InterlocutorWeb::carpetaDelBuzon(), usuario,
                                                leeArchivo(ruta, MayorIntercambiable));
    avisa(puesto.isEmpty()
              ? Traduce(u"«%1» no es un mensaje ni una clave pública."_s).arg(archivo)
              : Traduce(u"En el buzón: %1. Para ver los mensajes, pulse «Revisar»."_s).arg(puesto));
}
