// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/shell/support/Entorno.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/core/CarpetaDeDatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/look/Aspecto.h"
#include "shell/start/Main.h"

#include <QPrinter>
#include <memory>

namespace {

QTemporaryDir *ajustes = nullptr;
QtMessageHandler anterior = nullptr;

/// Warnings that a machine without display or sound gives whatever the program does.
bool esInofensivo(const QString &texto)
{
    static const QStringList conocidos{u"propagateSizeHints"_s, u"RHI backend"_s,
                                       u"XDG_RUNTIME_DIR"_s,    u"PulseAudio"_s,
                                       u"GStreamer"_s,          u"does not support "_s,
                                       u"video surface"_s,      u"QObject::startTimer"_s};
    return std::any_of(conocidos.begin(), conocidos.end(),
                       [&](const QString &conocido) { return texto.contains(conocido); });
}

void vigila(QtMsgType tipo, const QMessageLogContext &contexto, const QString &texto)
{
    anterior(tipo, contexto, texto);
    if (tipo == QtWarningMsg && !esInofensivo(texto))
        QTest::qFail(qPrintable(u"unexpected warning: "_s + texto), __FILE__, __LINE__);
}

std::unique_ptr<QApplication> aplicacion;

} // namespace

Grabadora::Mensaje Grabadora::unico()
{
    if (mensajes.size() != 1) {
        QTest::qFail(qPrintable(u"%1 messages instead of one"_s.arg(mensajes.size())), __FILE__,
                     __LINE__);
        return {};
    }
    return mensajes.takeFirst();
}

Tarea<Interlocutor::Guardado> Grabadora::preguntaGuardar(QWidget *, QString texto, QString)
{
    preguntasSiGuarda << texto;
    co_return guardados.isEmpty() ? Guardado::Cancelar : guardados.takeFirst();
}

Tarea<QString> Grabadora::eligeArchivoParaAbrir(QWidget *padre, QString titulo, QString propuesta,
                                                QStringList filtros)
{
    co_return (co_await eligeArchivoParaGuardar(padre, titulo, propuesta, filtros)).ruta;
}

Tarea<Interlocutor::Archivo> Grabadora::eligeArchivoParaGuardar(QWidget *, QString, QString,
                                                                QStringList filtros)
{
    filtrosPedidos << filtros;
    co_return archivos.isEmpty() ? Archivo() : archivos.takeFirst();
}

Tarea<bool> Grabadora::eligeImpresora(QWidget *, std::shared_ptr<QPrinter> impresora, QString)
{
    impresora->setOutputFormat(QPrinter::PdfFormat);
    impresora->setOutputFileName(impresion);
    co_return !impresion.isEmpty();
}

Tarea<QString> Grabadora::eligeCarpeta(QWidget *, QString, QString inicial)
{
    carpetasPedidas << inicial;
    co_return respuestas.isEmpty() ? QString() : respuestas.takeFirst();
}

Entorno::Entorno(int argc, char *argv[])
{
    static int argumentos = argc;
    ajustes = new QTemporaryDir;
    qputenv("XDG_CONFIG_HOME", ajustes->path().toLocal8Bit());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, ajustes->path());
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale(QLocale::Spanish, QLocale::Spain));
#if defined(Q_OS_WIN) // where nobody tells Qt without a display what these names stand for
    QFont::insertSubstitution(u"Sans Serif"_s, u"DejaVu Sans"_s);
    QFont::insertSubstitution(u"monospace"_s, u"DejaVu Sans Mono"_s);
#endif
    aplicacion = std::make_unique<QApplication>(argumentos, argv);
    presentaPrograma(u"1.5.40"_s);
    QDir::setCurrent(carpetaDeTrabajo());
    preparaAplicacion();
    limpia();
}

Entorno::~Entorno()
{
    ponInterlocutor(nullptr);
    aplicacion.reset();
    delete ajustes;
}

void Entorno::limpia()
{
    // Qt Test installs its own handler when the tests begin: ours goes in front of it from within.
    if (const auto puesto = qInstallMessageHandler(vigila); puesto != vigila)
        anterior = puesto;
    Idioma() = u"Español"_s;
    // Films say nothing that a test asks for, and their machinery is slow to start.
    Aspecto::ponMovimientoReducido(true);
    QSettings(QSettings::IniFormat, QSettings::UserScope, u"Numora"_s, u"Numora"_s).clear();
    Sesión().ponCarpeta(carpetaDeTrabajo());
    // A window that went without being closed has left a copy of its work.
    QDir ajustesPropios(Sesión().carpetaDeAjustes());
    const QStringList copias = ajustesPropios.entryList({u"*.copia"_s}, QDir::Files);
    for (const QString &copia : copias)
        ajustesPropios.remove(copia);
    ponCarpetaDeDatos(ajustes->filePath(u"datos"_s));
    QDir(carpetaDeDatos()).removeRecursively();
    ponInterlocutor(std::make_unique<Grabadora>());
    IniciaBignum(100);
}

Grabadora &Entorno::grabadora()
{
    return static_cast<Grabadora &>(interlocutor());
}

QString Entorno::carpetaDeTrabajo()
{
    return QStringLiteral(CARPETA_DE_TRABAJO);
}

void Entorno::ponTrabajoEn(const QString &carpeta)
{
    for (const QString &parte : {u"ClipArt"_s, u"Doc"_s}) {
        const QDir origen(carpetaDeTrabajo() + u'/' + parte), destino(carpeta + u'/' + parte);
#if defined(Q_OS_WIN) // a link there is a file that programs have to look into
        QDirIterator archivos(origen.path(), QDir::Files, QDirIterator::Subdirectories);
        while (archivos.hasNext()) {
            const QString archivo = origen.relativeFilePath(archivos.next());
            destino.mkpath(QFileInfo(archivo).path());
            QFile::copy(origen.filePath(archivo), destino.filePath(archivo));
        }
#else
        QFile::link(origen.path(), destino.path());
#endif
    }
}

QString rotulosDeTemas(const QWidget *ventana)
{
    const auto *temas = control<QTabBar>(ventana, u"tsTema"_s);
    QStringList rotulos;
    for (int i = 0; i < temas->count(); ++i)
        rotulos << temas->tabText(i);
    return rotulos.join(u'|');
}

QString clavesDeTemas(const QWidget *ventana)
{
    const auto *temas = control<QTabBar>(ventana, u"tsTema"_s);
    QStringList claves;
    for (int i = 0; i < temas->count(); ++i)
        claves << temas->tabData(i).toString();
    return claves.join(u' ');
}
