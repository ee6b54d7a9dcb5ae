#pragma once

#include <QFont>

/// "Courier New", or where it is missing a typeface whose characters are as wide, so that a sheet
/// looks the same. Size and weight are those of the window that it is given to.
QFont letraDeHoja();
