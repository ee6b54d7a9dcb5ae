// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/units/windows/FormUnidades.h"
#include "shell/controls/ReproductorAVI.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

#include <QAbstractItemModelTester>

/// The window of the units, by its controls.
class TestFormUnidades : public QObject, private VentanaDeLeccion<FormUnidades>
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        abre({960, 640});
        for (const QString &nombre : {u"FlexUnidades"_s, u"FlexPotencias"_s, u"FlexCayley"_s})
            new QAbstractItemModelTester(rejilla(nombre)->model(), m_ventana.get());
    }
    void cleanup() { m_ventana.reset(); }

    void alAbrir()
    {
        QCOMPARE(clavesDeTemas(m_ventana.get()), u"intro unidades cayley grandes cuestiones"_s);
        QCOMPARE(rotulosDeTemas(m_ventana.get()),
                 u"Introducción|Unidades|Tabla de Cayley|Números grandes|Cuestiones"_s);
        QVERIFY(m_ventana->URL().endsWith(u"\\Doc\\Unidades.html"_s));
        QCOMPARE(filas(u"FlexUnidades"_s),
                 u"1 1 1 /3 5 6 ★ sí/5 3 6 ★ sí/9 11 3 /11 9 3 /13 13 2 "_s);
        QCOMPARE(texto(u"lblResumen"_s),
                 u"Z₁₄ tiene 6 unidades. El grupo es cíclico, con 2 raíces "
                 u"primitivas.\nφ(14) = 6, según la biblioteca. Por factores: 14 = 2 · 7; "
                 u"φ(14) = (2 − 1) · (7 − 1) = 6"_s);
        QCOMPARE(filas(u"FlexPotencias"_s), QString());
    }

    void modulos_data()
    {
        filasDeTexto<QString, int, QString, QString>(uR"(
            one | 1 | 1 | Z₁ tiene una unidad. El grupo es cíclico, con una raíz \
              primitiva.\nφ(1) = 1, según la biblioteca. |
            prime | 2^13 - 1 | 8190 | Z₈₁₉₁ tiene 8.190 unidades. El grupo es cíclico, con \
              1.728 raíces primitivas.\nφ(8191) = 8190, según la biblioteca. Por factores: \
              8191 es primo; φ(8191) = 8191 − 1 = 8190 |
            largest | 10^4 | 4000 | Z₁₀₀₀₀ tiene 4.000 unidades. No hay raíces primitivas: el \
              grupo no es cíclico, y el mayor orden es 500.\nφ(10000) = 4000, según la \
              biblioteca. Por factores: 10000 = 2^4 · 5^4; φ(10000) = 2^3·(2 − 1) · 5^3·(5 − \
              1) = 4000 |
            one more | 10001 | 0 | ✗ El módulo es un número entero de 1 a 10000. | El mayor \
              número permitido es 10000
            zero | 0 | 0 | ✗ El módulo es un número entero de 1 a 10000. |)"_s);
    }
    void modulos()
    {
        const auto [modulo, unidades, resumen, aviso] = estaFila<QString, int, QString, QString>();
        muestra(u"14"_s);
        rejilla(u"FlexUnidades"_s)->setCurrentIndex(celda(u"FlexUnidades"_s, 1, 0));
        muestra(modulo);
        QCOMPARE(rejilla(u"FlexUnidades"_s)->model()->rowCount(), unidades);
        QCOMPARE(texto(u"lblResumen"_s), resumen);
        QCOMPARE(filas(u"FlexPotencias"_s), QString());
        if (aviso.isEmpty())
            QVERIFY(Entorno::grabadora().mensajes.isEmpty());
        else
            QCOMPARE(Entorno::grabadora().unico().texto, aviso);
    }

    void potenciasDeLaElegida()
    {
        rejilla(u"FlexUnidades"_s)->setCurrentIndex(celda(u"FlexUnidades"_s, 3, 1));
        QCOMPARE(campo(u"txtElemento"_s)->text(), u"9"_s);
        QCOMPARE(filas(u"FlexPotencias"_s), u"0 1/1 9/2 11/3 1"_s);
        QCOMPARE(texto(u"lblPotencias"_s),
                 u"El orden de 9 es 3: sus potencias son 3 de las 6 unidades."_s);
    }

    void potenciasDeCualquiera_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            root | -11 | 0 1/1 3/2 9/3 13/4 11/5 5/6 1 | 3 es una raíz primitiva: su orden es \
              6 y sus potencias son todas las unidades.
            no unit | 4 | 0 1/1 4/2 2/3 8/4 4 | 4 no es una unidad, porque mcd(4, 14) = 2: \
              sus potencias no vuelven a ser 1, y se repiten desde la de exponente 1.
            beyond 64 bits | 14*10^30 + 13 | 0 1/1 13/2 1 | El orden de 13 es 2: sus \
              potencias son 2 de las 6 unidades.
            text | a |  | ✗ El elemento es un número entero.)"_s);
    }
    void potenciasDeCualquiera()
    {
        const auto [elemento, potencias, resumen] = estaFila<QString, QString, QString>();
        campo(u"txtElemento"_s)->setText(elemento);
        pulsa(u"cmdPotencias"_s);
        QCOMPARE(filas(u"FlexPotencias"_s), potencias);
        QCOMPARE(texto(u"lblPotencias"_s), resumen);
    }

    /// Sorting goes by the numbers, and the chosen row stays the one that was clicked.
    void ordenadasPorOrden()
    {
        muestra(u"11"_s);
        Rejilla *tabla = rejilla(u"FlexUnidades"_s);
        tabla->sortByColumn(2, Qt::DescendingOrder);
        QCOMPARE(celda(u"FlexUnidades"_s, 0, 2).data().toString(), u"10"_s);
        QCOMPARE(celda(u"FlexUnidades"_s, 9, 2).data().toString(), u"1"_s);
        tabla->setCurrentIndex(celda(u"FlexUnidades"_s, 9, 0));
        QCOMPARE(campo(u"txtElemento"_s)->text(), u"1"_s);
    }

    void tablaDeCayley()
    {
        campo(u"txtNCayley"_s)->setText(u"2^3"_s);
        pulsa(u"cmdCayley"_s);
        QCOMPARE(filas(u"FlexCayley"_s), u"1 3 5 7/3 1 7 5/5 7 1 3/7 5 3 1"_s);
        QVERIFY(texto(u"lblCelda"_s).startsWith(u"Producto de las unidades de Z₈, que son 4."_s));
        Rejilla *tabla = rejilla(u"FlexCayley"_s);
        tabla->setCurrentIndex(celda(u"FlexCayley"_s, 1, 2));
        QCOMPARE(texto(u"lblCelda"_s), u"3 · 5 ≡ 7 (mod 8)"_s);
        tabla->selectAll();
        QTest::keyClick(tabla, Qt::Key_C, Qt::ControlModifier);
        QTRY_COMPARE(QGuiApplication::clipboard()->text().trimmed(),
                     u"1\t3\t5\t7\n1\t1\t3\t5\t7\n3\t3\t1\t7\t5\n5\t5\t7\t1\t3\n7\t7\t5\t3\t1"_s);
        el<QRadioButton>(u"OptOperacion_2"_s)->click();
        QCOMPARE(tabla->model()->rowCount(), 8);
        campo(u"txtNCayley"_s)->setText(u"61"_s);
        pulsa(u"cmdCayley"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"El mayor número permitido es 60"_s);
        QCOMPARE(tabla->model()->rowCount(), 0);
    }

    /// Cells are squares, and those of a small table are all in sight.
    void casillasCuadradas()
    {
        abreTema(2);
        const Rejilla *tabla = rejilla(u"FlexCayley"_s);
        const auto lado = [tabla] { return tabla->columnWidth(0); };
        QTRY_VERIFY(lado() > 30);
        QCOMPARE(tabla->rowHeight(0), lado());
        QVERIFY(8 * lado() <= tabla->viewport()->height());
        campo(u"txtNCayley"_s)->setText(u"59"_s);
        const int grande = lado();
        pulsa(u"cmdCayley"_s);
        QTRY_VERIFY(lado() < grande);
        QCOMPARE(tabla->rowHeight(57), lado());
        const QAbstractItemView *vista = tabla;
        QVERIFY(lado() > vista->sizeHintForIndex(celda(u"FlexCayley"_s, 0, 57)).width());
    }

    void pasosDelGrupoYDeUnElemento()
    {
        abreTema(1);
        QCOMPARE(pasos(1).cuantos(), 3);
        campo(u"txtElemento"_s)->setText(u"17"_s);
        pulsa(u"cmdPotencias"_s);
        QVERIFY(pasos(1).animables());
        QCOMPARE(pasos(1).paso(6).formulas.constLast().escrita(), u"3^6 == 1 (mod 14)"_s);
        campo(u"txtElemento"_s)->setText(u"x"_s);
        pulsa(u"cmdPotencias"_s);
        QCOMPARE(pasos(1).cuantos(), 3);
        muestra(u"0"_s);
        QVERIFY(pasos(1).vacios());
    }

    void numerosGrandes()
    {
        escribeGrandes(u"2^521-1"_s, u"100!"_s);
        pulsa(u"cmdInverso"_s);
        QVERIFY(this->pasos(3).cuantos() > 200);
        const QString inverso = largo(u"txtInverso"_s)->text();
        QCOMPARE(Evalua(u"100!*%1 mod (2^521-1)"_s.arg(inverso)), u"1"_s);
        pulsa(u"cmdFi"_s);
        const auto *pasos = el<QPlainTextEdit>(u"txtFi"_s);
        QVERIFY(pasos->toPlainText().endsWith(Evalua(u"2^521-2"_s)));
        QVERIFY(texto(u"lblFi"_s).endsWith(u"a^φ(n) da 1 módulo n."_s));
        QCOMPARE(this->pasos(3).cuantos(), 521 + 2);
        // Results belong to the numbers that stood there.
        largo(u"txtNGrande"_s)->setText(u"2^521-1 "_s);
        QVERIFY(pasos->toPlainText().isEmpty());
        QVERIFY(largo(u"txtInverso"_s)->text().isEmpty());
        QVERIFY(this->pasos(3).vacios());
    }

    void sinInverso()
    {
        escribeGrandes(u"30"_s, u"-12"_s);
        pulsa(u"cmdInverso"_s);
        QCOMPARE(largo(u"txtInverso"_s)->text(), u"6"_s);
        pulsa(u"cmdFactores"_s);
        QCOMPARE(texto(u"lblFi"_s), u"φ(n), por factores."_s);
        const auto *pasos = el<QPlainTextEdit>(u"txtFi"_s);
        QVERIFY(pasos->toPlainText().contains(u"n = 2 · 3 · 5\n"_s));
        QCOMPARE(this->pasos(3).cuantos(), 5);
        pulsa(u"cmdFi"_s);
        QCOMPARE(pasos->toPlainText(), u"φ(n) = 8"_s);
        QCOMPARE(texto(u"lblFi"_s), u"φ(n), según la biblioteca."_s);
        pulsa(u"cmdFactores"_s);
        QCOMPARE(texto(u"lblFi"_s), u"φ(n), por factores: la misma que da la biblioteca."_s);
    }

    void grandesRechazados_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            no n |  | 5 | ✗ El módulo n es un número entero positivo de 1000 cifras como mucho.
            zero | 0 | 5 | ✗ El módulo n es un número entero positivo de 1000 cifras como \
              mucho.
            too long | 10^1000 | 5 | ✗ El módulo n es un número entero positivo de 1000 \
              cifras como mucho.
            no a | 10^999 |  | ✗ El elemento a es un número entero de 2000 cifras como mucho.
            too long a | 10^999 | 10^2000 | ✗ El elemento a es un número entero de 2000 \
              cifras como mucho.)"_s);
    }
    void grandesRechazados()
    {
        const auto [n, a, aviso] = estaFila<QString, QString, QString>();
        escribeGrandes(n, a);
        pulsa(u"cmdInverso"_s);
        QCOMPARE(texto(u"lblMcd"_s), aviso);
        QVERIFY(largo(u"txtInverso"_s)->text().isEmpty());
    }

    void ejemplo()
    {
        pulsa(u"cmdEjemplo"_s);
        QCOMPARE(largo(u"txtNGrande"_s)->text().size(), 200);
        QVERIFY(!largo(u"txtInverso"_s)->text().isEmpty());
        pulsa(u"cmdFi"_s);
        QVERIFY(texto(u"lblFi"_s).endsWith(u"a^φ(n) da 1 módulo n."_s));
    }

    void cuestiones()
    {
        const auto *animacion = el<ReproductorAVI>(u"ccrpAniEureka"_s);
        for (const QString &i : {u"0"_s, u"1"_s}) {
            responde(i, u"2/3"_s);
            QCOMPARE(texto(u"lblVeredicto_"_s + i), u"No se ha juzgado: no entiendo «2/3»."_s);
            responde(i, u"-1"_s);
            QVERIFY(texto(u"lblVeredicto_"_s + i).startsWith(u"✗ "_s));
            QCOMPARE(animacion->estado(), ReproductorAVI::Reproduciendo);
        }
    }

    /// A power is no answer by the expression of its own text, but by its value.
    void aciertoDeUnaPotencia()
    {
        const QRegularExpression potencia(u"(\\d+)([⁰¹²³⁴-⁹]+) al dividirlo entre (\\d+)"_s);
        QRegularExpressionMatch hallada;
        for (int vez = 0; vez < 200 && !hallada.hasMatch(); ++vez) {
            pulsa(u"cmdOtra_1"_s);
            hallada = potencia.match(texto(u"lblEnunciado_1"_s));
        }
        QVERIFY(hallada.hasMatch());
        QString potenciaPedida = hallada.captured(1) + u'^';
        for (const QChar alta : hallada.captured(2))
            potenciaPedida += QString::number(alta.digitValue());
        potenciaPedida += u" mod "_s + hallada.captured(3);
        responde(u"1"_s, potenciaPedida);
        QCOMPARE(texto(u"lblVeredicto_1"_s), u"No se ha juzgado: eso es la pregunta."_s);
        responde(u"1"_s, Evalua(QString(potenciaPedida)));
        QCOMPARE(texto(u"lblVeredicto_1"_s), u"✓ ¡Correcto!"_s);
    }

private:
    void muestra(const QString &modulo) const
    {
        campo(u"txtN"_s)->setText(modulo);
        pulsa(u"cmdUnidades"_s);
    }

    void escribeGrandes(const QString &n, const QString &a) const
    {
        largo(u"txtNGrande"_s)->setText(n);
        largo(u"txtAGrande"_s)->setText(a);
    }

    void responde(const QString &cuestion, const QString &respuesta) const
    {
        campo(u"txtRespuesta_"_s + cuestion)->setText(respuesta);
        pulsa(u"cmdComprobar_"_s + cuestion);
    }

    /// The cells of a grid, blanks between columns and slashes between rows.
    QString filas(const QString &nombre) const
    {
        const QAbstractItemModel *modelo = rejilla(nombre)->model();
        QStringList lineas;
        for (int f = 0; f < modelo->rowCount(); ++f) {
            QStringList celdas;
            for (int c = 0; c < modelo->columnCount(); ++c)
                celdas << modelo->index(f, c).data().toString();
            lineas << celdas.join(u' ');
        }
        return lineas.join(u'/');
    }
};

NUMORA_TEST_MAIN(TestFormUnidades)
#include "tst_FormUnidades.moc"
