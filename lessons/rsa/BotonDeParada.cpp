#include "lessons/rsa/BotonDeParada.h"

#include "shell/Imagenes.h"
#include "shell/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

BotonDeParada::BotonDeParada(QAbstractButton *boton, const QString &consejo)
    : m_boton(boton), m_icono(boton->icon()), m_texto(boton->text()), m_consejo(boton->toolTip())
{
    boton->setIcon(ImgStop());
    boton->setText(Traduce(u"Detener"_s));
    boton->setToolTip(consejo);
}

BotonDeParada::~BotonDeParada()
{
    if (!m_boton)
        return;
    m_boton->setIcon(m_icono);
    m_boton->setText(m_texto);
    m_boton->setToolTip(m_consejo);
}
