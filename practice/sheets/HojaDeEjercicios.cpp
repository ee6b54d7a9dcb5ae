// SPDX-License-Identifier: GPL-3.0-or-later
#include "practice/sheets/HojaDeEjercicios.h"

#include "practice/engine/Banco.h"
#include "practice/progress/Curso.h"
#include "practice/progress/Eleccion.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/steps/CopiaDePasos.h"
#include "shell/core/steps/EscrituraDeFormula.h"
#include "shell/core/steps/NumerosEnPantalla.h"

#include <QRegularExpression>
#include <QSet>

using namespace Qt::Literals::StringLiterals;

namespace {

/// How often an exercise that the sheet has already is drawn again.
constexpr int SorteosComoMucho = 8;
constexpr qsizetype PasosComoMucho = 60;

QList<EncargoDeHoja::Parte> partesDe(const EncargoDeHoja &encargo)
{
    if (encargo.largo())
        return encargo.partes;
    QList<EncargoDeHoja::Parte> partes;
    for (const QString &clave : clavesDelBanco(encargo.leccion))
        partes << EncargoDeHoja::Parte{clave, encargo.nivel};
    // Another one begins each sheet, for most sheets are shorter than their lesson.
    const qsizetype giro = encargo.serie % partes.size();
    return partes.sliced(giro) + partes.first(giro);
}

QString parrafo(const QString &texto, QStringView clase = {})
{
    return u"<p%1>%2</p>\n"_s.arg(clase.isEmpty() ? QString() : u" class=\"%1\""_s.arg(clase),
                                  texto.toHtmlEscaped().replace(u'\n', u"<br>"_s));
}

QString enPantalla(QString celda)
{
    static const QRegularExpression menos(u"-(?=\\d)"_s);
    return conNumerosEnPantalla(celda.replace(menos, u"−"_s));
}

QString tablaEnHtml(const TablaDePaso &tabla)
{
    if (tabla.filas.isEmpty())
        return {};
    const auto fila = [](const QStringList &celdas, const QString &etiqueta) {
        QString texto = u"<tr>"_s;
        for (const QString &celda : celdas)
            texto += u"<%1>%2</%1>"_s.arg(etiqueta, enPantalla(celda).toHtmlEscaped());
        return texto + u"</tr>\n"_s;
    };
    QString texto = u"<table border=\"1\" cellspacing=\"0\" cellpadding=\"3\">\n"_s;
    if (!tabla.cabecera.isEmpty())
        texto += fila(tabla.cabecera, u"th"_s);
    for (const QStringList &celdas : tabla.filas)
        texto += fila(celdas, u"td"_s);
    return texto + u"</table>\n"_s;
}

QString imagenEnHtml(const Lamina &lamina, const PintaImagen &pinta)
{
    const ImagenDePagina imagen = pinta(lamina);
    return u"<p><img src=\"data:image/png;base64,%1\" width=\"%2\" height=\"%3\" alt=\"%4\"></p>\n"_s
        .arg(QString::fromLatin1(imagen.png.toBase64()))
        .arg(imagen.tamano.width())
        .arg(imagen.tamano.height())
        .arg(lamina.descripcion().toHtmlEscaped());
}

QString pasoEnHtml(const Paso &paso, const PintaImagen &pinta)
{
    QString texto = u"<li>"_s + enPantalla(paso.frase).toHtmlEscaped();
    for (const Formula &formula : paso.formulas)
        texto += u"<br>&nbsp;&nbsp;"_s + conNumerosEnPantalla(comoTexto(formula)).toHtmlEscaped();
    if (!paso.regla.isEmpty())
        texto += u"<br><i>"_s + conNumerosEnPantalla(paso.regla).toHtmlEscaped() + u"</i>"_s;
    texto += tablaEnHtml(paso.tabla);
    if (pinta && !paso.lamina.vacia())
        texto += imagenEnHtml(paso.lamina, pinta);
    return texto + u"</li>\n"_s;
}

/// The last of so many steps that has a drawing, which holds those before; −1 where none has.
qsizetype ultimaLamina(const Pasos &pasos, qsizetype cuantos)
{
    qsizetype i = cuantos - 1;
    while (i >= 0 && pasos.paso(i).lamina.vacia())
        --i;
    return i;
}

QString solucionEnHtml(const Ejercicio &ejercicio, const PintaImagen &pinta)
{
    const Pasos pasos = ejercicio.solucion();
    const qsizetype cuantos = std::min(pasos.cuantos(), PasosComoMucho);
    const qsizetype ultima = ultimaLamina(pasos, cuantos);
    QString texto = u"<ol>\n"_s;
    for (qsizetype i = 0; i < cuantos; ++i)
        texto += pasoEnHtml(pasos.paso(i), i == ultima ? pinta : PintaImagen());
    texto += u"</ol>\n"_s;
    if (pasos.cuantos() > PasosComoMucho)
        texto += parrafo(Traduce(u"… y otros %1 pasos."_s).arg(pasos.cuantos() - PasosComoMucho));
    return texto;
}

QString cabecera(const EncargoDeHoja &encargo, const QString &titulo)
{
    return u"<h1>%1</h1>\n"_s.arg(titulo.toHtmlEscaped()) +
           parrafo(tituloDeHoja(encargo) + u" · "_s +
                   Traduce(u"código %1"_s).arg(codigoDeHoja(encargo)));
}

} // namespace

QList<EjercicioDeHoja> ejerciciosDeHoja(const EncargoDeHoja &encargo)
{
    const auto partes = partesDe(encargo);
    QList<EjercicioDeHoja> ejercicios;
    QSet<QString> enunciados;
    for (int i = 0; i < encargo.cuantos; ++i) {
        const EncargoDeHoja::Parte &parte = partes[i % partes.size()];
        const int vuelta = i / static_cast<int>(partes.size());
        const int nivel = parte.nivel > 0 ? parte.nivel : vuelta % Niveles + 1;
        EjercicioDeHoja uno{tipoDeEjercicio(parte.clave), nivel, {}};
        for (int vez = 0; vez < SorteosComoMucho; ++vez) {
            Sorteo sorteo(semillaDe(static_cast<std::uint64_t>(encargo.serie), parte.clave, nivel,
                                    i + vez * MaximoDeEjercicios));
            uno.ejercicio = uno.tipo->genera(nivel, sorteo);
            if (!enunciados.contains(uno.ejercicio.enunciado))
                break;
        }
        enunciados << uno.ejercicio.enunciado;
        ejercicios << uno;
    }
    return ejercicios;
}

QString tituloDeHoja(const EncargoDeHoja &encargo)
{
    if (encargo.largo()) {
        QStringList lecciones;
        for (const EncargoDeHoja::Parte &parte : encargo.partes)
            lecciones << Traduce(leccionDelCurso(parte.clave.section(u'.', 0, 0))->titulo);
        lecciones.removeDuplicates();
        return lecciones.join(u", "_s);
    }
    const QString titulo = encargo.leccion.isEmpty()
                               ? Traduce(u"Todo el curso"_s)
                               : Traduce(leccionDelCurso(encargo.leccion)->titulo);
    return encargo.nivel == 0 ? titulo
                              : titulo + u", "_s + Traduce(u"nivel %1"_s).arg(encargo.nivel);
}

QString hojaEnHtml(const EncargoDeHoja &encargo, bool conSoluciones, const PintaImagen &pinta)
{
    const auto ejercicios = ejerciciosDeHoja(encargo);
    QString preguntas, respuestas;
    for (const EjercicioDeHoja &uno : ejercicios) {
        const QString enunciado =
            conNumerosEnPantalla(uno.ejercicio.enunciado).toHtmlEscaped().replace(u'\n', u"<br>"_s);
        preguntas +=
            u"<li>%1<p class=\"hueco\">&nbsp;<br>&nbsp;<br>&nbsp;</p></li>\n"_s.arg(enunciado);
        respuestas += u"<li style=\"margin-top: 14px\">%1<p><b>%2</b></p>\n%3</li>\n"_s.arg(
            enunciado,
            Traduce(u"Una respuesta correcta: %1"_s)
                .arg(respuestaEnPantalla(uno.ejercicio))
                .toHtmlEscaped(),
            conSoluciones ? solucionEnHtml(uno.ejercicio, pinta) : QString());
    }
    QString html =
        u"<!DOCTYPE html>\n<html><head><meta charset=\"utf-8\"><title>%1</title>\n<style>"
        "body { font-family: sans-serif; } .aparte { page-break-before: always; }"
        "</style></head>\n<body>\n"_s.arg(codigoDeHoja(encargo));
    html += cabecera(encargo, Traduce(u"Hoja de ejercicios"_s)) +
            parrafo(Traduce(u"Nombre: "_s) + QString(50, u'_')) + u"<ol>\n"_s + preguntas +
            u"</ol>\n"_s;
    if (conSoluciones)
        html += u"<div class=\"aparte\" style=\"page-break-before: always\">\n"_s +
                cabecera(encargo, Traduce(u"Respuestas y soluciones"_s)) + u"<ol>\n"_s +
                respuestas + u"</ol>\n</div>\n"_s;
    return html + u"</body></html>\n"_s;
}
