#pragma once

#include <QString>

/// A span of time in the unit that suits it, with three significant digits: "3,12 µs".
QString textoDeDuracion(double nanosegundos);
