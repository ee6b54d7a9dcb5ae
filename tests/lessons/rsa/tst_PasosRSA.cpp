// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/rsa/steps/Ataques.h"
#include "lessons/rsa/steps/PasosDeCifrado.h"
#include "lessons/rsa/steps/PasosDeClave.h"
#include "tests/Tabla.h"
#include "tests/shell/support/RevisorDePasos.h"

using namespace Qt::Literals::StringLiterals;

/// Steps of keys and blocks, and the attacks, on toy keys of every sort.
class TestPasosRSA : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(100); }

    void clavesAlAzar()
    {
        RevisorDeFormulas revisor;
        revisaAlAzar(revisor, [](QRandomGenerator &azar) { return pasosDeClave(alAzar(azar, 1)); });
    }

    void paquetesAlAzar()
    {
        RevisorDeFormulas revisor;
        revisaAlAzar(revisor, [](QRandomGenerator &azar) {
            const int r = azar.bounded(1, 3);
            const QString texto(azar.bounded(1, 4), QChar(azar.bounded(32, 127)));
            return pasosDeCifrado(alAzar(azar, r), texto);
        });
    }

    /// Each attack on keys small enough for it: it reads the word, or says rightly why not.
    void ataquesAlAzar()
    {
        QRandomGenerator azar(7);
        for (int vez = 0; vez < Sorteos; ++vez) {
            const auto ataque = Ataque(vez % 5);
            const ClaveEnCifras clave = alAzar(azar, azar.bounded(1, 3));
            const auto resultado = revisado(ataque, clave);
            const bool buscaPrimos =
                ataque == Ataque::Factorizacion || ataque == Ataque::FiConocida;
            if (buscaPrimos || (ataque == Ataque::TablaDeBloques && clave.r == 1))
                QCOMPARE(resultado.desenlace, ResultadoDeAtaque::Encontrado);
            if (resultado.desenlace != ResultadoDeAtaque::Encontrado)
                continue;
            QCOMPARE(resultado.texto.trimmed(), u"Hola"_s);
            if (buscaPrimos || ataque == Ataque::Fermat)
                QCOMPARE(QSet<QString>(resultado.factores.begin(), resultado.factores.end()),
                         (QSet<QString>{clave.q1, clave.q2}));
        }
    }

    void bancoConocido_data()
    {
        // The published keys in their order, and how each attack on them ends: found, none, given
        // up.
        filasDeTexto<int, QString>(uR"(
            the paper's | 0 | E E E N E || near primes | 1 | E E E N E
            s = 3       | 2 | A E E E E || 129 digits  | 3 | A A A N E)"_s);
    }
    void bancoConocido()
    {
        const auto [numero, letras] = estaFila<int, QString>();
        const ClaveEnCifras clave = clavesPublicadas()[numero].clave;
        m_revisor.olvida();
        ClaveEnCifras sinPaquetes = clave; // the primes of 1978 are less than 255
        sinPaquetes.r = 0;
        QCOMPARE(m_revisor.revisa(pasosDeClave(sinPaquetes)), QString());
        for (int i = 0; i < 5; ++i) {
            const auto resultado = revisado(Ataque(i), clave);
            const Paso ultimo = resultado.pasos.paso(resultado.pasos.cuantos() - 1);
            QVERIFY2(letras[2 * i] == u"ENAD"[resultado.desenlace], qPrintable(ultimo.frase));
            const QStringList dichos{u"Encontrado"_s, u"No hay"_s, u"No se ha podido"_s};
            QVERIFY2(ultimo.frase.startsWith(dichos[resultado.desenlace]),
                     qPrintable(ultimo.frase));
        }
    }

    /// What is left of a key that is not what it should be.
    void bordes_data()
    {
        // attack | q | s | r | blocks | φ | ends
        filasDeTexto<int, QString, QString, QString, QString, QString>(uR"(
            even q                 | 2 | 514   | 3     | 5        | 256 | N
            prime q, by division   | 1 | 263   | 3     | 5        | 262 | N
            prime q, by Fermat     | 2 | 263   | 3     | 5        | 262 | N
            equal primes           | 2 | 66049 | 3     | 373248   | 0   | E
            equal primes, known φ  | 4 | 66049 | 3     | 1        | 65536 | E
            a φ that is not its    | 4 | 67591 | 5     | 1        | 67070 | N
            block of two in table  | 0 | 67591 | 5     | 67590    | 0   | N
            s beyond the bits of q | 3 | 67591 | 65537 | 5        | 0   | N
            negative s             | 3 | 67591 | -5    | 5        | 0   | N
            s = 1                  | 3 | 67591 | 1     | 72       | 0   | E
            exact cube             | 3 | 998244359987710471 | 3 | 373248 | 0 | E
            no cube                | 3 | 998244359987710471 | 3 | 373247 | 0 | N)"_s);
    }
    void bordes()
    {
        const auto [ataque, q, s, bloque, fi, fin] =
            estaFila<int, QString, QString, QString, QString, QString>();
        const Victima victima{q, s, 1, {bloque}, fi};
        const auto resultado = ataca(Ataque(ataque), victima, {}).completa();
        QCOMPARE(m_revisor.revisa(resultado.pasos), QString());
        QCOMPARE(QString(u"ENAD"[resultado.desenlace]), fin);
    }

    /// A run that was stopped is told apart from one that gave up; no number is too long for it.
    void detenidoYDesbordado()
    {
        const auto parada = std::make_shared<Parada>();
        const Billete billete(parada, nullptr);
        parada->detener();
        for (const ClavePublicada &publicada : clavesPublicadas()) {
            const Victima victima = intercepta(publicada.clave, billete).completa();
            for (int i = 0; i < 5; ++i)
                QCOMPARE(ataca(Ataque(i), victima, billete).completa().desenlace,
                         ResultadoDeAtaque::Detenido);
        }
        const Victima larga{
            u"1"_s + QString(20000, u'0') + u"1"_s, u"65537"_s, 1, {u"5"_s}, u"7"_s};
        for (const Ataque ataque : {Ataque::TablaDeBloques, Ataque::FiConocida})
            QCOMPARE(ataca(ataque, larga, {}).completa().desenlace, ResultadoDeAtaque::Abandonado);
    }

    void loQueSeDice()
    {
        const ClaveEnCifras iguales = clave(u"257"_s, u"257"_s, u"3"_s, 1);
        QVERIFY(pasosDeClave(iguales).paso(1).regla.contains(u"iguales"_s));
        QVERIFY(!pasosDeClave(iguales).paso(1).formulas.first().escrita().contains(u"φ"_s));
        const ClaveEnCifras negativa = clave(u"257"_s, u"263"_s, u"-5"_s, 1);
        QCOMPARE(m_revisor.revisa(pasosDeClave(negativa)), QString());
        QCOMPARE(m_revisor.revisa(pasosDeCifrado(negativa, u"a"_s)), QString());
        QVERIFY(pasosDeCifrado(negativa, u"a"_s).paso(1).frase.startsWith(u"El paquete"_s));
        const Pasos ida = pasosDeCifrado(iguales, u"a"_s);
        QVERIFY(ida.paso(ida.cuantos() - 1).frase.startsWith(u"No se recupera"_s));
        const Pasos vuelta = pasosDeCifrado(clave(u"257"_s, u"263"_s, u"5"_s, 1), u"ñandú"_s);
        m_revisor.olvida();
        QCOMPARE(m_revisor.revisa(vuelta), QString());
        QVERIFY(vuelta.paso(vuelta.cuantos() - 1).frase.contains(u"«ñ»"_s));
        QVERIFY(pasosDeCifrado(iguales, {}).vacios());
        QVERIFY(pasosDeCifrado(iguales, u"≡"_s).vacios());
    }

private:
    static ClaveEnCifras clave(const QString &q1, const QString &q2, const QString &s, int r)
    {
        const QString fi = Evalua(u"(%1-1)*(%2-1)"_s.arg(q1, q2), {}, Aritmetica::Entera);
        return {q1, q2, Evalua(u"%1*%2"_s.arg(q1, q2), {}, Aritmetica::Entera),
                fi, s,  InversoMod(s, fi),
                r};
    }

    /// Primes above the largest block, near each other once in three.
    static ClaveEnCifras alAzar(QRandomGenerator &azar, int r)
    {
        const int menor = r == 1 ? 256 : 255256;
        const QString q1 = PrimoSiguiente(QString::number(azar.bounded(menor, 40 * menor)));
        QString q2 = q1;
        if (azar.bounded(3) > 0)
            q2 = QString::number(azar.bounded(menor, 40 * menor));
        q2 = PrimoSiguiente(q2);
        for (int s = 3;; s += 2) {
            const ClaveEnCifras una = clave(q1, q2, QString::number(s), r);
            if (!una.t.isEmpty())
                return una;
        }
    }

    ResultadoDeAtaque revisado(Ataque ataque, const ClaveEnCifras &clave)
    {
        const Victima victima = intercepta(clave, {}).completa();
        m_revisor.olvida();
        auto resultado = ataca(ataque, victima, {}).completa();
        const QString falta = m_revisor.revisa(resultado.pasos);
        if (!falta.isEmpty())
            QTest::qFail(qPrintable(falta), __FILE__, __LINE__);
        return resultado;
    }

    RevisorDeFormulas m_revisor;
};

QTEST_GUILESS_MAIN(TestPasosRSA)
#include "tst_PasosRSA.moc"
