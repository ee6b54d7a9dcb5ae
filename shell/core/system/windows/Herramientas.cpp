// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/system/Herramientas.h"

using namespace Qt::Literals::StringLiterals;

const QList<QStringList> &calculadoras()
{
    static const QList<QStringList> conocidas{{u"calc"_s}};
    return conocidas;
}

const QList<QStringList> &informadores()
{
    static const QList<QStringList> conocidos{{u"msinfo32"_s}, {u"taskmgr"_s}};
    return conocidos;
}
