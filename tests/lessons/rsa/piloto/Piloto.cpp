// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/lessons/rsa/piloto/Piloto.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QLabel>
#include <QMessageBox>
#include <QScopedValueRollback>
#include <QSettings>
#include <QTabBar>
#include <QTest>
#include <QTextStream>
#include <QTimer>
#include <chrono>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::chrono::milliseconds Ritmo{30};

template <typename Control = QWidget>
Control *busca(const QString &nombre)
{
    const auto controles = QApplication::allWidgets();
    for (QWidget *candidato : controles) {
        auto *control = qobject_cast<Control *>(candidato);
        if (control && control->objectName() == nombre && control->isVisible() &&
            control->isEnabled())
            return control;
    }
    return nullptr;
}

QString textoDe(const QWidget *control)
{
    const char *propiedad =
        control->metaObject()->indexOfProperty("text") >= 0 ? "text" : "plainText";
    return control->property(propiedad).toString();
}

bool pulsa(const QString &nombre)
{
    auto *boton = busca<QAbstractButton>(nombre);
    if (boton)
        QTest::mouseClick(boton, Qt::LeftButton);
    return boton;
}

bool escribe(const QString &nombre, const QString &texto)
{
    QWidget *campo = busca(nombre);
    if (!campo)
        return false;
    campo->setFocus();
    QTest::keyClick(campo, Qt::Key_A, Qt::ControlModifier);
    QTest::keyClicks(campo, texto);
    QTest::keyClick(campo, Qt::Key_Tab);
    return true;
}

bool eligeTema(const QString &rotulo)
{
    auto *temas = busca<QTabBar>(u"tsTema"_s);
    for (int i = 0; temas && i < temas->count(); ++i) {
        if (temas->tabText(i) == rotulo) {
            QTest::mouseClick(temas, Qt::LeftButton, {}, temas->tabRect(i).center());
            return true;
        }
    }
    return false;
}

bool eligeFila(const QString &nombre, int fila)
{
    auto *vista = busca<QAbstractItemView>(nombre);
    if (!vista || vista->model()->rowCount() <= fila)
        return false;
    const QRect celda = vista->visualRect(vista->model()->index(fila, 0));
    QTest::mouseClick(vista->viewport(), Qt::LeftButton, {}, celda.center());
    return true;
}

bool anota(const QString &nombre)
{
    const QWidget *control = busca(nombre);
    if (control)
        QTextStream(stdout) << textoDe(control) << Qt::endl;
    return control;
}

} // namespace

Piloto::Piloto(const QString &guion)
{
    QFile archivo(guion);
    if (archivo.open(QIODevice::ReadOnly))
        m_pasos = QString::fromUtf8(archivo.readAll()).split(u'\n', Qt::SkipEmptyParts);
    QTimer::singleShot(Ritmo, this, &Piloto::daUnPaso);
}

void Piloto::daUnPaso()
{
    if (const auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget())) {
        QTextStream(stderr) << "message box: " << caja->text() << Qt::endl;
        ::_exit(3);
    }
    // A timer of its own for each turn: one alone would be silent in the event loop of a box that a
    // step has opened.
    QTimer::singleShot(Ritmo, this, &Piloto::daUnPaso);
    if (m_enPaso)
        return;
    const QScopedValueRollback<bool> ocupado(m_enPaso, true);
    const QString paso = m_pasos.value(0);
    if (da(paso.section(u' ', 0, 0), paso.section(u' ', 1, 1), paso.section(u' ', 2)))
        m_pasos.removeFirst();
}

bool Piloto::da(const QString &orden, const QString &control, const QString &resto)
{
    if (orden == u"pulsa"_s)
        return pulsa(control);
    if (orden == u"escribe"_s)
        return escribe(control, resto);
    if (orden == u"tema"_s)
        return eligeTema((control + u' ' + resto).trimmed());
    if (orden == u"fila"_s)
        return eligeFila(control, resto.toInt());
    if (orden == u"espera"_s)
        return busca(control) && textoDe(busca(control)).startsWith(resto);
    if (orden == u"archivo"_s)
        return QFile::exists(control);
    if (orden == u"anota"_s)
        return anota(control);
    QApplication::closeAllWindows();
    QApplication::exit(orden == u"acaba"_s ? 0 : 4);
    return true;
}

/// Made with the application, before anybody has asked for the settings.
QObject *PilotoPlugin::create(const QString &, const QString &)
{
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope,
                       qEnvironmentVariable("PILOTO_AJUSTES"));
    return new Piloto(qEnvironmentVariable("PILOTO_GUION"));
}
