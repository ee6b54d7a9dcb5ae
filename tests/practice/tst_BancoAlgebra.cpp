// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "practice/sheets/PalabrasDeNotas.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "tests/Sorteos.h"
#include "tests/Tabla.h"
#include "tests/practice/DefinicionesDeAlgebra.h"

#include <QHash>
#include <numeric>

namespace {

// n0, n1 … are the numbers of the statement, r0, r1 … those of the right answer; the figures are
// the levels at which the mistake can be made.
const QString Errores = uR"(
euclides.mcd: || mcm | 123 | mcm(n0;n1) || divisor-menor | 123 | 1 || no-divide | 123 | n1+1 || signo | 123 | -r0
euclides.divisiones: || otra-columna | 12 | @otra-columna || incompleta | 123 | @sin-ultimo || sobran | 123 | @y-un-uno \
  || division | 123 | @primero-mas-uno
euclides.bezout: || signo | 123 | -r0, -r1 || cambiados | 123 | r1, r0 || otro-valor | 123 | r0+1, r1 || cuantos | 123 | r0
euclides.restosminimos: || signos | 123 | @absolutos || ordinarios | 123 | @ordinarios
euclides.mcm: || producto | 123 | n0*n1 || mcd | 123 | mcd(n0;n1) || multiplo | 123 | r0*(2*n0+1) || no-multiplo | 123 | r0+1
euclides.soluble: || insoluble | 1 | «sí» || soluble | 1 | «no» || faltan | 23 | @sin-ultimo || sobra | 23 | @desde-el-tercero \
  || fuera | 23 | 1
euclides.general: || inicio | 123 | r0+1, r1, r2, r3 || paso | 123 | r0, r1, r2, -r3 || una-sola | 123 | r0, 0, r2, 0 \
  || sin-dividir | 123 | r0, 2*r1, r2, 2*r3
euclides.positivas: || enteras | 123 | «infinitas» || con-ceros | 123 | r0+2-min(1;n4 mod n2)-min(1;n4 mod n3) \
  || otra-cuenta | 123 | r0+3
primos.esprimo: || por-primo | 123 | «primo» || sin-divisor | 123 | «compuesto» || trivial | 123 | n0 || no-divide | 123 | n0-1
primos.factores: || exponentes | 123 | @sin-exponentes || otros-exponentes | 1 | @exponente-pasado || factor-compuesto | 123 | n0, 1 || uno | 123 | @uno-y \
  || otro-producto | 123 | @sin-dos
primos.siguiente: || no-mayor | 123 | n0 || lejos | 123 | 2*n0 || compuesto | 123 | n0+1 || salto | 123 | sigprimo(r0)
primos.cuantos: || cuenta-el-uno | 12 | r0+1 || impares | 12 | @mitad || compuestos | 12 | n0-r0
primos.divisores: || cuantos | 123 | r0 || exponentes-sin-uno | 123 | @producto-de-exponentes || sin-exponente | 123 | @suma-de-primos \
  || sin-el-propio | 123 | r0, r1-n0 || suma | 123 | r0, r1+1 || numero | 123 | r0+1, r1 || ambos | 123 | r0+1, r1+1
primos.ultimodivisor: || sin-raiz | 123 | n0-1 || raiz | 123 | raiz(n0) || compuesto | 123 | 2*raiz(n0) || otro | 123 | 2
primos.testigo: || testigo-negado | 123 | «no» || sin-resto | 123 | «sí» || otro-resto | 123 | (n0^n3) mod n1 + 1 \
  || pasa-la-prueba | 123 | (n0^n3) mod n1 || sin-reducir | 123 | r0+n1
unidades.fi: || n-menos-uno | 123 | n0-1 || sin-exponente | 123 | @fi-de-primos || no-unidades | 123 | n0-r0
unidades.inverso: || inverso-aditivo | 123 | -n0 || signo | 123 | -r0 || no-da-uno | 123 | 1
unidades.orden: || fi | 123 | fi(n1) || multiplo | 123 | 5*r0 || no-da-uno | 123 | 1 || no-positivo | 123 | 0
unidades.potencia: || sin-reducir | 123 | r0+n2 || exponente-modulo-n | 123 | (n0^(n1 mod n2)) mod n2 \
  || n-menos-uno | 23 | (n0^(n1 mod (n2-1))) mod n2 || producto | 123 | (n0*n1) mod n2
unidades.primitiva: || si-hay | 123 | «ninguna» || no-unidad | 123 | 0 || orden-menor | 123 | 1
unidades.lambda: || fi | 123 | fi(n0) || potencia-de-dos | 23 | @mcm-de-fi || sin-exponente | 1 | @mcm-de-primos \
  || multiplo | 123 | 7*r0 || no-todas | 123 | 1 || no-positivo | 123 | 0
unidades.unidad: || unidad-negada | 1 | «divisor de cero» || divisor-negado | 1 | «unidad» || sin-prueba | 23 | «unidad» \
  || cero | 23 | n1 || signo | 23 | @opuesto-del-inverso || ni-cero-ni-uno | 23 | 1
unidades.lineal: || si-hay | 123 | «ninguna» || no-cumple | 123 | 0 || faltan | 23 | @sin-ultimo || sin-reducir | 1 | r0+n4
congruencias.dosmodulos: || no-todas | 123 | n0 || ninguna | 123 | r0+1
congruencias.tresmodulos: || no-todas | 123 | r0+n1*n3 || ninguna | 123 | r0+1
congruencias.nocoprimos: || sin-porque | 123 | «no» || cuantos | 123 | 1, 2, 3 || no-divide | 123 | 4*n1*n3 || no-prueba | 123 | -1 \
  || sin-periodo | 123 | 0*r1+r0 || no-cumple | 123 | n0, n1 || producto | 123 | r0, 0*r1+n1*n3 || periodo | 123 | r0, 0*r1+1
congruencias.minimo: || no-cumple | 123 | r0+1 || no-mayor | 1 | n1 || no-menor | 123 | r0+n1*n2*n3*n4
congruencias.potencia: || sin-reducir | 123 | r0+n2 || producto | 123 | (n0*n1) mod n2 || una-parte | 123 | (r0+n4) mod n2 \
  || otro | 123 | (r0+1) mod n2
congruencias.problema: || fuera | 123 | @y-la-cota || no-todas | 123 | r0+n0 || ninguna | 123 | r0+1
)"_s;

} // namespace

/// The kinds on integers, primes, units and congruences, against what their statements say: each
/// answer is checked by the definition, with the numbers as a student reads them.
class tst_BancoAlgebra : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        IniciaBignum(50);
        Idioma().clear(); // a million texts need not be looked up
    }
    void cleanupTestCase() { TerminaBignum(); }
    void elJuezSabeLoQueEsCierto_data();
    void elJuezSabeLoQueEsCierto();
    void cadaErrorTieneSuPalabra_data() { filasDeTexto<QString, QString>(Errores); }
    void cadaErrorTieneSuPalabra();
    void unNumeroLarguisimo_data() { elJuezSabeLoQueEsCierto_data(); }
    void unNumeroLarguisimo();
    void coeficientesLarguisimos();
};

namespace {

EsBuena definicion(const QString &clave)
{
    const auto &todas = definicionesDeAlgebra();
    return std::find_if(todas.begin(), todas.end(), [&](const auto &d) { return d.first == clave; })
        ->second;
}

/// The same answer, wrong somewhere: another number, two exchanged, one too few, another word.
Dada alterada(Dada r, const Ejercicio &e, Sorteo &sorteo)
{
    const qint64 como = sorteo.entre(0, 5);
    if (r.n.isEmpty() || (como == 0 && !e.forma.palabras.isEmpty()))
        return e.forma.clase == FormaDeRespuesta::Palabra || sorteo.moneda()
                   ? Dada{{}, sorteo.de(e.forma.palabras)}
                   : Dada{{sorteo.entre(0, 40)}};
    const bool fija =
        e.forma.clase == FormaDeRespuesta::Producto || e.forma.clase == FormaDeRespuesta::Solucion;
    const qsizetype i = sorteo.entre(0, r.n.size() - 1);
    if (como == 1 && r.n.size() > 1 && !fija)
        r.n.removeLast();
    else if (como == 2 && r.n.size() > 1 && !fija)
        r.n.swapItemsAt(i, (i + 1) % r.n.size());
    else if (como == 3)
        r.n[i] = fija ? r.n[i] + 1 : -r.n[i];
    else
        r.n[i] += sorteo.entre(1, 12) * (sorteo.moneda() || fija ? 1 : -1);
    return r;
}

QString cifras(qint64 n)
{
    return QString::number(n);
}

/// All exponents forgotten: what f makes of the primes of n, joined.
template <typename F>
qint64 porPrimos(qint64 n, F f, bool enMcm = false)
{
    qint64 r = 1;
    for (qint64 p = 2; n > 1; ++p) {
        qint64 k = 0;
        for (; n % p == 0; n /= p)
            ++k;
        r = k == 0 ? r : enMcm ? std::lcm(r, f(p, k)) : r * f(p, k);
    }
    return r;
}

qint64 fiDe(qint64 p, qint64 k)
{
    return k == 1 ? p - 1 : p * fiDe(p, k - 1);
}

Numeros restos(qint64 a, qint64 b, bool cocientes = false)
{
    Numeros fila;
    for (; b != 0; a = std::exchange(b, a % b))
        fila << (cocientes ? a / b : a % b);
    return fila;
}

/// The mistakes that no formula tells.
Numeros especial(const QString &nombre, const Leido &e, const Numeros &r)
{
    const auto menosUno = [](qint64 p, qint64) { return p - 1; };
    const auto cada = [&r](const std::function<qint64(qsizetype)> &f) {
        Numeros otros;
        for (qsizetype i = 0; i < r.size(); ++i)
            otros << f(i);
        return otros;
    };
    const QHash<QString, std::function<Numeros()>> todos{
        {u"@otra-columna"_s, [&] { return restos(e.n[0], e.n[1], e.nivel == 2); }},
        {u"@ordinarios"_s, [&] { return restos(e.n[1], e.n[2]); }},
        {u"@sin-ultimo"_s, [&] { return r.first(std::max<qsizetype>(0, r.size() - 1)); }},
        {u"@sin-dos"_s, [&] { return r.mid(2); }},
        {u"@y-un-uno"_s, [&] { return r + Numeros{1}; }},
        {u"@uno-y"_s,
         [&] {
             return Numeros{1, 1} + r;
         }},
        {u"@primero-mas-uno"_s,
         [&] { return cada([&](qsizetype i) { return i == 0 ? r[i] + 1 : r[i]; }); }},
        {u"@absolutos"_s, [&] { return cada([&](qsizetype i) { return std::abs(r[i]); }); }},
        {u"@sin-exponentes"_s,
         [&] { return cada([&](qsizetype i) { return i % 2 == 0 ? r[i] : 1; }); }},
        {u"@exponente-pasado"_s,
         [&] { // from the largest prime, which has another one, to the smallest
             return r.back() < 2 ? Numeros{} : Numeros{r[0], r[1] + 1, r[2], r[3] - 1};
         }},
        {u"@desde-el-tercero"_s, [&] { return e.n.mid(2); }},
        {u"@mitad"_s, [&] { return Numeros{(e.n[0] + 1) / 2}; }},
        {u"@y-la-cota"_s, [&] { return Numeros{r[0] + e.n.constLast()}; }},
        {u"@producto-de-exponentes"_s,
         [&] {
             return Numeros{porPrimos(e.n[0], [](qint64, qint64 k) { return k; }), r[1]};
         }},
        {u"@suma-de-primos"_s,
         [&] {
             return Numeros{r[0], porPrimos(e.n[0], [](qint64 p, qint64) { return p + 1; })};
         }},
        {u"@fi-de-primos"_s, [&] { return Numeros{porPrimos(e.n[0], menosUno)}; }},
        {u"@mcm-de-primos"_s, [&] { return Numeros{porPrimos(e.n[0], menosUno, true)}; }},
        {u"@mcm-de-fi"_s, [&] { return Numeros{porPrimos(e.n[0], fiDe, true)}; }},
        {u"@opuesto-del-inverso"_s,
         [&] { return std::gcd(e.n[0], e.n[1]) > 1 ? Numeros{} : Numeros{-r[0]}; }}};
    return todos.value(nombre)();
}

/// An expression of the table with the numbers of an exercise; nothing where it has not so many.
std::optional<qint64> valor(QString expresion, const Leido &e, const Numeros &r)
{
    static const QRegularExpression nombre(u"\\b([nr])(\\d)\\b"_s);
    for (auto hallado = nombre.match(expresion); hallado.hasMatch();
         hallado = nombre.match(expresion)) {
        const Numeros &lista = hallado.captured(1) == u"n"_s ? e.n : r;
        const int i = hallado.captured(2).toInt();
        if (i >= lista.size())
            return {};
        expresion.replace(hallado.capturedStart(), hallado.capturedLength(),
                          u"(%1)"_s.arg(lista[i]));
    }
    return calculaEntero(expresion).value().toLongLong();
}

/// The mistaken answer; empty where it cannot be made.
Dada errada(const QString &como, const Leido &e, const Dada &buena)
{
    if (como.startsWith(u'@'))
        return buena.palabra.isEmpty() ? Dada{especial(como, e, buena.n)} : Dada{};
    if (como.startsWith(u'«'))
        return {{}, como.sliced(1, como.size() - 2)};
    Dada dada;
    for (const QString &expresion : como.split(u", "_s)) {
        const auto n = valor(expresion, e, buena.n);
        if (!n)
            return {};
        dada.n << *n;
    }
    return dada;
}

} // namespace

void tst_BancoAlgebra::elJuezSabeLoQueEsCierto_data()
{
    QTest::addColumn<QString>("clave");
    for (const auto &[clave, esBuena] : definicionesDeAlgebra())
        QTest::newRow(qPrintable(clave)) << clave;
}

void tst_BancoAlgebra::elJuezSabeLoQueEsCierto()
{
    QFETCH(QString, clave);
    const TipoDeEjercicio *tipo = tipoDeEjercicio(clave);
    QVERIFY(tipo);
    const EsBuena esBuena = definicion(clave);
    Sorteo azar(5);
    int rechazadas = 0;
    for (int i = 0; i < Niveles * Sorteos; ++i) {
        const auto [ejercicio, leido] = sortea(*tipo, 1 + i % Niveles, i);
        const Dada buena = esperada(ejercicio), mala = alterada(buena, ejercicio, azar);
        QVERIFY2(esBuena(leido, buena) && ejercicio.juzga(buena.leida()).acertada,
                 qPrintable(leido.texto + u" — "_s + ejercicio.esperada));
        const Fallo fallo = ejercicio.juzga(mala.leida());
        QVERIFY2(fallo.acertada == esBuena(leido, mala) && !fallo.palabra.isEmpty(),
                 qPrintable(u"%1 — %2%3: %4"_s.arg(leido.texto, mala.leida().numeros.join(u", "_s),
                                                   mala.palabra, fallo.palabra)));
        QVERIFY2(fallo.acertada || tienePalabrasDeNota(fallo.nota), qPrintable(fallo.nota));
        rechazadas += fallo.acertada ? 0 : 1;
    }
    QVERIFY2(rechazadas >= 20, qPrintable(cifras(rechazadas)));
}

void tst_BancoAlgebra::cadaErrorTieneSuPalabra()
{
    const auto [niveles, como] = estaFila<QString, QString>();
    const QString fila = QString::fromUtf8(QTest::currentDataTag());
    const QString clave = fila.section(u": "_s, 0, 0), nota = fila.section(u": "_s, 1);
    const EsBuena esBuena = definicion(clave);
    int cometidos = 0, nombrados = 0;
    for (int i = 0; i < 200; ++i) {
        const int nivel = niveles[i % niveles.size()].digitValue();
        const auto [ejercicio, leido] = sortea(*tipoDeEjercicio(clave), nivel, i);
        const Dada dada = errada(como, leido, esperada(ejercicio));
        if ((dada.n.isEmpty() && dada.palabra.isEmpty()) || esBuena(leido, dada))
            continue;
        const Fallo fallo = ejercicio.juzga(dada.leida());
        QVERIFY2(!fallo.acertada && tienePalabrasDeNota(fallo.nota), qPrintable(leido.texto));
        ++cometidos;
        nombrados += fallo.nota == nota ? 1 : 0;
    }
    // Some are another mistake as well, whose word comes first.
    QVERIFY2(nombrados > 5 && nombrados * 3 > cometidos * 2,
             qPrintable(u"%1 of %2"_s.arg(nombrados).arg(cometidos)));
}

/// A number of more than thirty digits is right where it is congruent to a right one, and nowhere
/// else.
void tst_BancoAlgebra::unNumeroLarguisimo()
{
    QFETCH(QString, clave);
    static const QStringList modulares{u"unidades.inverso"_s,         u"unidades.unidad"_s,
                                       u"unidades.primitiva"_s,       u"congruencias.dosmodulos"_s,
                                       u"congruencias.tresmodulos"_s, u"congruencias.nocoprimos"_s};
    for (int i = 0; i < 30; ++i) {
        const auto [ejercicio, leido] = sortea(*tipoDeEjercicio(clave), 1 + i % Niveles, i);
        RespuestaLeida r = esperada(ejercicio).leida();
        if (r.numeros.isEmpty() || ejercicio.forma.clase == FormaDeRespuesta::Solucion)
            continue;
        const bool buena =
            modulares.contains(clave) && (clave != modulares.back() || r.numeros.size() == 2);
        qint64 multiplo = 1;
        for (const qint64 n : leido.n) {
            if (n > 0 && n < 10'000 && multiplo < std::numeric_limits<qint64>::max() / n)
                multiplo *= n;
        }
        r.numeros[0] = cifras(std::abs(multiplo)) +
                       QString(r.numeros[0]).remove(u'-').rightJustified(30, u'0');
        QVERIFY2(ejercicio.juzga(r).acertada == buena,
                 qPrintable(leido.texto + r.numeros.join(u", "_s)));
    }
}

/// Bezout's coefficients and general solutions may be of any size.
void tst_BancoAlgebra::coeficientesLarguisimos()
{
    const auto lejos = [](qint64 n, qint64 paso) {
        return (n < 0 ? u"-"_s : QString()) + cifras(paso) +
               cifras(std::abs(n)).rightJustified(30, u'0');
    };
    for (int i = 0; i < 30; ++i) {
        const auto [ejercicio, leido] =
            sortea(*tipoDeEjercicio(u"euclides.bezout"_s), 1 + i % Niveles, i);
        const Numeros r = esperada(ejercicio).n;
        const QStringList largos{lejos(r[0], leido.n[1]), lejos(r[1], leido.n[0])};
        QVERIFY(ejercicio.juzga({RespuestaLeida::Leida, largos, {}, {}}).acertada);
        QVERIFY(
            !ejercicio.juzga({RespuestaLeida::Leida, {largos[0], cifras(r[1])}, {}, {}}).acertada);
    }
}

QTEST_GUILESS_MAIN(tst_BancoAlgebra)
#include "tst_BancoAlgebra.moc"
