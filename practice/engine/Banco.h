// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "practice/engine/Ejercicio.h"

#include <QList>

/// All kinds of exercise, in the order of the course; the place of one in it is never given to
/// another, for the codes of sheets name kinds by it.
const QList<TipoDeEjercicio> &banco();

/// The kind of that key; null when there is none.
const TipoDeEjercicio *tipoDeEjercicio(const QString &clave);
