// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/clsSesion.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Cuenta.h"

#include <QCoreApplication>
#include <QFileInfo>

using namespace Qt::Literals::StringLiterals;

namespace {

// Public pages in Spanish about discrete mathematics; both can be replaced in the settings store.
constexpr QStringView DptoPorDefecto = u"https://es.wikipedia.org/wiki/Matem%C3%A1tica_discreta";
constexpr QStringView TarvoPorDefecto =
    u"https://es.wikipedia.org/wiki/Teor%C3%ADa_de_n%C3%BAmeros";

/// The name of one of `variantes` animations: eleven equally likely values folded by `variantes`.
QString animacionAlAzar(QStringView nombre, int variantes)
{
    const int numero = static_cast<int>(AzarUnitario() * 11) % variantes + 1;
    return u"ClipArt\\%1%2.AVI"_s.arg(nombre).arg(numero, 2, 10, QChar(u'0'));
}

} // namespace

clsSesión::clsSesión(const QString &carpetaPrograma)
    : m_almacen(QSettings::IniFormat, QSettings::UserScope, u"Numora"_s, u"Numora"_s),
      m_carpetaPrograma(carpetaPrograma)
{
}

QString clsSesión::carpeta()
{
    if (m_carpeta.isEmpty())
        m_carpeta = lee(u"Programa"_s, u"Carpeta"_s);
    if (m_carpeta.isEmpty())
        m_carpeta = m_carpetaPrograma;
    return m_carpeta;
}

void clsSesión::ponCarpeta(const QString &carpeta)
{
    guarda(u"Programa"_s, u"Carpeta"_s, carpeta);
    m_carpeta = carpeta;
}

QString clsSesión::carpetaDeAjustes() const
{
    return QFileInfo(m_almacen.fileName()).absolutePath();
}

QString clsSesión::DptoURL() const
{
    return lee(u"Enlaces"_s, u"Departamento"_s, DptoPorDefecto.toString());
}

QString clsSesión::TarvoURL() const
{
    return lee(u"Enlaces"_s, u"tarvo"_s, TarvoPorDefecto.toString());
}

QString clsSesión::AVIEureka() const
{
    return animacionAlAzar(u"EUREKA", 2);
}

QString clsSesión::AVIError() const
{
    return animacionAlAzar(u"ERROR", 3);
}

QString clsSesión::UserName() const
{
    constexpr qsizetype bufer = 255;
    return nombreDeCuenta().left(bufer - 1);
}

std::int32_t clsSesión::Precisión() const
{
    return aEntero32(NumVal(lee(u"Aritmética"_s, u"Precisión"_s, u"100"_s)));
}

void clsSesión::ponPrecisión(std::int32_t digitos)
{
    const QString signo = digitos < 0 ? QString() : u" "_s;
    guarda(u"Aritmética"_s, u"Precisión"_s, signo + QString::number(digitos));
    TerminaBignum();
    IniciaBignum(Precisión());
}

QString clsSesión::lee(const QString &seccion, const QString &clave, const QString &defecto) const
{
    return m_almacen.value(seccion + u'/' + clave, defecto).toString();
}

void clsSesión::guarda(const QString &seccion, const QString &clave, const QString &valor)
{
    anota(seccion + u'/' + clave, valor);
}

QVariant clsSesión::recuerda(const QString &clave, const QVariant &defecto) const
{
    return m_almacen.value(clave, defecto);
}

void clsSesión::anota(const QString &clave, const QVariant &valor)
{
    m_almacen.setValue(clave, valor);
    m_almacen.sync();
}

namespace {

std::unique_ptr<clsSesión> &puesta()
{
    static std::unique_ptr<clsSesión> sesion;
    return sesion;
}

} // namespace

clsSesión &Sesión()
{
    if (!puesta())
        puesta() = std::make_unique<clsSesión>(QCoreApplication::applicationDirPath());
    return *puesta();
}

std::unique_ptr<clsSesión> ponSesión(std::unique_ptr<clsSesión> otra)
{
    std::swap(puesta(), otra);
    return otra;
}
