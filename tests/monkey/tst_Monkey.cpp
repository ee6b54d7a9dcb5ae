// SPDX-License-Identifier: GPL-3.0-or-later
#include "numora/Lecciones.h"
#include "tests/monkey/Mono.h"
#include "tests/numora/Estudiante.h"

namespace {

/// Real boxes and questions, but nothing outside the program.
class Encerrado : public Interlocutor
{
public:
    void abre(const QString &) override {}
    bool lanzaAlguno(const QList<QStringList> &) override { return true; }
};

int ajuste(const char *variable, int defecto)
{
    bool bien = false;
    const int valor = qEnvironmentVariableIntValue(variable, &bien);
    return bien ? valor : defecto;
}

} // namespace

/// A monkey at the program: NUMORA_MONKEY_SECONDS says for how long, NUMORA_MONKEY_SEED with which
/// dice (scripts/monkey.sh runs it over many).
class TestMonkey : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void elProgramaSobrevive()
    {
        const Estudiante estudiante;
        estudiante.prepara();
        ponInterlocutor(std::make_unique<Encerrado>());
        QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
        const auto semilla = static_cast<unsigned>(ajuste("NUMORA_MONKEY_SEED", 1));
        const qint64 plazo = 1000LL * ajuste("NUMORA_MONKEY_SECONDS", 10);
        QElapsedTimer reloj;
        reloj.start();
        Mono::Cuenta suma;
        for (unsigned vida = 0; reloj.elapsed() < plazo; ++vida) {
            Mono mono(contenidoDelPrograma(), semilla * 1000 + vida);
            QString mal;
            while (mal.isEmpty() && mono.cuenta().actos < 400 && reloj.elapsed() < plazo)
                mal = mono.actua();
            if (mal.isEmpty())
                mal = mono.recoge();
            suma.actos += mono.cuenta().actos;
            suma.ventanas += mono.cuenta().ventanas;
            suma.corridas += mono.cuenta().corridas;
            QVERIFY2(mal.isEmpty(),
                     qPrintable(mal + u"\nafter:\n  "_s + mono.diario().join(u"\n  "_s)));
        }
        qInfo("seed %u: %lld s, %d acts, %d windows, %d runs", semilla, reloj.elapsed() / 1000,
              suma.actos, suma.ventanas, suma.corridas);
    }
};

NUMORA_TEST_MAIN(TestMonkey)
#include "tst_Monkey.moc"
