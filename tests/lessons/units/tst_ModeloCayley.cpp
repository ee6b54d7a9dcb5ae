// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ErrorEjecucion.h"
#include "lessons/units/windows/ModeloCayley.h"
#include "tests/Tabla.h"
#include "tests/shell/support/Contraste.h"

#include <QAbstractItemModelTester>

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
        filasDeTexto<int, int, QString>(uR"(
            units | 8 | 0 | 1 3 5 7,1 3 5 7/3 1 7 5/5 7 1 3/7 5 3 1
            products | 4 | 1 | 0 1 2 3,0 0 0 0/0 1 2 3/0 2 0 2/0 3 2 1
            sums | 3 | 2 | 0 1 2,0 1 2/1 2 0/2 0 1 || one element | 1 | 0 | 0,0)"_s);
    }
    void tablas()
    {
        const auto [n, cual, tabla] = estaFila<int, int, QString>();
        const Operacion operaciones[] = {Operacion::ProductoDeUnidades, Operacion::Producto,
                                         Operacion::Suma};
        ModeloCayley modelo;
        const QAbstractItemModelTester examen(
            &modelo, QAbstractItemModelTester::FailureReportingMode::QtTest);
        modelo.pon({n, operaciones[cual]});
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
        QCOMPARE(cabecera.join(u' ') + u',' + filas.join(u'/'), tabla);
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
        filasDeTexto<bool, bool>(uR"(
            light products | no | no || dark products | yes | no
            light sums | no | yes || dark sums | yes | yes)"_s);
    }
    void colores()
    {
        const auto [oscuro, sumas] = estaFila<bool, bool>();
        ModeloCayley modelo;
        modelo.ponOscuro(oscuro);
        for (const int n : {5, 60}) {
            modelo.pon({n, sumas ? Operacion::Suma : Operacion::Producto});
            const QString neutro = sumas ? u"0"_s : u"1"_s;
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
