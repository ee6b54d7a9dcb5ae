// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/start/Galeria.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/CarpetaDeDatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/start/Escenario.h"
#include "shell/start/FormPrincipal.h"
#include "shell/start/Main.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QSettings>
#include <QTemporaryDir>
#include <QTextStream>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Answers every question by silence, so that no box stands in the way of a picture.
class Callado : public Interlocutor
{
public:
    void avisa(QWidget *, Icono, const QString &, const QString &) override {}
    Tarea<> avisaYEspera(QWidget *, Icono, QString, QString) override { co_return; }
    Tarea<QString> preguntaTexto(QWidget *, QString, QString) override { co_return QString(); }
    Tarea<bool> preguntaSiNo(QWidget *, QString, QString) override { co_return false; }
    Tarea<Guardado> preguntaGuardar(QWidget *, QString, QString) override
    {
        co_return Guardado::Descartar;
    }
    Tarea<QString> eligeArchivoParaAbrir(QWidget *, QString, QString, QStringList) override
    {
        co_return QString();
    }
    /// Into the folder of what students share.
    Tarea<Archivo> eligeArchivoParaGuardar(QWidget *, QString, QString propuesta,
                                           QStringList) override
    {
        Archivo archivo;
        archivo.ruta = compartida() + u'/' + propuesta;
        co_return archivo;
    }
    Tarea<bool> eligeImpresora(QWidget *, std::shared_ptr<QPrinter>, QString) override
    {
        co_return false;
    }
    /// A folder beside the copy of the working folder, for what students share.
    Tarea<QString> eligeCarpeta(QWidget *, QString, QString) override { co_return compartida(); }
    void abre(const QString &) override {}
    bool lanzaAlguno(const QList<QStringList> &) override { return true; }

private:
    static QString compartida()
    {
        QDir().mkpath(u"../Compartida"_s);
        return QDir(u"../Compartida"_s).absolutePath();
    }
};

class Fotografo
{
public:
    Fotografo(const Contenido &contenido, const OpcionesDeGaleria &opciones)
        : m_contenido(contenido),
          m_carpeta(opciones.carpeta),
          m_tamano(opciones.tamano),
          m_principal(contenido)
    {
    }

    /// Gives what went wrong; empty where all pictures are there.
    QString retrataTodo()
    {
        m_principal.showNormal();
        // Shown, a window has been cut to the screen, which may be smaller than what is asked for.
        m_principal.resize(m_tamano);
        espera(50ms);
        if (m_principal.size() != m_tamano)
            return Traduce(u"La ventana no puede medir %1x%2."_s)
                .arg(m_tamano.width())
                .arg(m_tamano.height());
        QWidget *acercaDe = m_principal.muestraAcercaDe(false);
        espera(600ms);
        retrata(*acercaDe, u"acercade"_s);
        acercaDe->close();
        retrata(m_principal, u"principal"_s);
        for (int fila = 0; fila < m_contenido.lecciones.size(); ++fila)
            retrataEscenas(m_contenido.lecciones[fila], fila);
        retrataEscenas(m_contenido.hojaDeCalculo, FormPrincipal::FilaHojaDeCalculo);
        retrataEscenas(m_contenido.practicas.ventana, FormPrincipal::FilaPracticas);
        return m_bien ? QString()
                      : Traduce(u"No se puede escribir en la carpeta: %1"_s).arg(m_carpeta.path());
    }

private:
    static void espera(std::chrono::milliseconds tiempo)
    {
        const QDeadlineTimer fin(tiempo);
        while (!fin.hasExpired())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 20);
    }

    /// Until the runs of a lesson are over, or have clearly gone astray.
    static void esperaCorridas(const FormLeccion &leccion)
    {
        espera(20ms); // some begin with the next turn of the queue
        const QDeadlineTimer fin(60s);
        while (hayCorridas(leccion) && !fin.hasExpired())
            espera(20ms);
    }

    void retrata(QWidget &ventana, const QString &nombre)
    {
        m_bien = ventana.grab().save(m_carpeta.filePath(nombre + u".png"_s)) && m_bien;
    }

    void retrataEscenas(const Leccion &leccion, int fila)
    {
        const QList<Escena> escenas = leccion.escenas ? leccion.escenas() : QList<Escena>();
        for (const Escena &escena : escenas)
            retrata(escena, fila);
    }

    void retrata(const Escena &escena, int fila)
    {
        // What a scene before has left pressed is not what this one finds.
        Sesión().anota(u"Pasos/Todos"_s, false);
        FormLeccion *leccion = m_principal.abreLeccion(fila);
        if (!leccion)
            return;
        leccion->abreTema(escena.tema);
        espera(50ms);
        for (const Gesto &gesto : escena.gestos) {
            esperaCorridas(*leccion);
            daGesto(gesto, *leccion);
        }
        if (!escena.durante)
            esperaCorridas(*leccion);
        espera(escena.durante ? escena.tras : 400ms);
        retrata(m_principal, escena.nombre);
        leccion->detenCorrida();
        leccion->cierra();
        espera(20ms);
    }

    const Contenido &m_contenido;
    QDir m_carpeta;
    QSize m_tamano;
    FormPrincipal m_principal;
    bool m_bien = true;
};

/// A folder with all that is in it, to a place that may be written.
void copiaCarpeta(const QString &origen, const QString &destino)
{
    QDir().mkpath(destino);
    const auto entradas = QDir(origen).entryInfoList(QDir::AllEntries | QDir::NoDotAndDotDot);
    for (const QFileInfo &entrada : entradas) {
        const QString copia = destino + u'/' + entrada.fileName();
        if (entrada.isDir())
            copiaCarpeta(entrada.filePath(), copia);
        else
            QFile::copy(entrada.filePath(), copia);
    }
}

/// The animations and pages of the working folder.
void copiaCarpetaDeTrabajo(const QString &origen, const QString &destino)
{
    for (const QString &parte : {u"/ClipArt"_s, u"/Doc"_s})
        copiaCarpeta(origen + parte, destino + parte);
}

} // namespace

int Galeria(const Contenido &contenido, const OpcionesDeGaleria &opciones)
{
    // Windows note their sizes, and lessons write keys and messages: not among the user's files.
    const QTemporaryDir deUsarYTirar;
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, deUsarYTirar.path());
    QTextStream errores(stderr);
    if (!ExisteFichero(Sesión().carpeta() + u"\\ClipArt\\escudo.avi"_s)) {
        errores << u"No se encuentra la carpeta de trabajo."_s << Qt::endl;
        return 1;
    }
    const QString destino = QDir::current().absoluteFilePath(opciones.carpeta);
    if (!QDir().mkpath(destino)) {
        errores << u"No se puede crear la carpeta: "_s << destino << Qt::endl;
        return 1;
    }
    Idioma() = opciones.idioma;
    preparaAplicacion();
    Aspecto::aplica(opciones.oscuro ? Aspecto::Tema::Oscuro : Aspecto::Tema::Claro);
    const QString copia = deUsarYTirar.filePath(u"Numora"_s);
    copiaCarpetaDeTrabajo(rutaExistente(Sesión().carpeta()), copia);
    Sesión().ponCarpeta(copia);
    ponCarpetaDeDatos(deUsarYTirar.filePath(u"Datos"_s));
    QDir::setCurrent(copia);
    ImgSiguiente() = Icono(u"SIGUIENTE"_s);
    ImgStop() = Icono(u"STOP"_s);
    IniciaBignum(Sesión().Precisión());
    const auto anterior = ponInterlocutor(std::make_unique<Callado>());

    OpcionesDeGaleria absolutas = opciones;
    absolutas.carpeta = destino;
    const QString falta = Fotografo(contenido, absolutas).retrataTodo();
    if (!falta.isEmpty())
        errores << falta << Qt::endl;
    return falta.isEmpty() ? 0 : 1;
}
