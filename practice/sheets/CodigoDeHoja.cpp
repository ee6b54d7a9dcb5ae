// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/sheets/CodigoDeHoja.h"

#include "practice/engine/Banco.h"
#include "practice/progress/Curso.h"
#include "practice/progress/Eleccion.h"
#include "shell/core/ModGlobal.h"

#include <algorithm>
#include <optional>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr QStringView Letras = u"0123456789ABCDEFGHJKMNPQRSTVWXYZ";
constexpr qsizetype LargoDeUnoCorto = 7;
/// Version, form and count, series, and the check; each kind takes two letters more.
constexpr qsizetype LargoSinPartes = 6;
constexpr qsizetype LetrasComoMucho = LargoSinPartes + 2 * MaximoDePartes;

/// Values of five bits, filled from above.
class Simbolos
{
public:
    void mete(unsigned valor, int bits)
    {
        for (int i = bits - 1; i >= 0; --i) {
            m_ultimo = (m_ultimo << 1U) | ((valor >> static_cast<unsigned>(i)) & 1U);
            if (++m_bits % 5 == 0)
                m_valores << std::exchange(m_ultimo, 0U);
        }
    }
    const QList<unsigned> &valores() const { return m_valores; }

private:
    QList<unsigned> m_valores;
    unsigned m_ultimo = 0;
    int m_bits = 0;
};

class Lector
{
public:
    explicit Lector(const QList<unsigned> &valores) : m_valores(valores) {}
    int saca(int bits)
    {
        int valor = 0;
        for (int i = 0; i < bits; ++i, ++m_bit)
            valor = 2 * valor +
                    static_cast<int>(
                        (m_valores[m_bit / 5] >> static_cast<unsigned>(4 - m_bit % 5)) & 1U);
        return valor;
    }

private:
    QList<unsigned> m_valores;
    qsizetype m_bit = 0;
};

/// The product by x in the field of 32 elements, modulo x⁵ + x² + 1.
unsigned porX(unsigned valor)
{
    valor <<= 1U;
    return valor & 32U ? valor ^ 0b100101U : valor;
}

/// The value at x of the polynomial that has the letters for coefficients: x generates the field,
/// so no two places of fewer than 31 weigh the same.
unsigned control(const QList<unsigned> &valores)
{
    unsigned suma = 0;
    for (const unsigned valor : valores)
        suma = porX(suma ^ valor);
    return suma;
}

QString comoTexto(QList<unsigned> valores)
{
    valores << control(valores);
    QString texto;
    for (qsizetype i = 0; i < valores.size(); ++i) {
        const qsizetype lugar = valores.size() == LargoDeUnoCorto ? i + 1 : i;
        if (i > 0 && lugar % 4 == 0)
            texto += u'-';
        texto += Letras[valores[i]];
    }
    return texto;
}

std::optional<unsigned> valorDe(QChar letra)
{
    letra = letra.toUpper();
    if (letra == u'O')
        letra = u'0';
    if (letra == u'I' || letra == u'L')
        letra = u'1';
    const qsizetype lugar = Letras.indexOf(letra);
    return lugar < 0 ? std::nullopt : std::optional(static_cast<unsigned>(lugar));
}

/// The place of a lesson in the table below and in codes; it is never given to another.
const QStringList &leccionesDeCodigo()
{
    static const QStringList lecciones{QString(),         u"minical"_s,  u"fibonacci"_s,
                                       u"euclides"_s,     u"primos"_s,   u"unidades"_s,
                                       u"congruencias"_s, u"rsa"_s,      u"complejidad"_s,
                                       u"modular"_s,      u"funciones"_s};
    return lecciones;
}

void mete(Simbolos &simbolos, const EncargoDeHoja::Parte &parte)
{
    const QString leccion = parte.clave.section(u'.', 0, 0);
    simbolos.mete(static_cast<unsigned>(leccionesDeCodigo().indexOf(leccion)), 4);
    simbolos.mete(static_cast<unsigned>(clavesDelBanco(leccion).indexOf(parte.clave)), 4);
    simbolos.mete(static_cast<unsigned>(parte.nivel), 2);
}

std::optional<EncargoDeHoja> leeCorto(Lector &lector)
{
    EncargoDeHoja encargo;
    const int leccion = lector.saca(4);
    encargo.nivel = lector.saca(2);
    encargo.cuantos = lector.saca(5) + 1;
    encargo.serie = lector.saca(15);
    if (leccion >= leccionesDeCodigo().size())
        return {};
    encargo.leccion = leccionesDeCodigo()[leccion];
    return clavesDelBanco(encargo.leccion).isEmpty() ? std::nullopt : std::optional(encargo);
}

std::optional<EncargoDeHoja> leeLargo(Lector &lector, qsizetype partes)
{
    EncargoDeHoja encargo;
    encargo.cuantos = lector.saca(6);
    encargo.serie = lector.saca(15);
    for (qsizetype i = 0; i < partes; ++i) {
        const QString leccion = leccionesDeCodigo().value(lector.saca(4));
        const QStringList claves = leccion.isEmpty() ? QStringList() : clavesDelBanco(leccion);
        const QString clave = claves.value(lector.saca(4));
        const int nivel = lector.saca(2);
        if (clave.isEmpty() || nivel == 0)
            return {};
        encargo.partes << EncargoDeHoja::Parte{clave, nivel};
    }
    const bool cabe = encargo.cuantos >= 1 && encargo.cuantos <= MaximoDeEjercicios;
    return cabe && partes > 0 ? std::optional(encargo) : std::nullopt;
}

} // namespace

QString codigoDeHoja(const EncargoDeHoja &encargo)
{
    Simbolos simbolos;
    simbolos.mete(VersionDeSorteo, 3);
    simbolos.mete(encargo.largo() ? 1 : 0, 1);
    if (!encargo.largo()) {
        simbolos.mete(static_cast<unsigned>(leccionesDeCodigo().indexOf(encargo.leccion)), 4);
        simbolos.mete(static_cast<unsigned>(encargo.nivel), 2);
        simbolos.mete(static_cast<unsigned>(encargo.cuantos - 1), 5);
        simbolos.mete(static_cast<unsigned>(encargo.serie), 15);
        return comoTexto(simbolos.valores());
    }
    simbolos.mete(static_cast<unsigned>(encargo.cuantos), 6);
    simbolos.mete(static_cast<unsigned>(encargo.serie), 15);
    for (const EncargoDeHoja::Parte &parte : encargo.partes)
        mete(simbolos, parte);
    return comoTexto(simbolos.valores());
}

std::variant<EncargoDeHoja, QString> leeCodigoDeHoja(const QString &codigo)
{
    QList<unsigned> valores;
    for (const QChar letra : codigo.left(1000)) {
        if (letra.isSpace() || letra == u'-' || letra == u'–' || letra == u'.')
            continue;
        const auto valor = valorDe(letra);
        if (!valor)
            return Traduce(u"En un código no aparece «%1»."_s).arg(letra);
        valores << *valor;
    }
    if (valores.size() < LargoDeUnoCorto || valores.size() > LetrasComoMucho)
        return Traduce(
            u"Un código tiene siete letras o cifras, o más si se eligieron los tipos."_s);
    const unsigned letraDeControl = valores.takeLast();
    if (control(valores) != letraDeControl)
        return Traduce(u"El código está mal copiado: alguna letra no es la suya."_s);
    Lector lector(valores);
    if (lector.saca(3) != VersionDeSorteo)
        return Traduce(
            u"El código es de otra versión del programa, que sorteaba de otra manera."_s);
    const bool largo = lector.saca(1) == 1;
    const qsizetype partes = (valores.size() + 1 - LargoSinPartes) / 2;
    const bool cuadra = largo ? (valores.size() + 1 - LargoSinPartes) % 2 == 0
                              : valores.size() + 1 == LargoDeUnoCorto;
    const auto encargo = !cuadra ? std::nullopt
                         : largo ? leeLargo(lector, partes)
                                 : leeCorto(lector);
    if (!encargo)
        return Traduce(u"El código nombra ejercicios que este programa no tiene."_s);
    return *encargo;
}
