// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/web/InterlocutorWeb.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/clsSesion.h"
#include "shell/core/run/Espera.h"
#include "shell/frame/DialogoAbierto.h"
#include "shell/web/ArchivosDelNavegador.h"

#include <QDesktopServices>
#include <QDir>
#include <QFileDialog>
#include <QInputDialog>
#include <QPrinter>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>
#include <emscripten.h>

using namespace Qt::Literals::StringLiterals;

namespace {

/// The answer of the browser's dialog. It may come when nobody waits for it any more.
struct ArchivoDado
{
    QString nombre;
    QByteArray contenido;
    Espera llegado;
};

/// The extension that a filter such as "Hojas (*.minical)" gives, with its dot.
QString extension(const QString &filtro)
{
    static const QRegularExpression forma(u"\\*(\\.\\w+)"_s);
    return forma.match(filtro).captured(1);
}

/// Opens a file that is served beside the page in another tab.
void abreAlLado(const QString &direccion)
{
    EM_ASM({ window.open(UTF8ToString($0), '_blank'); }, direccion.toUtf8().constData());
}

} // namespace

InterlocutorWeb::InterlocutorWeb()
    : m_archivos(std::make_unique<ArchivosDelNavegador>(u"/archivos"_s))
{
}

InterlocutorWeb::~InterlocutorWeb() = default;

Tarea<QString> InterlocutorWeb::eligeArchivoParaAbrir(QWidget *, QString, QString,
                                                      QStringList filtros)
{
    const auto dado = std::make_shared<ArchivoDado>();
    QFileDialog::getOpenFileContent(filtros.join(u";;"_s),
                                    [dado](const QString &nombre, const QByteArray &contenido) {
                                        dado->nombre = nombre;
                                        dado->contenido = contenido;
                                        dado->llegado.cumple();
                                    });
    co_await dado->llegado;
    if (dado->nombre.isEmpty())
        co_return QString();
    co_return m_archivos->recibe(dado->nombre, dado->contenido);
}

Tarea<Interlocutor::Archivo> InterlocutorWeb::eligeArchivoParaGuardar(QWidget *padre,
                                                                      QString titulo,
                                                                      QString propuesta,
                                                                      QStringList filtros)
{
    int filtro = 0;
    if (filtros.size() > 1)
        filtro = co_await eligeDe(padre, titulo, titulo, filtros);
    if (filtro < 0)
        co_return Archivo{};
    const QFileInfo propuesto(propuesta);
    const bool conNombre = !propuesto.isDir() && !propuesto.completeBaseName().isEmpty();
    const QString nombre = conNombre ? propuesto.completeBaseName() : u"Numora"_s;
    const Archivo elegido{m_archivos->rutaDe(nombre + extension(filtros.value(filtro))), filtro};
    co_return elegido;
}

Tarea<bool> InterlocutorWeb::eligeImpresora(QWidget *, std::shared_ptr<QPrinter> impresora, QString)
{
    impresora->setOutputFormat(QPrinter::PdfFormat);
    const QString nombre = impresora->docName().isEmpty() ? u"Numora"_s : impresora->docName();
    impresora->setOutputFileName(m_archivos->rutaDe(nombre + u".pdf"_s));
    co_return true;
}

Tarea<QString> InterlocutorWeb::eligeCarpeta(QWidget *padre, QString, QString)
{
    const QString frase = Traduce(
        u"Una página no ve las carpetas del equipo: usa una que el navegador guarda para ella. Con "
        u"el menú «Datos» salen de ella y entran en ella los mensajes y las claves públicas; la "
        u"clave privada no sale de este equipo."_s);
    co_await avisaYEspera(padre, Icono::Informacion, frase, Traduce(u"Datos"_s));
    co_return carpetaDelBuzon();
}

Tarea<int> InterlocutorWeb::eligeDe(QWidget *padre, QString titulo, QString texto,
                                    QStringList opciones)
{
    auto *dialogo = new QInputDialog(padre ? padre->window() : nullptr);
    dialogo->setWindowTitle(titulo);
    dialogo->setLabelText(texto);
    dialogo->setComboBoxItems(opciones);
    DialogoAbierto abierto(dialogo);
    co_await abierto.respondido();
    co_return abierto.resultado() == QDialog::Accepted
        ? static_cast<int>(opciones.indexOf(dialogo->textValue()))
        : -1;
}

QString InterlocutorWeb::carpetaDelBuzon()
{
    const QString carpeta =
        QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + u"/Compartida"_s;
    QDir().mkpath(carpeta);
    return carpeta;
}

void InterlocutorWeb::abre(const QString &direccion)
{
    const QString carpeta = rutaDePlataforma(Sesión().carpeta());
    const QString ruta = rutaDePlataforma(direccion);
    if (!carpeta.isEmpty() && ruta.startsWith(carpeta))
        abreAlLado(u"curso"_s + ruta.sliced(carpeta.size()));
    else
        QDesktopServices::openUrl(QUrl(direccion));
}

bool InterlocutorWeb::lanzaAlguno(const QList<QStringList> &)
{
    return false;
}
