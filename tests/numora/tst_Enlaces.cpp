// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/Traduccion.h"
#include "shell/core/page/EnlaceDePagina.h"
#include "shell/core/system/Archivos.h"
#include "shell/frame/FormLeccion.h"
#include "shell/page/PaginaDeLeccion.h"
#include "shell/start/FormPrincipal.h"
#include "tests/Tabla.h"
#include "tests/docs/PageTree.h"
#include "tests/numora/Estudiante.h"

namespace {

/// A text without its blanks, with the minus of the keyboard.
QString comparable(QString texto)
{
    static const QRegularExpression blancos(u"[\\s\\x{a0}\\x{202f}\\x{200b}]"_s);
    return texto.remove(blancos).replace(u'−', u'-');
}

/// All that a control shows; of a grid its cells, or the one that "A3" names.
QString muestraDe(const FormLeccion &leccion, const QString &control)
{
    static const QRegularExpression celda(u"^([A-Z])([0-9]+)$"_s);
    const auto nombre = celda.match(control);
    // Several tabs may have one of that name.
    QWidget *widget = nullptr;
    for (QWidget *hallado :
         leccion.findChildren<QWidget *>(nombre.hasMatch() ? u"FlexCalc"_s : control))
        widget = !widget || hallado->isVisible() ? hallado : widget;
    if (const auto *rejilla = qobject_cast<QAbstractItemView *>(widget)) {
        const QAbstractItemModel &modelo = *rejilla->model();
        if (nombre.hasMatch())
            return modelo
                .index(nombre.captured(2).toInt() - 1, nombre.captured(1).front().unicode() - u'A')
                .data()
                .toString();
        QStringList textos;
        for (int f = 0; f < modelo.rowCount(); ++f) {
            for (int c = 0; c < modelo.columnCount(); ++c)
                textos << modelo.index(f, c).data().toString();
        }
        return textos.join(u'|');
    }
    if (const auto *texto = qobject_cast<QPlainTextEdit *>(widget))
        return texto->toPlainText();
    return widget ? widget->property("text").toString() : u"no such control"_s;
}

QString valorDe(const QWidget *control)
{
    if (const auto *boton = qobject_cast<const QAbstractButton *>(control))
        return boton->isChecked() ? u"1"_s : u"0"_s;
    if (const auto *texto = qobject_cast<const QPlainTextEdit *>(control))
        return texto->toPlainText();
    return control->property("text").isValid() ? control->property("text").toString()
                                               : control->property("value").toString();
}

} // namespace

/// Every link of the pages that acts, followed in the real windows, and what the tool then shows.
class TestEnlaces : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_estudiante.prepara();
        m_practicadas.clear();
    }
    void cleanup() { m_principal.reset(); }

    void cadaPagina_data()
    {
        QTest::addColumn<std::tuple<QString, QString>>("fila");
        const QDir doc(Entorno::carpetaDeTrabajo() + u"/Doc"_s);
        for (const QString &carpeta : {u"."_s, u"English"_s}) {
            for (const QString &pagina : QDir(doc.filePath(carpeta)).entryList({u"*.html"_s}))
                otraFila(carpeta + u' ' + pagina, carpeta, pagina);
        }
    }
    void cadaPagina()
    {
        const auto [carpeta, pagina] = estaFila<QString, QString>();
        Idioma() = carpeta == u"." ? IdiomaPropio.toString() : carpeta;
        abre();
        const QString ruta =
            QDir(Entorno::carpetaDeTrabajo()).filePath(u"Doc/"_s + carpeta + u'/' + pagina);
        NavegadorPagina *navegador = m_lectura->pagina()->navegador();
        navegador->setSource(QUrl::fromLocalFile(ruta));
        const auto arbol = pageTree(QString::fromUtf8(leeArchivo(ruta, 1 << 20)));
        QStringList faltas;
        for (const Element *enlace : arbol->all(u"a"_s)) {
            const QUrl direccion(enlace->attribute(u"href"_s));
            if (!esEnlaceDelPrograma(direccion))
                continue;
            QString falta = sigue(*navegador, direccion);
            falta += lleva(*enlace, direccion);
            if (!falta.isEmpty())
                faltas << u"line %1: %2: %3"_s.arg(enlace->line).arg(direccion.toString(), falta);
        }
        QVERIFY2(faltas.isEmpty(), qPrintable(u'\n' + faltas.join(u'\n')));
    }

    void F1AbreLaSeccionDelTema_data() { filasDeTexto<QString>(uR"(. || English)"_s); }
    void F1AbreLaSeccionDelTema()
    {
        const QString carpeta = estaFila<QString>();
        for (const Leccion &leccion :
             m_contenido.lecciones + QList<Leccion>{m_contenido.hojaDeCalculo}) {
            const std::unique_ptr<FormLeccion> ventana(leccion.crea(nullptr));
            ventana->ponTemasDePagina(leccion.temas);
            ventana->show();
            const auto pagina = pageTree(
                QString::fromUtf8(leeArchivo(Entorno::carpetaDeTrabajo() + u"/Doc/"_s + carpeta +
                                                 u'/' + ventana->URL().section(u'\\', -1),
                                             1 << 20)));
            for (const TemaDePagina &tema : leccion.temas) {
                QVERIFY2(ventana->abreTema(tema.clave), qPrintable(tema.nombre));
                for (const QString &seccion : tema.pestanas + QStringList{tema.seccion})
                    QVERIFY2(pagina->place(seccion), qPrintable(leccion.palabra + u' ' + seccion));
                ventana->muestraAyuda();
                QVERIFY(Entorno::grabadora().abiertas.takeLast().endsWith(u'#' + tema.seccion));
            }
        }
    }

    void enElNavegadorSeLlamanIgual()
    {
        static const QRegularExpression fila(u"\"([a-z/-]+)\": \\[\"([^\"]*)\", \"([^\"]*)\"\\]"_s);
        const QString guion = QString::fromUtf8(
            leeArchivo(Entorno::carpetaDeTrabajo() + u"/Doc/pagina.js"_s, 1 << 20));
        QHash<QString, QStringList> nombres;
        for (const auto &hallada : fila.globalMatch(guion))
            nombres[hallada.captured(1)] = {hallada.captured(2), hallada.captured(3)};
        for (int i = 0; i < 2; ++i) {
            Idioma() = i == 0 ? IdiomaPropio.toString() : u"English"_s;
            for (const Leccion &leccion :
                 m_contenido.lecciones + QList<Leccion>{m_contenido.hojaDeCalculo}) {
                QCOMPARE(nombres[leccion.palabra].value(i), Traduce(leccion.rotulo));
                const std::unique_ptr<FormLeccion> ventana(leccion.crea(nullptr));
                auto *tira = control<QTabBar>(ventana.get(), u"tsTema"_s);
                for (const TemaDePagina &tema : leccion.temas) {
                    QVERIFY(ventana->abreTema(tema.clave));
                    QCOMPARE(nombres[leccion.palabra + u'/' + tema.nombre].value(i),
                             tira->tabText(tira->currentIndex()));
                }
            }
        }
    }

    /// What no table names cannot be reached, and nothing is opened on the way.
    void nadaMas_data()
    {
        filasDeTexto<QString>(uR"(
numora:primos/factorizacion?BtnFactoriza=1 || numora:primos/factorizacion?txtNúmero=7
numora:primos/intro || numora:nada/test || numora:primos/PanelFicha_0 || numora:euclides/euclides?A1=7
numora:rsa/clave?cmdPublicarClave=1 || numora:rsa/env-rec?txtAsunto=x || numora:minical/hoja?FlexCalc=0,0:1
numora:minical/hoja?txtPrecisión=3)"_s);
    }
    void nadaMas()
    {
        const QString enlace = estaFila<QString>();
        abre();
        const auto ventanas = m_principal->findChildren<FormLeccion *>();
        QVERIFY(!m_principal->sigueEnlace(QUrl(enlace), 0).isEmpty());
        QCOMPARE(m_principal->findChildren<FormLeccion *>(), ventanas);
        QVERIFY(m_lectura->pagina()->isVisible());
    }

    /// From an address outside the program no page is left to go back to.
    void llegaDeFuera()
    {
        abre();
        m_principal->llega(QUrl(u"numora:primos/test?txtNúmero=91"_s));
        QTRY_VERIFY(m_principal->leccionActiva() != m_lectura);
        FormLeccion *primos = m_principal->leccionActiva();
        QCOMPARE(valorDe(control<QWidget>(primos, u"txtNúmero"_s)), u"91"_s);
        QVERIFY(!control<QToolButton>(primos, u"cmdVolver"_s)->isVisible());
        m_principal->llega(QUrl(u"numora:nada/de-nada"_s));
        QTRY_COMPARE(Entorno::grabadora().mensajes.size(), 1);
        Entorno::grabadora().mensajes.clear();
    }

    void deIdaYVuelta()
    {
        abre();
        NavegadorPagina *navegador = m_lectura->pagina()->navegador();
        navegador->setSource(navegador->source().resolved(QUrl(u"Euclides.html"_s)));
        navegador->verticalScrollBar()->setValue(700);
        QCOMPARE(sigue(*navegador, QUrl(u"numora:primos/test?txtNúmero=91"_s)), QString());
        FormLeccion *primos = m_principal->leccionActiva();
        auto *campo = control<QWidget>(primos, u"txtNúmero"_s);
        QVERIFY(primos != m_lectura && campo->hasFocus());
        QVERIFY(control<QToolButton>(primos, u"cmdVolver"_s)->isVisible());
        navegador->setSource(navegador->source().resolved(QUrl(u"RSA.html"_s)));
        QTest::keyClick(campo, Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(m_principal->leccionActiva(), m_lectura);
        QCOMPARE(navegador->source().fileName(), u"Euclides.html"_s);
        QCOMPARE(navegador->verticalScrollBar()->value(), 700);
        QVERIFY(navegador->hasFocus() &&
                !control<QToolButton>(primos, u"cmdVolver"_s)->isVisible());

        QCOMPARE(sigue(*navegador, QUrl(u"numora:practicas/euclides.mcd?nivel=1"_s)), QString());
        QVERIFY(m_principal->leccionActiva() != m_lectura);
        QTest::keyClick(m_principal->leccionActiva(), Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(m_principal->leccionActiva(), m_lectura);
    }

private:
    void abre()
    {
        Contenido contenido = m_contenido;
        contenido.practicas.practica = [this](FormLeccion &ventana, const QString &clase,
                                              int nivel) {
            QString falta = m_contenido.practicas.practica(ventana, clase, nivel);
            if (falta.isEmpty())
                m_practicadas << clase + u' ' + QString::number(nivel);
            return falta;
        };
        m_principal = std::make_unique<FormPrincipal>(contenido);
        m_principal->resize(1366, 768);
        m_principal->show();
        QVERIFY(QTest::qWaitForWindowActive(m_principal.get()));
        m_lectura = m_principal->abreLeccion(0);
    }

    /// What the page says when the reader clicks a link.
    QString sigue(NavegadorPagina &navegador, const QUrl &direccion)
    {
        m_principal->abreLeccion(0)->abreTema(u"intro"_s);
        Q_EMIT navegador.anchorClicked(direccion);
        QString dicho = control<QLabel>(m_lectura, u"lblAvisoDePagina"_s)->text();
        for (const auto &mensaje : std::exchange(Entorno::grabadora().mensajes, {}))
            dicho += mensaje.texto;
        return dicho;
    }

    /// What is not as a link promises.
    QString lleva(const Element &enlace, const QUrl &direccion)
    {
        const EnlaceDePagina leido = leeEnlace(direccion);
        if (const auto *practicas = std::get_if<EnlaceDePracticas>(&leido))
            return m_practicadas.contains(practicas->clase + u' ' +
                                          QString::number(practicas->nivel))
                       ? QString()
                       : u"not practised"_s;
        if (const auto *leccion = std::get_if<EnlaceDeLeccion>(&leido))
            return compara(enlace, *leccion);
        const bool preguntada = control<QWidget>(m_lectura, u"txtPregunta"_s)->isVisible();
        return preguntada ? QString() : u"not asked"_s;
    }

    QString compara(const Element &enlace, const EnlaceDeLeccion &leido)
    {
        FormLeccion *leccion = m_principal->leccionActiva();
        QStringList faltas;
        for (const auto &[campo, valor] : leido.campos) {
            const auto *control = leccion->findChild<QWidget *>(campo);
            const bool escrito = !control || qobject_cast<const QAbstractItemView *>(control) ||
                                 valorDe(control) == valor;
            if (!escrito)
                faltas << campo + u" holds "_s + valorDe(control);
        }
        const Element &promesa =
            enlace.attributes.hasAttribute(u"data-muestra"_s) ? enlace : *enlace.parent;
        const QString muestra = promesa.attribute(u"data-muestra"_s);
        // Of several links in an item, what the item promises is shown after the last.
        if (muestra.isEmpty() || (&promesa != &enlace && promesa.all(u"a"_s).last() != &enlace))
            return faltas.join(u"; "_s);
        QCoreApplication::processEvents();
        for (const QString &boton :
             promesa.attribute(u"data-pulsa"_s).split(u' ', Qt::SkipEmptyParts)) {
            control<QAbstractButton>(leccion, boton)->click();
            QCoreApplication::processEvents();
        }
        const QString control = muestra.section(u'=', 0, 0);
        const QString texto = comparable(muestra.section(u'=', 1));
        if (!QTest::qWaitFor(
                [&] { return comparable(muestraDe(*leccion, control)).contains(texto); }, 20'000))
            faltas << control + u" shows "_s + muestraDe(*leccion, control).left(200);
        leccion->detenCorrida();
        return faltas.join(u"; "_s);
    }

    Estudiante m_estudiante;
    Contenido m_contenido = contenidoDelPrograma();
    QStringList m_practicadas;
    std::unique_ptr<FormPrincipal> m_principal;
    FormLeccion *m_lectura = nullptr; ///< the lesson in whose page the links are followed
};

NUMORA_TEST_MAIN(TestEnlaces)
#include "tst_Enlaces.moc"
