#pragma once

#include <QString>

/// The value of an expression of whole numbers, computed by the service; TextoError where it does
/// not hold the value.
QString valorEntero(const QString &expresion);
