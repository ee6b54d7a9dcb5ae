// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/HojaSinVentana.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "practice/windows/ImpresionDeHoja.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"

#include <QTextStream>

using namespace Qt::Literals::StringLiterals;

namespace {

int falla(const QString &frase)
{
    QTextStream(stderr) << frase << Qt::endl;
    return 1;
}

} // namespace

int hojaSinVentana(const QString &codigo, const QString &archivo, bool conSoluciones,
                   const QString &idioma)
{
    Idioma() = idioma;
    const auto leido = leeCodigoDeHoja(codigo);
    if (const auto *motivo = std::get_if<QString>(&leido))
        return falla(*motivo);
    if (archivo.isEmpty())
        return falla(Traduce(u"Falta el archivo: --pdf ARCHIVO."_s));
    IniciaBignum(Sesión().Precisión());
    int salida = 0;
    try {
        escribeArchivo(archivo, hojaEnPdf(std::get<EncargoDeHoja>(leido), conSoluciones));
    } catch (const ErrorEjecucion &error) {
        salida =
            falla(Traduce(ErrorEjecucion::nombre(error.numero()) + u'.') + u' ' + error.detalle());
    }
    TerminaBignum();
    return salida;
}
