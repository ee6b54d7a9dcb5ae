// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/ModGlobal.h"
#include "tests/lessons/rsa/support/Estudiante.h"

namespace {

const QString Texto = u"Nos vemos a las 5 en la puerta. El examen es el 3."_s;

/// The program itself, at work on settings and a working folder of its own, with a pilot at its
/// controls.
class Programa
{
public:
    Programa(const QString &buzon, const QString &guion)
    {
        const QDir carpeta(m_carpeta.path());
        carpeta.mkpath(u"ajustes/Numora"_s);
        carpeta.mkpath(u"trabajo"_s);
        Entorno::ponTrabajoEn(carpeta.filePath(u"trabajo"_s));
        QSettings ajustes(carpeta.filePath(u"ajustes/Numora/Numora.ini"_s), QSettings::IniFormat);
        ajustes.setValue(u"Programa/Carpeta"_s, carpeta.filePath(u"trabajo"_s));
        ajustes.setValue(u"RSA/DirMensajes"_s, buzon);
        ajustes.sync();
        escribeArchivo(carpeta.filePath(u"guion"_s), guion.toUtf8());

        auto entorno = QProcessEnvironment::systemEnvironment();
        entorno.insert(u"XDG_CONFIG_HOME"_s, carpeta.filePath(u"ajustes"_s));
        entorno.insert(u"XDG_DATA_HOME"_s, carpeta.filePath(u"datos"_s));
        entorno.insert(u"QT_QPA_PLATFORM"_s, u"offscreen"_s);
        entorno.insert(u"QT_PLUGIN_PATH"_s, QStringLiteral(CARPETA_DEL_PILOTO));
        entorno.insert(u"QT_QPA_GENERIC_PLUGINS"_s, u"piloto"_s);
        entorno.insert(u"PILOTO_AJUSTES"_s, carpeta.filePath(u"ajustes"_s));
        entorno.insert(u"PILOTO_GUION"_s, carpeta.filePath(u"guion"_s));
        m_proceso.setProcessEnvironment(entorno);
        m_proceso.start(QStringLiteral(PROGRAMA), QStringList());
    }

    /// What the pilot noted down; an explanation when the program did not come to its end.
    QString acaba()
    {
        if (!m_proceso.waitForFinished(120'000)) {
            m_proceso.kill();
            m_proceso.waitForFinished();
        }
        const QString notas = QString::fromUtf8(m_proceso.readAllStandardOutput())
                                  .trimmed()
                                  .replace(u"\r\n"_s, u"\n"_s);
        if (m_proceso.exitStatus() == QProcess::NormalExit && m_proceso.exitCode() == 0)
            return notas;
        return u"%1: %2 %3"_s.arg(m_proceso.exitCode())
            .arg(QString::fromUtf8(m_proceso.readAllStandardError()), notas);
    }

    QString ficheroPrivado() const
    {
        return m_carpeta.filePath(u"trabajo/"_s + Sesión().UserName() + u".RSA"_s);
    }

private:
    QTemporaryDir m_carpeta;
    QProcess m_proceso;
};

QString abreConClave(const QString &q1, const QString &q2, const QString &s)
{
    return u"pulsa cmdOK\nfila FlexMenu 4\ntema Elección de clave\nescribe txtQ_1 %1\n"
           "escribe txtQ_2 %2\nescribe txtS %3\nespera lblEstado ✓ Clave OK\n"_s.arg(q1, q2, s);
}

} // namespace

/// Two programs on one mailbox, each with its own settings, key and working folder.
class TestDosProgramas : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pasanUnMensaje()
    {
        Entorno::limpia();
        const QTemporaryDir buzon;
        const QString usuario = Sesión().UserName();
        const QString carpeta = buzon.path() + u'/' + usuario;
        Programa lector(buzon.path(),
                        abreConClave(u"1000003"_s, u"1000033"_s, u"65537"_s) +
                            u"pulsa cmdPublicarClave\narchivo %1/RSA1.msg\n"
                            "tema Enviar y recibir\npulsa revisar\n"
                            "fila FlexMensajes 0\npulsa recibir\n"
                            "espera txtDestTextoOriginal Nos\n"
                            "anota txtAsunto\nanota txtDestTextoOriginal\nacaba\n"_s.arg(carpeta));
        Programa autor(
            buzon.path(),
            abreConClave(u"257"_s, u"263"_s, u"5"_s) +
                u"archivo %1/Clave.RSA\ntema Enviar y recibir\n"
                "escribe cmbDestinatario %2\nescribe txtAsunto Cita\n"
                "escribe txtDestTextoOriginal %3\npulsa enviar\n"
                "espera lblEstadoBuzon Mensaje enviado\nanota lblEstadoBuzon\nacaba\n"_s.arg(
                    carpeta, usuario, Texto));
        QCOMPARE(autor.acaba(),
                 u"Mensaje enviado a %1 (RSA1.msg). Para verlo, pulse «Revisar»."_s.arg(usuario));
        QCOMPARE(lector.acaba(), u"Cita\n"_s + Texto);
        // Each still has its own key.
        QVERIFY(Estudiante::lee(autor.ficheroPrivado()).contains("q(1)=257\r\n"));
        QVERIFY(Estudiante::lee(lector.ficheroPrivado()).contains("q(1)=1000003\r\n"));
    }
};

NUMORA_TEST_MAIN(TestDosProgramas)
#include "tst_DosProgramas.moc"
