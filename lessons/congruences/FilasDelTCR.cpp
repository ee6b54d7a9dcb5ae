// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/congruences/FilasDelTCR.h"

#include "shell/core/steps/EuclidesLargo.h"

namespace {

/// The inverse of a modulo n, in 0 … n − 1, for coprime a and n.
EnteroLargo inversoDe(const EnteroLargo &a, const EnteroLargo &n)
{
    return EuclidesLargo(n, a % n).coeficiente() % n;
}

UnionDelTCR unionDe(const EnteroLargo &r, const EnteroLargo &m, const FilaDelTCR &fila)
{
    UnionDelTCR u{r, m, fila, EuclidesLargo(m, fila.modulo).mcd()};
    const EnteroLargo diferencia = fila.resto - r;
    u.seContradicen = diferencia % u.d != 0;
    if (u.seContradicen)
        return u;
    const EnteroLargo modulo = fila.modulo / u.d;
    u.inverso = inversoDe(m / u.d, modulo);
    u.k = u.inverso * (diferencia / u.d) % modulo;
    u.nuevoModulo = m * modulo;
    u.nuevoResto = r + m * u.k;
    return u;
}

} // namespace

QList<FilaDelTCR> filasDelTCR(const SistemaCongruencias &sistema)
{
    QList<FilaDelTCR> filas;
    for (int f = 0; f < sistema.size(); ++f) {
        if (sistema[f].cuenta())
            filas << FilaDelTCR{f + 1, EnteroLargo(sistema[f].resto.trimmed()),
                                EnteroLargo(sistema[f].modulo.trimmed())};
    }
    return filas;
}

bool sonCoprimos(const QList<FilaDelTCR> &filas)
{
    EnteroLargo producto = 1;
    for (const FilaDelTCR &fila : filas) {
        if (EuclidesLargo(producto, fila.modulo).mcd() != 1)
            return false;
        producto = producto * fila.modulo;
    }
    return true;
}

SumaDelTCR sumaDelTCR(const QList<FilaDelTCR> &filas)
{
    SumaDelTCR hecha{1};
    for (const FilaDelTCR &fila : filas)
        hecha.producto = hecha.producto * fila.modulo;
    for (const FilaDelTCR &fila : filas) {
        SumandoDelTCR s;
        s.cociente = hecha.producto / fila.modulo;
        s.reducido = s.cociente % fila.modulo;
        s.inverso = inversoDe(s.reducido, fila.modulo);
        s.sumando = fila.resto * s.cociente * s.inverso;
        hecha.suma = hecha.suma + s.sumando;
        hecha.sumandos << s;
    }
    hecha.solucion = hecha.suma % hecha.producto;
    return hecha;
}

QList<UnionDelTCR> unionesDelTCR(const QList<FilaDelTCR> &filas)
{
    QList<UnionDelTCR> uniones;
    EnteroLargo r = filas.constFirst().resto, m = filas.constFirst().modulo;
    r = r % m;
    for (qsizetype i = 1; i < filas.size(); ++i) {
        uniones << unionDe(r, m, filas[i]);
        if (uniones.constLast().seContradicen)
            break;
        r = uniones.constLast().nuevoResto;
        m = uniones.constLast().nuevoModulo;
    }
    return uniones;
}
