// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Perfil.h"

#include "bignum/gateway/Windows1252.h"
#include "shell/core/system/Archivos.h"

#include <QStringConverter>

// Everything is UTF-8 by the time it comes here; the library's own conversions are not needed.
#define SI_NO_CONVERSION
#include <SimpleIni.h>

using namespace Qt::Literals::StringLiterals;

struct Perfil::Datos
{
    Datos() : ini(/*utf8*/ true, /*several keys of one name*/ true) {}
    CSimpleIniA ini;
};

namespace {

QByteArray comoUtf8(const QByteArray &bytes)
{
    QStringDecoder utf8(QStringConverter::Utf8);
    const QString texto = utf8.decode(bytes);
    return (utf8.hasError() ? deWindows1252(bytes) : texto).toUtf8();
}

QString sinComillas(const QString &valor)
{
    const bool entrecomillado = valor.size() >= 2 && valor.front() == valor.back() &&
                                (valor.front() == u'"' || valor.front() == u'\'');
    return entrecomillado ? valor.sliced(1, valor.size() - 2) : valor;
}

QByteArray linea(const QString &texto)
{
    if (texto.contains(u'\n') || texto.contains(u'\r') || texto.contains(QChar(u'\0')))
        throw ErrorEjecucion(ErrorEjecucion::ArgumentoNoValido);
    return texto.toUtf8() + "\r\n";
}

} // namespace

Perfil::Perfil() : m_datos(std::make_unique<Datos>()) {}
Perfil::~Perfil() = default;
Perfil::Perfil(Perfil &&) noexcept = default;
Perfil &Perfil::operator=(Perfil &&) noexcept = default;

Perfil::Lectura Perfil::lee(const QString &ruta)
{
    m_datos = std::make_unique<Datos>();
    try {
        return leeBytes(leeArchivo(ruta, TamanoMaximo));
    } catch (const ErrorEjecucion &error) {
        const bool falta = error.numero() == ErrorEjecucion::ArchivoNoEncontrado;
        return falta ? Lectura::NoExiste : Lectura::Ilegible;
    }
}

Perfil::Lectura Perfil::leeBytes(const QByteArray &bytes)
{
    m_datos = std::make_unique<Datos>();
    if (bytes.size() > TamanoMaximo)
        return Lectura::Ilegible;
    const QByteArray utf8 = comoUtf8(bytes);
    const auto tamano = static_cast<std::size_t>(utf8.size());
    return m_datos->ini.LoadData(utf8.constData(), tamano) >= 0 ? Lectura::Correcta
                                                                : Lectura::Ilegible;
}

bool Perfil::tieneSeccion(const QString &seccion) const
{
    return !seccion.isEmpty() && m_datos->ini.GetSection(seccion.toUtf8().constData()) != nullptr;
}

QString Perfil::valor(const QString &seccion, const QString &clave, const QString &defecto,
                      int maximo) const
{
    const char *hallado =
        m_datos->ini.GetValue(seccion.toUtf8().constData(), clave.toUtf8().constData());
    const QString valor = hallado ? sinComillas(QString::fromUtf8(hallado)) : defecto;
    return valor.left(maximo - 1);
}

QByteArray Perfil::contenido(const QString &seccion, const Entradas &entradas)
{
    QByteArray bytes = linea(u'[' + seccion + u']');
    for (const auto &[clave, valor] : entradas)
        bytes += linea(clave + u'=' + valor);
    return bytes;
}

void Perfil::escribe(const QString &ruta, const QString &seccion, const Entradas &entradas,
                     Acceso acceso)
{
    escribeArchivo(ruta, contenido(seccion, entradas), acceso == Acceso::Privado);
}
