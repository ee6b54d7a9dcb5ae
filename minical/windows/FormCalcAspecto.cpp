// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcAspecto.h"

#include <QCursor>
#include <QGuiApplication>
#include <QStringList>

using namespace Qt::Literals::StringLiterals;

QFont letraDeHoja()
{
    QFont letra;
    letra.setFamilies({u"Courier New"_s, u"Liberation Mono"_s, u"Cousine"_s, u"Nimbus Mono PS"_s,
                       u"monospace"_s});
    letra.setStyleHint(QFont::Monospace);
    return letra;
}

RelojDeArena::RelojDeArena()
{
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
}

RelojDeArena::~RelojDeArena()
{
    QGuiApplication::restoreOverrideCursor();
}
