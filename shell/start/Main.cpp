#include "shell/start/Main.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Rutas.h"
#include "shell/core/system/InstanciaUnica.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/start/FormPrincipal.h"

#include <QApplication>
#include <QDir>
#include <QLibraryInfo>
#include <QPointer>
#include <QTranslator>

using namespace Qt::Literals::StringLiterals;

namespace {

bool hayCarpetaDeTrabajo(clsSesión &sesion)
{
    return ExisteFichero(sesion.carpeta() + u"\\ClipArt\\escudo.avi"_s);
}

void avisaDeCota(const QString &cota)
{
    interlocutor().mensaje(QApplication::activeWindow(), Interlocutor::Icono::Informacion,
                           Traduce(u"El mayor número permitido es "_s) + cota,
                           Traduce(u"Número demasiado grande"_s));
}

} // namespace

QString idiomaDeLinea(const QString &lineaDeOrdenes)
{
    if (!lineaDeOrdenes.contains(u"-i:"_s))
        return IdiomaPropio.toString();
    return lineaDeOrdenes.split(u' ').constLast().mid(3);
}

bool encuentraCarpetaDeTrabajo(clsSesión &sesion, const std::function<QString()> &pregunta)
{
    constexpr int preguntas = 2;
    for (int i = 1; i <= preguntas && !hayCarpetaDeTrabajo(sesion); ++i)
        sesion.ponCarpeta(pregunta());
    return hayCarpetaDeTrabajo(sesion);
}

void instalaTextosDeQt()
{
    static QPointer<QTranslator> textos;
    delete textos;
    // A translated interface leaves Qt's own English texts.
    if (HayTraduccion())
        return;
    textos = new QTranslator(QCoreApplication::instance());
    if (textos->load(u"qtbase_es"_s, QLibraryInfo::path(QLibraryInfo::TranslationsPath)))
        QCoreApplication::installTranslator(textos);
}

void preparaAplicacion()
{
    InstalaAvisoDeCota(avisaDeCota);
    Aspecto::aplica(static_cast<Aspecto::Tema>(Sesión().recuerda(u"Ventana/Tema"_s, 0).toInt()));
    Aspecto::ponPasosDeLetra(Sesión().recuerda(u"Ventana/Letra"_s, 0).toInt());
    QApplication::setWindowIcon(Icono(u"NUMORA"_s));
    instalaTextosDeQt();
}

ProgramaEnMarcha Main(const QString &lineaDeOrdenes, const Contenido &contenido)
{
    preparaAplicacion();
    ProgramaEnMarcha programa;
    programa.instancia =
        std::make_unique<InstanciaUnica>(Sesión().carpetaDeAjustes() + u"/Numora.lock"_s);
    if (programa.instancia->hayOtra()) {
        interlocutor().mensaje(nullptr, Interlocutor::Icono::Informacion,
                               u"Ya hay abierta una sesión del sistema Numora"_s,
                               u"En ejecución"_s);
        return {};
    }
    const auto pregunta = [] {
        return interlocutor().pideTexto(nullptr,
                                        u"¿Dónde se encuentran los ficheros del sistema Numora?"_s,
                                        u"Carpeta de trabajo"_s);
    };
    if (!encuentraCarpetaDeTrabajo(Sesión(), pregunta))
        return {};

    Idioma() = idiomaDeLinea(lineaDeOrdenes);
    instalaTextosDeQt();
    QDir::setCurrent(rutaExistente(Sesión().carpeta()));
    ImgSiguiente() = Icono(u"SIGUIENTE"_s);
    ImgStop() = Icono(u"STOP"_s);

    programa.principal = std::make_unique<FormPrincipal>(contenido);
    programa.principal->muestraAcercaDe(/*presentacion*/ true);
    QCoreApplication::processEvents();
    evento(programa.principal.get(), [] { IniciaBignum(Sesión().Precisión()); });
    return programa;
}
