#pragma once

#include <QString>

class QLabel;

/// Writes a verdict into a label, told by sign and colour as well as by its words.
void muestraVeredicto(QLabel *rotulo, bool bien, const QString &texto);
