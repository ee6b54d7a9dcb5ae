// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "bignum/gateway/Windows1252.h"
#include "lessons/rsa/key/ClsRSA.h"
#include "lessons/rsa/key/FicheroDeClave.h"
#include "lessons/rsa/key/TextoEnBloques.h"
#include "shell/core/CarpetaDeDatos.h"
#include "shell/core/Rutas.h"
#include "shell/core/run/Tareas.h"
#include "tests/Tabla.h"
#include "tests/lessons/rsa/support/Estudiante.h"
#include "tests/shell/support/Permisos.h"

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
        // Of the numbers: q(1), q(2), s, r, bits demanded. Of the result: q(0), Fi(Q), t.
        filasDeTexto<QString, QString, QString>(uR"(
    good | 257 263 5 1 0 | +Clave OK | 67591 67072 26829
    good, of the size demanded | 257 263 5 1 17 | +Clave OK | 67591 67072 26829
    size | 257 263 5 1 16 | -Se requiere una clave de 16 bits, y la actual tiene 17 | 67591 67072 26829
    no s | 257 263 - 1 0 | | - - -
    no q(2) | 257 - 5 1 0 | | - - -
    both composite | 259 265 5 1 0 | -q(1) debe ser primo. | - - -
    second composite | 257 265 2 1 0 | -q(2) debe ser primo. | - - -
    too small | 251 265 5 1 0 | -q(1) debe ser mayor que 255. | - - -
    second too small for r = 2 | 255259 255253 5 2 0 | -q(2) debe ser mayor que 255255. | - - -
    not a number | 257+6 263 5 1 0 | -q(1) debe ser primo. | - - -
    r = 0 has no bound | 2 3 1 0 0 | +Clave OK | 6 2 1
    equal primes | 257 257 3 1 0 | +Clave OK | 66049 65536 43691
    s not coprime | 257 263 131 1 99 | -El número s debe ser primo con 67072 | 67591 67072 -
    s no number | 257 263 x 1 0 | -El número s debe ser primo con 67072 | 67591 67072 -)"_s);
    }
    void valida()
    {
        const auto [numeros, aviso, resultado] = estaFila<QString, QString, QString>();
        m_clave->ponNBitsRequeridos(pon(numeros).toShort());
        const QString objecion = m_clave->Objecion();
        m_clave->Valida();
        QCOMPARE(m_avisos, aviso.isEmpty() ? QStringList() : QStringList{aviso});
        const auto visto = [](const QString &numero) { return numero.isEmpty() ? u"-"_s : numero; };
        QCOMPARE(visto(m_clave->q(0)) + u' ' + visto(m_clave->FiQ()) + u' ' + visto(m_clave->t()),
                 resultado);
        QCOMPARE(m_clave->ClaveOK(), aviso.startsWith(u'+'));
        QCOMPARE(objecion, aviso.startsWith(u'-') ? aviso.sliced(1) : QString());
        // A key that is good but for its size has been saved on the way.
        QCOMPARE(QFile::exists(m_yo->ficheroPrivado()), !resultado.endsWith(u'-'));
    }

    void losProductosSeBorranTrasElAviso()
    {
        ponYValida();
        m_clave->ponq(1, u"259"_s);
        m_clave->Valida();
        QCOMPARE(m_q0AlAvisar, u"67591"_s);
        QCOMPARE(m_clave->q(0) + m_clave->FiQ(), QString());
        QCOMPARE(m_clave->t(), u"26829"_s);
    }

    void seGuardaAntesYDespuesDeT()
    {
        pon();
        m_clave->pont(u"vieja"_s);
        m_clave->ponNBitsRequeridos(16);
        m_clave->Valida();
        QCOMPARE(m_yo->clavePrivada(),
                 "[RSA]\r\nr=1\r\nq(0)=67591\r\nq(1)=257\r\nq(2)=263\r\ns=5\r\nt=vieja\r\n"
                 "NBits=17\r\nFi(Q)=67072\r\n"_ba);
        m_clave->ponNBitsRequeridos(0);
        m_clave->Valida();
        QVERIFY(m_yo->clavePrivada().contains("\r\nt=26829\r\n"));
        QVERIFY(esSoloDeSuDuena(m_yo->ficheroPrivado()));
    }

    /// What has been tested elsewhere is believed, and what has been tested here is kept.
    void unPrimoSePruebaUnaVez()
    {
        pon(u"257 265 5 1 0"_s);
        QCOMPARE(m_clave->porProbar(), (QStringList{u"257"_s, u"265"_s}));
        m_clave->sabe(u"265"_s, true);
        QCOMPARE(m_clave->porProbar(), QStringList{u"257"_s});
        QCOMPARE(m_clave->Objecion(), QString());
        QCOMPARE(m_clave->porProbar(), QStringList());
        m_clave->ponq(1, QString(ClsRSA::MaximoDeCifras, u'1'));
        QCOMPARE(m_clave->porProbar(), QStringList()); // too long for a key: refused untested
    }

    void recupera_data()
    {
        QTest::addColumn<QByteArray>("fichero");
        QTest::addColumn<QStringList>("avisos");
        QTest::addColumn<int>("error");
        const QStringList bien{u"+Clave OK"_s}, nada;
        const int desborda = ErrorEjecucion::Desbordamiento;
        QTest::newRow("our own") << "[RSA]\r\nr=1\r\nq(0)=67591\r\nq(1)=257\r\nq(2)=263\r\ns=5\r\n"
                                    "t=26829\r\nNBits=17\r\nFi(Q)=67072\r\n"_ba
                                 << bien << 0;
        QTest::newRow("LF, mark, order, case, blanks")
            << "\xEF\xBB\xBF[rsa]\nS = 5\nQ(2) = 263\nnbits=17\nQ(1)=\"257\"\nR=1\n"_ba << bien
            << 0;
        QTest::newRow("no r") << "[RSA]\nq(1)=3\nq(2)=5\ns=3\n"_ba << bien << 0;
        QTest::newRow("other section") << "[R]\nq(1)=3\nq(2)=5\ns=3\n"_ba << nada << 0;
        QTest::newRow("public half only") << "[RSA]\nr=1\nq(0)=33\ns=3\n"_ba << nada << 0;
        QTest::newRow("damaged") << QByteArray(5000, '\xFF') << nada << 0;
        QTest::newRow("r beyond 16 bits") << "[RSA]\nr=32768\n"_ba << nada << desborda;
        QTest::newRow("size beyond 16 bits") << "[RSA]\nr=1\nNBits=99999\n"_ba << nada << desborda;
        QTest::newRow("a million digits")
            << "[RSA]\nr=1\nq(1)=" + QByteArray(1'000'000, '7') + "\nq(2)=263\ns=5\n"
            << nada << desborda;
        QTest::newRow("too long for a key file")
            << QByteArray(5'000'000, 'x') << nada << int(ErrorEjecucion::ErrorDeArchivo);
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
        const QString fichero = carpetaDeDatos() + u'\\' + m_yo->usuario() + u".RSA"_s;
        Sesión().ponCarpeta(m_yo->buzon() + u"/no existe"_s);
        ponYValida();
        QVERIFY(m_clave->ClaveOK());
        QCOMPARE(m_clave->FicheroClavePrivada(), fichero);
        ClsRSA otra(Sesión());
        otra.RecuperaClave();
        QCOMPARE(otra.t(), u"26829"_s);
        // Once the folder can be written again, the key is still found.
        Sesión().ponCarpeta(m_yo->buzon());
        ClsRSA tercera(Sesión());
        tercera.RecuperaClave();
        QCOMPARE(tercera.t(), u"26829"_s);
        QVERIFY(esSoloDeSuDuena(rutaDePlataforma(fichero)));
    }

    void publica()
    {
        QStringList buzones;
        connect(m_clave.get(), &ClsRSA::CambiaBuzon, this,
                [&](QString &carpeta) { buzones << carpeta; });
        m_clave->ponDirMensajes(m_yo->buzon());
        QCOMPARE(buzones, QStringList{m_yo->buzon()});
        QCOMPARE(ClsRSA(Sesión()).DirMensajes(), m_yo->buzon());
        ponYValida();
        m_clave->PublicaClave();
        const QString carpeta = m_yo->enBuzon(m_yo->usuario());
        QCOMPARE(Estudiante::lee(carpeta + u"/Clave.RSA"_s), "[RSA]\r\nq=67591\r\ns=5\r\n"_ba);
        // A file that differs only in case is the same file.
        QVERIFY(QFile::rename(carpeta + u"/Clave.RSA"_s, carpeta + u"/clave.rsa"_s));
        m_clave->pons(u"7"_s);
        m_clave->PublicaClave();
#if defined(Q_OS_WIN) // where the new file takes the place of either under the name it is given
        const QStringList queda{FicheroClavePublica};
#else
        const QStringList queda{u"clave.rsa"_s};
#endif
        QCOMPARE(QDir(carpeta).entryList(QDir::Files | QDir::Hidden), queda);
        QCOMPARE(Estudiante::lee(carpeta + u"/clave.rsa"_s), "[RSA]\r\nq=67591\r\ns=7\r\n"_ba);
    }

    void codificaConocidos_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            r = 1 | 257 263 5 1 | HOLA | 57666 43715 51784 23519
            r = 2 | 255259 255313 5 2 | HOLA | 55662054903 20841377323
            empty | 255259 255313 5 2 | | || small power | 5003 5009 3 1 | A | 274625)"_s);
    }
    void codificaConocidos()
    {
        const auto [clave, texto, cifrado] = estaFila<QString, QString, QString>();
        ponYValida(clave);
        QVERIFY(m_clave->ClaveOK());
        const QStringList bloques = m_clave->Codifica(texto, {}).completa();
        QCOMPARE(bloques.join(u' '), cifrado);
        QCOMPARE(m_clave->DesCodifica(bloques, {}).completa(), texto);
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
        ponYValida(u"%1 %2 65537 %3"_s.arg(primero, PrimoSiguiente(primero)).arg(r));
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
        ponYValida();
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
        ponYValida(u"%1 %2 65537 1"_s.arg(primero, PrimoSiguiente(primero)));
        const QStringList bloques(20'000, u"2"_s);
        QCOMPARE_ERROR(MemoriaInsuficiente, m_clave->DesCodifica(bloques, {}).completa());
    }

    void loQueNoSePuedeCodificar()
    {
        pon();
        QCOMPARE_ERROR(ArgumentoNoValido, m_clave->Codifica(u"α"_s, {}).completa());
        m_clave->ponr(0);
        QCOMPARE_ERROR(DivisionPorCero, m_clave->Codifica(u"a"_s, {}).completa());
        QVERIFY(!caracterInadmisible(u"¿Año? 5 €"_s));
        QVERIFY(caracterInadmisible(u"a😀α"_s)->contains(u"«😀», que está en el lugar 2"_s));
        QCOMPARE_ERROR(IndiceFueraDeRango, m_clave->q(3));
        QCOMPARE_ERROR(IndiceFueraDeRango, m_clave->ponq(-1, {}));
    }

    void numeroATexto()
    {
        QCOMPARE(NumeroATexto(u"72079"_s), u"HO"_s); // with a leading zero
        QCOMPARE(NumeroATexto(u" 72 "_s), u"H"_s);
        QCOMPARE(NumeroATexto(u"72"_s + QChar(u'\0') + u"079"_s), u"H"_s);
        QCOMPARE(NumeroATexto(u"321"_s), u"A"_s);
        QCOMPARE(NumeroATexto(u"128"_s), u"€"_s);
        QCOMPARE(NumeroATexto({}), QString());
    }

    /// A run gives up the thread, and ends where it is when it is told to.
    void laCodificacionCedeYSePara()
    {
        ponYValida();
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
        QTRY_COMPARE_WITH_TIMEOUT(caracteres, 1'000'000, 60'000);
    }

private:
    /// Sets q(1), q(2), s and r, "-" for one that is not there; what follows them is given back.
    QString pon(const QString &numeros = u"257 263 5 1"_s)
    {
        QStringList todos = numeros.split(u' ');
        todos.replaceInStrings(u"-"_s, QString());
        Estudiante::ponClave(*m_clave, todos[0], todos[1], todos[2], todos[3].toShort());
        return todos.value(4);
    }
    void ponYValida(const QString &numeros = u"257 263 5 1"_s)
    {
        pon(numeros);
        m_clave->Valida();
    }

    std::unique_ptr<Estudiante> m_yo;
    std::unique_ptr<ClsRSA> m_clave;
    QStringList m_avisos;
    QString m_q0AlAvisar;
};

NUMORA_TEST_MAIN(TestClsRSA)
#include "tst_ClsRSA.moc"
