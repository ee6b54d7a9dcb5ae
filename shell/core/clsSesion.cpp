#include "shell/core/clsSesion.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <array>
#include <cmath>
#include <limits>
#include <pwd.h>
#include <unistd.h>

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
    passwd cuenta;
    passwd *hallada = nullptr;
    std::array<char, 16384> bufer;
    if (getpwuid_r(getuid(), &cuenta, bufer.data(), bufer.size(), &hallada) != 0 || !hallada)
        return {};
    return QFile::decodeName(hallada->pw_name).left(254);
}

std::int32_t clsSesión::Precisión() const
{
    const double valor = std::nearbyint(NumVal(lee(u"Aritmética"_s, u"Precisión"_s, u"100"_s)));
    if (!(std::abs(valor) <= std::numeric_limits<std::int32_t>::max()))
        throw ErrorEjecucion(ErrorEjecucion::Desbordamiento);
    return static_cast<std::int32_t>(valor);
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

clsSesión &Sesión()
{
    static clsSesión sesion(QCoreApplication::applicationDirPath());
    return sesion;
}
