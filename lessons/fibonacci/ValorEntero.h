#pragma once

#include <QString>

/// The value of an expression of whole numbers, computed by the service.
QString valorEntero(const QString &expresion);
