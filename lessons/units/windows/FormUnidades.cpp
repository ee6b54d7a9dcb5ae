// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/FormUnidades.h"

#include "lessons/units/CuestionesUnidades.h"
#include "lessons/units/windows/FormUnidadesCayley.h"
#include "lessons/units/windows/FormUnidadesGrandes.h"
#include "lessons/units/windows/FormUnidadesGrupo.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/PanelCuestiones.h"
#include "shell/look/Imagenes.h"

using namespace Qt::Literals::StringLiterals;

FormUnidades::FormUnidades(QWidget *padre) : FormLeccion(u"Unidades.html"_s, padre)
{
    setObjectName(u"FormUnidades"_s);
    setWindowTitle(Traduce(u"Unidades"_s));
    setWindowIcon(Icono(u"UNIDADES"_s));
    agregaIntroduccion(u"Introducción"_s);
    auto *grupo = new FormUnidadesGrupo(this);
    agregaTema(u"Unidades"_s, u"unidades"_s, grupo, grupo->pasos());
    agregaTema(u"Tabla de Cayley"_s, u"cayley"_s, new FormUnidadesCayley(this));
    auto *grandes = new FormUnidadesGrandes(this);
    agregaTema(u"Números grandes"_s, u"grandes"_s, grandes, grandes->pasos());
    agregaTema(u"Cuestiones"_s, u"cuestiones"_s,
               new PanelCuestiones(sorteaDelGrupo, sorteaDeEuler, this));
}
