// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/DocumentoDeHoja.h"

#include "minical/HojaDeCalculo.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"

#include <QFileInfo>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;

namespace {

QByteArray bytesDe(const HojaDeCalculo &hoja, const DocumentoDeHoja::Anchos &anchos)
{
    HojaGuardada contenido = contenidoDe(hoja);
    contenido.anchos = anchos;
    return escribeHoja(contenido);
}

} // namespace

QString DocumentoDeHoja::nombre() const
{
    return m_ruta.isEmpty() ? Traduce(u"Hoja"_s) + u".minical"_s : QFileInfo(m_ruta).fileName();
}

bool DocumentoDeHoja::modificado() const
{
    return m_hoja.modificada();
}

void DocumentoDeHoja::nuevo()
{
    m_hoja.carga({});
    m_ruta.clear();
}

DocumentoDeHoja::Leida DocumentoDeHoja::carga(const QByteArray &bytes, const QString &ruta)
{
    const auto leida = leeHoja(bytes);
    if (const auto *fallo = std::get_if<FalloDeHoja>(&leida))
        return *fallo;
    const auto &contenido = std::get<HojaGuardada>(leida);
    m_hoja.carga(contenido);
    m_ruta = ruta;
    return contenido.anchos;
}

DocumentoDeHoja::Leida DocumentoDeHoja::abre(const QString &ruta)
{
    return carga(leeArchivo(ruta, TamanoMaximoDeHoja), ruta);
}

bool DocumentoDeHoja::guarda(const QString &ruta, const Anchos &anchos)
{
    const QByteArray bytes = bytesDe(m_hoja, anchos);
    if (bytes.size() > TamanoMaximoDeHoja)
        return false;
    escribeArchivo(ruta, bytes);
    m_hoja.historial().marcaGuardado();
    m_ruta = ruta;
    return true;
}

// A copy is the path on a line of its own, in which no sign of it can be taken for the line's end,
// and the sheet as a file holds it.

QByteArray DocumentoDeHoja::copia(const Anchos &anchos) const
{
    if (!modificado())
        return {};
    return QUrl::toPercentEncoding(m_ruta) + '\n' + bytesDe(m_hoja, anchos);
}

DocumentoDeHoja::Leida DocumentoDeHoja::recupera(const QByteArray &copia)
{
    const Leida leida = carga(copia.sliced(copia.indexOf('\n') + 1), rutaDeCopia(copia));
    if (std::holds_alternative<Anchos>(leida))
        m_hoja.historial().marcaSinGuardar();
    return leida;
}

QString rutaDeCopia(const QByteArray &copia)
{
    return QUrl::fromPercentEncoding(copia.first(std::max<qsizetype>(0, copia.indexOf('\n'))));
}
