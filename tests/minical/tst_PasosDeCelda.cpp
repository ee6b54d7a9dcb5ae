// SPDX-License-Identifier: GPL-3.0-or-later
#include "minical/PasosDeCelda.h"
#include "tests/Tabla.h"
#include "tests/minical/HojaDePrueba.h"
#include "tests/shell/support/Entorno.h"
#include "tests/shell/support/RevisorDePasos.h"

using namespace Qt::Literals::StringLiterals;

/// How a cell comes to its result: every operation and every rewriting of the whole is computed by
/// the checker as well, and the end is what the sheet shows.
class TestPasosDeCelda : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { Entorno::limpia(); }

    void expresionesAlAzar()
    {
        RevisorDeFormulas revisor = conFunciones();
        int conValor = 0;
        QRandomGenerator azar(16);
        HojaCon hoja{{u"A1", u"5"}, {u"B2", u"-3"}, {u"C3", u"7/4"}, {u"D4", u"12"}};
        for (int vez = 0; vez < Sorteos; ++vez) {
            const QString expresion = alAzar(azar, 1 + azar.bounded(4));
            const QString valor = entra(hoja, u"E5", expresion);
            const Pasos pasos = pasosDeCelda(hoja, en(u"E5"));
            const QString falta = revisor.revisa(pasos);
            QVERIFY2(falta.isEmpty(), qPrintable(expresion + u": "_s + falta));
            const Paso ultimo = pasos.paso(pasos.cuantos() - 1);
            if (valor == u"Error"_s) {
                QCOMPARE(pasos.cuantos(), 2);
                continue;
            }
            ++conValor;
            QVERIFY2(ultimo.frase == u"E5 vale %1."_s.arg(valor), qPrintable(expresion));
        }
        QVERIFY(conValor > Sorteos / 2);
    }

    void casos_data()
    {
        // expression | steps | what is said or written somewhere
        filasDeTexto<QString, int, QString>(uR"(
            a number       | 42              | 2 | E5 vale 42
            a value        | -7/4            | 2 | E5 vale -7/4
            a sum          | A1+B1           | 3 | {5}+{2}
            unbound digits | A12             | 3 | {5}*{2}
            decimals       | 1,5*2           | 3 | {{3/2}*{2}}
            signs          | -2^2            | 4 | {-{4}} = -4
            right to left  | 2^3^2           | 4 | {{2}^{9}} = 512
            great power    | 2^100000 mod 7  | 3 | {{{2}^{100000}} mod {7}} = 2
            negative one   | -2^100000 mod 7 | 3 | = 5
            factorial      | (A1-2)!!        | 5 | factorial({6}) = 720
            root           | raíz(10)+1      | 4 | floor(sqrt({10})) = 3
            left of it     | 100 mod 7*3     | 4 | {{2}*{3}} = 6
            itself         | E5+1            | 2 | usa a sí misma
            zero           | 1/(A1-5)        | 2 | Divide entre 0
            empty          |                 | 0 |
            a long sum     | 1+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1+1 | 18 | E5 vale 17)"_s);
    }
    void casos()
    {
        const auto [expresion, cuantos, dicho] = estaFila<QString, int, QString>();
        HojaCon hoja{{u"A1", u"5"}, {u"B1", u"2"}};
        entra(hoja, u"E5", expresion);
        const Pasos pasos = pasosDeCelda(hoja, en(u"E5"));
        QCOMPARE(pasos.cuantos(), cuantos);
        QString todo;
        for (int i = 0; i < pasos.cuantos(); ++i) {
            todo += pasos.paso(i).frase + u'\n';
            for (const Formula &formula : pasos.paso(i).formulas)
                todo += formula.escrita() + u'\n';
        }
        QVERIFY2(todo.contains(dicho), qPrintable(todo));
    }

    /// What a cell shows may be another thing than what its expression gives now.
    void loQueMuestraLaCelda()
    {
        HojaCon hoja{{u"A1", u"4"}, {u"B1", u"1/A1"}, {u"A1", u"8"}};
        const auto regla = [&] {
            const Pasos pasos = pasosDeCelda(hoja, en(u"B1"));
            return pasos.paso(pasos.cuantos() - 1).regla;
        };
        QVERIFY(regla().contains(u"muestra 1/4 hasta"_s));
        hoja.Recalcular(en(u"B1"));
        QCOMPARE(regla(), QString());
        hoja.ValorDecimal(en(u"B1"));
        QVERIFY(regla().contains(u"forma decimal, 0,125"_s));
        entra(hoja, u"A1", u"4"_s);
        QVERIFY(regla().contains(u"muestra 0,125 hasta"_s));
    }

    /// A value that was shown may have none any more.
    void yaNoTieneValor_data()
    {
        filasDeTexto<QString, QString>(
            u"zero | 0 | Divide entre 0 || error | 1/0 | A1 tiene un error || empty | | A1 está vacía"_s);
    }
    void yaNoTieneValor()
    {
        const auto [ahora, motivo] = estaFila<QString, QString>();
        HojaCon hoja{{u"A1", u"4"}, {u"B1", u"1/A1"}};
        entra(hoja, u"A1", ahora);
        const Paso ultimo = pasosDeCelda(hoja, en(u"B1")).paso(1);
        QVERIFY2(ultimo.frase.contains(motivo), qPrintable(ultimo.frase));
        QVERIFY2(ultimo.regla.contains(u"muestra 1/4"_s), qPrintable(ultimo.regla));
    }

    void demasiadoLarga()
    {
        HojaDeCalculo hoja;
        entra(hoja, u"A1", u"1"_s + u"+1"_s.repeated(400));
        const Pasos pasos = pasosDeCelda(hoja, en(u"A1"));
        QCOMPARE(pasos.cuantos(), 2);
        QVERIFY(pasos.paso(1).frase.endsWith(u"El resultado es 401."_s));
        entra(hoja, u"A3", u"A1"_s + u"+1"_s.repeated(400));
        entra(hoja, u"A1", u"5"_s);
        QVERIFY(pasosDeCelda(hoja, en(u"A3")).paso(1).frase.endsWith(u"El resultado es 405."_s));
        entra(hoja, u"A2", u"("_s.repeated(900) + u"1"_s + u")"_s.repeated(900));
        QVERIFY(pasosDeCelda(hoja, en(u"A2")).paso(1).frase.endsWith(u"El resultado es 1."_s));
    }

private:
    static RevisorDeFormulas conFunciones()
    {
        RevisorDeFormulas revisor;
        revisor.agrega(u"factorial"_s, [](const auto &n) {
            mpz_class f = 1;
            for (mpz_class k = n.front().get_num(); k > 1; --k)
                f *= k;
            return mpq_class(f);
        });
        // Under ⌊ ⌋ alone, where the part behind the point does not count.
        revisor.agrega(u"sqrt"_s, [](const auto &n) {
            return mpq_class(mpz_class(sqrt(n.front().get_num())));
        });
        revisor.agrega(u"min"_s, [](const auto &n) { return *std::ranges::min_element(n); });
        return revisor;
    }

    static QString alAzar(QRandomGenerator &azar, int hondo)
    {
        static const QStringList hojas = {u"A1"_s, u"B2"_s, u"C3"_s, u"D4"_s, u"2,5"_s, u"0"_s};
        if (hondo == 0)
            return azar.bounded(3) ? QString::number(azar.bounded(20))
                                   : hojas[azar.bounded(int(hojas.size()))];
        const auto otra = [&] { return alAzar(azar, azar.bounded(hondo)); };
        switch (azar.bounded(12)) {
        case 0:
            return u'-' + otra();
        case 1:
            return u'(' + otra() + u")^"_s + QString::number(azar.bounded(30));
        case 2:
            return u"%1^%2 mod %3"_s.arg(azar.bounded(99)).arg(azar.bounded(2000)).arg(otra());
        case 3:
            return QString::number(azar.bounded(9)) + u'!';
        case 4:
            return u"mcd(%1;%2)"_s.arg(otra(), otra());
        case 5:
            return u"raiz(%1) - min[%2;%3]"_s.arg(otra(), otra(), otra());
        case 6:
            return u'(' + otra() + u")("_s + otra() + u')';
        case 7:
            return otra() + u" mod "_s + QString::number(1 + azar.bounded(30));
        default:
            return otra() + QStringView(u"+-*/")[azar.bounded(4)] + otra();
        }
    }
};

NUMORA_TEST_MAIN(TestPasosDeCelda)
#include "tst_PasosDeCelda.moc"
