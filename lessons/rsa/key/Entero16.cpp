#include "lessons/rsa/key/Entero16.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "shell/core/ModGlobal.h"

#include <cmath>
#include <limits>

std::int16_t aEntero16(const QString &texto)
{
    const double valor = std::nearbyint(NumVal(texto));
    using Limites = std::numeric_limits<std::int16_t>;
    if (!(valor >= Limites::min() && valor <= Limites::max()))
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return static_cast<std::int16_t>(valor);
}
