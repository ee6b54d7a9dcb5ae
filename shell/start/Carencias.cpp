// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Carencias.h"

#include "shell/core/ModGlobal.h"

using namespace Qt::Literals::StringLiterals;

QStringList carencias()
{
    QStringList frases;
#ifdef NUMORA_SIN_SVG
    frases += Traduce(u"Los dibujos son imágenes hechas de antemano, en varios tamaños."_s);
#endif
#ifdef NUMORA_SIN_MULTIMEDIA
    frases += Traduce(u"Las animaciones son imágenes fijas."_s);
#endif
#ifdef NUMORA_SIN_ECM
    frases += Traduce(u"Los factores se buscan con curvas elípticas propias, más lentas."_s);
#endif
#ifdef NUMORA_SIN_PRIMESIEVE
    frases += Traduce(u"Los primos se listan con una criba propia, más lenta."_s);
#endif
    return frases;
}
