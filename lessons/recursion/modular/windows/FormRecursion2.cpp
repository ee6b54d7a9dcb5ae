// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/modular/windows/FormRecursion2.h"

#include "lessons/recursion/modular/PasosModulares.h"
#include "lessons/recursion/modular/windows/FormRecursion2Cuestiones.h"
#include "lessons/recursion/modular/windows/FormRecursion2Funcion.h"
#include "lessons/recursion/modular/windows/FormRecursion2Representacion.h"
#include "lessons/recursion/modular/windows/FormRecursion2Valores.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Imagenes.h"
#include "shell/steps/PanelDePasos.h"

using namespace Qt::Literals::StringLiterals;

FormRecursión2::FormRecursión2(QWidget *padre)
    : FormLeccion(u"Recursión2.html"_s, padre),
      m_representacion(new FormRecursion2Representacion(this)),
      m_valores(new FormRecursion2Valores(this))
{
    setObjectName(u"FormRecursión2"_s);
    setWindowTitle(Traduce(u"Recursión modular"_s));
    setWindowIcon(Icono(u"RECURMOD"_s));
    auto *funcion = new FormRecursion2Funcion(this);
    agregaTema(u"Función"_s, u"funcion"_s, funcion);
    agregaTema(u"Representación"_s, u"representacion"_s, m_representacion,
               m_representacion->pasos());
    agregaTema(u"Valores"_s, u"valores"_s, m_valores, m_valores->pasos());
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s, new FormRecursion2Cuestiones(this));
    conecta(funcion, &FormRecursion2Funcion::aceptada, this, &FormRecursión2::funcionAceptada);
    conecta(m_representacion, &FormRecursion2Representacion::sucesionCambiada, this,
            &FormRecursión2::moduloCambiado);
    conecta(this, &FormLeccion::descargada, m_representacion,
            &FormRecursion2Representacion::olvidaEdicion);
    funcionAceptada({});
}

void FormRecursión2::funcionAceptada(const DefinicionRecurrente &definicion)
{
    m_representacion->ponDefinicion(definicion);
}

void FormRecursión2::moduloCambiado()
{
    const auto &sucesion = m_representacion->sucesion();
    m_valores->pon(m_representacion->definicion(), sucesion);
    const Pasos pasos =
        sucesion ? pasosDeSucesion(m_representacion->definicion(), *sucesion) : Pasos();
    m_representacion->pasos()->pon(pasos);
    m_valores->pasos()->pon(pasos);
}
