#include "shell/core/TextoDeDuracion.h"

#include "shell/core/Formatos.h"

#include <array>

using namespace Qt::Literals::StringLiterals;

QString textoDeDuracion(double nanosegundos)
{
    static const std::array unidades{u" ns"_s, u" µs"_s, u" ms"_s, u" s"_s};
    std::size_t unidad = 0;
    double valor = nanosegundos;
    // 999,5 would be rounded up to four digits.
    while (valor >= 999.5 && unidad + 1 < unidades.size()) {
        valor /= 1000;
        ++unidad;
    }
    const int decimales = valor < 9.995 ? 2 : valor < 99.95 ? 1 : 0;
    return formatoDecimal(valor, decimales) + unidades.at(unidad);
}
