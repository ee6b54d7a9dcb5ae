// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/plot/AccesoDeGrafica.h"

#include "shell/core/ModGlobal.h"
#include "shell/plot/Grafica.h"

#include <QAccessibleWidget>

using namespace Qt::Literals::StringLiterals;

namespace {

class AccesoDeGrafica : public QAccessibleWidget
{
public:
    explicit AccesoDeGrafica(Grafica *grafica) : QAccessibleWidget(grafica, QAccessible::Chart) {}

    QString text(QAccessible::Text cual) const override
    {
        if (cual == QAccessible::Description)
            return grafica().resumen();
        if (cual == QAccessible::Value)
            return grafica().puntoEnPalabras();
        return QAccessibleWidget::text(cual);
    }
    /// Axes, rulers and their labels tell nothing that the description does not.
    int childCount() const override { return 0; }
    QAccessibleInterface *child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface *) const override { return -1; }

    QStringList actionNames() const override
    {
        return QAccessibleWidget::actionNames() << pressAction();
    }
    QString localizedActionDescription(const QString &accion) const override
    {
        return accion == pressAction() ? Traduce(u"Abre los datos en una tabla"_s)
                                       : QAccessibleWidget::localizedActionDescription(accion);
    }
    void doAction(const QString &accion) override
    {
        if (accion == pressAction())
            grafica().muestraDatos();
        else
            QAccessibleWidget::doAction(accion);
    }

private:
    Grafica &grafica() const { return *static_cast<Grafica *>(widget()); }
};

QAccessibleInterface *accesoDeGrafica(const QString &, QObject *objeto)
{
    auto *grafica = qobject_cast<Grafica *>(objeto);
    return grafica ? new AccesoDeGrafica(grafica) : nullptr;
}

} // namespace

void instalaAccesoDeGrafica()
{
    static const bool instalado = [] {
        QAccessible::installFactory(accesoDeGrafica);
        return true;
    }();
    Q_UNUSED(instalado)
}
