#include "shell/BotonDeCalculo.h"

#include "shell/Imagenes.h"
#include "shell/ModGlobal.h"

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
