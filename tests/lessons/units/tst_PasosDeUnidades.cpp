// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/units/OrbitaDeElemento.h"
#include "lessons/units/PasosDeUnidades.h"
#include "tests/Sorteos.h"
#include "tests/shell/support/RevisorDeFormulas.h"

#include <QRandomGenerator>
#include <QSet>
#include <QTest>
#include <algorithm>

using namespace Qt::Literals::StringLiterals;

/// The steps of the units of Z_n: what they tell is true, in formulas, tables and drawings.
class TestPasosDeUnidades : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase() { IniciaBignum(100); }

    void grupos()
    {
        for (std::int32_t n = 1; n <= 400; ++n)
            revisa(pasosDelGrupo(GrupoUnidades(n)));
        revisa(pasosDelGrupo(GrupoUnidades(GrupoUnidades::MayorModulo)));
    }

    void elementos()
    {
        for (int vez = 0; vez < Sorteos; ++vez) {
            const bool grande = vez % 200 == 0;
            const GrupoUnidades grupo(1 + m_azar.bounded(grande ? GrupoUnidades::MayorModulo : 40));
            const std::int32_t a = m_azar.bounded(-50, 20000);
            const Pasos pasos = pasosDeElemento(grupo, a);
            revisa(pasos);
            QVERIFY(pasos.animables());
            for (qsizetype i = 0; !grande && i < pasos.cuantos(); ++i) {
                const TablaDePaso tabla = pasos.paso(i).tabla;
                if (tabla.cabecera.size() == 2)
                    revisaClases(tabla, grupo, a);
            }
        }
    }

    void fi()
    {
        for (int vez = 0; vez < Sorteos; ++vez) {
            const QString n = QString::number(1 + m_azar.bounded(vez % 10 == 0 ? 1000000 : 5000));
            const FuncionEuler euler(n);
            const Pasos pasos = pasosDeFi(euler, n);
            revisa(pasos);
            QVERIFY(pasos.paso(pasos.cuantos() - 1)
                        .formulas.constLast()
                        .escrita()
                        .endsWith(u"= "_s + euler.valor()));
        }
    }

    /// One point a power, and an arrow from each that has been left.
    void laOrbita()
    {
        const PotenciasDeElemento vuelve = GrupoUnidades(14).potencias(3),
                                  cola = GrupoUnidades(12).potencias(2);
        QCOMPARE(dibujo(orbitaDeElemento(vuelve, 6)), u"6 points, 6 arrows, 1 here"_s);
        QCOMPARE(dibujo(orbitaDeElemento(vuelve, 2)), u"6 points, 2 arrows, 1 here"_s);
        QCOMPARE(dibujo(orbitaDeElemento(cola, 4)), u"4 points, 4 arrows, 1 here"_s);
        QVERIFY(orbitaDeElemento(cola, 4).descripcion().contains(u"cola de 2"_s));
        QVERIFY(orbitaDeElemento(GrupoUnidades(997).potencias(7), 1).vacia());
    }

    void bordes()
    {
        const Pasos muchas = pasosDeElemento(GrupoUnidades(9973), 11);
        QVERIFY(muchas.cuantos() < 200);
        QCOMPARE(muchas.paso(100).formulas.constLast().escrita(), u"11^9972 == 1 (mod 9973)"_s);
        const FuncionEuler entero(u"1"_s);
        QCOMPARE(pasosDeFi(entero, u"1"_s).cuantos(), 2);
    }

private:
    void revisa(const Pasos &pasos)
    {
        m_revisor.olvida();
        const int antes = m_revisor.comparadas();
        const QString falta = m_revisor.revisa(pasos);
        QVERIFY2(falta.isEmpty(), qPrintable(falta));
        QVERIFY(m_revisor.comparadas() > antes);
    }

    /// The classes are of one size, the order, and all units are in them once.
    static void revisaClases(const TablaDePaso &tabla, const GrupoUnidades &grupo, std::int32_t a)
    {
        QSet<QString> todos;
        for (const QStringList &fila : tabla.filas) {
            const QStringList elementos = fila.at(1).split(u", "_s);
            QCOMPARE(int(elementos.size()), grupo.unidad(a)->orden);
            todos.unite({elementos.begin(), elementos.end()});
        }
        QCOMPARE(int(todos.size()), grupo.fi());
    }

    static QString dibujo(const Lamina &lamina)
    {
        const auto &figuras = lamina.figuras();
        const auto cuenta = [&](auto cumple) {
            return std::count_if(figuras.begin(), figuras.end(), cumple);
        };
        return u"%1 points, %2 arrows, %3 here"_s
            .arg(cuenta([](const Figura &f) { return f.clase == Figura::Elipse; }))
            .arg(cuenta([](const Figura &f) { return f.clase == Figura::Flecha; }))
            .arg(cuenta([](const Figura &f) { return f.rellena; }));
    }

    QRandomGenerator m_azar{51};
    RevisorDeFormulas m_revisor;
};

QTEST_GUILESS_MAIN(TestPasosDeUnidades)
#include "tst_PasosDeUnidades.moc"
