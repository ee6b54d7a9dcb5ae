// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/look/TextosDeQt.h"

#include "shell/core/Traduccion.h"

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>
#include <algorithm>
#include <array>
#include <string_view>

using namespace Qt::Literals::StringLiterals;

namespace {

/// What Qt's own Spanish leaves in English in the dialogs that the program opens.
struct Falta
{
    std::string_view contexto;
    std::string_view ingles;
    QStringView espanol;
};
constexpr std::array faltas{
    Falta{"QAbstractFileIconProvider", "Drive", u"Unidad"},
    Falta{"QAbstractFileIconProvider", "Folder", u"Carpeta"},
    Falta{"QPrintPropertiesWidget", "Advanced", u"Avanzado"},
    Falta{"QPrintPropertiesWidget", "There are conflicts in some options. Please fix them.",
          u"Algunas opciones se contradicen: cámbielas."},
    Falta{"QPrintSettingsOutput", "Double Sided Printing", u"Impresión por las dos caras"},
    Falta{"QPrintSettingsOutput", "Long side binding", u"Encuadernada por el lado largo"},
    Falta{"QPrintSettingsOutput", "Off", u"No"},
    Falta{"QPrintSettingsOutput", "Pages", u"Páginas"},
    Falta{"QPrintSettingsOutput", "Short side binding", u"Encuadernada por el lado corto"},
    Falta{"QPrintSettingsOutput",
          "Specify pages or ranges separated by commas. Ranges are specified by two numbers "
          "separated by a hyphen. E.g: 3,5-7,9 prints pages 3, 5, 6, 7 and 9.",
          u"Páginas e intervalos separados por comas; un intervalo son dos números con un guion "
          u"entre ellos. Así, 3,5-7,9 imprime las páginas 3, 5, 6, 7 y 9."}};

class TextosDeQt : public QTranslator
{
public:
    using QTranslator::QTranslator;

    QString translate(const char *contexto, const char *texto, const char *aclaracion,
                      int n) const override
    {
        const QString hallado = QTranslator::translate(contexto, texto, aclaracion, n);
        if (!hallado.isEmpty())
            return hallado;
        const auto falta = std::find_if(faltas.begin(), faltas.end(), [&](const Falta &una) {
            return una.contexto == contexto && una.ingles == texto;
        });
        return falta == faltas.end() ? QString() : falta->espanol.toString();
    }
};

} // namespace

void instalaTextosDeQt()
{
    static QPointer<QTranslator> textos;
    delete textos;
    // A translated interface leaves Qt's own English texts.
    if (HayTraduccion())
        return;
    textos = new TextosDeQt(QCoreApplication::instance());
    if (textos->load(u"qtbase_es"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(textos);
}
