#include "bignum/ModBignum.h"
#include "lessons/rsa/Buzon.h"
#include "lessons/rsa/FormClaveRSA.h"
#include "lessons/rsa/FormRSA.h"
#include "shell/CampoLargo.h"
#include "shell/Rejilla.h"
#include "tests/lessons/rsa/support/Estudiante.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTabBar>
#include <QToolButton>

using namespace Qt::Literals::StringLiterals;

/// The window of the lesson, by its controls.
class TestFormRSA : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_yo = std::make_unique<Estudiante>();
    }
    void cleanup() { m_ventana.reset(); }

    void alAbrir()
    {
        abre();
        QCOMPARE(temas(), QStringList({u"Introducción"_s, u"Elección de clave"_s,
                                       u"Codificación y descodificación"_s}));
        QCOMPARE(linea(u"txtR"_s)->text(), u"1"_s);
        const int bits = linea(u"TxtNumBits"_s)->text().toInt();
        QVERIFY(bits >= 100 && bits <= 200);
        QVERIFY(!linea(u"TxtNumBits"_s)->isEnabled());
        for (const QString &nombre : {u"txtQ_0"_s, u"txtFiQ"_s, u"txtT"_s})
            QVERIFY(campo(nombre)->isReadOnly());
        for (const QString &nombre : {u"cmdCodificar"_s, u"cmdDescodificar"_s,
                                      u"cmdPublicarClave"_s, u"enviar"_s, u"recibir"_s})
            QVERIFY2(!boton(nombre)->isEnabled(), qPrintable(nombre));
    }

    void unaClaveBuena()
    {
        abre();
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        QCOMPARE(campo(u"txtQ_0"_s)->text(), u"67591"_s);
        QCOMPARE(campo(u"txtFiQ"_s)->text(), u"67072"_s);
        QCOMPARE(campo(u"txtT"_s)->text(), u"26829"_s);
        QCOMPARE(rotulo(u"LabelNumBits"_s), u"Nº de bits de la clave = 17"_s);
        QVERIFY(rotulo(u"lblFichero"_s).endsWith(m_yo->ficheroPrivado()));
        QVERIFY(boton(u"cmdCodificar"_s)->isEnabled() && boton(u"cmdDescodificar"_s)->isEnabled());
        // The next start finds it again.
        abre();
        QCOMPARE(campo(u"txtQ_1"_s)->text(), u"257"_s);
        QCOMPARE(campo(u"txtT"_s)->text(), u"26829"_s);
    }

    void clavesMalas_data()
    {
        QTest::addColumn<QStringList>("numeros");
        QTest::addColumn<QString>("texto");
        QTest::newRow("composite")
            << QStringList{u"259"_s, u"263"_s, u"5"_s} << u"q(1) debe ser primo."_s;
        QTest::newRow("small") << QStringList{u"257"_s, u"251"_s, u"5"_s}
                               << u"q(2) debe ser mayor que 255."_s;
        QTest::newRow("exponent") << QStringList{u"257"_s, u"263"_s, u"131"_s}
                                  << u"El número s debe ser primo con 67072"_s;
    }
    void clavesMalas()
    {
        QFETCH(QStringList, numeros);
        QFETCH(QString, texto);
        abre();
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        ponClave(numeros[0], numeros[1], numeros[2]);
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.texto, texto);
        QCOMPARE(mensaje.titulo, u"Error en la clave"_s);
        QCOMPARE(mensaje.icono, Interlocutor::Icono::Critico);
        QCOMPARE(rotulo(u"lblEstado"_s), u"✗ "_s + texto);
        QVERIFY(!boton(u"cmdCodificar"_s)->isEnabled());
    }

    void loQueFaltaSeDiceAlEscribir()
    {
        abre();
        QVERIFY(rotulo(u"lblEstado"_s).startsWith(u"Escriba dos primos"_s));
        campo(u"txtQ_1"_s)->setText(u"257"_s);
        campo(u"txtQ_2"_s)->setText(u"265"_s);
        campo(u"txtS"_s)->setText(u"5"_s);
        QCOMPARE(rotulo(u"lblEstado"_s), u"✗ q(2) debe ser primo."_s);
        campo(u"txtQ_2"_s)->setText(u"263"_s);
        QVERIFY(rotulo(u"lblEstado"_s).startsWith(u"Pulse Intro"_s));
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QVERIFY(!QFile::exists(m_yo->ficheroPrivado()));
    }

    void losNumerosLargosCabenEnLaCaja()
    {
        abre();
        const QString q1 = PrimoSiguiente(u"1"_s + QString(200, u'0'));
        ponClave(q1, PrimoSiguiente(q1), u"2"_s);
        QVERIFY(Entorno::grabadora().unico().texto.endsWith(u"(401 cifras)"_s));
    }

    void elNumeroDeCaracteres()
    {
        abre();
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        linea(u"txtR"_s)->setText(u"2"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"q(1) debe ser mayor que 255255."_s);
        linea(u"txtR"_s)->setText(u"40000"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"Desbordamiento."_s);
        linea(u"txtR"_s)->setText(QString());
        QVERIFY(boton(u"cmdCodificar"_s)->isEnabled());
        area(u"txtTextoOriginal"_s)->setPlainText(u"a"_s);
        boton(u"cmdCodificar"_s)->click();
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Tamaño de la palabra"_s);
    }

    void elNumeroDeBits()
    {
        abre();
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        linea(u"TxtNumBits"_s)->setText(u"100"_s);
        control<QCheckBox>(m_ventana.get(), u"ChkNumBits"_s)->click();
        QVERIFY(linea(u"TxtNumBits"_s)->isEnabled());
        const QString texto = u"Se requiere una clave de 100 bits, y la actual tiene 17"_s;
        QCOMPARE(rotulo(u"lblEstado"_s), u"✗ "_s + texto);
        escribe(u"txtS"_s, u"5"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, texto);
        control<QCheckBox>(m_ventana.get(), u"ChkNumBits"_s)->click();
        escribe(u"txtS"_s, u"5"_s);
        QVERIFY(boton(u"cmdCodificar"_s)->isEnabled());
    }

    void cerrarConUnNumeroAMedias()
    {
        abre();
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        campo(u"txtQ_1"_s)->setFocus();
        QTest::keyClicks(campo(u"txtQ_1"_s), u"1"_s);
        m_ventana->close();
        m_ventana.release(); // it deletes itself
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QVERIFY(Estudiante::lee(m_yo->ficheroPrivado()).contains("q(1)=257\r\n"));
    }

    void codificaYDescodifica()
    {
        abre();
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        area(u"txtTextoOriginal"_s)->setPlainText(u"HOLA"_s);
        boton(u"cmdCodificar"_s)->click();
        const auto *rejilla = control<Rejilla>(m_ventana.get(), u"FlexTextoCodificado"_s);
        QCOMPARE(rejilla->seleccion(FormaDeCopia::Texto),
                 u"Texto codificado\n57666\n43715\n51784\n23519\n"_s);
        area(u"txtTextoOriginal"_s)->clear();
        boton(u"cmdDescodificar"_s)->click();
        QCOMPARE(area(u"txtTextoOriginal"_s)->toPlainText(), u"HOLA"_s);
        area(u"txtTextoOriginal"_s)->setPlainText(u"Γειά"_s);
        boton(u"cmdCodificar"_s)->click();
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Carácter no admitido"_s);
        QCOMPARE(rejilla->model()->rowCount(), 4);
    }

    void laFichaDeMensajesVaYViene()
    {
        abre();
        eligeBuzon(m_yo->buzon());
        QCOMPARE(temas().size(), 3);
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        QCOMPARE(temas().mid(3), QStringList{u"Enviar y recibir"_s});
        QVERIFY(boton(u"cmdPublicarClave"_s)->isEnabled());
        escribe(u"txtS"_s, u"2"_s);
        QCOMPARE(temas().size(), 3);
        Entorno::grabadora().unico();
        escribe(u"txtS"_s, u"5"_s);
        temasDe()->setCurrentIndex(3);
        // Cancelling forgets the mailbox.
        eligeBuzon({});
        QCOMPARE(Entorno::grabadora().carpetasPedidas, QStringList({QString(), m_yo->buzon()}));
        QCOMPARE(temas().size(), 3);
        QVERIFY(!boton(u"cmdPublicarClave"_s)->isEnabled());
        QCOMPARE(Sesión().lee(u"RSA"_s, u"DirMensajes"_s), QString());
        eligeBuzon(m_yo->enBuzon(u"no existe"_s));
        QCOMPARE(temas().size(), 3);
    }

    void publicaEnviaYRecibe()
    {
        preparaBuzon();
        boton(u"cmdPublicarClave"_s)->click();
        eligeUsuario(m_yo->usuario());
        QCOMPARE(rotulo(u"LabelTexto"_s), u"Mensaje para "_s + m_yo->usuario());
        QCOMPARE(ventanaClave()->windowTitle(), u"Clave de "_s + m_yo->usuario());
        QCOMPARE(campoAjeno(u"txtDestQ"_s), u"67591"_s);
        QCOMPARE(campoAjeno(u"TxtDestT"_s), u"26829"_s);
        QVERIFY(!boton(u"enviar"_s)->isEnabled());
        escribeMensaje(u"Cita"_s, u"¿A las 5?\nSí: 3 €"_s);
        boton(u"enviar"_s)->click();
        QVERIFY(rotulo(u"lblEstadoBuzon"_s).startsWith(u"Mensaje enviado"_s));
        QCOMPARE(lista(), QString()); // until the next scan

        escribeMensaje({}, {});
        boton(u"revisar"_s)->click();
        QCOMPARE(lista(),
                 u"Dirigido a     \tDe           \tAsunto\n%1\t%1\tCita\n"_s.arg(m_yo->usuario()));
        eligeFila(0);
        QCOMPARE(linea(u"txtAsunto"_s)->text(), u"Cita"_s);
        QCOMPARE(area(u"txtDestTextoOriginal"_s)->toPlainText(), QString());
        boton(u"recibir"_s)->click();
        QCOMPARE(area(u"txtDestTextoOriginal"_s)->toPlainText(), u"¿A las 5?\nSí: 3 €"_s);

        boton(u"enviar"_s)->click();
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.titulo, u"Mensaje repetido"_s);
        QCOMPARE(mensaje.icono, Interlocutor::Icono::Critico);
        QCOMPARE(mensaje.texto,
                 u"Ya hay un mensaje de %1 para %1 con asunto 'Cita'"_s.arg(m_yo->usuario()));
    }

    void soloSuDuenoLoLee()
    {
        m_yo->escribe(u"<i>ana/Clave.RSA"_s, "[RSA]\r\nq=67591\r\ns=5\r\n");
        m_yo->escribe(u"<i>ana/RSA1.msg"_s, "luis\r\nhola\r\n57666\r\n43715\r\n");
        preparaBuzon(u"269"_s, u"271"_s, u"7"_s);
        eligeFila(0);
        QCOMPARE(control<QLabel>(m_ventana.get(), u"LabelTexto"_s)->textFormat(), Qt::PlainText);
        QCOMPARE(campoAjeno(u"txtDestS"_s), u"5"_s);
        QVERIFY(campoAjeno(u"TxtDestT"_s).isEmpty() && !boton(u"recibir"_s)->isEnabled());
        // Who finds the exponent reads all the same.
        control<CampoLargo>(ventanaClave(), u"TxtDestT"_s)->setText(u"26829"_s);
        QVERIFY(boton(u"recibir"_s)->isEnabled());
        boton(u"recibir"_s)->click();
        QCOMPARE(area(u"txtDestTextoOriginal"_s)->toPlainText(), u"HO"_s);
    }

    void laClavePropiaVuelve()
    {
        m_yo->escribe(u"ana/Clave.RSA"_s, "[RSA]\r\nq=33\r\ns=3\r\n");
        preparaBuzon();
        eligeUsuario(u"ana"_s);
        QCOMPARE(Estudiante::lee(m_yo->ficheroPrivado()),
                 "[RSA]\r\nr=1\r\nq(0)=33\r\nq(1)=\r\nq(2)=\r\ns=3\r\nt=\r\nNBits=0\r\n"
                 "Fi(Q)=\r\n"_ba);
        temasDe()->setCurrentIndex(1);
        QVERIFY(Estudiante::lee(m_yo->ficheroPrivado()).contains("q(0)=67591\r\n"));
        temasDe()->setCurrentIndex(3);
        eligeUsuario(u"luis"_s);
        m_ventana.reset();
        QVERIFY(Estudiante::lee(m_yo->ficheroPrivado()).contains("t=26829\r\n"));
    }

    void sinClavePublicada()
    {
        preparaBuzon();
        eligeUsuario(u"eva"_s);
        escribeMensaje(u"x"_s, u"ab"_s);
        boton(u"enviar"_s)->click();
        QCOMPARE(Entorno::grabadora().confirmaciones.size(), 1);
        QVERIFY(!QFile::exists(m_yo->enBuzon(u"eva"_s)));
        Entorno::grabadora().respondeSi = true;
        boton(u"enviar"_s)->click();
        QCOMPARE(Estudiante::lee(m_yo->enBuzon(u"eva/RSA1.msg"_s)),
                 m_yo->usuario().toLatin1() + "\r\nx\r\nError\r\nError\r\n");
    }

    void loQueNoSePuedeEnviar_data()
    {
        QTest::addColumn<QString>("usuario");
        QTest::addColumn<QString>("asunto");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QString>("titulo");
        QTest::addColumn<bool>("sale");
        QTest::newRow("text beyond Windows-1252")
            << u"ana"_s << u"x"_s << u"día α"_s << u"Carácter no admitido"_s << false;
        QTest::newRow("subject beyond Windows-1252")
            << u"ana"_s << u"α"_s << u"x"_s << u"Carácter no admitido"_s << false;
        QTest::newRow("out of the mailbox")
            << u"../ana"_s << u"x"_s << u"x"_s << u"Error en tiempo de ejecución"_s << false;
        QTest::newRow("unfit text and subject: one box")
            << u"ana"_s << u"\u0001"_s << u"\u0001"_s << u"Error en el mensaje"_s << true;
    }
    void loQueNoSePuedeEnviar()
    {
        QFETCH(QString, usuario);
        QFETCH(QString, asunto);
        QFETCH(QString, texto);
        preparaBuzon();
        Entorno::grabadora().respondeSi = true;
        eligeUsuario(usuario);
        escribeMensaje(asunto, texto);
        boton(u"enviar"_s)->click();
        QTEST(Entorno::grabadora().unico().titulo, "titulo");
        QTEST(QFile::exists(m_yo->enBuzon(usuario + u"/RSA1.msg"_s)), "sale");
    }

    void unBuzonQueDesaparece()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nhola\r\n1\r\n");
        preparaBuzon();
        QVERIFY(!lista().isEmpty());
        QDir(m_yo->buzon()).removeRecursively();
        boton(u"revisar"_s)->click();
        QVERIFY(Entorno::grabadora().unico().texto.startsWith(u"No se encontró la ruta"_s));
        QCOMPARE(lista(), QString());
        QCOMPARE(temas().size(), 3);
    }

    void revisarNoEstropeaLoEscrito()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nhola\r\n1\r\n");
        preparaBuzon();
        eligeFila(0);
        escribeMensaje(u"respuesta"_s, u"a medias"_s);
        m_yo->escribe(u"Ada/RSA1.msg"_s, "luis\r\nprimera\r\n1\r\n");
        boton(u"revisar"_s)->click();
        QCOMPARE(area(u"txtDestTextoOriginal"_s)->toPlainText(), u"a medias"_s);
        QCOMPARE(control<QComboBox>(m_ventana.get(), u"cmbDestinatario"_s)->currentText(),
                 u"ana"_s);
        QCOMPARE(control<Rejilla>(m_ventana.get(), u"FlexMensajes"_s)->currentIndex().row(), 1);
    }

    void unaClaveGuardadaQueEstaRota()
    {
        escribeArchivo(m_yo->ficheroPrivado(), "[RSA]\nr=99999\n");
        abre();
        QCOMPARE(Entorno::grabadora().unico().texto, u"Desbordamiento."_s);
        ponClave(u"257"_s, u"263"_s, u"5"_s);
        QCOMPARE(campo(u"txtT"_s)->text(), u"26829"_s);
    }

private:
    void abre()
    {
        m_ventana.reset();
        m_ventana = std::make_unique<FormRSA>();
        m_ventana->resize(1100, 650);
        m_ventana->show();
        temasDe()->setCurrentIndex(1);
    }

    void preparaBuzon(const QString &q1 = u"257"_s, const QString &q2 = u"263"_s,
                      const QString &s = u"5"_s)
    {
        abre();
        ponClave(q1, q2, s);
        eligeBuzon(m_yo->buzon());
        temasDe()->setCurrentIndex(3);
        QCoreApplication::processEvents();
    }

    void eligeBuzon(const QString &carpeta)
    {
        Entorno::grabadora().respuestas = {carpeta};
        boton(u"cmdBuzon"_s)->click();
    }

    void ponClave(const QString &q1, const QString &q2, const QString &s)
    {
        // Each field is taken over as it is left; the last verdict is the one on the whole key.
        const auto avisos = Entorno::grabadora().mensajes;
        const QList<std::pair<QString, QString>> numeros{
            {u"txtQ_1"_s, q1}, {u"txtQ_2"_s, q2}, {u"txtS"_s, s}};
        for (const auto &[nombre, numero] : numeros) {
            Entorno::grabadora().mensajes = avisos;
            escribe(nombre, numero);
        }
    }

    void escribe(const QString &nombre, const QString &texto)
    {
        campo(nombre)->setText(texto);
        QTest::keyClick(campo(nombre), Qt::Key_Return);
    }

    void escribeMensaje(const QString &asunto, const QString &texto)
    {
        linea(u"txtAsunto"_s)->setText(asunto);
        area(u"txtDestTextoOriginal"_s)->setPlainText(texto);
    }

    void eligeUsuario(const QString &usuario)
    {
        auto *combo = control<QComboBox>(m_ventana.get(), u"cmbDestinatario"_s);
        combo->setCurrentText(usuario);
        QTest::keyClick(combo->lineEdit(), Qt::Key_Return);
    }

    void eligeFila(int fila)
    {
        auto *rejilla = control<Rejilla>(m_ventana.get(), u"FlexMensajes"_s);
        const QRect celda = rejilla->visualRect(rejilla->model()->index(fila, 0));
        QTest::mouseClick(rejilla->viewport(), Qt::LeftButton, {}, celda.center());
    }

    QTabBar *temasDe() const { return control<QTabBar>(m_ventana.get(), u"tsTema"_s); }
    QStringList temas() const
    {
        QStringList rotulos;
        for (int i = 0; i < temasDe()->count(); ++i)
            rotulos << temasDe()->tabText(i);
        return rotulos;
    }
    /// The cells of the list of messages; empty when it is.
    QString lista() const
    {
        const auto *rejilla = control<Rejilla>(m_ventana.get(), u"FlexMensajes"_s);
        return rejilla->model()->rowCount() == 0 ? QString() : todas(*rejilla->model());
    }
    static QString todas(const QAbstractItemModel &modelo)
    {
        QStringList lineas{QString()};
        for (int c = 0; c < 3; ++c)
            lineas[0] +=
                modelo.headerData(c, Qt::Horizontal).toString() + (c < 2 ? u"\t"_s : u""_s);
        for (int f = 0; f < modelo.rowCount(); ++f) {
            lineas << QStringList({modelo.index(f, 0).data().toString(),
                                   modelo.index(f, 1).data().toString(),
                                   modelo.index(f, 2).data().toString()})
                          .join(u'\t');
        }
        return lineas.join(u'\n') + u'\n';
    }
    FormClaveRSA *ventanaClave() const { return m_ventana->findChild<FormClaveRSA *>(); }
    QString campoAjeno(const QString &nombre) const
    {
        return control<CampoLargo>(ventanaClave(), nombre)->text();
    }
    CampoLargo *campo(const QString &nombre) const
    {
        return control<CampoLargo>(m_ventana.get(), nombre);
    }
    QLineEdit *linea(const QString &nombre) const
    {
        return control<QLineEdit>(m_ventana.get(), nombre);
    }
    QPlainTextEdit *area(const QString &nombre) const
    {
        return control<QPlainTextEdit>(m_ventana.get(), nombre);
    }
    QAbstractButton *boton(const QString &nombre) const
    {
        return control<QAbstractButton>(m_ventana.get(), nombre);
    }
    QString rotulo(const QString &nombre) const
    {
        return control<QLabel>(m_ventana.get(), nombre)->text();
    }

    std::unique_ptr<Estudiante> m_yo;
    std::unique_ptr<FormRSA> m_ventana;
};

NUMORA_TEST_MAIN(TestFormRSA)
#include "tst_FormRSA.moc"
