// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/core/Formatos.h"
#include "shell/core/steps/CopiaDePasos.h"
#include "shell/core/steps/EscrituraDeFormula.h"
#include "shell/core/steps/NumerosEnPantalla.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <QLocale>
#include <QTest>
#include <stdexcept>

using namespace Qt::Literals::StringLiterals;

/// Formulas as they are written, read and checked, and the copies of steps.
class tst_Pasos : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void formulasEnTextoYLatex_data();
    void formulasEnTextoYLatex();
    void loQueNoEsFormula_data();
    void loQueNoEsFormula();
    void elRevisorDistingue_data();
    void elRevisorDistingue();
    void losNombresGuardanSuValor();
    void losNumerosLargosSeAcortanSoloEnPantalla();
    void lasCopiasDeUnPaso();
    void losPasosSeHacenAlPedirlos();
};

void tst_Pasos::formulasEnTextoYLatex_data()
{
    QTest::addColumn<QString>("escrita");
    QTest::addColumn<QString>("texto");
    QTest::addColumn<QString>("latex");
    const auto fila = [](const char *escrita, const char *texto, const char *latex) {
        QTest::newRow(escrita) << QString::fromUtf8(escrita) << QString::fromUtf8(texto)
                               << QString::fromUtf8(latex);
    };
    fila("240 = 5*46+10", "240 = 5 · 46 + 10", "240 = 5 \\cdot 46 + 10");
    fila("7^97 == -5 (mod 16)", "7⁹⁷ ≡ −5 (mod 16)", "7^{97} \\equiv -5 \\pmod{16}");
    fila("x_1 = (a+b)/(2*c), y != 3", "x_1 = (a + b)/(2 · c), y ≠ 3",
         "x_{1} = \\frac{\\left(a + b\\right)}{\\left(2 \\cdot c\\right)},\\ y \\neq 3");
    fila("23*{240/2} <= 2^{n-1}", "23 · 240/2 ≤ 2^(n − 1)",
         "23 \\cdot \\frac{240}{2} \\leq 2^{n - 1}");
    fila("3 | 12 => 5 !| 12", "3 ∣ 12 ⇒ 5 ∤ 12", "3 \\mid 12 \\implies 5 \\nmid 12");
    fila("{a+b}*{-c} = a-{b-c}", "(a + b) · (−c) = a − (b − c)",
         "\\left(a + b\\right) \\cdot \\left(-c\\right) = a - \\left(b - c\\right)");
    fila("mcd(12; 18) = floor(sqrt(37)) ~ φ(7)", "mcd(12; 18) = ⌊√(37)⌋ ≈ φ(7)",
         "\\operatorname{mcd}\\left(12; 18\\right) = \\left\\lfloor \\sqrt{37} \\right\\rfloor "
         "\\approx \\varphi\\left(7\\right)");
    fila("\"resto\" = 17 mod 5", "resto = 17 mod 5", "\\text{resto} = 17 \\bmod 5");
    fila("{2^3}^2 = ...", "(2³)² = …", "\\left(2^{3}\\right)^{2} = …");
}

void tst_Pasos::formulasEnTextoYLatex()
{
    QFETCH(QString, escrita);
    const Formula formula(escrita);
    QTEST(comoTexto(formula), "texto");
    QTEST(comoLatex(formula), "latex");
    QVERIFY(!comoPalabras(formula).contains(u'^'));
}

void tst_Pasos::loQueNoEsFormula_data()
{
    QTest::addColumn<QString>("escrita");
    for (const char *escrita : {"1 +", "(2", "2 3", "= 4", "a == 3 (mod 5", "mcd(3;)", "\"abierta"})
        QTest::newRow(escrita) << QString::fromUtf8(escrita);
}

void tst_Pasos::loQueNoEsFormula()
{
    QFETCH(QString, escrita);
    QVERIFY_THROWS_EXCEPTION(std::invalid_argument, Formula{escrita});
}

void tst_Pasos::elRevisorDistingue_data()
{
    QTest::addColumn<QString>("escrita");
    QTest::addColumn<bool>("cierta");
    const auto fila = [](const char *escrita, bool cierta) {
        QTest::newRow(escrita) << QString::fromUtf8(escrita) << cierta;
    };
    fila("240 = 5*46+10", true);
    fila("240 = 5*46+11", false);
    fila("7^1000000000000000000000 == 1 (mod 16)", true);
    fila("7^1000000000000000000001 == 1 (mod 16)", false);
    fila("-1/3 + 1/2 = 1/6 = 2/12", true);
    fila("1/3 = 2/6 = 3/8", false);
    fila("-7 mod 5 = 3", true);
    fila("5 | 10, 4 !| 10, 3 < 4", true);
    fila("5 | 10, 5 !| 10", false);
    fila("mcd(12; 18; 27) = 3, φ(36) = 12", true);
    fila("floor(-7/2) = -3", false);
    fila("1/0 = 1", false);
}

void tst_Pasos::elRevisorDistingue()
{
    QFETCH(QString, escrita);
    RevisorDeFormulas revisor;
    QTEST(revisor.revisa(Formula(escrita)).isEmpty(), "cierta");
    QVERIFY(revisor.comparadas() > 0 || escrita.contains(u"1/0"_s));
}

void tst_Pasos::losNombresGuardanSuValor()
{
    RevisorDeFormulas revisor;
    QCOMPARE(revisor.revisa(Formula(u"M_1 = 105/3 = 35"_s)), QString());
    QCOMPARE(revisor.revisa(Formula(u"M_1*2 = 70"_s)), QString());
    QVERIFY(!revisor.revisa(Formula(u"M_1 = 36"_s)).isEmpty());
    revisor.olvida();
    QCOMPARE(revisor.revisa(Formula(u"M_1 = 36"_s)), QString());
}

void tst_Pasos::losNumerosLargosSeAcortanSoloEnPantalla()
{
    const QString justo(40, u'7');
    const QString largo(41, u'7');
    QVERIFY(!numeroEnPantalla(justo).contains(u'…'));
    QVERIFY(numeroEnPantalla(largo).contains(u'…'));
    // As in a grid beside it, whatever the locale; decimals and names are no numbers of thousands.
    for (const QLocale &suya : {QLocale::c(), QLocale(u"es_ES"_s)}) {
        QLocale::setDefault(suya);
        QCOMPARE(numeroEnPantalla(u"1234"), formatoEntero(qint64{1234}));
        QCOMPARE(conNumerosEnPantalla(u"de 12345 a 9, 1,61803 y A2000"_s),
                 u"de %1 a 9, 1,61803 y A2000"_s.arg(formatoEntero(qint64{12345})));
    }
    const Paso paso{largo, {Formula(largo + u" = "_s + largo)}, {}, {{u"n"_s}, {{largo}}}};
    for (const FormaDePasos forma :
         {FormaDePasos::Texto, FormaDePasos::Markdown, FormaDePasos::Latex})
        QCOMPARE(pasoComo(forma, paso, 0).count(largo), 4);
}

void tst_Pasos::lasCopiasDeUnPaso()
{
    const Paso paso{u"Se divide a_1 entre 4."_s,
                    {Formula(u"9 = 2*4+1"_s)},
                    u"División entera"_s,
                    {{u"q"_s, u"r"_s}, {{u"2"_s, u"1"_s}}}};
    QCOMPARE(pasoComo(FormaDePasos::Texto, paso, 2),
             u"3. Se divide a_1 entre 4.\n   9 = 2 · 4 + 1\n   [División entera]\nq\tr\n2\t1\n"_s);
    QCOMPARE(pasoComo(FormaDePasos::Markdown, paso, 0),
             u"1. Se divide a\\_1 entre 4.\n\n   $9 = 2 \\cdot 4 + 1$\n\n   *División entera*\n\n"
             "| q | r |\n| ---: | ---: |\n| 2 | 1 |\n\n"_s);
    QVERIFY(pasoComo(FormaDePasos::Latex, paso, 0).contains(u"a\\_1"_s));
    QCOMPARE(pasoComoPalabras(paso),
             u"Se divide a_1 entre 4.. 9 igual a 2 por 4 más 1. 2, 1. División entera"_s);
}

void tst_Pasos::losPasosSeHacenAlPedirlos()
{
    qsizetype hechos = 0;
    const Pasos pasos(1000000, [&hechos](qsizetype i) {
        ++hechos;
        return Paso{QString::number(i)};
    });
    QCOMPARE(pasos.cuantos(), 1000000);
    QCOMPARE(hechos, 0);
    QCOMPARE(pasos.paso(999999).frase, u"999999"_s);
    QCOMPARE(hechos, 1);
    const Pasos seguidos = Pasos::seguidos({Pasos(), Pasos::aplazados([&] {
                                                hechos += 10;
                                                return Pasos(QList<Paso>{{u"solo"_s}});
                                            }),
                                            pasos});
    QCOMPARE(hechos, 1);
    QCOMPARE(seguidos.cuantos(), 1000001);
    QCOMPARE(seguidos.paso(0).frase + seguidos.paso(7).frase, u"solo6"_s);
    QCOMPARE(hechos, 12);
}

QTEST_GUILESS_MAIN(tst_Pasos)
#include "tst_Pasos.moc"
