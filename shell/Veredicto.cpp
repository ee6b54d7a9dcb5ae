#include "shell/Veredicto.h"

#include "shell/Aspecto.h"

#include <QLabel>

using namespace Qt::Literals::StringLiterals;

void muestraVeredicto(QLabel *rotulo, bool bien, const QString &texto)
{
    QPalette colores = rotulo->palette();
    colores.setColor(QPalette::WindowText, bien ? Aspecto::exito() : Aspecto::error());
    rotulo->setPalette(colores);
    rotulo->setText((bien ? u"✓ "_s : u"✗ "_s) + texto);
}
