// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "practice/engine/Banco.h"
#include "tests/Sorteos.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <QCryptographicHash>
#include <QSet>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// What holds for every kind of exercise, level and draw.
class tst_Banco : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(50); }
    void cleanupTestCase() { TerminaBignum(); }
    void elSorteoNoCambia();
    void elSorteoEsUniforme();
    void cadaTipo_data();
    void cadaTipo();
};

namespace {

constexpr int PorNivel = Sorteos / 33;

Fallo juzga(const Ejercicio &ejercicio, const QString &texto)
{
    const auto leida = leeRespuesta(texto, ejercicio.forma);
    if (leida.estado != RespuestaLeida::Leida)
        return Fallo::mal(leida.leo, u"no leída"_s);
    return ejercicio.juzga(leida);
}

QString faltaEn(const Ejercicio &e)
{
    const Fallo fallo = juzga(e, e.esperada);
    if (!fallo.acertada)
        return u"the expected answer is refused: "_s + fallo.palabra;
    if (!juzga(e, respuestaEnPantalla(e)).acertada)
        return u"the answer as it is shown is refused: "_s + respuestaEnPantalla(e);
    if (e.pistas.size() != 2 || e.pistas.contains(QString()) || e.enunciado.isEmpty())
        return u"statement or hints are missing"_s;
    if (!e.ejemplo.isEmpty() && leeRespuesta(e.ejemplo, e.forma).estado == RespuestaLeida::Leida &&
        juzga(e, e.ejemplo).acertada)
        return u"the example is the answer"_s;
    const Pasos pasos = e.solucion();
    if (pasos.vacios())
        return u"there is no solution"_s;
    RevisorDeFormulas revisor;
    for (qsizetype i = 0; i < pasos.cuantos(); ++i) {
        const Paso paso = pasos.paso(i);
        // Each sum has carries of its own.
        if (!paso.formulas.isEmpty() && paso.formulas.constFirst().escrita().startsWith(u"c_"))
            revisor.olvida();
        const QString falta = revisor.revisa(Pasos(QList<Paso>{paso}));
        if (!falta.isEmpty())
            return falta;
    }
    return {};
}

} // namespace

/// These values are a promise: who types the code of a sheet gets the same exercises.
void tst_Banco::elSorteoNoCambia()
{
    Sorteo sorteo(1);
    QList<std::int64_t> valores;
    for (int i = 0; i < 5; ++i)
        valores << sorteo.entre(1, 1000);
    QCOMPARE(valores, (QList<std::int64_t>{466, 520, 591, 236, 762}));
    QByteArray respuestas;
    for (const TipoDeEjercicio &tipo : banco()) {
        for (int i = 0; i < 60; ++i) {
            Sorteo suyo(semillaDe(77, tipo.clave, 1 + i % Niveles, i));
            respuestas += tipo.genera(1 + i % Niveles, suyo).esperada.toUtf8() + '\n';
        }
    }
    QCOMPARE(QCryptographicHash::hash(respuestas, QCryptographicHash::Sha1).toHex(),
             QByteArray("8c8b09caf474b6da28f21a3b8fdcca63c43aaf19"));
}

void tst_Banco::elSorteoEsUniforme()
{
    Sorteo sorteo(7);
    QList<int> veces(6, 0);
    for (int i = 0; i < 60000; ++i)
        ++veces[sorteo.entre(-2, 3) + 2];
    for (const int v : veces)
        QVERIFY2(std::abs(v - 10000) < 500, qPrintable(QString::number(v)));
    QCOMPARE(sorteo.entre(5, 5), 5);
}

void tst_Banco::cadaTipo_data()
{
    QTest::addColumn<QString>("clave");
    for (const TipoDeEjercicio &tipo : banco())
        QTest::newRow(qPrintable(tipo.clave)) << tipo.clave;
}

void tst_Banco::cadaTipo()
{
    QFETCH(QString, clave);
    const TipoDeEjercicio *tipo = tipoDeEjercicio(clave);
    QVERIFY(tipo);
    for (int nivel = 1; nivel <= Niveles; ++nivel) {
        QSet<QString> enunciados;
        for (int i = 0; i < PorNivel; ++i) {
            Sorteo sorteo(semillaDe(17, clave, nivel, i));
            const Ejercicio ejercicio = tipo->genera(nivel, sorteo);
            const QString falta = faltaEn(ejercicio);
            QVERIFY2(falta.isEmpty(),
                     qPrintable(u"level %1, %2: %3"_s.arg(nivel).arg(ejercicio.enunciado, falta)));
            enunciados << ejercicio.enunciado;
        }
        QVERIFY2(enunciados.size() > 5, "too few different exercises");
    }
}

QTEST_GUILESS_MAIN(tst_Banco)
#include "tst_Banco.moc"
