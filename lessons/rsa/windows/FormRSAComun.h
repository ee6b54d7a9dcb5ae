// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QString>

class BotonDeCorrida;
class QAbstractButton;
class QLabel;

/// What the topics of the lesson share.

/// Makes a button start and stop a run. At rest it looks as it does now, with that picture; while a
/// run is on it says "Detener", with `consejo` as its tooltip, until the run has returned.
BotonDeCorrida *corridaDe(QAbstractButton *boton, const QString &imagen, const QString &consejo);

/// Whether a text can be encrypted; the label says why not.
bool seCodifica(QLabel *rotulo, const QString &texto);

/// A sentence in which every number of more than 90 digits shows its first and last digits only and
/// how many there are, so that it fits a message box.
QString abreviaNumeros(const QString &texto);
