// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/Buzon.h"
#include "lessons/rsa/mailbox/ColMensajes.h"
#include "tests/lessons/rsa/support/Estudiante.h"

#include <csignal>
#include <memory>
#include <sys/resource.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace {

/// Does something while this process can write no file longer than so many bytes.
template <typename Accion>
void conLimiteDeArchivo(rlim_t bytes, Accion accion)
{
    rlimit antes{};
    ::getrlimit(RLIMIT_FSIZE, &antes);
    const rlimit limite{bytes, antes.rlim_max};
    const auto senal = std::signal(SIGXFSZ, SIG_IGN);
    ::setrlimit(RLIMIT_FSIZE, &limite);
    accion();
    ::setrlimit(RLIMIT_FSIZE, &antes);
    std::signal(SIGXFSZ, senal);
}

} // namespace

/// What only POSIX systems can put into a mailbox, or take from it: links, pipes, locked files,
/// limits, masks.
class TestBuzonDePosix : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_yo = std::make_unique<Estudiante>();
    }

    void loQueNoEsUnMensaje_data()
    {
        QTest::addColumn<QString>("que");
        for (const char *que : {"link to a file", "link to nothing", "folder", "pipe",
                                "endless line", "locked", "link for a folder"})
            QTest::newRow(que) << QString::fromLatin1(que);
    }
    /// One bad entry is counted or passed over; the good one beside it is listed, at once.
    void loQueNoEsUnMensaje()
    {
        QFETCH(QString, que);
        if (que == u"locked"_s && ::geteuid() == 0)
            QSKIP("nothing is locked to the superuser");
        m_yo->escribe(u"ana/RSA2.msg"_s, "luis\r\nbueno\r\n1\r\n");
        m_yo->escribe(u"fuera.txt"_s, "secreto\r\nsecreto\r\n");
        prepara(que);
        const auto [mensajes, ilegibles] = revisa();
        QCOMPARE(ilegibles, que == u"folder"_s || que == u"link for a folder"_s ? 0 : 1);
        QCOMPARE(mensajes.Count(), 1);
        QCOMPARE(mensajes.Item(1).Asunto(), u"bueno"_s);
    }

    void noSeLeePorUnEnlace()
    {
        m_yo->escribe(u"fuera.txt"_s, "luis\r\nnada\r\n");
        enlaza(u"fuera.txt"_s, u"ana/RSA1.msg"_s);
        QCOMPARE_ERROR(PermisoDenegado, leeMensaje(m_yo->buzon() + u"\\ana\\RSA1.msg"_s));
        m_yo->escribe(u"clave.txt"_s, "[RSA]\r\nq=33\r\ns=3\r\n");
        enlaza(u"clave.txt"_s, u"ana/Clave.RSA"_s);
        QCOMPARE(leeClavePublica(m_yo->buzon(), u"ana"_s).q, QString());
        QCOMPARE(leeClavePublica(m_yo->buzon(), u"../ana"_s).q, QString());
    }

    void noSeEscribePorUnEnlace()
    {
        QTemporaryDir fuera;
        QVERIFY(QFile::link(fuera.path(), m_yo->enBuzon(u"ana"_s)));
        QCOMPARE_ERROR(RutaNoEncontrada, dejaMensaje(m_yo->buzon(), u"ana"_s, "x"));
        QVERIFY(QDir(fuera.path()).isEmpty());

        // A link in the place of the own key is replaced; what it points to stays.
        const QString victima = fuera.filePath(u"victima"_s);
        escribeArchivo(victima, "intacta");
        QDir(m_yo->buzon()).mkpath(m_yo->usuario());
        const QString propia = m_yo->enBuzon(m_yo->usuario() + u"/Clave.RSA"_s);
        QVERIFY(QFile::link(victima, propia));
        ClsRSA clave(Sesión());
        clave.ponDirMensajes(m_yo->buzon());
        clave.PublicaClave();
        QCOMPARE(Estudiante::lee(victima), "intacta"_ba);
        QVERIFY(!QFileInfo(propia).isSymLink());
    }

    void ficherosEnormes()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nenorme\r\n1\r\n");
        m_yo->escribe(u"ana/Clave.RSA"_s, "[RSA]\r\nq=33\r\n");
        // Sparse: the size of gigabytes without their disk.
        for (const QString &nombre : {u"ana/RSA1.msg"_s, u"ana/Clave.RSA"_s})
            QCOMPARE(::truncate(qPrintable(m_yo->enBuzon(nombre)), 5'000'000'000), 0);
        const auto [mensajes, ilegibles] = revisa();
        QCOMPARE(ilegibles, 0);
        const clsMensaje &mensaje = mensajes.Item(1);
        QCOMPARE(mensaje.Asunto(), u"enorme"_s);
        QCOMPARE_ERROR(ErrorDeArchivo, leeMensaje(mensaje.NombreFichero()));
        QCOMPARE(leeClavePublica(m_yo->buzon(), u"ana"_s).q, QString());
    }

    /// No file may grow beyond some bytes, as on a full disk: what stood there stays whole, and
    /// nothing half written is left behind.
    void unDiscoLleno()
    {
        ClsRSA clave(Sesión());
        clave.ponDirMensajes(m_yo->buzon());
        Estudiante::ponClave(clave);
        clave.Valida();
        clave.PublicaClave();
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nx\r\n");
        const QString publica = m_yo->usuario() + u"/Clave.RSA"_s;
        const QList<QByteArray> antes{m_yo->clavePrivada(), m_yo->leeDelBuzon(publica)};
        clave.pons(u"7"_s);
        QList<int> errores;
        conLimiteDeArchivo(10, [&] {
            errores << numeroDeError([&] { clave.Valida(); });
            errores << numeroDeError([&] { clave.PublicaClave(); });
            errores << numeroDeError([&] { dejaMensaje(m_yo->buzon(), u"ana"_s, "doce o mas x"); });
        });
        QCOMPARE(errores, QList<int>(3, ErrorEjecucion::ErrorDeArchivo));
        QVERIFY(!clave.ClaveOK());
        QCOMPARE(QList({m_yo->clavePrivada(), m_yo->leeDelBuzon(publica)}), antes);
        for (const QString &carpeta : {u"ana"_s, m_yo->usuario(), u"../trabajo"_s})
            QCOMPARE(m_yo->ficheros(carpeta).size(), 1);
    }

    void unaCarpetaQueDesaparece()
    {
        for (int i = 0; i < 2000; ++i)
            m_yo->escribe(u"u%1/RSA%2.msg"_s.arg(i % 20).arg(i), "luis\r\nx\r\n");
        const std::jthread verdugo([this] { QDir(m_yo->buzon()).removeRecursively(); });
        int error = 0;
        while (error == 0)
            error = numeroDeError([&] { revisa(); });
        QCOMPARE(error, int(ErrorEjecucion::RutaNoEncontrada));
    }

    void nombresRaros()
    {
        for (const QString &carpeta : {u"a\\b"_s, u"c:d"_s})
            m_yo->escribe(carpeta + u"/RSA1.msg"_s, "luis\r\nraro\r\n");
        m_yo->escribe(u"<b>ana\u202E/RSA1.msg"_s, "luis\r\nbueno\r\n");
        const QByteArray sinTexto = QFile::encodeName(m_yo->enBuzon(u"x"_s)) + "\xFF\xFE";
        QCOMPARE(::mkdir(sinTexto.constData(), 0700), 0);
        const auto [mensajes, ilegibles] = revisa();
        QCOMPARE(ilegibles, 0);
        QCOMPARE(mensajes.Count(), 1);
        QCOMPARE(mensajes.Item(1).Destinatario(), u"<b>ana\u202E"_s);
        ::rmdir(sinTexto.constData()); // which the temporary folder could not
    }

    /// What is made in a shared mailbox is as open as the mailbox, whatever the account's mask.
    void losDemasPuedenEntrar()
    {
        QCOMPARE(::chmod(qPrintable(m_yo->buzon()), 01777), 0);
        const mode_t mascara = ::umask(0077);
        dejaMensaje(m_yo->buzon(), u"ana"_s, "x");
        ::umask(mascara);
        QCOMPARE(modo(u"ana"_s), 01777u);
        QCOMPARE(modo(u"ana/RSA1.msg"_s), 0644u);
    }

private:
    RevisionDeBuzon revisa() const { return revisaBuzon(m_yo->buzon(), {}).completa(); }

    void enlaza(const QString &destino, const QString &nombre) const
    {
        QDir().mkpath(QFileInfo(m_yo->enBuzon(nombre)).absolutePath());
        QVERIFY(QFile::link(m_yo->enBuzon(destino), m_yo->enBuzon(nombre)));
    }

    void prepara(const QString &que) const
    {
        const QString malo = u"ana/RSA1.msg"_s;
        const QString ruta = m_yo->enBuzon(malo);
        if (que == u"link to a file"_s)
            enlaza(u"fuera.txt"_s, malo);
        else if (que == u"link to nothing"_s)
            enlaza(u"no existe"_s, malo);
        else if (que == u"folder"_s)
            QVERIFY(QDir().mkpath(ruta));
        else if (que == u"pipe"_s)
            QCOMPARE(::mkfifo(qPrintable(ruta), 0600), 0);
        else if (que == u"endless line"_s)
            m_yo->escribe(malo, QByteArray(1'000'000, 'x'));
        else if (que == u"link for a folder"_s)
            QVERIFY(QFile::link(m_yo->enBuzon(u"ana"_s), m_yo->enBuzon(u"zoe"_s)));
        else {
            m_yo->escribe(malo, "luis\r\nx\r\n");
            QVERIFY(QFile::setPermissions(ruta, QFile::WriteOwner));
        }
    }

    mode_t modo(const QString &nombre) const
    {
        struct stat estado = {};
        ::stat(qPrintable(m_yo->enBuzon(nombre)), &estado);
        return estado.st_mode & 07777;
    }

    std::unique_ptr<Estudiante> m_yo;
};

NUMORA_TEST_MAIN(TestBuzonDePosix)
#include "tst_BuzonDePosix.moc"
