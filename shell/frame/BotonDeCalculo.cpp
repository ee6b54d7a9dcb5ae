#include "shell/frame/BotonDeCalculo.h"

#include "shell/core/ModGlobal.h"
#include "shell/look/Imagenes.h"

#include <QAbstractButton>

using namespace Qt::Literals::StringLiterals;

void muestraCalcular(QAbstractButton *boton)
{
    boton->setIcon(Icono(u"CALCULAR"_s));
    boton->setText(Traduce(u"&Calcular"_s));
    boton->setToolTip(Traduce(u"Calcular"_s));
}

void muestraDetener(QAbstractButton *boton)
{
    boton->setIcon(ImgStop());
    boton->setText(Traduce(u"&Detener"_s));
    boton->setToolTip(Traduce(u"Detener cálculo"_s));
}
