// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/windows/FormRSAComun.h"
#include "tests/Tabla.h"
#include "tests/lessons/rsa/support/VentanaRSA.h"

/// The own key, and texts encrypted with it.
class TestFormRSA : public QObject, private VentanaRSA
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        nueva();
    }
    void cleanup() { cierra(); }

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
        abreConClave();
        QCOMPARE(calculados(), u"67591|67072|26829"_s);
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
        filasDeTexto<QString, QString, QString, QString>(uR"(
            composite | 259 | 263 | 5 | q(1) debe ser primo.
            small | 257 | 251 | 5 | q(2) debe ser mayor que 255.
            exponent | 257 | 263 | 131 | El número s debe ser primo con 67072)"_s);
    }
    void clavesMalas()
    {
        const auto [q1, q2, s, texto] = estaFila<QString, QString, QString, QString>();
        abreConClave();
        ponClave(q1, q2, s);
        const auto caja = Entorno::grabadora().unico();
        QCOMPARE(caja.texto, texto);
        QCOMPARE(caja.titulo, u"Error en la clave"_s);
        QCOMPARE(caja.icono, Interlocutor::Icono::Critico);
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
        QCOMPARE(abreviaNumeros(QString(90, u'7')), QString(90, u'7'));
        QVERIFY(abreviaNumeros(QString(91, u'7')).endsWith(u"(91 cifras)"_s));
    }

    void elNumeroDeCaracteres()
    {
        abreConClave();
        linea(u"txtR"_s)->setText(u"2"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"q(1) debe ser mayor que 255255."_s);
        linea(u"txtR"_s)->setText(u"40000"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"Desbordamiento."_s);
        linea(u"txtR"_s)->setText(QString());
        QVERIFY(boton(u"cmdCodificar"_s)->isEnabled());
        area(u"txtTextoOriginal"_s)->setPlainText(u"a"_s);
        pulsa(u"cmdCodificar"_s);
        QCOMPARE(rotulo(u"lblEstadoCodigo"_s),
                 u"✗ Cada paquete ha de tener al menos un carácter."_s);
    }

    void elNumeroDeBits()
    {
        abreConClave();
        linea(u"TxtNumBits"_s)->setText(u"100"_s);
        auto *casilla = control<QCheckBox>(m_ventana.get(), u"ChkNumBits"_s);
        casilla->click();
        QVERIFY(linea(u"TxtNumBits"_s)->isEnabled());
        const QString texto = u"Se requiere una clave de 100 bits, y la actual tiene 17"_s;
        QCOMPARE(rotulo(u"lblEstado"_s), u"✗ "_s + texto);
        escribe(u"txtS"_s, u"5"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, texto);
        casilla->click();
        escribe(u"txtS"_s, u"5"_s);
        QVERIFY(boton(u"cmdCodificar"_s)->isEnabled());
        // A number beyond all bounds can still be mended.
        linea(u"TxtNumBits"_s)->setText(u"99999"_s);
        casilla->click();
        QCOMPARE(Entorno::grabadora().unico().texto, u"Desbordamiento."_s);
        QVERIFY(linea(u"TxtNumBits"_s)->isEnabled());
    }

    void cerrarConUnNumeroAMedias()
    {
        abreConClave();
        campo(u"txtQ_1"_s)->setFocus();
        QTest::keyClicks(campo(u"txtQ_1"_s), u"1"_s);
        m_ventana.release()->close(); // it deletes itself
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        QVERIFY(m_yo->clavePrivada().contains("q(1)=257\r\n"));
    }

    void codificaYDescodifica()
    {
        abreConClave();
        area(u"txtTextoOriginal"_s)->setPlainText(u"HOLA"_s);
        pulsa(u"cmdCodificar"_s);
        auto *rejilla = control<Rejilla>(m_ventana.get(), u"FlexTextoCodificado"_s);
        QCOMPARE(rejilla->seleccion(FormaDeCopia::Texto).completa().texto,
                 u"Texto codificado\n57666\n43715\n51784\n23519\n"_s);
        area(u"txtTextoOriginal"_s)->clear();
        pulsa(u"cmdDescodificar"_s);
        QCOMPARE(area(u"txtTextoOriginal"_s)->toPlainText(), u"HOLA"_s);
        area(u"txtTextoOriginal"_s)->setPlainText(u"Γειά"_s);
        pulsa(u"cmdCodificar"_s);
        QVERIFY(rotulo(u"lblEstadoCodigo"_s).startsWith(u"✗ "_s));
        QCOMPARE(rejilla->model()->rowCount(), 4);
        pulsa(u"cmdDescodificar"_s);
        QCOMPARE(rotulo(u"lblEstadoCodigo"_s), QString());
    }

    /// Refused or half written, a number takes with it what was computed from the one before.
    void loCalculadoEsDeLoEscrito()
    {
        abreConClave();
        campo(u"txtS"_s)->setText(u"13"_s);
        QCOMPARE(calculados(), u"67591|67072|"_s);
        campo(u"txtS"_s)->setText(u"5"_s);
        QCOMPARE(calculados(), u"67591|67072|26829"_s);
        escribe(u"txtS"_s, u"131"_s);
        QCOMPARE(calculados(), u"67591|67072|"_s);
        escribe(u"txtQ_1"_s, u"259"_s);
        QCOMPARE(calculados(), u"||"_s);
        QCOMPARE(rotulo(u"LabelNumBits"_s), u"Nº de bits de la clave ="_s);
        QCOMPARE(Entorno::grabadora().mensajes.size(), 2);
    }

    void junto_data()
    {
        QTest::addColumn<QRect>("leccion");
        QTest::addColumn<bool>("cabeFuera");
        QTest::newRow("right") << QRect(100, 50, 600, 700) << true;
        QTest::newRow("below") << QRect(100, 50, 1200, 450) << true;
        QTest::newRow("left") << QRect(400, 50, 950, 700) << true;
        QTest::newRow("above") << QRect(100, 300, 1200, 450) << true;
        QTest::newRow("nowhere") << QRect(0, 0, 1366, 740) << false;
        QTest::newRow("half outside") << QRect(-200, 100, 1500, 900) << false;
    }
    void junto()
    {
        QFETCH(QRect, leccion);
        const QRect pantalla(0, 0, 1366, 768);
        const QSize tamano(312, 212);
        const QRect lista(leccion.adjusted(20, 90, -leccion.width() / 2, -80));
        const QRect lugar(FormClaveRSA::lugarJunto(leccion, lista, pantalla, tamano), tamano);
        QVERIFY(pantalla.contains(lugar));
        QTEST(!lugar.intersects(leccion), "cabeFuera");
        QVERIFY(!lugar.intersects(leccion) || lugar.right() < leccion.center().x());
    }

    void unaClaveGuardadaQueEstaRota()
    {
        escribeArchivo(m_yo->ficheroPrivado(), "[RSA]\nr=99999\n");
        abre();
        QCOMPARE(Entorno::grabadora().unico().texto, u"Desbordamiento."_s);
        ponClave();
        QCOMPARE(calculados(), u"67591|67072|26829"_s);
    }

    /// The run dies with its window, wherever it is.
    void cerrarMientrasSeCodifica()
    {
        codificaSinFin();
        QCOMPARE(boton(u"cmdCodificar"_s)->text(), u"Detener"_s);
        // The other button does not start a second one.
        boton(u"cmdDescodificar"_s)->click();
        QCOMPARE(boton(u"cmdDescodificar"_s)->text(), u"&Descodificar"_s);
        m_ventana.release()->close(); // it deletes itself
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void detenerDejaLoHecho()
    {
        codificaSinFin();
        QTest::keyClick(area(u"txtTextoOriginal"_s), Qt::Key_Escape);
        acaba();
        const int filas =
            control<Rejilla>(m_ventana.get(), u"FlexTextoCodificado"_s)->model()->rowCount();
        QVERIFY(filas > 0 && filas < 1'000'000);
        QCOMPARE(boton(u"cmdCodificar"_s)->text(), u"&Codificar"_s);
    }

private:
    void codificaSinFin()
    {
        abre();
        ponClave(u"1000003"_s, u"1000033"_s, u"65537"_s);
        area(u"txtTextoOriginal"_s)->setPlainText(u"Hola "_s.repeated(200'000));
        boton(u"cmdCodificar"_s)->click();
    }
    QString calculados() const
    {
        return campo(u"txtQ_0"_s)->text() + u'|' + campo(u"txtFiQ"_s)->text() + u'|' +
               campo(u"txtT"_s)->text();
    }
};

NUMORA_TEST_MAIN(TestFormRSA)
#include "tst_FormRSA.moc"
