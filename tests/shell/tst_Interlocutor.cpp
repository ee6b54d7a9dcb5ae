// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/frame/Evento.h"
#include "tests/shell/support/Entorno.h"

#include <optional>

using namespace Qt::Literals::StringLiterals;
using Guardado = Interlocutor::Guardado;

namespace {

template <typename T>
Tarea<> apunta(Tarea<T> pregunta, std::optional<T> &dada)
{
    dada = co_await pregunta;
}

template <typename Dialogo>
Dialogo *abierto()
{
    auto *dialogo = qobject_cast<Dialogo *>(QApplication::activeModalWidget());
    if (!dialogo)
        qFatal("no such dialog is open");
    return dialogo;
}

/// What a question is answered once something has been done to the dialog that it opens.
template <typename Dialogo, typename T, typename Accion>
T respuesta(Tarea<T> pregunta, const Accion &accion)
{
    std::optional<T> dada;
    TareasDeVentana tareas(nullptr);
    tareas.lanza(apunta(std::move(pregunta), dada));
    accion(*abierto<Dialogo>());
    if (!QTest::qWaitFor([&] { return dada.has_value(); }))
        QTest::qFail("the question is not answered", __FILE__, __LINE__);
    return dada.value_or(T());
}

} // namespace

/// Stands where the desktop's browser would.
class Escritorio : public QObject
{
    Q_OBJECT

public:
    Escritorio()
    {
        for (const QString &esquema : {u"file"_s, u"https"_s})
            QDesktopServices::setUrlHandler(esquema, this, "abre");
    }
    ~Escritorio() override
    {
        for (const QString &esquema : {u"file"_s, u"https"_s})
            QDesktopServices::unsetUrlHandler(esquema);
    }

    QList<QUrl> abiertas;

public Q_SLOTS:
    void abre(const QUrl &direccion) { abiertas << direccion; }
};

/// The real questions, answered by their buttons.
class TestInterlocutor : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }
    void initTestCase() { QApplication::setAttribute(Qt::AA_DontUseNativeDialogs); }

    void abreDirecciones()
    {
        const QString carpeta = Entorno::carpetaDeTrabajo();
        const QUrl pagina = QUrl::fromLocalFile(carpeta + u"/Doc/Primos.html"_s);
#if defined(Q_OS_WIN) // where letter case makes no other name
        const QUrl comoSea = QUrl::fromLocalFile(carpeta + u"/DOC/primos.HTML"_s);
#else
        const QUrl comoSea = pagina;
#endif
        const QString web = u"https://example.org/a?b=c#d"_s;
        const QList<std::pair<QString, QUrl>> filas{
            {web, QUrl(web)},
            {carpeta + u"\\Doc\\Primos.html"_s, pagina},
            {carpeta + u"\\DOC\\primos.HTML"_s, comoSea},
            {u".\\Doc\\Primos.html"_s, pagina}, // from the current folder
            {u"/nada\\100 %#1.html"_s,          // on Windows, of the drive that is the current one
             QUrl::fromLocalFile(QFileInfo(u"/nada/100 %#1.html"_s).absoluteFilePath())}};
        for (const auto &[direccion, abierta] : filas) {
            const Escritorio escritorio;
            Interlocutor().abre(direccion);
            QCOMPARE(escritorio.abiertas, QList<QUrl>{abierta});
        }
    }

    void siGuarda()
    {
        for (const auto &[boton, dicha] :
             {std::pair{QMessageBox::Save, Guardado::Guardar},
              {QMessageBox::Discard, Guardado::Descartar},
              {QMessageBox::Cancel, Guardado::Cancelar},
              {QMessageBox::NoButton, Guardado::Cancelar}}) { // the last closes the box
            const auto pulsa = [boton = boton](QMessageBox &caja) {
                QCOMPARE(caja.text(), u"¿Guardar?"_s);
                boton == QMessageBox::NoButton ? caja.close() : (caja.button(boton)->click(), true);
            };
            auto pregunta = m_real.preguntaGuardar(nullptr, u"¿Guardar?"_s, u"Hoja"_s);
            QCOMPARE(respuesta<QMessageBox>(std::move(pregunta), pulsa), dicha);
        }
    }

    void archivoParaGuardar()
    {
        const QTemporaryDir carpeta;
        const QStringList filtros{u"Uno (*.uno)"_s, u"Dos (*.dos)"_s};
        const QList<std::tuple<QString, int, QString>> filas{{{}, 0, u"hoja.uno"_s},
                                                             {u"otra"_s, 0, u"otra.uno"_s},
                                                             {u"otra"_s, 1, u"otra.dos"_s},
                                                             {u"otra.txt"_s, 1, u"otra.txt"_s}};
        for (const auto &[nombre, filtro, ruta] : filas) {
            const auto escribe = [&, nombre = nombre, filtro = filtro](QFileDialog &dialogo) {
                if (filtro != 0) {
                    dialogo.selectNameFilter(filtros[filtro]);
                    Q_EMIT dialogo.filterSelected(filtros[filtro]);
                }
                teclea(dialogo, nombre);
            };
            auto elige = m_real.eligeArchivoParaGuardar(nullptr, u"Guardar"_s,
                                                        carpeta.filePath(u"hoja.uno"_s), filtros);
            const auto elegido = respuesta<QFileDialog>(std::move(elige), escribe);
            QCOMPARE(elegido.ruta, carpeta.filePath(ruta));
            QCOMPARE(elegido.filtro, filtro);
        }
    }

    void archivoParaAbrir()
    {
        const QTemporaryDir carpeta;
        QFile archivo(carpeta.filePath(u"hoja.uno"_s));
        QVERIFY(archivo.open(QIODevice::WriteOnly));
        const auto escribe = [&](QFileDialog &dialogo) {
            QCOMPARE(dialogo.directory(), QDir(carpeta.path()));
            auto *lista = control<QTreeView>(&dialogo, u"treeView"_s);
            const auto tipo = [lista] {
                return lista->model()->index(0, 2, lista->rootIndex()).data().toString();
            };
            QTRY_COMPARE(tipo(), u"Archivo uno"_s); // the model reads the folder in its own time
            teclea(dialogo, u"hoja.uno"_s);
        };
        const auto renuncia = [](QFileDialog &dialogo) { dialogo.reject(); };
        const auto abre = [&] {
            return m_real.eligeArchivoParaAbrir(nullptr, u"Abrir"_s, carpeta.path(),
                                                {u"Uno (*.uno)"_s});
        };
        QCOMPARE(respuesta<QFileDialog>(abre(), escribe), archivo.fileName());
        QCOMPARE(respuesta<QFileDialog>(abre(), renuncia), QString());
        auto guarda = m_real.eligeArchivoParaGuardar(nullptr, u"Guardar"_s, carpeta.path(), {});
        QCOMPARE(respuesta<QFileDialog>(std::move(guarda), renuncia).ruta, QString());
    }

    void carpeta()
    {
        const QTemporaryDir inicial;
        for (const bool acepta : {true, false}) {
            QString pregunta;
            const auto elige = [&](QFileDialog &dialogo) {
                for (const QLabel *rotulo : dialogo.findChildren<QLabel *>()) {
                    if (rotulo->text().contains(u'\n') && rotulo->isVisible())
                        pregunta = rotulo->text();
                }
                if (acepta)
                    dialogo.selectFile(inicial.path());
                dialogo.findChild<QDialogButtonBox *>()
                    ->button(acepta ? QDialogButtonBox::Open : QDialogButtonBox::Cancel)
                    ->click();
            };
            auto pide = m_real.eligeCarpeta(nullptr, u"Uno.\n(Dos)"_s, inicial.path());
            QCOMPARE(respuesta<QFileDialog>(std::move(pide), elige),
                     acepta ? inicial.path() : QString());
            QCOMPARE(pregunta, u"Uno.\n(Dos)"_s);
        }
    }

    /// Enter takes the careful answer, as Escape does.
    void siONo()
    {
        for (const auto tecla : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Y}) {
            const auto contesta = [tecla](QMessageBox &caja) {
                if (tecla == Qt::Key_Y)
                    caja.button(QMessageBox::Yes)->click();
                else
                    QTest::keyClick(&caja, tecla);
            };
            QCOMPARE(respuesta<QMessageBox>(pregunta(nullptr), contesta), tecla == Qt::Key_Y);
        }
    }

    /// A box over a window that goes is an answer as careful as Escape; one that only tells goes
    /// along.
    void laCajaSeVaConSuVentana()
    {
        auto ventana = std::make_unique<QWidget>();
        m_real.avisa(ventana.get(), Interlocutor::Icono::Critico, u"Texto"_s, u"Título"_s);
        const QPointer<QMessageBox> aviso = abierto<QMessageBox>();
        const auto seVa = [&](QMessageBox &) { ventana.reset(); };
        QVERIFY(!respuesta<QMessageBox>(pregunta(ventana.get()), seVa));
        QVERIFY(!aviso);
    }

    /// A tool that is active may just have been hidden: the box stands over what it belongs to.
    void laCajaEstaSobreLoQueSeVe()
    {
        QWidget ventana;
        QWidget herramienta(&ventana, Qt::Tool);
        ventana.show();
        m_real.avisa(&herramienta, Interlocutor::Icono::Informacion, u"x"_s, u"y"_s);
        QCOMPARE(abierto<QMessageBox>()->parentWidget(), &ventana);
    }

    /// Whoever asks may be gone before the answer.
    void laCajaSeVaConSuTarea()
    {
        std::optional<bool> dada;
        auto tareas = std::make_unique<TareasDeVentana>(nullptr);
        tareas->lanza(apunta(pregunta(nullptr), dada));
        const QPointer<QMessageBox> caja = abierto<QMessageBox>();
        tareas.reset();
        QTRY_VERIFY(!caja);
        QVERIFY(!dada);
    }

    /// A short text leaves room for the title, and the pointer of a busy window is not the box's.
    void lasCajasSeLeen()
    {
        QWidget ventana;
        ventana.setCursor(Qt::WaitCursor);
        const QString titulo = u"Un título bastante más largo que el texto de la caja"_s;
        m_real.avisa(&ventana, Interlocutor::Icono::Informacion, u"Sí."_s, titulo);
        const auto *caja = abierto<QMessageBox>();
        QVERIFY(caja->width() > caja->fontMetrics().horizontalAdvance(titulo));
        QCOMPARE(caja->cursor().shape(), Qt::ArrowCursor);
    }

private:
    Tarea<bool> pregunta(QWidget *padre)
    {
        return m_real.preguntaSiNo(padre, u"¿Seguro?"_s, u"Título"_s);
    }
    /// Takes the name that is proposed when none is given.
    static void teclea(const QFileDialog &dialogo, const QString &nombre)
    {
        auto *campo = control<QLineEdit>(&dialogo, u"fileNameEdit"_s);
        if (!nombre.isEmpty())
            campo->setText(nombre);
        QTest::keyClick(campo, Qt::Key_Return);
    }

    Interlocutor m_real;
};

NUMORA_TEST_MAIN(TestInterlocutor)
#include "tst_Interlocutor.moc"
