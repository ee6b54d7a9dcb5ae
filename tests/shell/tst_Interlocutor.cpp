#include "tests/shell/support/Entorno.h"

#include <QAbstractButton>
#include <QDesktopServices>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QTimer>
#include <QTreeView>
#include <QUrl>

using namespace Qt::Literals::StringLiterals;
using Guardado = Interlocutor::Guardado;
Q_DECLARE_METATYPE(QMessageBox::StandardButton)

namespace {

/// Does something to the dialog that the next call opens; closes it in any case, lest it wait for
/// ever.
template <typename Dialogo>
void enElDialogo(const std::function<void(Dialogo &)> &accion)
{
    QTimer::singleShot(0, qApp, [accion] {
        auto *abierto = QApplication::activeModalWidget();
        auto *dialogo = qobject_cast<Dialogo *>(abierto);
        QVERIFY(dialogo);
        accion(*dialogo);
        if (abierto->isVisible())
            dialogo->reject();
    });
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

    void abreDirecciones_data()
    {
        QTest::addColumn<QString>("direccion");
        QTest::addColumn<QUrl>("abierta");
        const QString carpeta = Entorno::carpetaDeTrabajo();
        const QUrl pagina = QUrl::fromLocalFile(carpeta + u"/Doc/Primos.html"_s);
        const QString web = u"https://example.org/a?b=c#d"_s;
        QTest::newRow("web address") << web << QUrl(web);
        QTest::newRow("page") << carpeta + u"\\Doc\\Primos.html"_s << pagina;
        QTest::newRow("letter case") << carpeta + u"\\DOC\\primos.HTML"_s << pagina;
        QTest::newRow("relative to the current folder") << u".\\Doc\\Primos.html"_s << pagina;
        QTest::newRow("missing page")
            << u"/nada\\100 %#1.html"_s << QUrl::fromLocalFile(u"/nada/100 %#1.html"_s);
    }
    void abreDirecciones()
    {
        QFETCH(QString, direccion);
        QFETCH(QUrl, abierta);
        const Escritorio escritorio;
        Interlocutor().abre(direccion);
        QCOMPARE(escritorio.abiertas, QList<QUrl>{abierta});
    }

    void siGuarda_data()
    {
        QTest::addColumn<QMessageBox::StandardButton>("boton");
        QTest::addColumn<Guardado>("respuesta");
        QTest::newRow("save") << QMessageBox::Save << Guardado::Guardar;
        QTest::newRow("discard") << QMessageBox::Discard << Guardado::Descartar;
        QTest::newRow("cancel") << QMessageBox::Cancel << Guardado::Cancelar;
        QTest::newRow("closed") << QMessageBox::NoButton << Guardado::Cancelar;
    }
    void siGuarda()
    {
        QFETCH(QMessageBox::StandardButton, boton);
        enElDialogo<QMessageBox>([&](QMessageBox &caja) {
            QCOMPARE(caja.text(), u"¿Guardar?"_s);
            boton == QMessageBox::NoButton ? caja.close() : (caja.button(boton)->click(), true);
        });
        QTEST(m_real.preguntaSiGuarda(nullptr, u"¿Guardar?"_s, u"Hoja"_s), "respuesta");
    }

    void archivoParaGuardar_data()
    {
        QTest::addColumn<QString>("nombre");
        QTest::addColumn<int>("filtro");
        QTest::addColumn<QString>("ruta");
        QTest::newRow("as proposed") << QString() << 0 << u"hoja.uno"_s;
        QTest::newRow("without an extension") << u"otra"_s << 0 << u"otra.uno"_s;
        QTest::newRow("that of the other filter") << u"otra"_s << 1 << u"otra.dos"_s;
        QTest::newRow("with its own") << u"otra.txt"_s << 1 << u"otra.txt"_s;
    }
    void archivoParaGuardar()
    {
        QFETCH(QString, nombre);
        QFETCH(int, filtro);
        QFETCH(QString, ruta);
        const QTemporaryDir carpeta;
        const QStringList filtros{u"Uno (*.uno)"_s, u"Dos (*.dos)"_s};
        enElDialogo<QFileDialog>([&](QFileDialog &dialogo) {
            if (filtro != 0) {
                dialogo.selectNameFilter(filtros[filtro]);
                Q_EMIT dialogo.filterSelected(filtros[filtro]);
            }
            auto *campo = control<QLineEdit>(&dialogo, u"fileNameEdit"_s);
            if (!nombre.isEmpty())
                campo->setText(nombre);
            QTest::keyClick(campo, Qt::Key_Return);
        });
        const auto elegido = m_real.pideArchivoParaGuardar(
            nullptr, u"Guardar"_s, carpeta.filePath(u"hoja.uno"_s), filtros);
        QCOMPARE(elegido.ruta, carpeta.filePath(ruta));
        QCOMPARE(elegido.filtro, filtro);
    }

    void archivoParaAbrir()
    {
        const QTemporaryDir carpeta;
        QFile archivo(carpeta.filePath(u"hoja.uno"_s));
        QVERIFY(archivo.open(QIODevice::WriteOnly));
        enElDialogo<QFileDialog>([&](QFileDialog &dialogo) {
            QCOMPARE(dialogo.directory(), QDir(carpeta.path()));
            auto *lista = control<QTreeView>(&dialogo, u"treeView"_s);
            const auto tipo = [lista] {
                return lista->model()->index(0, 2, lista->rootIndex()).data().toString();
            };
            QTRY_COMPARE(tipo(), u"Archivo uno"_s); // the model reads the folder in its own time
            auto *campo = control<QLineEdit>(&dialogo, u"fileNameEdit"_s);
            campo->setText(u"hoja.uno"_s);
            QTest::keyClick(campo, Qt::Key_Return);
        });
        const QStringList filtros{u"Uno (*.uno)"_s};
        QCOMPARE(m_real.pideArchivoParaAbrir(nullptr, u"Abrir"_s, carpeta.path(), filtros),
                 archivo.fileName());
        enElDialogo<QFileDialog>([](QFileDialog &dialogo) { dialogo.reject(); });
        QCOMPARE(m_real.pideArchivoParaAbrir(nullptr, u"Abrir"_s, carpeta.path(), filtros),
                 QString());
        enElDialogo<QFileDialog>([](QFileDialog &dialogo) { dialogo.reject(); });
        QCOMPARE(m_real.pideArchivoParaGuardar(nullptr, u"Guardar"_s, carpeta.path(), filtros).ruta,
                 QString());
    }

    void pideCarpeta_data()
    {
        QTest::addColumn<bool>("acepta");
        QTest::newRow("chosen") << true;
        QTest::newRow("cancelled") << false;
    }
    void pideCarpeta()
    {
        QFETCH(bool, acepta);
        const QTemporaryDir inicial;
        QString pregunta;
        QTimer::singleShot(0, this, [&] {
            auto *dialogo = qobject_cast<QFileDialog *>(QApplication::activeModalWidget());
            QVERIFY(dialogo);
            for (const QLabel *rotulo : dialogo->findChildren<QLabel *>()) {
                if (rotulo->text().contains(u'\n') && rotulo->isVisible())
                    pregunta = rotulo->text();
            }
            if (acepta)
                dialogo->selectFile(inicial.path());
            dialogo->findChild<QDialogButtonBox *>()
                ->button(acepta ? QDialogButtonBox::Open : QDialogButtonBox::Cancel)
                ->click();
        });
        QCOMPARE(m_real.pideCarpeta(nullptr, u"Uno.\n(Dos)"_s, inicial.path()),
                 acepta ? inicial.path() : QString());
        QCOMPARE(pregunta, u"Uno.\n(Dos)"_s);
    }

    void confirma_data()
    {
        QTest::addColumn<int>("tecla");
        QTest::addColumn<bool>("respuesta");
        QTest::newRow("Enter takes the careful answer") << int(Qt::Key_Return) << false;
        QTest::newRow("Escape") << int(Qt::Key_Escape) << false;
        QTest::newRow("yes") << 0 << true;
    }
    void confirma()
    {
        QFETCH(int, tecla);
        QTimer::singleShot(0, this, [&] {
            auto *caja = qobject_cast<QMessageBox *>(QApplication::activeModalWidget());
            QVERIFY(caja);
            if (tecla == 0)
                caja->button(QMessageBox::Yes)->click();
            else
                QTest::keyClick(caja, Qt::Key(tecla));
        });
        QTEST(m_real.confirma(nullptr, u"¿Seguro?"_s, u"Título"_s), "respuesta");
    }

private:
    Interlocutor m_real;
};

NUMORA_TEST_MAIN(TestInterlocutor)
#include "tst_Interlocutor.moc"
