// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/key/ClsRSA.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Perfil.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/CarpetaCompartida.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

using namespace Qt::Literals::StringLiterals;

namespace {

QString producto(const QString &a, const QString &b)
{
    return Evalua(u"(%1)*(%2)"_s.arg(a, b), {}, Aritmetica::Entera);
}

QString productoDeAnteriores(const QString &a, const QString &b)
{
    return Evalua(u"((%1)-1)*((%2)-1)"_s.arg(a, b), {}, Aritmetica::Entera);
}

QString objecionAExponente(const QString &fiQ)
{
    return Traduce(u"El número s debe ser primo con "_s) + fiQ;
}

} // namespace

QString ClsRSA::DirMensajes() const
{
    return m_sesion.lee(u"RSA"_s, u"DirMensajes"_s);
}

void ClsRSA::ponDirMensajes(const QString &carpeta)
{
    m_sesion.guarda(u"RSA"_s, u"DirMensajes"_s, carpeta);
    QString copia = carpeta;
    Q_EMIT CambiaBuzon(copia);
}

void ClsRSA::ponClaveOK(bool bien)
{
    m_claveOK = false;
    if (bien)
        SalvaClave();
    m_claveOK = bien;
}

const QString &ClsRSA::q(int i) const
{
    if (i < 0 || i > 2)
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeRango);
    return m_q[static_cast<std::size_t>(i)];
}

void ClsRSA::ponq(int i, const QString &valor)
{
    if (i < 0 || i > 2)
        throw ErrorEjecucion(ErrorEjecucion::IndiceFueraDeRango);
    m_q[static_cast<std::size_t>(i)] = valor;
}

QString ClsRSA::FicheroClavePrivada() const
{
    return m_fichero.rutaParaGuardar();
}

void ClsRSA::SalvaClave() const
{
    Perfil::Entradas entradas{{u"r"_s, QString::number(m_r)}};
    for (int i = 0; i <= 2; ++i)
        entradas.append({u"q(%1)"_s.arg(i), q(i)});
    entradas.append({u"s"_s, m_s});
    entradas.append({u"t"_s, m_t});
    entradas.append({u"NBits"_s, QString::number(m_nbits)});
    entradas.append({u"Fi(Q)"_s, m_fiQ});
    const QString ruta = rutaExistente(FicheroClavePrivada());
    QDir().mkpath(QFileInfo(ruta).absolutePath());
    Perfil::escribe(ruta, u"RSA"_s, entradas, Perfil::Acceso::Privado);
}

void ClsRSA::RecuperaClave()
{
    const QString ruta = m_fichero.rutaGuardada();
    if (ruta.isEmpty())
        return;
    Perfil fichero;
    if (fichero.lee(rutaExistente(ruta)) != Perfil::Lectura::Correcta)
        throw ErrorEjecucion(ErrorEjecucion::ErrorDeArchivo, QDir::toNativeSeparators(ruta));
    m_r = aEntero16(NumVal(fichero.valor(u"RSA"_s, u"r"_s, u"0"_s)));
    for (int i = 0; i <= 2; ++i)
        ponq(i, fichero.valor(u"RSA"_s, u"q(%1)"_s.arg(i)));
    m_s = fichero.valor(u"RSA"_s, u"s"_s);
    m_t = fichero.valor(u"RSA"_s, u"t"_s);
    m_nbits = aEntero16(NumVal(fichero.valor(u"RSA"_s, u"NBits"_s)));
    m_fiQ = fichero.valor(u"RSA"_s, u"Fi(Q)"_s);
    Valida();
}

void ClsRSA::PublicaClave() const
{
    const QByteArray contenido = Perfil::contenido(u"RSA"_s, {{u"q"_s, m_q[0]}, {u"s"_s, m_s}});
    CarpetaCompartida(DirMensajes())
        .subcarpetaCreada(m_fichero.subcarpetaPropia())
        .sustituye(FicheroClavePublica, contenido);
}

bool ClsRSA::faltanDatos() const
{
    return m_q[1].isEmpty() || m_q[2].isEmpty() || m_s.isEmpty();
}

bool ClsRSA::cabe() const
{
    return m_q[1].size() + m_q[2].size() <= MaximoDeCifras && m_s.size() <= MaximoDeCifras;
}

/// Refuses numbers that no key file could hold, before hours go into the test of a prime.
void ClsRSA::compruebaTamano() const
{
    if (cabe())
        return;
    throw ErrorEjecucion(
        ErrorEjecucion::Desbordamiento,
        Traduce(u"Los números de una clave tienen como mucho %1 cifras."_s).arg(MaximoDeCifras));
}

QStringList ClsRSA::porProbar() const
{
    QStringList numeros;
    for (const int i : {1, 2}) {
        if (!faltanDatos() && cabe() && !m_probados.contains(q(i)))
            numeros << q(i);
    }
    return numeros;
}

void ClsRSA::sabe(const QString &numero, bool primo) const
{
    constexpr qsizetype cuantos = 4;
    if (m_probados.size() >= cuantos)
        m_probados.clear();
    m_probados[numero] = primo;
}

/// Each number is tested once: a key is validated with every message.
bool ClsRSA::esPrimo(const QString &numero) const
{
    if (!m_probados.contains(numero))
        sabe(numero, EsPrimo(numero));
    return m_probados.value(numero);
}

QString ClsRSA::objecionAPrimo(int i) const
{
    if (!esPrimo(q(i)))
        return u"q(%1)"_s.arg(i) + Traduce(u" debe ser primo."_s);
    // The largest number that r characters can give.
    const QString cota = u"255"_s.repeated(std::max<int>(m_r, 0));
    if (!EsMayor(cota, q(i)))
        return u"q(%1)"_s.arg(i) + Traduce(u" debe ser mayor que "_s) + cota + u'.';
    return {};
}

QString ClsRSA::objecionATamano(std::int32_t bits) const
{
    if (m_nbitsRequeridos <= 0 || bits == m_nbitsRequeridos)
        return {};
    return Traduce(u"Se requiere una clave de "_s) + QString::number(m_nbitsRequeridos) +
           Traduce(u" bits, y la actual tiene "_s) + QString::number(bits);
}

void ClsRSA::rechaza(const QString &mensaje)
{
    m_claveOK = false;
    Q_EMIT ValidaClave(m_claveOK, mensaje);
}

void ClsRSA::Valida()
{
    m_claveOK = false;
    if (faltanDatos())
        return;
    compruebaTamano();
    for (const int i : {1, 2}) {
        if (const QString objecion = objecionAPrimo(i); !objecion.isEmpty()) {
            rechaza(objecion);
            m_q[0].clear();
            m_fiQ.clear();
            return;
        }
    }
    m_q[0] = producto(m_q[1], m_q[2]);
    m_fiQ = productoDeAnteriores(m_q[1], m_q[2]);
    m_nbits = static_cast<std::int16_t>(NumeroDeBits(m_q[0]));
    QString mcd, inverso, otro;
    McdExtendido(m_s, m_fiQ, mcd, inverso, otro);
    if (mcd != u"1"_s) {
        rechaza(objecionAExponente(m_fiQ));
        return;
    }
    // The key is kept as soon as it is known to be one, and once more with the exponent that
    // follows from it.
    ponClaveOK(true);
    m_t = Modulo(inverso, m_fiQ);
    if (const QString objecion = objecionATamano(m_nbits); !objecion.isEmpty()) {
        rechaza(objecion);
        return;
    }
    ponClaveOK(true);
    Q_EMIT ValidaClave(m_claveOK, Traduce(u"Clave OK"_s));
}

QString ClsRSA::Objecion() const
{
    if (faltanDatos())
        return {};
    compruebaTamano();
    for (const int i : {1, 2}) {
        if (const QString objecion = objecionAPrimo(i); !objecion.isEmpty())
            return objecion;
    }
    const QString fiQ = productoDeAnteriores(m_q[1], m_q[2]);
    if (Mcd(m_s, fiQ) != u"1"_s)
        return objecionAExponente(fiQ);
    return objecionATamano(NumeroDeBits(producto(m_q[1], m_q[2])));
}

Tarea<QStringList> ClsRSA::Codifica(const QString &texto, Billete billete) const
{
    return codifica(texto, m_r, Potencias(m_s, m_q[0]), std::move(billete));
}

Tarea<QString> ClsRSA::DesCodifica(const QStringList &bloques, Billete billete) const
{
    return descodifica(bloques, paraDescodificar(), std::move(billete));
}
