// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/windows/FormCalcDocumento.h"

#include "minical/HojaDeCalculo.h"
#include "minical/TextosDeHoja.h"
#include "minical/windows/FormCalcAspecto.h"
#include "minical/windows/FormCalcImpresion.h"
#include "minical/windows/FormCalcRejilla.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"

#include <QDir>
#include <QFileInfo>
#include <QPrinter>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString ClaveCarpeta = u"MiniCal/Carpeta"_s;

QString tituloPropio()
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

// An answer is awaited in a line of its own: g++ 12 loses a task that is awaited within a
// condition.

/// What an action gives, computed under the hourglass: no box is shown before it is gone.
template <typename Accion>
auto conReloj(Accion accion)
{
    const RelojDeArena reloj;
    return accion();
}

} // namespace

FormCalcDocumento::FormCalcDocumento(HojaDeCalculo &hoja, FormCalcRejilla &rejilla,
                                     QWidget *ventana)
    : m_hoja(hoja),
      m_rejilla(rejilla),
      m_ventana(ventana),
      m_documento(hoja),
      m_copia(
          Sesión().carpetaDeAjustes(), u"minical.copia"_s,
          [this] { return m_descartada ? QByteArray() : m_documento.copia(m_rejilla.anchos()); },
          ventana)
{
    conecta(&m_copia, &CopiaDeTrabajo::fallida, ventana,
            [ventana](const ErrorEjecucion &error) { informaError(ventana, error); });
}

QString FormCalcDocumento::titulo() const
{
    QString titulo = tituloPropio();
    if (!m_documento.ruta().isEmpty())
        titulo += u" - "_s + m_documento.nombre();
    return m_documento.modificado() ? titulo + u" *"_s : titulo;
}

void FormCalcDocumento::avisa(const QString &texto)
{
    interlocutor().avisa(m_ventana, Interlocutor::Icono::Exclamacion, texto, tituloPropio());
}

Tarea<> FormCalcDocumento::nuevo()
{
    const bool adelante = co_await confirmaDescarte();
    if (!adelante)
        co_return;
    m_documento.nuevo();
    m_rejilla.ponAnchos({});
    m_copia.cambia();
    Q_EMIT abierta();
}

Tarea<> FormCalcDocumento::abre()
{
    const bool adelante = co_await confirmaDescarte();
    if (!adelante)
        co_return;
    const QString ruta = co_await interlocutor().eligeArchivoParaAbrir(
        m_ventana, Traduce(u"Abrir una hoja"_s), carpetaPropuesta(), filtrosDeHoja());
    if (ruta.isEmpty() || !muestra(conReloj([&] { return m_documento.abre(ruta); }), ruta))
        co_return;
    recuerdaCarpeta(ruta);
    m_copia.cambia();
}

/// Shows the sheet that was read; of a bad one, says what is wrong with it.
bool FormCalcDocumento::muestra(const DocumentoDeHoja::Leida &leida, const QString &ruta)
{
    if (const auto *fallo = std::get_if<FalloDeHoja>(&leida)) {
        avisa(Traduce(u"No se puede abrir la hoja:"_s) + u'\n' + QDir::toNativeSeparators(ruta) +
              u"\n\n"_s + explicacion(*fallo));
        return false;
    }
    m_rejilla.ponAnchos(std::get<DocumentoDeHoja::Anchos>(leida));
    Q_EMIT abierta();
    return true;
}

Tarea<> FormCalcDocumento::guarda()
{
    co_await guardaDondeEstaba();
}

Tarea<> FormCalcDocumento::guardaComo()
{
    co_await preguntaRutaYGuarda();
}

Tarea<bool> FormCalcDocumento::guardaDondeEstaba()
{
    if (m_documento.ruta().isEmpty())
        co_return co_await preguntaRutaYGuarda();
    co_return guardaEn(m_documento.ruta());
}

Tarea<bool> FormCalcDocumento::preguntaRutaYGuarda()
{
    const QString propuesta = m_documento.ruta().isEmpty()
                                  ? carpetaPropuesta() + u'/' + m_documento.nombre()
                                  : m_documento.ruta();
    const auto elegido = co_await interlocutor().eligeArchivoParaGuardar(
        m_ventana, Traduce(u"Guardar la hoja"_s), propuesta, filtrosDeHoja());
    if (elegido.ruta.isEmpty())
        co_return false;
    co_return guardaEn(elegido.ruta);
}

bool FormCalcDocumento::guardaEn(const QString &ruta)
{
    const bool guardada = escribe([&] {
        if (conReloj([&] { return m_documento.guarda(ruta, m_rejilla.anchos()); }))
            return true;
        avisa(Traduce(u"La hoja es demasiado grande para guardarla."_s));
        return false;
    });
    if (guardada) {
        recuerdaCarpeta(ruta);
        m_copia.cambia();
    }
    return guardada;
}

/// Writes a file; of one that cannot be written, says why.
bool FormCalcDocumento::escribe(const std::function<bool()> &accion)
{
    try {
        return accion();
    } catch (const ErrorEjecucion &error) {
        informaNoGuardado(m_ventana, error);
        return false;
    }
}

Tarea<> FormCalcDocumento::exporta()
{
    const QStringList filtros{Traduce(u"CSV con coma decimal (*.csv)"_s),
                              Traduce(u"CSV con punto decimal (*.csv)"_s)};
    const auto elegido = co_await interlocutor().eligeArchivoParaGuardar(
        m_ventana, Traduce(u"Exportar los resultados"_s),
        carpetaPropuesta() + u'/' + QFileInfo(m_documento.nombre()).completeBaseName() + u".csv"_s,
        filtros);
    if (elegido.ruta.isEmpty())
        co_return;
    escribe([&] {
        const RelojDeArena reloj;
        escribeArchivo(elegido.ruta, csvDeHoja(m_hoja, elegido.filtro == 0 ? u',' : u'.'));
        return true;
    });
}

Tarea<> FormCalcDocumento::imprime()
{
    const auto impresora = std::make_shared<QPrinter>(QPrinter::HighResolution);
    impresora->setDocName(m_documento.nombre());
    const bool elegida = co_await interlocutor().eligeImpresora(m_ventana, impresora,
                                                                Traduce(u"Imprimir la hoja"_s));
    if (!elegida)
        co_return;
    const QString titulo = m_documento.ruta().isEmpty() ? tituloPropio() : m_documento.nombre();
    if (!conReloj([&] { return imprimeHoja(*impresora, m_hoja, titulo); }))
        avisa(Traduce(u"No se puede imprimir en esa impresora."_s));
}

Tarea<bool> FormCalcDocumento::confirmaDescarte()
{
    if (!m_documento.modificado())
        co_return true;
    const auto respuesta = co_await interlocutor().preguntaGuardar(
        m_ventana, Traduce(u"La hoja tiene cambios sin guardar. ¿Quiere guardarlos?"_s),
        tituloPropio());
    if (respuesta == Interlocutor::Guardado::Guardar)
        co_return co_await guardaDondeEstaba();
    if (respuesta == Interlocutor::Guardado::Cancelar)
        co_return false;
    m_descartada = true;
    m_copia.cambia();
    co_return true;
}

Tarea<> FormCalcDocumento::ofreceCopia()
{
    const QByteArray copia = m_copia.guardada();
    if (copia.isEmpty())
        co_return;
    const QString ruta = rutaDeCopia(copia);
    const QString cual = ruta.isEmpty() ? Traduce(u"La última vez quedó una hoja sin guardar."_s)
                                        : Traduce(u"La última vez quedó sin guardar la hoja %1."_s)
                                              .arg(QFileInfo(ruta).fileName());
    // The answer at hand loses nothing.
    const bool descarta = co_await interlocutor().preguntaSiNo(
        m_ventana,
        cual + u'\n' + Traduce(u"Si responde que no, se recupera. ¿Quiere descartarla?"_s),
        tituloPropio());
    if (!descarta)
        muestra(conReloj([&] { return m_documento.recupera(copia); }), ruta);
    else
        m_copia.cambia();
}

void FormCalcDocumento::cambia()
{
    m_descartada = false;
    m_copia.cambia();
}

void FormCalcDocumento::recuerdaCarpeta(const QString &ruta)
{
    Sesión().anota(ClaveCarpeta, QFileInfo(ruta).absolutePath());
}

QString FormCalcDocumento::carpetaPropuesta() const
{
    return Sesión().recuerda(ClaveCarpeta, QDir::homePath()).toString();
}
