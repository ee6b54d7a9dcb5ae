// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "practice/engine/Banco.h"
#include "tests/Sorteos.h"
#include "tests/practice/ResueltoAparte.h"

#include <QHash>
#include <QRegularExpression>
#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The kinds of RSA, Fibonacci, complexity, recursion and the sheet, solved by another way.
class tst_BancoCalculo : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(50); }
    void cleanupTestCase() { TerminaBignum(); }
    void cadaTipo_data();
    void cadaTipo();
};

namespace {

/// Of those, the ones that are answered wrongly as well.
constexpr int Equivocados = 60;
constexpr qsizetype MenosRechazadas = 20;

QList<Resuelto> resueltos()
{
    return resueltosDeCifrado() + resueltosDeComplejidad() + resueltosDeRecursion();
}

/// Answers that are wrong whatever is asked: the last number of the right one is another, or
/// another word is said.
QStringList alteradas(const Ejercicio &ejercicio)
{
    static const QRegularExpression ultimo(u"-?\\d+$"_s);
    QStringList otras = ejercicio.forma.palabras;
    otras.removeAll(ejercicio.esperada);
    const auto numero = ultimo.match(ejercicio.esperada);
    if (ejercicio.forma.clase == FormaDeRespuesta::FormulaDeCelda)
        otras << ejercicio.esperada + u"+3"_s << u"2*("_s + ejercicio.esperada + u")+A1+77"_s;
    else if (numero.hasMatch()) {
        for (const int mas : {-3, -2, -1, 1, 2, 3})
            otras << ejercicio.esperada.first(numero.capturedStart()) +
                         QString::number(numero.captured().toLongLong() + mas);
    }
    return otras;
}

/// What is wrong with how wrong answers are judged; counts the different ones that are refused.
QString faltaAlRechazar(const Ejercicio &ejercicio, QList<Equivocada> equivocadas,
                        QSet<QString> &rechazadas, QSet<QString> &notas)
{
    for (const QString &otra : alteradas(ejercicio))
        equivocadas << Equivocada{otra, {}};
    for (const Equivocada &mal : equivocadas) {
        const auto leida = leeRespuesta(mal.respuesta, ejercicio.forma);
        if (mal.respuesta == ejercicio.esperada || leida.estado != RespuestaLeida::Leida)
            continue;
        const Fallo fallo = ejercicio.juzga(leida);
        // Two mistakes may come to the same number, or even to the right one.
        const auto buena = leeRespuesta(ejercicio.esperada, ejercicio.forma);
        if (leida.numeros == buena.numeros && leida.palabra == buena.palabra)
            continue;
        if (fallo.acertada || fallo.palabra.isEmpty() || fallo.nota.isEmpty())
            return mal.respuesta + u" is not refused"_s;
        if (!mal.nota.isEmpty() && fallo.nota == u"mal"_s && mal.nota != u"mal"_s)
            return mal.respuesta + u" has no word of its own: "_s + mal.nota;
        rechazadas << mal.respuesta;
        notas << fallo.nota;
    }
    return {};
}

} // namespace

void tst_BancoCalculo::cadaTipo_data()
{
    QTest::addColumn<int>("cual");
    const QList<Resuelto> todos = resueltos();
    for (int i = 0; i < todos.size(); ++i)
        QTest::newRow(qPrintable(todos[i].clave)) << i;
}

void tst_BancoCalculo::cadaTipo()
{
    QFETCH(int, cual);
    const Resuelto resuelto = resueltos()[cual];
    const TipoDeEjercicio *tipo = tipoDeEjercicio(resuelto.clave);
    QVERIFY(tipo);
    QSet<QString> rechazadas;
    QSet<QString> notas;
    QHash<QString, QString> resueltas; // the same statement is solved once
    for (int i = 0; i < Sorteos * Niveles; ++i) {
        const int nivel = 1 + i % Niveles;
        Sorteo sorteo(semillaDe(23, tipo->clave, nivel, i / Niveles));
        const Ejercicio ejercicio = tipo->genera(nivel, sorteo);
        const Enunciado enunciado(ejercicio.enunciado, nivel);
        QString &resultado = resueltas[ejercicio.enunciado + ejercicio.esperada];
        if (resultado.isNull())
            resultado = resuelto.resuelve(enunciado, ejercicio.esperada);
        if (resultado != ejercicio.esperada)
            QFAIL(qPrintable(u"level %1: %2 %3, but %4"_s.arg(nivel).arg(
                ejercicio.enunciado, ejercicio.esperada, resultado)));
        if (i >= Equivocados * Niveles)
            continue;
        const QString falta = faltaAlRechazar(
            ejercicio, resuelto.equivocadas(enunciado, ejercicio.esperada), rechazadas, notas);
        QVERIFY2(falta.isEmpty(), qPrintable(ejercicio.enunciado + u' ' + falta));
    }
    qInfo("%s: %lld statements, %lld answers refused, notes: %s", qPrintable(tipo->clave),
          static_cast<long long>(resueltas.size()), static_cast<long long>(rechazadas.size()),
          qPrintable(QStringList(notas.begin(), notas.end()).join(u' ')));
    // Of a choice there are only so many wrong answers.
    const bool eleccion = resuelto.clave == u"complejidad.orden"_s;
    QVERIFY(rechazadas.size() >= (eleccion ? 9 : MenosRechazadas));
    QVERIFY2(notas.size() > 2, "typical mistakes have no words of their own");
}

QTEST_GUILESS_MAIN(tst_BancoCalculo)
#include "tst_BancoCalculo.moc"
