// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/steps/PasosDeTest.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/steps/CadenaDeCuadrados.h"
#include "lessons/primes/steps/CertificadoPratt.h"
#include "lessons/primes/steps/PasosDeCadena.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"

#include <QRegularExpression>
#include <algorithm>
#include <memory>
#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Below the square of this one, divisions prove that a number is prime.
constexpr int MayorDivisor = 97;

bool esMenor(const QString &a, const QString &b)
{
    return EsMayor(a, b);
}

/// The primes by which n is divided: those up to its square root, and not above MayorDivisor.
QStringList divisoresDe(const QString &n)
{
    QStringList primos;
    const qulonglong pequeno = n.size() < 6 ? n.toULongLong() : 0;
    for (const QString &primo : basesPrimas()) {
        const qulonglong p = primo.toULongLong();
        if (p > MayorDivisor || (pequeno > 0 && p * p > pequeno))
            break;
        primos << primo;
    }
    return primos;
}

Paso pasoDeBits(const QString &n, int bits)
{
    return {Traduce(u"%1 tiene %2 bits."_s).arg(n).arg(bits),
            {Formula(u"2^%1 <= %2 < 2^%3"_s.arg(bits - 1).arg(n).arg(bits))},
            Traduce(u"Un número tiene b bits si está entre 2 elevado a b − 1 y 2 elevado a b."_s)};
}

Paso pasoDeDivisor(const QString &n, const QString &p)
{
    return {Traduce(u"%1 es divisible por %2: no es primo."_s).arg(n, p),
            {Formula(u"%1 = %2*%3"_s.arg(
                 n, p, calculaEntero(u"(%1)/%2"_s.arg(n, p)).value_or(QString()))),
             Formula(u"1 < %1 < %2"_s.arg(p, n))},
            Traduce(u"Un primo solo es divisible por 1 y por sí mismo."_s)};
}

TablaDePaso tablaDeRestos(int n, const QStringList &primos)
{
    TablaDePaso tabla{{Traduce(u"Divisor"_s), Traduce(u"Cociente"_s), Traduce(u"Resto"_s)}, {}};
    for (const QString &primo : primos)
        tabla.filas << QStringList{primo, QString::number(n / primo.toInt()),
                                   QString::number(n % primo.toInt())};
    return tabla;
}

Paso pasoSinDivisores(const QString &n, const QStringList &primos)
{
    const bool probado = n.size() < 6 && n.toInt() < 101 * 101;
    Paso paso;
    if (primos.isEmpty())
        paso.frase = Traduce(u"Ningún primo p con p² ≤ %1 puede dividir a %1: es primo."_s).arg(n);
    else if (probado)
        paso.frase = Traduce(u"Ningún primo p con p² ≤ %1 divide a %1: es primo."_s).arg(n);
    else
        paso.frase = Traduce(u"Ningún primo menor que 100 divide a %1."_s).arg(n);
    if (!primos.isEmpty())
        paso.formulas << Formula(u"%1(%2; %3) = 1"_s.arg(Traduce(u"mcd"_s), n, primos.join(u'*')));
    if (probado) {
        const QString siguiente = PrimoSiguiente(primos.isEmpty() ? u"1"_s : primos.last());
        paso.formulas << Formula(u"%1^2 > %2"_s.arg(siguiente, n));
        paso.tabla = primos.isEmpty() ? TablaDePaso() : tablaDeRestos(n.toInt(), primos);
        paso.regla = Traduce(u"El menor divisor p > 1 de un compuesto n es primo, y p² ≤ n."_s);
    }
    return paso;
}

/// What stands for a proof where none is made.
Paso pasoProbable(const QString &n)
{
    constexpr int CuantasBases = 10;
    Paso paso{
        Traduce(u"%1 se comporta como primo con las %2 primeras bases. Es un primo probable: con "
                "más de %3 bits no se demuestra aquí, pero un compuesto elegido de antemano solo "
                "pasa por casualidad."_s)
            .arg(n)
            .arg(CuantasBases)
            .arg(CertificadoPratt::MasBits)};
    paso.tabla = {{Traduce(u"Base"_s), Traduce(u"Último valor"_s)}, {}};
    for (const QString &base : basesPrimas().first(CuantasBases)) {
        const CadenaDeCuadrados cadena = cadenaDeCuadrados(n, base);
        paso.tabla.filas << QStringList{base, cadena.acabaEnUno() ? u"1"_s : u"n − 1"_s};
        paso.formulas << formulaDelFin(cadena);
    }
    paso.formulas << Formula(
        u"1/4^%1 = 1/%2"_s.arg(CuantasBases).arg(qint64{1} << 2 * CuantasBases));
    paso.regla =
        Traduce(u"De cada compuesto, a lo sumo la cuarta parte de las bases lo disfrazan (Rabin): "
                "k bases al azar fallan todas con probabilidad 1/4ᵏ como mucho. El programa "
                "añade el test de Lucas: no se conoce ningún compuesto que pase los dos."_s);
    return paso;
}

/// Steps put together: each is made when it is asked for.
class Guion
{
public:
    void agrega(std::function<Paso()> hace) { m_hechos->push_back(std::move(hace)); }

    void agrega(const CadenaDeCuadrados &cadena, bool primo)
    {
        const qsizetype cuantos = pasosDeCadena(cadena);
        for (qsizetype i = 0; i < cuantos; ++i)
            agrega([cadena, primo, i] { return pasoDeCadena(cadena, primo, i); });
    }

    Pasos pasos() const
    {
        return Pasos(static_cast<qsizetype>(m_hechos->size()), [hechos = m_hechos](qsizetype i) {
            return (*hechos)[static_cast<std::size_t>(i)]();
        });
    }

private:
    std::shared_ptr<std::vector<std::function<Paso()>>> m_hechos =
        std::make_shared<std::vector<std::function<Paso()>>>();
};

Pasos pasosSinTest(const QString &texto, const QString &n)
{
    if (!n.isEmpty())
        return Pasos({Paso{Traduce(u"%1 no es primo: los primos son mayores que 1."_s).arg(n),
                           {Formula(u"%1 < 2"_s.arg(n))},
                           Traduce(u"Un primo tiene dos divisores exactamente, 1 y él mismo."_s)}});
    return Pasos(
        {Paso{Traduce(u"«%1» no es un número natural escrito con sus cifras: no es primo."_s)
                  .arg(texto)}});
}

void agregaCertificado(Guion &guion, const QString &n, int bits)
{
    if (bits > CertificadoPratt::MasBits) {
        guion.agrega([n] { return pasoProbable(n); });
        return;
    }
    const auto certificado = std::make_shared<const CertificadoPratt>(n);
    for (qsizetype i = 0; i < certificado->nodos().size(); ++i)
        guion.agrega([certificado, i] { return certificado->paso(i); });
}

} // namespace

QString naturalEscrito(const QString &texto)
{
    static const QRegularExpression natural(u"^\\s*\\+?0*([0-9]+)\\s*$"_s);
    return natural.match(texto).captured(1);
}

Pasos pasosDeTest(const QString &numero, bool primo, const QString &base)
{
    const QString n = naturalEscrito(numero);
    if (n.isEmpty() || n == u"0"_s || n == u"1"_s)
        return pasosSinTest(numero.trimmed(), n);
    const int bits = NumeroDeBits(numero);
    // Of 1 bit at least, unless the service does not take it.
    if (bits == 0)
        return Pasos({Paso{Traduce(
            u"Con tantas cifras no se decide si un número es primo: el programa llega a 24575. "
            "La luz queda en rojo sin haberlo probado."_s)}});
    Guion guion;
    guion.agrega([n, bits] { return pasoDeBits(n, bits); });
    const QStringList primos = divisoresDe(n);
    const auto divide = [&n](const QString &p) { return n != p && Modulo(n, p) == u"0"_s; };
    const auto divisor = std::ranges::find_if(primos, divide);
    if (divisor != primos.end())
        guion.agrega([n, p = *divisor] { return pasoDeDivisor(n, p); });
    else
        guion.agrega([n, primos] { return pasoSinDivisores(n, primos); });
    const bool impar = (n.back().unicode() - u'0') % 2 == 1;
    if (!impar || !esMenor(u"3"_s, n) || (divisor != primos.end() && base.isEmpty()))
        return guion.pasos();
    if (bits > MasBitsDePasos) {
        guion.agrega([] {
            return Paso{Traduce(u"Con más de %1 bits no se muestra la cadena de cuadrados."_s)
                            .arg(MasBitsDePasos)};
        });
        return guion.pasos();
    }
    const QString elegida = !base.isEmpty() ? base : primo ? u"2"_s : primerTestigo(n);
    guion.agrega(cadenaDeCuadrados(n, elegida), primo);
    if (primo)
        agregaCertificado(guion, n, bits);
    return guion.pasos();
}
