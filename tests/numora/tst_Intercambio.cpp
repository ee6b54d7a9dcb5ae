// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/Buzon.h"
#include "numora/web/Intercambio.h"
#include "tests/Tabla.h"

#include <QTemporaryDir>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// Messages and public keys as files that go from one mailbox to another.
class TestIntercambio : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void usuarioDelNombre_data()
    {
        filasDeTexto<QString, QString>(uR"(
            ana-RSA1.msg | ana || ana-maría-RSA1F (2).msg | ana-maría || ana-Clave(1).rsa | ana
            RSA1.msg | || ana-otra.msg | || Clave.RSA | || -RSA1.msg | )"_s);
    }
    void usuarioDelNombre()
    {
        const auto [archivo, usuario] = estaFila<QString, QString>();
        QCOMPARE(usuarioDeBajada(archivo), usuario);
    }

    /// What one mailbox gives the other one reads, a second message beside the first; nothing else
    /// gets in, a private key least of all.
    void deUnBuzonAOtro()
    {
        const QTemporaryDir uno, otro;
        const QByteArray mensaje("eva\r\nHola\r\n123\r\n"), clave("[RSA]\r\nq=35\r\ns=5\r\n");
        for (const QString &buzon : {uno.path(), otro.path()})
            QCOMPARE(recibeIntercambiable(buzon, u"ana"_s, mensaje), u"ana/RSA1.msg"_s);
        QCOMPARE(recibeIntercambiable(uno.path(), u"ana"_s, clave), u"ana/Clave.RSA"_s);
        const QStringList hay{u"ana/Clave.RSA"_s, u"ana/RSA1.msg"_s};
        QCOMPARE(intercambiables(uno.path()), hay);
        for (const QString &cual : hay)
            recibeIntercambiable(otro.path(), usuarioDeBajada(nombreDeBajada(cual)),
                                 leeIntercambiable(uno.path(), cual));
        QCOMPARE(intercambiables(otro.path()), hay + QStringList{u"ana/RSA2.msg"_s});
        QCOMPARE(leeClavePublica(otro.path(), u"ana"_s).q, u"35"_s);
        for (const QByteArray &ajeno :
             {QByteArray("[RSA]\r\nq=35\r\ns=5\r\nq(1)=5\r\n"), QByteArray("[RSA]\r\nq=35\r\n"),
              QByteArray("una línea"), QByteArray()})
            QCOMPARE(recibeIntercambiable(otro.path(), u"eva"_s, ajeno), QString());
        QCOMPARE(intercambiables(otro.path()).size(), 3);
    }
};

QTEST_GUILESS_MAIN(TestIntercambio)
#include "tst_Intercambio.moc"
