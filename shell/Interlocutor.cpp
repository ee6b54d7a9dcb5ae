#include "shell/Interlocutor.h"

#include "shell/ModGlobal.h"
#include "shell/Rutas.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QLabel>
#include <QLayout>
#include <QMessageBox>
#include <QProcess>
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

} // namespace

Interlocutor::~Interlocutor() = default;

void Interlocutor::mensaje(QWidget *padre, Icono icono, const QString &texto, const QString &titulo)
{
    QMessageBox caja(iconoDeCaja(icono), titulo, texto, QMessageBox::Ok, padre);
    caja.setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    caja.setTextFormat(Qt::PlainText);
    caja.exec();
}

bool Interlocutor::confirma(QWidget *padre, const QString &texto, const QString &titulo)
{
    return QMessageBox::question(padre, titulo, texto) == QMessageBox::Yes;
}

Interlocutor::Respuesta Interlocutor::preguntaSiGuarda(QWidget *padre, const QString &texto,
                                                       const QString &titulo)
{
    const auto botones = QMessageBox::Save | QMessageBox::Discard | QMessageBox::Cancel;
    switch (QMessageBox::question(padre, titulo, texto, botones, QMessageBox::Save)) {
    case QMessageBox::Save:
        return Respuesta::Guardar;
    case QMessageBox::Discard:
        return Respuesta::Descartar;
    default:
        return Respuesta::Cancelar;
    }
}

QString Interlocutor::pideTexto(QWidget *padre, const QString &pregunta, const QString &titulo)
{
    return QInputDialog::getText(padre, titulo, pregunta);
}

QString Interlocutor::pideCarpeta(QWidget *padre, const QString &inicio, const QString &aviso1,
                                  const QString &aviso2)
{
    QFileDialog dialogo(padre, aviso1, inicio);
    dialogo.setFileMode(QFileDialog::Directory);
    dialogo.setOption(QFileDialog::ShowDirsOnly);
    // The desktop's own dialog has no place for the two notices.
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    auto *avisos = new QLabel(aviso1 + u'\n' + aviso2, &dialogo);
    avisos->setWordWrap(true);
    dialogo.layout()->addWidget(avisos);
    const bool elegida = dialogo.exec() == QDialog::Accepted && !dialogo.selectedFiles().isEmpty();
    return elegida ? dialogo.selectedFiles().constFirst() : QString();
}

QString Interlocutor::pideArchivoParaAbrir(QWidget *padre, const QString &titulo,
                                           const QString &filtros)
{
    return QFileDialog::getOpenFileName(padre, titulo, {}, filtros);
}

QString Interlocutor::pideArchivoParaGuardar(QWidget *padre, const QString &titulo,
                                             const QString &propuesta, const QString &filtros)
{
    return QFileDialog::getSaveFileName(padre, titulo, propuesta, filtros);
}

void Interlocutor::abre(const QString &direccion)
{
    const QString local = rutaExistente(direccion);
    QDesktopServices::openUrl(QFileInfo(local).isAbsolute() ? QUrl::fromLocalFile(local)
                                                            : QUrl(direccion));
}

bool Interlocutor::lanzaAlguno(const QList<QStringList> &ordenes)
{
    for (const QStringList &orden : ordenes) {
        const QString programa = QStandardPaths::findExecutable(orden.first());
        if (!programa.isEmpty() && QProcess::startDetached(programa, orden.sliced(1)))
            return true;
    }
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
