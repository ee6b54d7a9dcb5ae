// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/Interlocutor.h"

#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/frame/DialogoAbierto.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDesktopServices>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
#include <QMessageBox>
#include <QPointer>
#include <QPrintDialog>
#include <QPrinter>
#include <QProcess>
#include <QRegularExpression>
#include <QStandardPaths>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

std::unique_ptr<Interlocutor> &puesto()
{
    static std::unique_ptr<Interlocutor> objeto;
    return objeto;
}

QMessageBox::Icon iconoDeCaja(Interlocutor::Icono icono)
{
    switch (icono) {
    case Interlocutor::Icono::Informacion:
        return QMessageBox::Information;
    case Interlocutor::Icono::Exclamacion:
        return QMessageBox::Warning;
    case Interlocutor::Icono::Critico:
        return QMessageBox::Critical;
    }
    return QMessageBox::NoIcon;
}

/// Names the kinds of files in Qt's own dialogs, for which it has no Spanish words.
class TiposDeArchivo : public QFileIconProvider
{
public:
    QString type(const QFileInfo &info) const override
    {
        if (info.isDir())
            return Traduce(u"Carpeta"_s);
        return (Traduce(u"Archivo"_s) + u' ' + info.suffix()).trimmed();
    }
};

/// The extension that a filter such as "Hojas (*.minical)" gives, without its dot.
QString extension(const QString &filtro)
{
    static const QRegularExpression forma(u"\\*\\.(\\w+)"_s);
    return forma.match(filtro).captured(1);
}

/// Begins where `propuesta` says: in that folder, or at that file.
void prepara(QFileDialog &dialogo, const QString &propuesta, const QStringList &filtros)
{
    const QFileInfo info(propuesta);
    dialogo.setNameFilters(filtros);
    if (info.isDir()) {
        dialogo.setDirectory(propuesta);
        return;
    }
    if (info.absoluteDir().exists())
        dialogo.setDirectory(info.absolutePath());
    dialogo.selectFile(info.fileName());
}

/// A box does not break words: a number of thousands of digits would make it wider than the screen.
/// What is longer than a screenful is cut in the middle.
QString paraLaCaja(QString texto)
{
    constexpr qsizetype maximo = 2000;
    constexpr qsizetype palabra = 70;
    if (texto.size() > maximo)
        texto = texto.first(maximo / 2) + u" … "_s + texto.last(maximo / 2);
    qsizetype seguidos = 0;
    for (qsizetype i = 0; i < texto.size(); ++i) {
        seguidos = texto[i].isSpace() ? 0 : seguidos + 1;
        if (seguidos > palabra) {
            texto.insert(i, u'\n');
            seguidos = 0;
        }
    }
    return texto;
}

/// The window over which a box for `padre` stands. The window that is active may be a tool which
/// has just been hidden: then it is the one in sight to which that belongs.
QWidget *ventanaALaVista(QWidget *padre)
{
    for (QWidget *ventana = padre; ventana; ventana = ventana->parentWidget()) {
        ventana = ventana->window();
        if (ventana->isVisible())
            return padre->window() == ventana ? padre : ventana;
    }
    return padre;
}

QMessageBox *creaCaja(QWidget *padre, QMessageBox::Icon icono, const QString &texto,
                      const QString &titulo, QMessageBox::StandardButtons botones)
{
    auto *caja = new QMessageBox(icono, titulo, paraLaCaja(texto), botones, ventanaALaVista(padre));
    caja->setTextFormat(Qt::PlainText);
    // A short text would leave no room for the title.
    if (auto *rejilla = qobject_cast<QGridLayout *>(caja->layout())) {
        const int anchoDeBotones = 160;
        rejilla->addItem(
            new QSpacerItem(caja->fontMetrics().horizontalAdvance(titulo) + anchoDeBotones, 0),
            rejilla->rowCount(), 0, 1, rejilla->columnCount());
    }
    return caja;
}

QMessageBox *creaAviso(QWidget *padre, Interlocutor::Icono icono, const QString &texto,
                       const QString &titulo)
{
    auto *caja = creaCaja(padre, iconoDeCaja(icono), texto, titulo, QMessageBox::Ok);
    caja->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    return caja;
}

QFileDialog *creaDialogo(QWidget *padre, const QString &titulo)
{
    auto *dialogo = new QFileDialog(ventanaALaVista(padre), titulo);
    // The provider must outlive the dialog, which asks it until the end.
    static TiposDeArchivo tipos;
    dialogo->setIconProvider(&tipos);
    return dialogo;
}

} // namespace

Interlocutor::~Interlocutor() = default;

void Interlocutor::avisa(QWidget *padre, Icono icono, const QString &texto, const QString &titulo)
{
    QMessageBox *caja = creaAviso(padre, icono, texto, titulo);
    caja->setAttribute(Qt::WA_DeleteOnClose);
    caja->setCursor(Qt::ArrowCursor);
    caja->setWindowModality(Qt::ApplicationModal);
    caja->show();
}

Tarea<> Interlocutor::avisaYEspera(QWidget *padre, Icono icono, QString texto, QString titulo)
{
    DialogoAbierto caja(creaAviso(padre, icono, texto, titulo));
    co_await caja.respondido();
}

Tarea<QString> Interlocutor::preguntaTexto(QWidget *padre, QString pregunta, QString titulo)
{
    QPointer<QInputDialog> dialogo = new QInputDialog(ventanaALaVista(padre));
    dialogo->setWindowTitle(titulo);
    dialogo->setLabelText(pregunta);
    DialogoAbierto abierto(dialogo);
    co_await abierto.respondido();
    co_return abierto.resultado() == QDialog::Accepted ? dialogo->textValue() : QString();
}

Tarea<bool> Interlocutor::preguntaSiNo(QWidget *padre, QString pregunta, QString titulo)
{
    auto *caja = creaCaja(padre, QMessageBox::Question, pregunta, titulo,
                          QMessageBox::Yes | QMessageBox::No);
    caja->setDefaultButton(QMessageBox::No);
    DialogoAbierto abierto(caja);
    co_await abierto.respondido();
    co_return abierto.resultado() == QMessageBox::Yes;
}

Tarea<Interlocutor::Guardado> Interlocutor::preguntaGuardar(QWidget *padre, QString texto,
                                                            QString titulo)
{
    auto *caja = creaCaja(padre, QMessageBox::Question, texto, titulo,
                          QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel);
    caja->setDefaultButton(QMessageBox::Save);
    caja->button(QMessageBox::Discard)->setText(Traduce(u"&No guardar"_s));
    DialogoAbierto abierto(caja);
    co_await abierto.respondido();
    switch (abierto.resultado()) {
    case QMessageBox::Save:
        co_return Guardado::Guardar;
    case QMessageBox::Discard:
        co_return Guardado::Descartar;
    default:
        co_return Guardado::Cancelar;
    }
}

Tarea<QString> Interlocutor::eligeArchivoParaAbrir(QWidget *padre, QString titulo,
                                                   QString propuesta, QStringList filtros)
{
    QPointer<QFileDialog> dialogo = creaDialogo(padre, titulo);
    dialogo->setFileMode(QFileDialog::ExistingFile);
    prepara(*dialogo, propuesta, filtros);
    DialogoAbierto abierto(dialogo);
    co_await abierto.respondido();
    co_return abierto.resultado() == QDialog::Accepted ? dialogo->selectedFiles().constFirst()
                                                       : QString();
}

Tarea<Interlocutor::Archivo> Interlocutor::eligeArchivoParaGuardar(QWidget *padre, QString titulo,
                                                                   QString propuesta,
                                                                   QStringList filtros)
{
    QPointer<QFileDialog> dialogo = creaDialogo(padre, titulo);
    dialogo->setAcceptMode(QFileDialog::AcceptSave);
    prepara(*dialogo, propuesta, filtros);
    dialogo->setDefaultSuffix(extension(filtros.value(0)));
    QObject::connect(
        dialogo, &QFileDialog::filterSelected, dialogo,
        [d = dialogo.data()](const QString &filtro) { d->setDefaultSuffix(extension(filtro)); });
    DialogoAbierto abierto(dialogo);
    co_await abierto.respondido();
    if (abierto.resultado() != QDialog::Accepted)
        co_return Archivo{};
    const auto filtro = static_cast<int>(filtros.indexOf(dialogo->selectedNameFilter()));
    co_return Archivo{dialogo->selectedFiles().constFirst(), std::max(filtro, 0)};
}

Tarea<bool> Interlocutor::eligeImpresora(QWidget *padre, std::shared_ptr<QPrinter> impresora,
                                         QString titulo)
{
#if defined(Q_OS_WIN) // whose dialog knows printers alone; that of others offers a file as well
    if (impresora->outputFormat() != QPrinter::NativeFormat) {
        co_await avisaYEspera(padre, Icono::Informacion,
                              Traduce(u"No hay ninguna impresora en este equipo."_s), titulo);
        co_return false;
    }
#endif
    auto *dialogo = new QPrintDialog(impresora.get(), ventanaALaVista(padre));
    dialogo->setWindowTitle(titulo);
    DialogoAbierto abierto(dialogo);
    co_await abierto.respondido();
    co_return abierto.resultado() == QDialog::Accepted;
}

Tarea<QString> Interlocutor::eligeCarpeta(QWidget *padre, QString pregunta, QString inicial)
{
    QPointer<QFileDialog> dialogo = creaDialogo(padre, Traduce(u"Seleccionar carpeta"_s));
    dialogo->setDirectory(rutaExistente(inicial));
    dialogo->setFileMode(QFileDialog::Directory);
    dialogo->setOption(QFileDialog::ShowDirsOnly);
    // The desktop's own dialog has no place for the question.
    dialogo->setOption(QFileDialog::DontUseNativeDialog);
    static TiposDeArchivo tipos; // another view is made with the option
    dialogo->setIconProvider(&tipos);
    dialogo->setViewMode(QFileDialog::List); // size and kind of a folder say nothing
    if (auto *rejilla = qobject_cast<QGridLayout *>(dialogo->layout())) {
        auto *rotulo = new QLabel(pregunta, dialogo);
        rotulo->setTextFormat(Qt::PlainText);
        rotulo->setWordWrap(true);
        rejilla->addWidget(rotulo, rejilla->rowCount(), 0, 1, rejilla->columnCount());
    }
    DialogoAbierto abierto(dialogo);
    co_await abierto.respondido();
    co_return abierto.resultado() == QDialog::Accepted ? dialogo->selectedFiles().value(0)
                                                       : QString();
}

void Interlocutor::abre(const QString &direccion)
{
    const QFileInfo entero(rutaExistente(direccion));
    // A name may hold a "#" of its own.
    const QString lugar =
        entero.exists() ? QString() : direccion.section(u'#', 1).section(u'#', -1);
    const QFileInfo archivo(
        lugar.isEmpty() ? entero : QFileInfo(rutaExistente(direccion.chopped(lugar.size() + 1))));
    const bool sinArchivo = !lugar.isEmpty() && !archivo.exists(); // a name with a "#", gone by now
    if (sinArchivo && entero.isAbsolute()) {
        QDesktopServices::openUrl(QUrl::fromLocalFile(entero.absoluteFilePath()));
        return;
    }
    if (!archivo.isAbsolute() && !archivo.exists()) {
        QDesktopServices::openUrl(QUrl(direccion));
        return;
    }
    QUrl local = QUrl::fromLocalFile(archivo.absoluteFilePath());
    local.setFragment(lugar.isEmpty() ? QString() : lugar);
    QDesktopServices::openUrl(local);
}

bool Interlocutor::lanzaAlguno([[maybe_unused]] const QList<QStringList> &ordenes)
{
#if QT_CONFIG(process)
    for (const QStringList &orden : ordenes) {
        const QString programa = QStandardPaths::findExecutable(orden.first());
        if (!programa.isEmpty() && QProcess::startDetached(programa, orden.sliced(1)))
            return true;
    }
#endif
    return false;
}

Interlocutor &interlocutor()
{
    static Interlocutor real;
    return puesto() ? *puesto() : real;
}

std::unique_ptr<Interlocutor> ponInterlocutor(std::unique_ptr<Interlocutor> nuevo)
{
    std::swap(puesto(), nuevo);
    return nuevo;
}
