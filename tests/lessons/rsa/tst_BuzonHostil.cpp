// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/rsa/mailbox/ArchivoMensaje.h"
#include "lessons/rsa/mailbox/Buzon.h"
#include "lessons/rsa/mailbox/ColMensajes.h"
#include "shell/core/system/ArchivoProvisional.h"
#include "tests/lessons/rsa/support/Estudiante.h"

#include <memory>
#include <vector>

/// What others may have put into the mailbox, and what they do in it meanwhile.
class TestBuzonHostil : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_yo = std::make_unique<Estudiante>();
    }

    /// Neither what Windows keeps for devices nor what it drops from a name is anybody's folder, on
    /// any system: a class shares one mailbox.
    void nombresQueUnSistemaNoTiene()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "luis\r\nbueno\r\n1\r\n");
        for (const QString &malo : {u"con"_s, u"NUL"_s, u"lpt1.ana"_s, u"COM\u00B9"_s, u"ana."_s,
                                    u"ana "_s, u"ana:x"_s, u"ana::$DATA"_s, u"a/../ana"_s}) {
            QCOMPARE_ERROR(ArgumentoNoValido, dejaMensaje(m_yo->buzon(), malo, "x"));
            QCOMPARE_ERROR(ArgumentoNoValido, CarpetaCompartida(m_yo->buzon()).subcarpeta(malo));
        }
        QCOMPARE(QDir(m_yo->buzon()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot),
                 QStringList{u"ana"_s});
        QCOMPARE(revisa().mensajes.Count(), 1);
    }

    /// Letters of another case are the same name, and a deep mailbox is one all the same.
    void letrasYCaminosLargos()
    {
        const QString honda = m_yo->enBuzon(QStringList(6, QString(50, u'h')).join(u'/'));
        QVERIFY(QDir().mkpath(honda + u"/Ana"_s));
        const QString ruta = dejaMensaje(honda, u"ANA"_s, "x");
        QCOMPARE(QDir(honda).entryList(QDir::Dirs | QDir::NoDotAndDotDot), QStringList{u"Ana"_s});
        QCOMPARE(leeMensaje(ruta), "x"_ba);
        QCOMPARE(leeMensaje(ruta.toLower().replace(honda.toLower(), honda)), "x"_ba);
    }

    void unBorradorNoReemplazaNada()
    {
        m_yo->escribe(u"ana/RSA1.msg"_s, "primero");
        const CarpetaCompartida carpeta = CarpetaCompartida(m_yo->buzon()).subcarpeta(u"ana"_s);
        {
            ArchivoProvisional borrador(carpeta, "segundo");
            QVERIFY(!borrador.nombraSiLibre(u"RSA1.msg"_s));
            QVERIFY(borrador.nombraSiLibre(u"RSA2.msg"_s));
        }
        QCOMPARE(m_yo->leeDelBuzon(u"ana/RSA1.msg"_s), "primero"_ba);
        QCOMPARE(m_yo->leeDelBuzon(u"ana/RSA2.msg"_s), "segundo"_ba);
        QCOMPARE(m_yo->ficheros(u"ana"_s).size(), 2);
    }

    /// Of those that nobody named, the old ones are swept by who writes there next.
    void loQueDejaUnProgramaMuerto()
    {
        const auto hace = [this](const QString &nombre, int horas) {
            m_yo->escribe(u"ana/"_s + nombre, "medio");
            QFile archivo(m_yo->enBuzon(u"ana/"_s + nombre));
            QVERIFY(archivo.open(QIODevice::ReadWrite));
            archivo.setFileTime(QDateTime::currentDateTime().addSecs(-3600 * horas),
                                QFileDevice::FileModificationTime);
        };
        hace(u".numora-1f.tmp"_s, 23);
        hace(u".numora-2f.tmp"_s, 25);
        hace(u"otro.tmp"_s, 25);
        dejaMensaje(m_yo->buzon(), u"ana"_s, "x");
        QCOMPARE(m_yo->ficheros(u"ana"_s).join(u' '), u".numora-1f.tmp otro.tmp RSA1.msg"_s);
    }

    void hastaElLimiteYNoMas()
    {
        m_yo->escribe(u"ana/justo"_s, QByteArray(100, 'x'));
        m_yo->escribe(u"ana/uno mas"_s, QByteArray(101, 'x'));
        const CarpetaCompartida carpeta = CarpetaCompartida(m_yo->buzon()).subcarpeta(u"ana"_s);
        QCOMPARE(carpeta.lee(u"justo"_s, 100).size(), 100);
        QCOMPARE_ERROR(ErrorDeArchivo, carpeta.lee(u"uno mas"_s, 100));
    }

    void variosProcesosALaVez()
    {
        constexpr int procesos = 3, cada = 1000;
        std::vector<std::unique_ptr<QProcess>> remitentes;
        for (int i = 0; i < procesos; ++i) {
            auto proceso = std::make_unique<QProcess>();
            proceso->start(QStringLiteral(REMITENTE),
                           {m_yo->buzon(), u"ana"_s, u"p%1"_s.arg(i), QString::number(cada)});
            QVERIFY(proceso->waitForStarted());
            remitentes.push_back(std::move(proceso));
        }
        // A reader at work meanwhile never meets half a message.
        while (!remitentes.front()->waitForFinished(200)) {
            const auto [mensajes, ilegibles] = revisa();
            QCOMPARE(ilegibles, 0);
            if (mensajes.Count() > 0)
                QVERIFY(estaEntero(mensajes.Item(mensajes.Count())));
        }
        for (const auto &proceso : remitentes) {
            QVERIFY(proceso->state() == QProcess::NotRunning || proceso->waitForFinished(-1));
            QCOMPARE(proceso->exitCode(), 0);
        }
        const QDir carpeta(m_yo->enBuzon(u"ana"_s));
        QCOMPARE(carpeta.entryList(QDir::Files | QDir::Hidden).size(), procesos * cada);
        QVERIFY(carpeta.exists(u"RSABB8.msg"_s)); // 3000: no number was left out
        const ColMensajes mensajes = revisa().mensajes;
        QCOMPARE(mensajes.Count(), procesos * cada);
        for (const auto &mensaje : mensajes)
            QVERIFY2(estaEntero(*mensaje), qPrintable(mensaje->NombreFichero()));
    }

private:
    RevisionDeBuzon revisa() const { return revisaBuzon(m_yo->buzon(), {}).completa(); }

    static bool estaEntero(const clsMensaje &mensaje)
    {
        const auto contenido =
            ArchivoMensaje::interpreta(leeMensaje(mensaje.NombreFichero()), {}).completa();
        return contenido.asunto == mensaje.Asunto() && contenido.bloques.size() == 500 &&
               contenido.bloques.constLast() == QString(20, u'7');
    }

    std::unique_ptr<Estudiante> m_yo;
};

NUMORA_TEST_MAIN(TestBuzonHostil)
#include "tst_BuzonHostil.moc"
