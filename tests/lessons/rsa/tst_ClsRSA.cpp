// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"
#include "lessons/rsa/key/ClsRSA.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "shell/core/run/Tareas.h"
#include "tests/lessons/rsa/support/Estudiante.h"

using namespace Qt::Literals::StringLiterals;

/// The key: validation, files, blocks.
class TestClsRSA : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_yo = std::make_unique<Estudiante>();
        m_clave = std::make_unique<ClsRSA>(Sesión());
        m_avisos.clear();
        connect(m_clave.get(), &ClsRSA::ValidaClave, this,
                [this](bool &bien, const QString &mensaje) {
                    m_avisos << (bien ? u"+"_s : u"-"_s) + mensaje;
                    m_q0AlAvisar = m_clave->q(0);
                });
    }

    void valida_data()
    {
        QTest::addColumn<QStringList>("numeros"); // q(1), q(2), s, r, bits demanded
        QTest::addColumn<QString>("aviso");
        QTest::addColumn<QStringList>("resultado"); // q(0), Fi(Q), t
        const QStringList nada{QString(), QString(), QString()};
        const auto fila = [](const char *nombre, const QStringList &numeros, const QString &aviso,
                             const QStringList &resultado) {
            QTest::newRow(nombre) << numeros << aviso << resultado;
        };
        const QStringList buena{u"67591"_s, u"67072"_s, u"26829"_s};
        fila("good", {u"257"_s, u"263"_s, u"5"_s, u"1"_s, u"0"_s}, u"+Clave OK"_s, buena);
        fila("good, of the size demanded", {u"257"_s, u"263"_s, u"5"_s, u"1"_s, u"17"_s},
             u"+Clave OK"_s, buena);
        fila("size", {u"257"_s, u"263"_s, u"5"_s, u"1"_s, u"16"_s},
             u"-Se requiere una clave de 16 bits, y la actual tiene 17"_s, buena);
        fila("no s", {u"257"_s, u"263"_s, {}, u"1"_s, u"0"_s}, {}, nada);
        fila("no q(2)", {u"257"_s, {}, u"5"_s, u"1"_s, u"0"_s}, {}, nada);
        fila("both composite: the first is told", {u"259"_s, u"265"_s, u"5"_s, u"1"_s, u"0"_s},
             u"-q(1) debe ser primo."_s, nada);
        fila("second composite", {u"257"_s, u"265"_s, u"2"_s, u"1"_s, u"0"_s},
             u"-q(2) debe ser primo."_s, nada);
        fila("too small", {u"251"_s, u"265"_s, u"5"_s, u"1"_s, u"0"_s},
             u"-q(1) debe ser mayor que 255."_s, nada);
        fila("second too small for r = 2", {u"255259"_s, u"255253"_s, u"5"_s, u"2"_s, u"0"_s},
             u"-q(2) debe ser mayor que 255255."_s, nada);
        fila("not a number", {u"257+6"_s, u"263"_s, u"5"_s, u"1"_s, u"0"_s},
             u"-q(1) debe ser primo."_s, nada);
        fila("r = 0 has no bound", {u"2"_s, u"3"_s, u"1"_s, u"0"_s, u"0"_s}, u"+Clave OK"_s,
             {u"6"_s, u"2"_s, u"1"_s});
        fila("equal primes", {u"257"_s, u"257"_s, u"3"_s, u"1"_s, u"0"_s}, u"+Clave OK"_s,
             {u"66049"_s, u"65536"_s, u"43691"_s});
        fila("s not coprime", {u"257"_s, u"263"_s, u"131"_s, u"1"_s, u"99"_s},
             u"-El número s debe ser primo con 67072"_s, {u"67591"_s, u"67072"_s, {}});
        fila("s no number", {u"257"_s, u"263"_s, u"x"_s, u"1"_s, u"0"_s},
             u"-El número s debe ser primo con 67072"_s, {u"67591"_s, u"67072"_s, {}});
    }
    void valida()
    {
        QFETCH(QStringList, numeros);
        QFETCH(QString, aviso);
        QFETCH(QStringList, resultado);
        pon(numeros[0], numeros[1], numeros[2], static_cast<std::int16_t>(numeros[3].toInt()));
        m_clave->ponNBitsRequeridos(static_cast<std::int16_t>(numeros[4].toInt()));
        const QString objecion = m_clave->Objecion();
        m_clave->Valida();
        QCOMPARE(m_avisos, aviso.isEmpty() ? QStringList() : QStringList{aviso});
        QCOMPARE(QStringList({m_clave->q(0), m_clave->FiQ(), m_clave->t()}), resultado);
        QCOMPARE(m_clave->ClaveOK(), aviso.startsWith(u'+'));
        QCOMPARE(objecion, aviso.startsWith(u'-') ? aviso.sliced(1) : QString());
        // A key that is good but for its size has been saved on the way.
        QCOMPARE(QFile::exists(m_yo->ficheroPrivado()), !resultado[2].isEmpty());
    }

    void losProductosSeBorranTrasElAviso()
    {
        pon(u"257"_s, u"263"_s, u"5"_s);
        m_clave->Valida();
        m_clave->ponq(1, u"259"_s);
        m_clave->Valida();
        QCOMPARE(m_q0AlAvisar, u"67591"_s);
        QCOMPARE(m_clave->q(0) + m_clave->FiQ(), QString());
        QCOMPARE(m_clave->t(), u"26829"_s);
    }

    void seGuardaAntesYDespuesDeT()
    {
        pon(u"257"_s, u"263"_s, u"5"_s);
        m_clave->pont(u"vieja"_s);
        m_clave->ponNBitsRequeridos(16);
        m_clave->Valida();
        QCOMPARE(Estudiante::lee(m_yo->ficheroPrivado()),
                 "[RSA]\r\nr=1\r\nq(0)=67591\r\nq(1)=257\r\nq(2)=263\r\ns=5\r\nt=vieja\r\n"
                 "NBits=17\r\nFi(Q)=67072\r\n"_ba);
        m_clave->ponNBitsRequeridos(0);
        m_clave->Valida();
        QVERIFY(Estudiante::lee(m_yo->ficheroPrivado()).contains("\r\nt=26829\r\n"));
        const auto deOtros =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther;
        QCOMPARE(QFileInfo(m_yo->ficheroPrivado()).permissions() & deOtros, QFile::Permissions());
    }

    void recupera_data()
    {
        QTest::addColumn<QByteArray>("fichero");
        QTest::addColumn<QStringList>("avisos");
        QTest::addColumn<int>("error");
        const QStringList bien{u"+Clave OK"_s};
        QTest::newRow("our own") << "[RSA]\r\nr=1\r\nq(0)=67591\r\nq(1)=257\r\nq(2)=263\r\ns=5\r\n"
                                    "t=26829\r\nNBits=17\r\nFi(Q)=67072\r\n"_ba
                                 << bien << 0;
        QTest::newRow("LF, mark, order, case, blanks")
            << "\xEF\xBB\xBF[rsa]\nS = 5\nQ(2) = 263\nnbits=17\nQ(1)=\"257\"\nR=1\n"_ba << bien
            << 0;
        QTest::newRow("no r") << "[RSA]\nq(1)=3\nq(2)=5\ns=3\n"_ba << bien << 0;
        QTest::newRow("other section") << "[R]\nq(1)=3\nq(2)=5\ns=3\n"_ba << QStringList() << 0;
        QTest::newRow("public half only") << "[RSA]\nr=1\nq(0)=33\ns=3\n"_ba << QStringList() << 0;
        QTest::newRow("damaged") << QByteArray(5000, '\xFF') << QStringList() << 0;
        QTest::newRow("r beyond 16 bits")
            << "[RSA]\nr=32768\n"_ba << QStringList() << int(ErrorEjecucion::Desbordamiento);
        QTest::newRow("size beyond 16 bits") << "[RSA]\nr=1\nNBits=99999\n"_ba << QStringList()
                                             << int(ErrorEjecucion::Desbordamiento);
        QTest::newRow("a million digits")
            << "[RSA]\nr=1\nq(1)=" + QByteArray(1'000'000, '7') + "\nq(2)=263\ns=5\n"
            << QStringList() << int(ErrorEjecucion::Desbordamiento);
        QTest::newRow("too long for a key file")
            << QByteArray(5'000'000, 'x') << QStringList() << int(ErrorEjecucion::ErrorDeArchivo);
    }
    void recupera()
    {
        QFETCH(QByteArray, fichero);
        QFETCH(QStringList, avisos);
        escribeArchivo(m_yo->ficheroPrivado(), fichero);
        const int error = numeroDeError([&] { m_clave->RecuperaClave(); });
        QTEST(error, "error");
        QCOMPARE(m_avisos, avisos);
        QCOMPARE(m_clave->ClaveOK(), avisos == QStringList{u"+Clave OK"_s});
    }

    void sinFicheroNoHayClave()
    {
        m_clave->ponq(1, u"7"_s);
        m_clave->RecuperaClave();
        QCOMPARE(m_clave->q(1), u"7"_s);
        QVERIFY(m_avisos.isEmpty());
    }

    void sinPermisoEnLaCarpetaDeTrabajo()
    {
        QTemporaryDir datos;
        qputenv("XDG_DATA_HOME", datos.path().toLocal8Bit());
        Sesión().ponCarpeta(m_yo->buzon() + u"/no existe"_s);
        pon(u"257"_s, u"263"_s, u"5"_s);
        m_clave->Valida();
        QVERIFY(m_clave->ClaveOK());
        QCOMPARE(m_clave->FicheroClavePrivada(),
                 datos.path() + u"/Numora\\"_s + m_yo->usuario() + u".RSA"_s);
        ClsRSA otra(Sesión());
        otra.RecuperaClave();
        QCOMPARE(otra.t(), u"26829"_s);
        // Once the folder can be written again, the key is still found.
        Sesión().ponCarpeta(m_yo->buzon());
        ClsRSA tercera(Sesión());
        tercera.RecuperaClave();
        QCOMPARE(tercera.t(), u"26829"_s);
        qunsetenv("XDG_DATA_HOME");
    }

    void publica()
    {
        QStringList buzones;
        connect(m_clave.get(), &ClsRSA::CambiaBuzon, this,
                [&](QString &carpeta) { buzones << carpeta; });
        m_clave->ponDirMensajes(m_yo->buzon());
        QCOMPARE(buzones, QStringList{m_yo->buzon()});
        QCOMPARE(ClsRSA(Sesión()).DirMensajes(), m_yo->buzon());
        pon(u"257"_s, u"263"_s, u"5"_s);
        m_clave->Valida();
        m_clave->PublicaClave();
        const QString carpeta = m_yo->enBuzon(m_yo->usuario());
        QCOMPARE(Estudiante::lee(carpeta + u"/Clave.RSA"_s), "[RSA]\r\nq=67591\r\ns=5\r\n"_ba);
        // A file that differs only in case is the same file.
        QVERIFY(QFile::rename(carpeta + u"/Clave.RSA"_s, carpeta + u"/clave.rsa"_s));
        m_clave->pons(u"7"_s);
        m_clave->PublicaClave();
        QCOMPARE(QDir(carpeta).entryList(QDir::Files | QDir::Hidden), QStringList{u"clave.rsa"_s});
        QCOMPARE(Estudiante::lee(carpeta + u"/clave.rsa"_s), "[RSA]\r\nq=67591\r\ns=7\r\n"_ba);
    }

    void codificaConocidos_data()
    {
        QTest::addColumn<QStringList>("clave");
        QTest::addColumn<QString>("texto");
        QTest::addColumn<QStringList>("bloques");
        QTest::addColumn<QString>("vuelta");
        const QStringList una{u"257"_s, u"263"_s, u"5"_s, u"1"_s};
        const QStringList dos{u"255259"_s, u"255313"_s, u"5"_s, u"2"_s};
        QTest::newRow("r = 1") << una << u"HOLA"_s
                               << QStringList{u"57666"_s, u"43715"_s, u"51784"_s, u"23519"_s}
                               << u"HOLA"_s;
        QTest::newRow("r = 2") << dos << u"HOLA"_s
                               << QStringList{u"55662054903"_s, u"20841377323"_s} << u"HOLA"_s;
        QTest::newRow("empty") << dos << QString() << QStringList() << QString();
        QTest::newRow("small power") << QStringList{u"5003"_s, u"5009"_s, u"3"_s, u"1"_s} << u"A"_s
                                     << QStringList{u"274625"_s} << u"A"_s;
    }
    void codificaConocidos()
    {
        QFETCH(QStringList, clave);
        QFETCH(QString, texto);
        pon(clave[0], clave[1], clave[2], static_cast<std::int16_t>(clave[3].toInt()));
        m_clave->Valida();
        QVERIFY(m_clave->ClaveOK());
        const QStringList bloques = m_clave->Codifica(texto, {}).completa();
        QTEST(bloques, "bloques");
        QTEST(m_clave->DesCodifica(bloques, {}).completa(), "vuelta");
    }

    void idaYVuelta_data()
    {
        QTest::addColumn<int>("r");
        for (int r = 1; r <= 20; ++r)
            QTest::addRow("r = %d", r) << r;
    }
    void idaYVuelta()
    {
        QFETCH(int, r);
        // The least primes that the bound allows: the largest block is as near to them as can be.
        const QString primero = PrimoSiguiente(u"255"_s.repeated(r));
        pon(primero, PrimoSiguiente(primero), u"65537"_s, static_cast<std::int16_t>(r));
        m_clave->Valida();
        QVERIFY(m_clave->ClaveOK());
        QByteArray bytes(r, '\xFF');
        bytes += QByteArray(r, '\0');
        for (int codigo = 0; codigo < 256; ++codigo)
            bytes += static_cast<char>(codigo);
        const qsizetype relleno = (r - bytes.size() % r) % r;
        const QString texto = deWindows1252(bytes);
        const QStringList bloques = m_clave->Codifica(texto, {}).completa();
        QCOMPARE(bloques.size(), (bytes.size() + relleno) / r);
        // A number has no leading zeros, so that NULs at the front of a block are lost, but for one
        // that stands alone.
        QString esperado;
        const QString completo = texto + QString(relleno, u' ');
        for (qsizetype i = 0; i < completo.size(); i += r) {
            qsizetype ceros = 0;
            while (ceros < r - 1 && completo[i + ceros] == QChar(u'\0'))
                ++ceros;
            esperado += QStringView(completo).sliced(i + ceros, r - ceros);
        }
        QCOMPARE(m_clave->DesCodifica(bloques, {}).completa(), esperado);
    }

    void bloquesQueFallan()
    {
        pon(u"257"_s, u"263"_s, u"5"_s);
        m_clave->Valida();
        QCOMPARE(
            m_clave->DesCodifica({u"57666"_s, u"Error"_s, {}, u"-"_s, u"43715"_s}, {}).completa(),
            u"HO"_s);
        m_clave->ponq(0, {});
        QCOMPARE(m_clave->Codifica(u"ab"_s, {}).completa(), QStringList({u"Error"_s, u"Error"_s}));
        QCOMPARE(m_clave->DesCodifica({u"57666"_s}, {}).completa(), QString());
    }

    /// A few bytes a block are enough for an adversary: a power fills the modulus.
    void pocosBloquesNoLlenanLaMemoria()
    {
        const QString primero = PrimoSiguiente(u"1"_s + QString(300, u'0'));
        pon(primero, PrimoSiguiente(primero), u"65537"_s);
        m_clave->Valida();
        const QStringList bloques(20'000, u"2"_s);
        QCOMPARE(numeroDeError([&] { m_clave->DesCodifica(bloques, {}).completa(); }),
                 int(ErrorEjecucion::MemoriaInsuficiente));
    }

    void loQueNoSePuedeCodificar()
    {
        pon(u"257"_s, u"263"_s, u"5"_s);
        QCOMPARE(numeroDeError([&] { m_clave->Codifica(u"α"_s, {}).completa(); }),
                 int(ErrorEjecucion::ArgumentoNoValido));
        m_clave->ponr(0);
        QCOMPARE(numeroDeError([&] { m_clave->Codifica(u"a"_s, {}).completa(); }),
                 int(ErrorEjecucion::DivisionPorCero));
        QVERIFY(!caracterInadmisible(u"¿Año? 5 €"_s));
        QVERIFY(caracterInadmisible(u"a😀α"_s)->contains(u"«😀», que está en el lugar 2"_s));
        QCOMPARE(numeroDeError([&] { m_clave->q(3); }), int(ErrorEjecucion::IndiceFueraDeRango));
        QCOMPARE(numeroDeError([&] { m_clave->ponq(-1, {}); }),
                 int(ErrorEjecucion::IndiceFueraDeRango));
    }

    void numeroATexto_data()
    {
        QTest::addColumn<QString>("numero");
        QTest::addColumn<QString>("texto");
        QTest::newRow("leading zero") << u"72079"_s << u"HO"_s;
        QTest::newRow("blanks") << u" 72 "_s << u"H"_s;
        QTest::newRow("after NUL") << QString(u"72"_s + QChar(u'\0') + u"079"_s) << u"H"_s;
        QTest::newRow("beyond 255") << u"321"_s << u"A"_s;
        QTest::newRow("euro") << u"128"_s << u"€"_s;
        QTest::newRow("nothing") << QString() << QString();
    }
    void numeroATexto()
    {
        QFETCH(QString, numero);
        QTEST(NumeroATexto(numero), "texto");
    }

    /// A run gives up the thread, and ends where it is when it is told to.
    void laCodificacionCedeYSePara()
    {
        pon(u"257"_s, u"263"_s, u"5"_s);
        m_clave->Valida();
        Tareas tareas([](const std::exception_ptr &) { QFAIL("an error"); });
        const QString largo(2'000'000, u'H');
        qsizetype bloques = -1, caracteres = -1;
        const auto corre = [&](Tareas &suyas) -> Tarea<> {
            const QStringList codigo = co_await m_clave->Codifica(largo, suyas.billete());
            bloques = codigo.size();
            const QStringList medio(largo.size() / 2, codigo.constFirst());
            const QString vuelta = co_await m_clave->DesCodifica(medio, suyas.billete());
            caracteres = vuelta.size();
        };
        tareas.lanza(corre(tareas));
        QCOMPARE(bloques, -1);
        tareas.detener();
        QTRY_VERIFY(bloques > 0 && bloques < largo.size());
        QTRY_COMPARE(caracteres, 1'000'000);
    }

private:
    void pon(const QString &q1, const QString &q2, const QString &s, std::int16_t r = 1)
    {
        m_clave->ponq(1, q1);
        m_clave->ponq(2, q2);
        m_clave->pons(s);
        m_clave->ponr(r);
    }

    std::unique_ptr<Estudiante> m_yo;
    std::unique_ptr<ClsRSA> m_clave;
    QStringList m_avisos;
    QString m_q0AlAvisar;
};

NUMORA_TEST_MAIN(TestClsRSA)
#include "tst_ClsRSA.moc"
