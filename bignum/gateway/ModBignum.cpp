// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"

#include "bignum/bignum.h"
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/Windows1252.h"

#include <vector>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr int BuferExpresion = 24576;
constexpr int BuferDecimal = 16384;
constexpr int BuferNumero = 8192;

AvisoDeCota &avisoDeCota()
{
    static AvisoDeCota aviso;
    return aviso;
}

/// A text as the library takes it. A character that Windows-1252 lacks belongs to no number, so any
/// sign that is no part of one makes the library refuse the whole.
QByteArray paraBignum(const QString &texto)
{
    return aWindows1252(texto).value_or("?"_ba);
}

/// A NUL-filled buffer that the library writes into.
class Bufer
{
public:
    explicit Bufer(int tamano = BuferNumero) : m_bytes(tamano, '\0') {}
    char *datos() { return m_bytes.data(); }
    QString completo() const { return QString::fromLatin1(m_bytes); }
    QString cortado() const { return CortaNulo(completo()); }

private:
    QByteArray m_bytes;
};

QString resultado(std::int32_t exito, const Bufer &bufer)
{
    return exito != 0 ? bufer.cortado() : TextoError.toString();
}

/// A bound with decimals as the fraction that the library compares.
QString comoFraccion(const QString &cota)
{
    const auto punto = cota.indexOf(u',');
    if (punto < 0)
        return cota;
    const auto decimales = cota.size() - punto - 1;
    return QString(cota).remove(punto, 1) + u"/1"_s + QString(decimales, u'0');
}

bool rodeaAMod(QChar c)
{
    return u" ()[]{}0123456789\r\n"_s.contains(c);
}

bool esModEn(const QString &expresion, qsizetype i)
{
    return QStringView(expresion).sliced(i).left(3).compare(u"mod", Qt::CaseInsensitive) == 0;
}

} // namespace

void InstalaAvisoDeCota(AvisoDeCota aviso)
{
    avisoDeCota() = std::move(aviso);
}

void IniciaBignum(std::int32_t precision)
{
    InitBignum(precision);
}

void TerminaBignum()
{
    EndBignum();
}

void ReescribeMod(QString &expresion)
{
    for (qsizetype i = 0; i < expresion.size();) {
        if (!esModEn(expresion, i)) {
            ++i;
            continue;
        }
        if (i == 0)
            throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido);
        const qsizetype fin = i + 3;
        if (rodeaAMod(expresion[i - 1]) && (fin == expresion.size() || rodeaAMod(expresion[fin])))
            expresion.replace(i, 3, u'%');
        i += 3;
    }
}

Evaluacion EvaluaConDesenlace(QString &expresion, const std::optional<QString> &maximo,
                              Aritmetica aritmetica)
{
    if (expresion.trimmed().isEmpty())
        return {Evaluacion::Vacia, {}};
    ReescribeMod(expresion);
    const QByteArray texto = paraBignum(u"0+("_s + expresion + u')');
    Bufer bufer(BuferExpresion);
    const auto evalua = aritmetica == Aritmetica::Entera ? ZEval : QEval;
    if (evalua(texto.constData(), bufer.datos()) == 0)
        return {Evaluacion::SinValor, {}};
    const QString valor = bufer.cortado();
    if (!maximo || !EsMayor(comoFraccion(*maximo), valor))
        return {Evaluacion::ConValor, valor};
    if (avisoDeCota())
        avisoDeCota()(*maximo);
    return {Evaluacion::SobreLaCota, {}};
}

QString Evalua(QString &expresion, const std::optional<QString> &maximo, Aritmetica aritmetica)
{
    const Evaluacion evaluacion = EvaluaConDesenlace(expresion, maximo, aritmetica);
    const bool falla = evaluacion.desenlace == Evaluacion::SinValor ||
                       evaluacion.desenlace == Evaluacion::SobreLaCota;
    return falla ? TextoError.toString() : evaluacion.valor;
}

QString Evalua(QString &&expresion, const std::optional<QString> &maximo, Aritmetica aritmetica)
{
    return Evalua(expresion, maximo, aritmetica);
}

Moneda EvaluaMoneda(QString expresion, Moneda maximo)
{
    const QString r = Evalua(expresion, maximo.texto());
    if (!Moneda::deTexto(QStringView(r).left(2)))
        return {};
    return Moneda::deTexto(ADecimal(r)).value_or(Moneda());
}

QString ADecimal(const QString &racional)
{
    Bufer bufer(BuferDecimal);
    if (::ToDecimal(paraBignum(racional).constData(), bufer.datos()) == 0)
        return TextoError.toString();
    QString s = bufer.cortado();
    if (const auto punto = s.indexOf(u'.'); punto >= 0)
        s[punto] = u',';
    return s;
}

bool EsPrimo(const QString &n)
{
    return IsPrime(paraBignum(n).constData()) != 0;
}

std::int32_t NumeroDeBits(const QString &n)
{
    return NumBits(paraBignum(n).constData());
}

QString PrimoAleatorio(std::int16_t bits)
{
    Bufer bufer;
    RndPrimo(bits, bufer.datos());
    return bufer.cortado();
}

QString PrimoSiguiente(const QString &n)
{
    Bufer bufer;
    NextPrime(paraBignum(n).constData(), bufer.datos());
    return bufer.cortado();
}

QString InversoMod(const QString &a, const QString &n)
{
    Bufer bufer;
    InvMod(paraBignum(a).constData(), paraBignum(n).constData(), bufer.datos());
    return bufer.cortado();
}

QString RestoChino(const QStringList &restos, const QStringList &modulos)
{
    if (restos.size() != modulos.size())
        return TextoError.toString();
    std::vector<QByteArray> textos;
    textos.reserve(static_cast<std::size_t>(2 * restos.size()));
    std::vector<const char *> r, m;
    for (qsizetype i = 0; i < restos.size(); ++i) {
        r.push_back(textos.emplace_back(paraBignum(restos[i])).constData());
        m.push_back(textos.emplace_back(paraBignum(modulos[i])).constData());
    }
    Bufer bufer;
    return resultado(CRT(r.data(), m.data(), static_cast<std::int32_t>(r.size()), bufer.datos()),
                     bufer);
}

std::int32_t Factoriza(const QString &n, QStringList &primos, QStringList &exponentes)
{
    const auto cuantos = static_cast<std::size_t>(std::min(primos.size(), exponentes.size()));
    std::vector<Bufer> buferes(2 * cuantos);
    std::vector<char *> p, e;
    for (std::size_t i = 0; i < cuantos; ++i) {
        p.push_back(buferes[2 * i].datos());
        e.push_back(buferes[2 * i + 1].datos());
    }
    const auto exito =
        Factors(paraBignum(n).constData(), p.data(), e.data(), static_cast<std::int32_t>(cuantos));
    for (std::size_t i = 0; i < cuantos; ++i) {
        primos[static_cast<qsizetype>(i)] = buferes[2 * i].cortado();
        exponentes[static_cast<qsizetype>(i)] = buferes[2 * i + 1].cortado();
    }
    return exito;
}

QString FiEuler(const QString &n)
{
    Bufer bufer;
    return resultado(EulerFi(paraBignum(n).constData(), bufer.datos()), bufer);
}

QString EnBase(std::int32_t base, const QString &n)
{
    Bufer bufer;
    return resultado(ToBasis(base, paraBignum(n).constData(), bufer.datos()), bufer);
}

QString Mcd(const QString &a, const QString &b)
{
    Bufer bufer;
    return resultado(BMcd(paraBignum(a).constData(), paraBignum(b).constData(), bufer.datos()),
                     bufer);
}

QString PotenciaMod(const QString &base, const QString &exponente, const QString &modulo)
{
    Bufer bufer;
    return resultado(PowMod(paraBignum(base).constData(), paraBignum(exponente).constData(),
                            paraBignum(modulo).constData(), bufer.datos()),
                     bufer);
}

QString Modulo(const QString &a, const QString &m)
{
    Bufer bufer;
    return resultado(BMod(paraBignum(a).constData(), paraBignum(m).constData(), bufer.datos()),
                     bufer);
}

bool McdExtendido(const QString &a, const QString &b, QString &d, QString &x, QString &y)
{
    Bufer bd, bx, by;
    const bool exito = BExMcd(paraBignum(a).constData(), paraBignum(b).constData(), bd.datos(),
                              bx.datos(), by.datos()) != 0;
    d = exito ? bd.cortado() : bd.completo();
    x = exito ? bx.cortado() : bx.completo();
    y = exito ? by.cortado() : by.completo();
    return exito;
}

bool EsMayor(const QString &a, const QString &b)
{
    return BMax(paraBignum(a).constData(), paraBignum(b).constData()) >= 2;
}

bool EsTextoLegible(const QString &texto)
{
    const auto bytes = aWindows1252(texto);
    return bytes && !bytes->contains('\0') && IsText(bytes->constData()) == -1;
}

QString CortaNulo(const QString &bufer)
{
    const auto nulo = bufer.indexOf(QChar(u'\0'));
    return (nulo < 0 ? bufer : bufer.left(nulo)).trimmed();
}
