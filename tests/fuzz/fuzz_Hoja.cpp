// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "minical/ArchivoDeHoja.h"
#include "minical/HojaDeCalculo.h"
#include "tests/fuzz/FuzzTarget.h"

/// A sheet that is taken can be loaded, holds what the file says, is written again as a file that
/// reads the same, and its cells see one another without evaluating anything.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray bytes(reinterpret_cast<const char *>(data), static_cast<qsizetype>(size));
    const auto read = leeHoja(bytes);
    if (const auto *fault = std::get_if<FalloDeHoja>(&read)) {
        check(fault->linea <= bytes.count('\n') + 1, "a fault is in a line of the file");
        return 0;
    }
    const auto &contents = std::get<HojaGuardada>(read);
    HojaDeCalculo sheet;
    sheet.carga(contents);
    HojaGuardada again = contenidoDe(sheet);
    again.anchos = contents.anchos;
    check(again.celdas.size() == contents.celdas.size(), "no cell is lost");
    const auto rewritten = leeHoja(escribeHoja(again));
    check(std::holds_alternative<HojaGuardada>(rewritten) &&
              std::get<HojaGuardada>(rewritten) == again,
          "what is written reads the same");
    for (const CeldaGuardada &cell : contents.celdas) {
        const QString &shown = sheet.texto(cell.celda);
        check(shown == cell.resultado, "a cell shows its result");
        try {
            const QString value = sheet.SustituirVariables(NombreCelda(cell.celda));
            check(value.size() <= HojaDeCalculo::LongitudMaximaSustituida, "values are bounded");
        } catch (const ErrorEjecucion &) {
            check(false, "one value always fits");
        }
    }
    return 0;
}
