#pragma once

#include <QString>

/// A sentence in which every number of more than 90 digits shows its first and last digits only and
/// how many there are, so that it fits a message box.
QString abreviaNumeros(const QString &texto);
