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

} // namespace

Interlocutor::~Interlocutor() = default;

void Interlocutor::mensaje(QWidget *padre, Icono icono, const QString &texto, const QString &titulo)
{
    QMessageBox caja(iconoDeCaja(icono), titulo, paraLaCaja(texto), QMessageBox::Ok, padre);
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
