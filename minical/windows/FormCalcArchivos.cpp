// The window of the sheet: files and paper.

#include "minical/ArchivoDeHoja.h"
#include "minical/ExportaCSV.h"
#include "minical/windows/FormCalc.h"
#include "minical/windows/FormCalcImpresion.h"
#include "minical/windows/FormCalcModelo.h"
#include "minical/windows/FormCalcRejilla.h"
#include "minical/windows/FormZoom.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"

#include <QAction>
#include <QCloseEvent>
#include <QDir>
#include <QFileInfo>
#include <QPrinter>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ClaveCarpeta = u"MiniCal/Carpeta"_s;

QString titulo()
{
    return Traduce(u"Mini hoja de cálculo"_s);
}

QStringList filtrosDeHoja()
{
    return {Traduce(u"Hojas de MiniCal (*.minical)"_s)};
}

QString explicacion(const FalloDeHoja &fallo)
{
    switch (fallo.motivo) {
    case FalloDeHoja::Motivo::NoEsUnaHoja:
        return Traduce(u"No es una hoja de MiniCal."_s);
    case FalloDeHoja::Motivo::VersionPosterior:
        return Traduce(u"La guardó una versión posterior del programa."_s);
    case FalloDeHoja::Motivo::NoEsTexto:
        return Traduce(u"Está dañada: la línea %1 no es texto."_s).arg(fallo.linea);
    case FalloDeHoja::Motivo::LineaIncorrecta:
        return Traduce(u"Está dañada: la línea %1 no se entiende."_s).arg(fallo.linea);
    case FalloDeHoja::Motivo::CeldaRepetida:
        return Traduce(u"Está dañada: la línea %1 repite una celda."_s).arg(fallo.linea);
    case FalloDeHoja::Motivo::Cortado:
        return Traduce(u"Está dañada: le falta el final."_s);
    }
    return {};
}

} // namespace

void FormCalc::Nuevo()
{
    if (!confirmaDescarte())
        return;
    m_hoja.carga({});
    m_rejilla->ponAnchos({});
    m_ruta.clear();
    ponZoomEn(m_rejilla->actual());
}

void FormCalc::Abrir()
{
    if (!confirmaDescarte())
        return;
    const QString ruta = interlocutor().pideArchivoParaAbrir(this, Traduce(u"Abrir una hoja"_s),
                                                             carpetaPropuesta(), filtrosDeHoja());
    if (!ruta.isEmpty())
        abreArchivo(ruta);
}

/// The sheet in the window stays as it is unless the whole file is good.
void FormCalc::abreArchivo(const QString &ruta)
{
    const RelojDeArena reloj;
    const auto leida = leeHoja(leeArchivo(ruta, TamanoMaximoDeHoja));
    if (const auto *fallo = std::get_if<FalloDeHoja>(&leida)) {
        interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion,
                               Traduce(u"No se puede abrir la hoja:"_s) + u'\n' +
                                   QDir::toNativeSeparators(ruta) + u"\n\n"_s + explicacion(*fallo),
                               titulo());
        return;
    }
    const auto &hoja = std::get<HojaGuardada>(leida);
    m_hoja.carga(hoja);
    m_rejilla->ponAnchos(hoja.anchos);
    ponRuta(ruta);
    ponZoomEn(m_rejilla->actual());
}

void FormCalc::Guardar()
{
    if (m_ruta.isEmpty())
        guardaComo();
    else
        guardaEn(m_ruta);
}

void FormCalc::GuardarComo()
{
    guardaComo();
}

bool FormCalc::guardaComo()
{
    const QString propuesta =
        m_ruta.isEmpty() ? carpetaPropuesta() + u'/' + nombreDeHoja() : m_ruta;
    const auto elegido = interlocutor().pideArchivoParaGuardar(this, Traduce(u"Guardar la hoja"_s),
                                                               propuesta, filtrosDeHoja());
    return !elegido.ruta.isEmpty() && guardaEn(elegido.ruta);
}

bool FormCalc::guardaEn(const QString &ruta)
{
    const RelojDeArena reloj;
    HojaGuardada contenido = contenidoDe(m_hoja);
    contenido.anchos = m_rejilla->anchos();
    const QByteArray bytes = escribeHoja(contenido);
    if (bytes.size() > TamanoMaximoDeHoja) {
        interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion,
                               Traduce(u"La hoja es demasiado grande para guardarla."_s), titulo());
        return false;
    }
    escribeArchivo(ruta, bytes);
    m_hoja.historial().marcaGuardado();
    ponRuta(ruta);
    return true;
}

void FormCalc::Exportar()
{
    const QStringList filtros{Traduce(u"CSV con coma decimal (*.csv)"_s),
                              Traduce(u"CSV con punto decimal (*.csv)"_s)};
    const auto elegido = interlocutor().pideArchivoParaGuardar(
        this, Traduce(u"Exportar los resultados"_s),
        carpetaPropuesta() + u'/' + QFileInfo(nombreDeHoja()).completeBaseName() + u".csv"_s,
        filtros);
    if (elegido.ruta.isEmpty())
        return;
    escribeArchivo(elegido.ruta, csvDeHoja(m_hoja, elegido.filtro == 0 ? u',' : u'.'));
}

void FormCalc::Imprimir()
{
    QPrinter impresora(QPrinter::HighResolution);
    impresora.setDocName(nombreDeHoja());
    if (!interlocutor().pideImpresora(this, impresora, Traduce(u"Imprimir la hoja"_s)))
        return;
    const RelojDeArena reloj;
    if (imprimeHoja(impresora, m_hoja, m_ruta.isEmpty() ? titulo() : nombreDeHoja()))
        return;
    interlocutor().mensaje(this, Interlocutor::Icono::Exclamacion,
                           Traduce(u"No se puede imprimir en esa impresora."_s), titulo());
}

bool FormCalc::confirmaDescarte()
{
    // What is being pasted becomes a step only at its end.
    if (!m_hoja.historial().modificado() && !corrida().enCurso())
        return true;
    const auto respuesta = interlocutor().preguntaSiGuarda(
        this, Traduce(u"La hoja tiene cambios sin guardar. ¿Quiere guardarlos?"_s), titulo());
    if (respuesta == Interlocutor::Guardado::Guardar)
        return m_ruta.isEmpty() ? guardaComo() : guardaEn(m_ruta);
    return respuesta == Interlocutor::Guardado::Descartar;
}

bool FormCalc::permiteCerrar()
{
    bool permite = false;
    // A file that cannot be written keeps the window open.
    evento(this, [&] {
        terminaEdiciones();
        permite = confirmaDescarte();
        alCambiarHoja();
    });
    return permite;
}

void FormCalc::closeEvent(QCloseEvent *suceso)
{
    FormLeccion::closeEvent(suceso);
    // During a run the window only disappears; its zoom goes with it.
    if (m_zoom && (suceso->isAccepted() || corrida().detenida()))
        m_zoom->close();
}

void FormCalc::ponRuta(const QString &ruta)
{
    m_ruta = ruta;
    Sesión().anota(ClaveCarpeta, QFileInfo(ruta).absolutePath());
}

QString FormCalc::carpetaPropuesta() const
{
    return Sesión().recuerda(ClaveCarpeta, QDir::homePath()).toString();
}

QString FormCalc::nombreDeHoja() const
{
    return m_ruta.isEmpty() ? Traduce(u"Hoja"_s) + u".minical"_s : QFileInfo(m_ruta).fileName();
}
