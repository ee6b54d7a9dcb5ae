#include "shell/Interlocutor.h"

#include "shell/ModGlobal.h"
#include "shell/Rutas.h"

#include <QDesktopServices>
#include <QFileDialog>
#include <QFileInfo>
#include <QGridLayout>
#include <QInputDialog>
#include <QLabel>
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

QString Interlocutor::pideCarpeta(QWidget *padre, const QString &pregunta, const QString &inicial)
{
    QFileDialog dialogo(padre, Traduce(u"Seleccionar carpeta"_s), rutaExistente(inicial));
    dialogo.setFileMode(QFileDialog::Directory);
    dialogo.setOption(QFileDialog::ShowDirsOnly);
    // The desktop's own dialog has no place for the question.
    dialogo.setOption(QFileDialog::DontUseNativeDialog);
    if (auto *rejilla = qobject_cast<QGridLayout *>(dialogo.layout())) {
        auto *rotulo = new QLabel(pregunta, &dialogo);
        rotulo->setTextFormat(Qt::PlainText);
        rotulo->setWordWrap(true);
        rejilla->addWidget(rotulo, rejilla->rowCount(), 0, 1, rejilla->columnCount());
    }
    return dialogo.exec() == QDialog::Accepted ? dialogo.selectedFiles().value(0) : QString();
}

bool Interlocutor::confirma(QWidget *padre, const QString &pregunta, const QString &titulo)
{
    QMessageBox caja(QMessageBox::Question, titulo, pregunta, QMessageBox::Yes | QMessageBox::No,
                     padre);
    caja.setDefaultButton(QMessageBox::No);
    caja.setTextFormat(Qt::PlainText);
    return caja.exec() == QMessageBox::Yes;
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
