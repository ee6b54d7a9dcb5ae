#include "lessons/fibonacci/CalculoFibonacci.h"

#include "lessons/fibonacci/ValorEntero.h"

#include <bit>

using namespace Qt::Literals::StringLiterals;

int cotaDe(MetodoFibonacci metodo)
{
    // 50 takes 4·10^10 calls. F(117 592) is the last of the 24 575 digits that the service holds.
    return metodo == MetodoFibonacci::Definicion ? 50 : 117'592;
}

QString CalculoFibonacci::calcula(MetodoFibonacci metodo, int n, Corrida &corrida)
{
    m_esfuerzo = {};
    switch (metodo) {
    case MetodoFibonacci::Definicion: {
        const qint64 valor = porDefinicion(n, corrida);
        return corrida.detenida() ? QString() : QString::number(valor);
    }
    case MetodoFibonacci::Iteracion:
        return porIteracion(n, corrida);
    case MetodoFibonacci::Duplicacion:
        return porDuplicacion(n, corrida);
    }
    return {};
}

qint64 CalculoFibonacci::porDefinicion(int n, Corrida &corrida)
{
    ++m_esfuerzo.llamadas;
    corrida.ceder();
    if (n < 2 || corrida.detenida())
        return n;
    const qint64 anterior = porDefinicion(n - 1, corrida);
    const qint64 otro = porDefinicion(n - 2, corrida);
    ++m_esfuerzo.sumas;
    return anterior + otro;
}

QString CalculoFibonacci::porIteracion(int n, Corrida &corrida)
{
    QString anterior = u"0"_s;
    QString actual = u"1"_s;
    if (n == 0)
        return anterior;
    for (int i = 2; i <= n; ++i) {
        corrida.ceder();
        if (corrida.detenida())
            return {};
        QString siguiente = valorEntero(anterior + u'+' + actual);
        anterior = std::move(actual);
        actual = std::move(siguiente);
        ++m_esfuerzo.sumas;
    }
    return actual;
}

QString CalculoFibonacci::porDuplicacion(int n, Corrida &corrida)
{
    // F(k) and F(k+1), where k runs through the leading binary digits of n. At the largest n the
    // service may not hold F(n+1) any more, which nothing asks for.
    QString f = u"0"_s;
    QString g = u"1"_s;
    for (int bit = std::bit_width(static_cast<unsigned>(n)) - 1; bit >= 0; --bit) {
        corrida.ceder();
        if (corrida.detenida())
            return {};
        const QString par = valorEntero(f + u"*("_s + g + u'+' + g + u'-' + f + u')');
        const QString impar = valorEntero(f + u'*' + f + u'+' + g + u'*' + g);
        m_esfuerzo.productos += 3;
        m_esfuerzo.sumas += 3;
        if ((n >> bit & 1) == 0) {
            f = par;
            g = impar;
        } else {
            f = impar;
            g = valorEntero(par + u'+' + impar);
            ++m_esfuerzo.sumas;
        }
    }
    return f;
}
