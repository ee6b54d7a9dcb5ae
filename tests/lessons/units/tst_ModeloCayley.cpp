// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/units/windows/ModeloCayley.h"
#include "tests/shell/support/Contraste.h"

#include <QAbstractItemModelTester>
#include <QTest>

using namespace Qt::Literals::StringLiterals;
using Operacion = TablaCayley::Operacion;

namespace {

QColor color(const QModelIndex &indice, int rol)
{
    return indice.data(rol).value<QColor>();
}

} // namespace

/// The tables of Z_n and their colours.
class TestModeloCayley : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void tablas_data()
    {
        QTest::addColumn<int>("n");
        QTest::addColumn<Operacion>("operacion");
        QTest::addColumn<QString>("tabla");
        QTest::newRow("units") << 8 << Operacion::ProductoDeUnidades
                               << u"1 3 5 7|1 3 5 7/3 1 7 5/5 7 1 3/7 5 3 1"_s;
        QTest::newRow("products") << 4 << Operacion::Producto
                                  << u"0 1 2 3|0 0 0 0/0 1 2 3/0 2 0 2/0 3 2 1"_s;
        QTest::newRow("sums") << 3 << Operacion::Suma << u"0 1 2|0 1 2/1 2 0/2 0 1"_s;
        QTest::newRow("one element") << 1 << Operacion::ProductoDeUnidades << u"0|0"_s;
    }
    void tablas()
    {
        QFETCH(int, n);
        QFETCH(Operacion, operacion);
        ModeloCayley modelo;
        const QAbstractItemModelTester examen(
            &modelo, QAbstractItemModelTester::FailureReportingMode::QtTest);
        modelo.pon({n, operacion});
        QStringList cabecera, filas;
        for (int f = 0; f < modelo.rowCount(); ++f) {
            QStringList celdas;
            for (int c = 0; c < modelo.columnCount(); ++c)
                celdas << modelo.index(f, c).data().toString();
            filas << celdas.join(u' ');
            cabecera << modelo.headerData(f, Qt::Horizontal, Qt::DisplayRole).toString();
            QCOMPARE(modelo.headerData(f, Qt::Vertical, Qt::DisplayRole).toString(),
                     cabecera.constLast());
        }
        QTEST(cabecera.join(u' ') + u'|' + filas.join(u'/'), "tabla");
    }

    void moduloFueraDeSitio()
    {
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, TablaCayley(61, Operacion::Suma));
        QVERIFY_THROWS_EXCEPTION(ErrorEjecucion, TablaCayley(0, Operacion::Suma));
    }

    /// Every number can be read on its colour, and neighbours of the neutral element differ from
    /// it, in both themes.
    void colores_data()
    {
        QTest::addColumn<bool>("oscuro");
        QTest::addColumn<Operacion>("operacion");
        QTest::newRow("light products") << false << Operacion::Producto;
        QTest::newRow("dark products") << true << Operacion::Producto;
        QTest::newRow("light sums") << false << Operacion::Suma;
        QTest::newRow("dark sums") << true << Operacion::Suma;
    }
    void colores()
    {
        QFETCH(bool, oscuro);
        QFETCH(Operacion, operacion);
        ModeloCayley modelo;
        modelo.ponOscuro(oscuro);
        for (const int n : {5, 60}) {
            modelo.pon({n, operacion});
            const QString neutro = operacion == Operacion::Suma ? u"0"_s : u"1"_s;
            QColor resaltado;
            QSet<QRgb> otros;
            for (int c = 0; c < n; ++c) {
                const QModelIndex indice = modelo.index(1, c);
                const QColor fondo = color(indice, Qt::BackgroundRole);
                QVERIFY(contraste(fondo, color(indice, Qt::ForegroundRole)) >= 4.5);
                if (indice.data().toString() == neutro)
                    resaltado = fondo;
                else
                    otros << fondo.rgb();
            }
            QCOMPARE(otros.size(), n - 1);
            for (const QRgb otro : otros)
                QVERIFY(contraste(resaltado, QColor(otro)) >= 2);
        }
    }
};

QTEST_GUILESS_MAIN(TestModeloCayley)
#include "tst_ModeloCayley.moc"
