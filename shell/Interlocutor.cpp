#include "shell/Interlocutor.h"

#include "shell/ModGlobal.h"
#include "shell/Rutas.h"

#include <QDesktopServices>
#include <QFileInfo>
#include <QInputDialog>
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

QString Interlocutor::pideTexto(QWidget *padre, const QString &pregunta, const QString &titulo)
{
    return QInputDialog::getText(padre, titulo, pregunta);
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
