// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Herramientas.h"

using namespace Qt::Literals::StringLiterals;

const QList<QStringList> &calculadoras()
{
    static const QList<QStringList> conocidas{{u"gnome-calculator"_s},
                                              {u"kcalc"_s},
                                              {u"qalculate-gtk"_s},
                                              {u"qalculate-qt"_s},
                                              {u"mate-calc"_s},
                                              {u"galculator"_s},
                                              {u"speedcrunch"_s},
                                              {u"deepin-calculator"_s},
                                              {u"xcalc"_s}};
    return conocidas;
}

const QList<QStringList> &informadores()
{
    static const QList<QStringList> conocidos{{u"hardinfo2"_s},
                                              {u"hardinfo"_s},
                                              {u"kinfocenter"_s},
                                              {u"gnome-control-center"_s, u"info-overview"_s},
                                              {u"mate-system-monitor"_s, u"-s"_s},
                                              {u"gnome-system-monitor"_s},
                                              {u"lshw-gtk"_s}};
    return conocidos;
}
