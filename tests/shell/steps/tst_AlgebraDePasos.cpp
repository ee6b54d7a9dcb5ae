// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "shell/core/steps/CopiaDePasos.h"
#include "shell/core/steps/EnteroLargo.h"
#include "shell/core/steps/EuclidesLargo.h"
#include "shell/core/steps/PasosDeInverso.h"
#include "shell/core/steps/PasosDePotencia.h"
#include "tests/Sorteos.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <QRandomGenerator>
#include <QTest>

using namespace Qt::Literals::StringLiterals;

/// The algebra that steps of several lessons are made of.
class tst_AlgebraDePasos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(100); }
    void losEnterosSonExactos();
    void elInversoPasoAPaso();
    void laPotenciaPasoAPaso();
    void bordes_data();
    void bordes();
    void numerosMuyLargos();

private:
    /// Every length up to so many digits is as likely as any other.
    mpz_class alAzar(int cifras, bool conSigno = false)
    {
        std::string texto(1, static_cast<char>('0' + m_azar.bounded(10)));
        for (int i = m_azar.bounded(cifras); i > 0; --i)
            texto += static_cast<char>('0' + m_azar.bounded(10));
        const mpz_class n(texto, 10);
        return conSigno && m_azar.bounded(2) ? mpz_class(-n) : n;
    }
    static QString cifras(const mpz_class &n) { return QString::fromStdString(n.get_str()); }
    static QString todos(const Pasos &pasos)
    {
        QString texto;
        for (qsizetype i = 0; i < pasos.cuantos(); ++i)
            texto += pasoComo(FormaDePasos::Texto, pasos.paso(i), i);
        return texto;
    }
    void revisa(const Pasos &pasos, int menos)
    {
        m_revisor.olvida();
        const int antes = m_revisor.comparadas();
        const QString falta = m_revisor.revisa(pasos);
        QVERIFY2(falta.isEmpty(), qPrintable(falta));
        QVERIFY(m_revisor.comparadas() >= antes + menos);
    }

    QRandomGenerator m_azar{20};
    RevisorDeFormulas m_revisor;
};

void tst_AlgebraDePasos::losEnterosSonExactos()
{
    for (int vez = 0; vez < Sorteos; ++vez) {
        const int largo = vez % 10 == 0 ? 60 : 20;
        const mpz_class a = alAzar(largo, true), b = alAzar(largo, true), m = alAzar(largo) + 1;
        const EnteroLargo x(cifras(a)), y(cifras(b)), n(cifras(m));
        mpz_class q, r;
        mpz_fdiv_qr(q.get_mpz_t(), r.get_mpz_t(), a.get_mpz_t(), m.get_mpz_t());
        for (const auto &[hallado, debido] : {std::pair(x + y, mpz_class(a + b)),
                                              {x - y, a - b},
                                              {x * y, a * b},
                                              {x / n, q},
                                              {x % n, r},
                                              {-x, -a}}) {
            QCOMPARE(hallado.texto(), cifras(debido));
            QVERIFY(hallado == EnteroLargo(cifras(debido)));
        }
        QCOMPARE(x < y, a < b);
    }
    QCOMPARE(EnteroLargo(u"+007"_s), EnteroLargo(7));
    QCOMPARE(EnteroLargo(u"-0000000000000000000000123456789012345678"_s),
             EnteroLargo(-123456789012345678));
    QCOMPARE(EnteroLargo(std::numeric_limits<qint64>::min()).texto(), u"-9223372036854775808"_s);
}

void tst_AlgebraDePasos::elInversoPasoAPaso()
{
    for (int vez = 0; vez < Sorteos; ++vez) {
        const int largo = vez % 500 == 0 ? 40 : 9;
        const mpz_class a = alAzar(largo, true), n = alAzar(largo) + 1;
        const Pasos pasos = pasosDeInverso(cifras(a), cifras(n));
        revisa(pasos, 1);
        const QString ultimo = pasos.paso(pasos.cuantos() - 1).frase;
        mpz_class x;
        if (n > 1 && mpz_invert(x.get_mpz_t(), a.get_mpz_t(), n.get_mpz_t()))
            QVERIFY(ultimo.endsWith(u": "_s + cifras(x) + u'.'));
        else if (n > 1)
            QVERIFY(ultimo.contains(u"no hay inverso"_s));
    }
}

void tst_AlgebraDePasos::laPotenciaPasoAPaso()
{
    for (int vez = 0; vez < Sorteos; ++vez) {
        const int largo = vez % 500 == 0 ? 30 : 8;
        const mpz_class a = alAzar(largo, true), e = alAzar(vez % 100 == 0 ? 12 : 3),
                        m = alAzar(largo) + 1;
        const Pasos pasos = pasosDePotencia(cifras(a), cifras(e), cifras(m));
        revisa(pasos, 1);
        const Paso ultimo = pasos.paso(pasos.cuantos() - 1);
        mpz_class r;
        mpz_powm(r.get_mpz_t(), a.get_mpz_t(), e.get_mpz_t(), m.get_mpz_t());
        QVERIFY(ultimo.frase.endsWith(u' ' + cifras(r) + u'.'));
        if (e > 0 && ultimo.tabla.filas.back().at(3) != QString())
            QCOMPARE(ultimo.tabla.filas.back().at(3), cifras(r));
    }
}

void tst_AlgebraDePasos::bordes_data()
{
    QTest::addColumn<QString>("pasos");
    QTest::addColumn<QString>("contiene");
    const auto fila = [](const char *nombre, const Pasos &pasos, const char *contiene) {
        QTest::newRow(nombre) << todos(pasos) << QString::fromUtf8(contiene);
    };
    fila("inverse modulo 1", pasosDeInverso(u"5"_s, u"1"_s), "0 · 0 ≡ 1 (mod 1)");
    fila("inverse of 0", pasosDeInverso(u"0"_s, u"6"_s), "6 ∣ 0, 6 ∣ 6, 6 ∤ 1");
    fila("inverse of a negative", pasosDeInverso(u"-3"_s, u"7"_s), "4 · 2 ≡ 1 (mod 7)");
    fila("a division", pasosDeInverso(u"3"_s, u"7"_s), "Coeficiente = 0 − 2 · 1 = −2");
    fila("power 0", pasosDePotencia(u"5"_s, u"0"_s, u"7"_s), "5⁰ ≡ 1 (mod 7)");
    fila("modulus 1", pasosDePotencia(u"5"_s, u"3"_s, u"1"_s), "5³ ≡ 0 (mod 1)");
    fila("power 0 modulo 1", pasosDePotencia(u"5"_s, u"0"_s, u"1"_s), "5⁰ ≡ 0 (mod 1)");
    fila("negative base", pasosDePotencia(u"-2"_s, u"3"_s, u"7"_s), "(−2)³ ≡ 6 (mod 7)");
    fila("binary", pasosDePotencia(u"3"_s, u"13"_s, u"7"_s), "13 = 2³ + 2² + 1");
}

void tst_AlgebraDePasos::bordes()
{
    QFETCH(QString, pasos);
    QFETCH(QString, contiene);
    QVERIFY2(pasos.contains(contiene), qPrintable(pasos));
}

/// A thousand digits: as many as the lessons take; looked at in a moment, each step by itself.
void tst_AlgebraDePasos::numerosMuyLargos()
{
    QString n = u"7"_s, a = u"3"_s;
    while (n.size() < 1000) {
        n += QString::number(m_azar.bounded(10));
        a += QString::number(m_azar.bounded(10));
    }
    const Pasos inverso = pasosDeInverso(a, n), potencia = pasosDePotencia(a, n, n);
    QVERIFY(inverso.cuantos() > 1500);
    QVERIFY(potencia.cuantos() > 3300);
    for (const Pasos &pasos : {inverso, potencia}) {
        m_revisor.olvida();
        for (const qsizetype i : {qsizetype(1), pasos.cuantos() / 2, pasos.cuantos() - 1}) {
            for (const Formula &formula : pasos.paso(i).formulas)
                QCOMPARE(m_revisor.revisa(formula), QString());
        }
        QVERIFY(pasos.paso(pasos.cuantos() - 1).tabla.filas.size() < 65);
    }
}

QTEST_GUILESS_MAIN(tst_AlgebraDePasos)
#include "tst_AlgebraDePasos.moc"
