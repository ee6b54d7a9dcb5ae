// SPDX-License-Identifier: GPL-3.0-or-later
#include "tests/Tabla.h"
#include "tests/lessons/rsa/support/VentanaRSA.h"
#include "tests/shell/support/Permisos.h"

/// The mailbox: publishing, sending, receiving.
class TestFormRSAMensajes : public QObject, private VentanaRSA
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        nueva();
    }
    void cleanup() { cierra(); }

    void laFichaDeMensajesVaYViene()
    {
        abre();
        eligeBuzon(m_yo->buzon());
        QCOMPARE(temas().size(), 3);
        ponClave();
        QCOMPARE(temas().mid(3), QStringList{u"Enviar y recibir"_s});
        QVERIFY(boton(u"cmdPublicarClave"_s)->isEnabled());
        escribe(u"txtS"_s, u"2"_s);
        QCOMPARE(temas().size(), 3);
        Entorno::grabadora().unico();
        escribe(u"txtS"_s, u"5"_s);
        boton(u"cmdPublicarClave"_s)->click();
        QVERIFY(rotulo(u"lblEstado"_s).contains(u"publicada"_s));
        temasDe()->setCurrentIndex(3);
        // Cancelling forgets the mailbox, and that the key was published there.
        eligeBuzon({});
        QCOMPARE(rotulo(u"lblEstado"_s), u"✓ Clave OK"_s);
        QCOMPARE(Entorno::grabadora().carpetasPedidas, QStringList({QString(), m_yo->buzon()}));
        QCOMPARE(temas().size(), 3);
        QVERIFY(!boton(u"cmdPublicarClave"_s)->isEnabled());
        QCOMPARE(Sesión().lee(u"RSA"_s, u"DirMensajes"_s), QString());
        // Neither one that is not there, which is no error until it is asked for, nor a key that
        // has lost a number, though that gives no verdict.
        eligeBuzon(m_yo->enBuzon(u"no existe"_s));
        QCoreApplication::processEvents();
        QCOMPARE(temas().size(), 3);
        QVERIFY(rotulo(u"lblBuzon"_s).startsWith(u"No se encuentra el buzón"_s));
        eligeBuzon(m_yo->buzon());
        QCOMPARE(temas().size(), 4);
        escribe(u"txtQ_1"_s, {});
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
        pulsa(u"enviar"_s);
        QVERIFY(rotulo(u"lblEstadoBuzon"_s).startsWith(u"Mensaje enviado"_s));
        QCOMPARE(lista(), QString()); // until the next scan

        escribeMensaje({}, {});
        pulsa(u"revisar"_s);
        QCOMPARE(lista(),
                 u"Dirigido a     \tDe           \tAsunto\n%1\t%1\tCita\n"_s.arg(m_yo->usuario()));
        eligeFila(0);
        QCOMPARE(linea(u"txtAsunto"_s)->text(), u"Cita"_s);
        QCOMPARE(mensaje()->toPlainText(), QString());
        QTest::keyClick(rejillaDeMensajes(), Qt::Key_Return);
        QTRY_COMPARE(mensaje()->toPlainText(), u"¿A las 5?\nSí: 3 €"_s);

        pulsa(u"enviar"_s);
        const auto caja = Entorno::grabadora().unico();
        QCOMPARE(caja.titulo, u"Mensaje repetido"_s);
        QCOMPARE(caja.icono, Interlocutor::Icono::Critico);
        QCOMPARE(caja.texto,
                 u"Ya hay un mensaje de %1 para %1 con asunto 'Cita'"_s.arg(m_yo->usuario()));
    }

    void unDobleClicEnviaUnaVez()
    {
        preparaBuzon();
        boton(u"cmdPublicarClave"_s)->click();
        eligeUsuario(m_yo->usuario());
        escribeMensaje(u"Cita"_s, u"A las 5"_s);
        // What Qt Test calls a double click is the second press alone.
        QTest::mouseClick(boton(u"enviar"_s), Qt::LeftButton);
        QTest::mouseDClick(boton(u"enviar"_s), Qt::LeftButton);
        QTest::mouseRelease(boton(u"enviar"_s), Qt::LeftButton);
        QCOMPARE(QDir(m_yo->enBuzon(m_yo->usuario())).entryList({u"*.msg"_s}),
                 QStringList{u"RSA1.msg"_s});
    }

    void soloSuDuenoLoLee()
    {
#if defined(Q_OS_WIN) // where no name has the signs of a tag
        const QString ana = u"&lt;ana"_s;
#else
        const QString ana = u"<i>ana"_s;
#endif
        m_yo->escribe(ana + u"/Clave.RSA"_s, "[RSA]\r\nq=67591\r\ns=5\r\n");
        m_yo->escribe(ana + u"/RSA1.msg"_s, "luis\r\nhola\r\n57666\r\n43715\r\n");
        preparaBuzon(u"269"_s, u"271"_s, u"7"_s);
        eligeFila(0);
        QCOMPARE(control<QLabel>(m_ventana.get(), u"LabelTexto"_s)->textFormat(), Qt::PlainText);
        QCOMPARE(campoAjeno(u"txtDestS"_s), u"5"_s);
        QVERIFY(campoAjeno(u"TxtDestT"_s).isEmpty() && !boton(u"recibir"_s)->isEnabled());
        // Who finds the exponent reads all the same.
        control<CampoLargo>(ventanaClave(), u"TxtDestT"_s)->setText(u"26829"_s);
        QVERIFY(boton(u"recibir"_s)->isEnabled());
        pulsa(u"recibir"_s);
        QCOMPARE(mensaje()->toPlainText(), u"HO"_s);
    }

    /// Arrows and Enter do; the focus on its way through the window does not.
    void unFocoQueLlegaNoElige()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nhola\r\n1\r\n");
        m_yo->escribe(u"eva/RSA1.msg"_s, "luis\r\nhola\r\n1\r\n");
        preparaBuzon();
        m_ventana->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
        escribeMensaje({}, u"a medias"_s);
        auto *lista = rejillaDeMensajes();
        for (const auto motivo :
             {Qt::TabFocusReason, Qt::BacktabFocusReason, Qt::OtherFocusReason}) {
            lista->setFocus(motivo);
            QVERIFY(lista->hasFocus());
            QCOMPARE(rotulo(u"LabelTexto"_s), u"Mensaje"_s);
            QVERIFY(m_yo->clavePrivada().contains("q(1)=257\r\n"));
            mensaje()->setFocus();
            pulsa(u"revisar"_s);
        }
        lista->setFocus();
        QTest::keyClick(lista, Qt::Key_Return);
        QCOMPARE(rotulo(u"LabelTexto"_s), u"Mensaje para ana"_s);
        QTest::keyClick(lista, Qt::Key_Down);
        QCOMPARE(rotulo(u"LabelTexto"_s), u"Mensaje para eva"_s);
    }

    void laClavePropiaVuelve()
    {
        m_yo->escribe(u"ana/Clave.RSA"_s, "[RSA]\r\nq=33\r\ns=3\r\n");
        preparaBuzon();
        eligeUsuario(u"ana"_s);
        QCOMPARE(m_yo->clavePrivada(),
                 "[RSA]\r\nr=1\r\nq(0)=33\r\nq(1)=\r\nq(2)=\r\ns=3\r\nt=\r\nNBits=0\r\n"
                 "Fi(Q)=\r\n"_ba);
        temasDe()->setCurrentIndex(1);
        QVERIFY(m_yo->clavePrivada().contains("q(0)=67591\r\n"));
        temasDe()->setCurrentIndex(3);
        eligeUsuario(u"luis"_s);
        m_ventana.reset();
        QVERIFY(m_yo->clavePrivada().contains("t=26829\r\n"));
        QVERIFY(!QFile::exists(m_yo->ficheroPrivado() + u".propia"_s));
    }

    /// The program is gone between two writings: what it leaves behind is put in its place.
    void laClavePropiaSobreviveAlPrograma()
    {
        m_yo->escribe(u"eva/Clave.RSA"_s, "[RSA]\r\nq=33\r\ns=3\r\n");
        preparaBuzon();
        const QByteArray propia = m_yo->clavePrivada();
        for (const QString &usuario : {u"ana"_s, u"eva"_s})
            eligeUsuario(usuario);
        const QString copia = m_yo->ficheroPrivado() + u".propia"_s;
        QVERIFY(esSoloDeSuDuena(copia));
        const QByteArray ajena = m_yo->clavePrivada();
        QVERIFY(ajena.contains("q(1)=\r\n"));
        QVERIFY(QFile::copy(copia, copia + u".aparte"_s));
        cierra();
        QVERIFY(QFile::rename(copia + u".aparte"_s, copia));
        escribeArchivo(m_yo->ficheroPrivado(), ajena);
        abre();
        QTRY_COMPARE(Entorno::grabadora().mensajes.size(), 1);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Clave recuperada"_s);
        QCOMPARE(m_yo->clavePrivada(), propia);
        QCOMPARE(campo(u"txtT"_s)->text(), u"26829"_s);
        QVERIFY(!QFile::exists(copia));
        // Left behind by one that died before it overwrote anything.
        escribeArchivo(copia, QByteArray(propia).replace("257", "263"));
        abre();
        QCOMPARE(campo(u"txtQ_1"_s)->text(), u"257"_s);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty() && !QFile::exists(copia));
    }

    /// Where the copy cannot be made, the own key is not put at risk.
    void sinSitioParaLaCopia()
    {
        preparaBuzon();
        QVERIFY(QDir().mkpath(m_yo->ficheroPrivado() + u".propia"_s));
        eligeUsuario(u"ana"_s);
        QCOMPARE(Entorno::grabadora().unico().titulo, u"Error en tiempo de ejecución"_s);
        QVERIFY(m_yo->clavePrivada().contains("q(1)=257\r\n"));
    }

    void sinClaveQueSirva_data()
    {
        QTest::addColumn<QByteArray>("fichero");
        QTest::newRow("none") << QByteArray();
        QTest::newRow("no number") << "[RSA]\nq=67591\ns=cinco\n"_ba;
        QTest::newRow("modulus 0") << "[RSA]\nq=0\ns=5\n"_ba;
    }
    void sinClaveQueSirva()
    {
        QFETCH(QByteArray, fichero);
        if (!fichero.isEmpty())
            m_yo->escribe(u"eva/Clave.RSA"_s, fichero);
        preparaBuzon();
        eligeUsuario(u"eva"_s);
        escribeMensaje(u"x"_s, u"ab"_s);
        pulsa(u"enviar"_s);
        QCOMPARE(Entorno::grabadora().confirmaciones.size(), 1);
        QVERIFY(!QFile::exists(m_yo->enBuzon(u"eva/RSA1.msg"_s)));
        Entorno::grabadora().respondeSi = true;
        pulsa(u"enviar"_s);
        QCOMPARE(m_yo->leeDelBuzon(u"eva/RSA1.msg"_s),
                 m_yo->usuario().toLatin1() + "\r\nx\r\nError\r\nError\r\n");
    }

    void loQueNoSePuedeEnviar_data()
    {
        const QString largo(1'000'001, u'a');
        filasDeTexto<QString, QString, QString, QString, QString>(
            u"text beyond Windows-1252 | ana | x | día α | | no\n"
            "subject beyond Windows-1252 | ana | α | x | | no\n"
            "text without end | ana | x | "_s +
            largo +
            u" | | no\n"
            "out of the mailbox | ../ana | x | x | Error en tiempo de ejecución | no\n"
            "unfit text and subject | ana | \u0001 | \u0001 | Error en el mensaje | RSA1.msg"_s);
    }
    void loQueNoSePuedeEnviar()
    {
        const auto [usuario, asunto, texto, titulo, sale] =
            estaFila<QString, QString, QString, QString, QString>();
        preparaBuzon();
        Entorno::grabadora().respondeSi = true;
        eligeUsuario(usuario);
        escribeMensaje(asunto, texto);
        pulsa(u"enviar"_s);
        if (titulo.isEmpty())
            QVERIFY(rotulo(u"lblEstadoBuzon"_s).startsWith(u"✗ "_s));
        else
            QCOMPARE(Entorno::grabadora().unico().titulo, titulo);
        const bool esta = QFile::exists(m_yo->enBuzon(usuario + u"/RSA1.msg"_s));
        QCOMPARE(esta ? u"RSA1.msg"_s : u"no"_s, sale);
    }

    void unBuzonQueDesaparece()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nhola\r\n1\r\n");
        preparaBuzon();
        QVERIFY(!lista().isEmpty());
        QDir(m_yo->buzon()).removeRecursively();
        pulsa(u"revisar"_s);
        QVERIFY(Entorno::grabadora().unico().texto.startsWith(u"No se encontró la ruta"_s));
        QCOMPARE(lista(), QString());
        QCOMPARE(temas().size(), 3);
    }

    /// There is something under its name, but it cannot be listed.
    void unBuzonQueNoEsCarpeta()
    {
        m_yo->escribe(u"archivo"_s, "x");
        abreConClave();
        eligeBuzon(m_yo->enBuzon(u"archivo"_s));
        QCoreApplication::processEvents();
        QVERIFY(Entorno::grabadora().unico().texto.startsWith(u"No se encontró la ruta"_s));
        QCOMPARE(lista(), QString());
    }

    void unaClaveQueSePublicaMasTarde_data()
    {
        filasDeTexto<QString, QString>(uR"(
            none before, seen on sending | | enviar || another before | 323 | enviar
            seen on scanning | | revisar)"_s);
    }
    void unaClaveQueSePublicaMasTarde()
    {
        const auto [antes, boton] = estaFila<QString, QString>();
        if (!antes.isEmpty())
            m_yo->escribe(u"ana/Clave.RSA"_s, "[RSA]\r\nq=" + antes.toLatin1() + "\r\ns=5\r\n");
        preparaBuzon();
        eligeUsuario(u"ana"_s);
        QCOMPARE(campoAjeno(u"txtDestQ"_s), antes);
        m_yo->escribe(u"ana/Clave.RSA"_s, "[RSA]\r\nq=67591\r\ns=5\r\n");
        escribeMensaje(u"x"_s, u"H"_s);
        pulsa(boton);
        QCOMPARE(campoAjeno(u"txtDestQ"_s), u"67591"_s);
        if (boton == u"enviar"_s)
            QVERIFY(m_yo->leeDelBuzon(u"ana/RSA1.msg"_s).endsWith("x\r\n57666\r\n"));
    }

    /// As many characters without a blank as a message can hold: Qt would lay out their lines for
    /// minutes, which the test's time limit does not allow.
    void unMensajeSinFin()
    {
        m_yo->escribe(m_yo->usuario() + u"/RSA1.msg"_s,
                      "luis\r\nlargo\r\n" + QByteArray("57666\r\n").repeated(1'000'000));
        preparaBuzon();
        boton(u"cmdPublicarClave"_s)->click();
        eligeFila(0);
        // Over a text as into none.
        for (const QString &antes : {QString(), u"x"_s}) {
            escribeMensaje({}, antes);
            pulsa(u"recibir"_s);
            QCOMPARE(mensaje()->toPlainText().size(), 1'000'000);
        }
        mensaje()->setPlainText(u"corto "_s.repeated(2000));
        QCOMPARE(mensaje()->wordWrapMode(), QTextOption::WrapAtWordBoundaryOrAnywhere);
    }

    /// What was written to somebody is theirs until it is sent or emptied, whatever is looked at or
    /// read meanwhile, and whether or not the window is closed.
    void losBorradoresSeQuedan()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nhola\r\n1\r\n");
        preparaBuzon();
        escribeMensaje(u"sin nadie"_s, u"uno"_s);
        eligeUsuario(u"eva"_s); // it goes to the first who is named
        QCOMPARE(escrito(), u"sin nadie|uno"_s);
        escribeMensaje(u"a medias"_s, u"dos"_s);
        eligeFila(0);
        QCOMPARE(escrito(), u"hola|"_s);
        QVERIFY(rotulo(u"lblEstadoBuzon"_s).contains(u"a eva"_s));
        escribeMensaje(u"a ana"_s, u"tres"_s); // an answer, in the place of what is read
        eligeUsuario(u"eva"_s);
        QCOMPARE(escrito(), u"a medias|dos"_s);
        eligeFila(0);
        QCOMPARE(escrito(), u"hola|"_s);
        eligeUsuario(u"ANA"_s);
        QCOMPARE(escrito(), u"a ana|tres"_s);
        abre();
        temasDe()->setCurrentIndex(3);
        QTRY_VERIFY(rotulo(u"lblEstadoBuzon"_s).endsWith(u"Borradores para: ana, eva"_s));
        eligeUsuario(u"eva"_s);
        QCOMPARE(escrito(), u"a medias|dos"_s);
        Entorno::grabadora().respondeSi = true;
        pulsa(u"enviar"_s);
        eligeUsuario(u"ana"_s);
        QCOMPARE(escrito(), u"a ana|tres"_s);
        escribeMensaje({}, {});
        const QString copia = Sesión().carpetaDeAjustes() + u"/RSA.borradores"_s;
        QVERIFY(QFile::exists(copia));
        cierra();
        QVERIFY(!QFile::exists(copia));
    }

    void revisarNoEstropeaLoEscrito()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nhola\r\n1\r\n");
        preparaBuzon();
        eligeFila(0);
        escribeMensaje(u"respuesta"_s, u"a medias"_s);
        m_yo->escribe(u"Ada/RSA1.msg"_s, "luis\r\nprimera\r\n1\r\n");
        pulsa(u"revisar"_s);
        QCOMPARE(mensaje()->toPlainText(), u"a medias"_s);
        QCOMPARE(destinatario()->currentText(), u"ana"_s);
        QCOMPARE(rejillaDeMensajes()->currentIndex().row(), 1);
    }
};

NUMORA_TEST_MAIN(TestFormRSAMensajes)
#include "tst_FormRSAMensajes.moc"
