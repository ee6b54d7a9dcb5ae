// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "practice/engine/Banco.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Perfil.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/FormLeccion.h"
#include "shell/start/FormPrincipal.h"
#include "tests/shell/support/Entorno.h"

namespace {

/// The key under which a text stands in Numora.txt.
QString claveDe(const QString &texto)
{
    return texto.trimmed().replace(u"\n"_s, u"\\n"_s).replace(u"="_s, u"\\e"_s);
}

bool tienePalabras(const QString &texto)
{
    static const QRegularExpression palabra(u"\\p{L}{2}"_s);
    return texto.contains(palabra);
}

/// The literals inside the brackets that open at `inicio`: u"…"_s, adjoining parts joined.
QStringList literales(const QString &codigo, qsizetype inicio)
{
    static const QRegularExpression pieza(
        u"u\"((?:[^\"\\\\]|\\\\.)*)\"((?:\\s*u?\"(?:[^\"\\\\]|\\\\.)*\")*)_s|'(?:[^'\\\\]|\\\\.)'|[()]"_s);
    static const QRegularExpression resto(u"\"((?:[^\"\\\\]|\\\\.)*)\""_s);
    QStringList hallados;
    int hondura = 1;
    auto piezas = pieza.globalMatch(codigo, inicio);
    while (hondura > 0 && piezas.hasNext()) {
        const auto esta = piezas.next();
        hondura += int(esta.captured() == u"(") - int(esta.captured() == u")");
        if (!esta.captured().startsWith(u'u'))
            continue;
        QString texto = esta.captured(1);
        auto partes = resto.globalMatch(esta.captured(2));
        while (partes.hasNext())
            texto += partes.next().captured(1);
        hallados << texto.replace(u"\\n"_s, u"\n"_s).replace(u"\\\""_s, u"\""_s);
    }
    return hallados;
}

/// The texts of the interface that a control shows or tells a screen reader.
QStringList textosDe(QObject *objeto)
{
    QStringList textos;
    for (const char *propiedad : {"toolTip", "statusTip", "accessibleName", "placeholderText"})
        textos << objeto->property(propiedad).toString();
    if (qobject_cast<QLabel *>(objeto) || qobject_cast<QAbstractButton *>(objeto) ||
        qobject_cast<QAction *>(objeto))
        textos << objeto->property("text").toString();
    if (const auto *tira = qobject_cast<QTabBar *>(objeto)) {
        for (int i = 0; i < tira->count(); ++i)
            textos << tira->tabText(i);
    }
    if (const auto *rejilla = qobject_cast<QAbstractItemView *>(objeto);
        rejilla && rejilla->model()) {
        for (int c = 0; c < rejilla->model()->columnCount(); ++c)
            textos << rejilla->model()->headerData(c, Qt::Horizontal).toString();
    }
    return textos;
}

QStringList textosDeVentana(QWidget *ventana)
{
    QStringList textos{ventana->windowTitle()};
    textos << textosDe(ventana);
    for (QObject *objeto : ventana->findChildren<QObject *>()) {
        // What Qt makes for itself comes with its own translations.
        const bool deQt =
            objeto->objectName().startsWith(u"qt_"_s) || qobject_cast<QTabBar *>(objeto->parent());
        if (!deQt)
            textos << textosDe(objeto);
    }
    return textos;
}

} // namespace

/// The English texts that come with the program are complete.
class TestTraduccion : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase()
    {
        const auto lectura = m_tabla.lee(Sesión().carpetaPrograma() + u"/Numora.txt"_s);
        QCOMPARE(lectura, Perfil::Lectura::Correcta);
    }
    void init()
    {
        Entorno::limpia();
        m_faltan.clear();
    }
    void cleanup()
    {
        m_faltan.removeDuplicates();
        QVERIFY2(m_faltan.isEmpty(), qPrintable(u'\n' + m_faltan.join(u'\n')));
    }

    /// Every text that the code writes down for a student.
    void losTextosDelCodigo()
    {
        static const QRegularExpression llamada(
            u"\\b(?:Traduce|agregaTema|agregaIntroduccion)\\("_s);
        static const QRegularExpression cadena(u"<string>([^<]+)</string>"_s);
        for (const QString &archivo : archivosDelPrograma()) {
            const QString codigo = QString::fromUtf8(leeArchivo(archivo, 1 << 20));
            const bool formulario = archivo.endsWith(u".ui"_s);
            auto lugares = (formulario ? cadena : llamada).globalMatch(codigo);
            while (lugares.hasNext()) {
                const auto lugar = lugares.next();
                QStringList textos;
                if (formulario)
                    textos << lugar.captured(1)
                                  .replace(u"&lt;"_s, u"<"_s)
                                  .replace(u"&gt;"_s, u">"_s)
                                  .replace(u"&amp;"_s, u"&"_s);
                else
                    textos = literales(codigo, lugar.capturedEnd());
                // The other arguments of these calls are names.
                if (lugar.captured().startsWith(u"agrega"_s))
                    textos = QStringView(codigo).sliced(lugar.capturedEnd()).startsWith(u"u\"")
                                 ? textos.first(1)
                                 : QStringList();
                for (const QString &texto : textos)
                    apuntaSiFalta(texto);
            }
        }
    }

    /// Names and descriptions of the lessons, which are written down in a table.
    void losTextosDeLasLecciones()
    {
        const Contenido contenido = contenidoDelPrograma();
        for (const Leccion &leccion : contenido.lecciones) {
            QVERIFY2(!leccion.descripcion.isEmpty(), qPrintable(leccion.rotulo));
            apuntaSiFalta(leccion.rotulo);
            apuntaSiFalta(leccion.descripcion);
        }
        for (const TipoDeEjercicio &tipo : banco())
            apuntaSiFalta(tipo.titulo);
    }

    /// Every text in sight of a window that was opened in English, against the same in Spanish.
    void losTextosDeLasVentanas()
    {
        const Contenido contenido = contenidoDelPrograma();
        comparaVentanas([&] { return std::make_unique<FormPrincipal>(contenido); });
        for (const Leccion &leccion :
             contenido.lecciones +
                 QList<Leccion>{contenido.hojaDeCalculo, contenido.practicas.ventana}) {
            if (leccion.crea)
                comparaVentanas([&] { return std::unique_ptr<QWidget>(leccion.crea(nullptr)); });
        }
    }

private:
    static QStringList archivosDelPrograma()
    {
        QStringList archivos;
        for (const QString &carpeta :
             {u"shell"_s, u"lessons"_s, u"minical"_s, u"practice"_s, u"numora"_s}) {
            QDirIterator lugar(QStringLiteral(FUENTES) + u'/' + carpeta, {u"*.cpp"_s, u"*.ui"_s},
                               QDir::Files, QDirIterator::Subdirectories);
            while (lugar.hasNext())
                archivos << lugar.next();
        }
        return archivos;
    }

    void apuntaSiFalta(const QString &texto)
    {
        if (tienePalabras(texto) && m_tabla.valor(u"English"_s, claveDe(texto)).isEmpty())
            m_faltan << claveDe(texto);
    }

    template <typename Crea>
    void comparaVentanas(Crea crea)
    {
        Idioma() = u"Español"_s;
        const QStringList espanol = textosDeVentana(crea().get());
        Idioma() = u"English"_s;
        const QStringList ingles = textosDeVentana(crea().get());
        QCOMPARE(ingles.size(), espanol.size());
        for (qsizetype i = 0; i < espanol.size(); ++i) {
            if (ingles[i] == espanol[i])
                apuntaSiFalta(ingles[i]);
        }
    }

    Perfil m_tabla;
    QStringList m_faltan;
};

NUMORA_TEST_MAIN(TestTraduccion)
#include "tst_Traduccion.moc"
