// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/access/Anuncio.h"

#include <QAccessible>
#include <QAccessibleObject>
#include <QApplication>
#include <QLabel>
#include <QTextDocumentFragment>
#include <initializer_list>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What speaks for the program. Readers say a notification as soon as it appears, whereas that a
/// label out of focus has another text they are told, and keep to themselves.
class Voz : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;
    QString frase;
};

class AccesoDeVoz : public QAccessibleObject
{
public:
    using QAccessibleObject::QAccessibleObject;

    QAccessible::Role role() const override { return QAccessible::Notification; }
    QAccessible::State state() const override { return {}; }
    QString text(QAccessible::Text cual) const override
    {
        return cual == QAccessible::Name ? static_cast<Voz *>(object())->frase : QString();
    }
    QAccessibleInterface *parent() const override
    {
        return QAccessible::queryAccessibleInterface(qApp);
    }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }
};

QAccessibleInterface *accesoDeVoz(const QString &, QObject *objeto)
{
    return qobject_cast<Voz *>(objeto) ? new AccesoDeVoz(objeto) : nullptr;
}

Voz &voz()
{
    static Voz *const unica = [] {
        QAccessible::installFactory(accesoDeVoz);
        return new Voz(qApp);
    }();
    return *unica;
}

Oyente &oyente()
{
    static Oyente puesto;
    return puesto;
}

QString loQueDice(QWidget *control)
{
    const auto *rotulo = qobject_cast<const QLabel *>(control);
    if (rotulo && Qt::mightBeRichText(rotulo->text()))
        return QTextDocumentFragment::fromHtml(rotulo->text()).toPlainText();
    if (rotulo)
        return rotulo->text();
    const QAccessibleInterface *acceso = QAccessible::queryAccessibleInterface(control);
    if (!acceso)
        return {};
    return (acceso->text(QAccessible::Name) + u' ' + acceso->text(QAccessible::Value)).trimmed();
}

} // namespace

void anuncia(QWidget *control)
{
    if (!QAccessible::isActive() && !oyente())
        return;
    for (const QAccessible::Event suceso :
         {QAccessible::NameChanged, QAccessible::DescriptionChanged}) {
        QAccessibleEvent aviso(control, suceso);
        QAccessible::updateAccessibility(&aviso);
    }
    if (control->isVisible())
        anuncia(loQueDice(control));
}

void anuncia(const QString &frase)
{
    if (frase.isEmpty())
        return;
    if (oyente())
        oyente()(frase);
    if (!QAccessible::isActive())
        return;
    voz().frase = frase;
    QAccessibleEvent aviso(&voz(), QAccessible::ObjectShow);
    QAccessible::updateAccessibility(&aviso);
}

void ponOyente(Oyente nuevo)
{
    oyente() = std::move(nuevo);
}

#include "Anuncio.moc"
