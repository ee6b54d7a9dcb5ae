// SPDX-License-Identifier: GPL-3.0-or-later
#include "bignum/gateway/ModBignum.h"
#include "lessons/fibonacci/Zeckendorf.h"
#include "lessons/fibonacci/windows/FormFibonacci.h"
#include "shell/controls/ReproductorAVI.h"
#include "shell/plot/Grafica.h"
#include "shell/steps/PanelDePasos.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

/// The lesson on the Fibonacci numbers, by its controls.
class TestFormFibonacci : public QObject, private VentanaDeLeccion<FormFibonacci>
{
    Q_OBJECT

private Q_SLOTS:
    void init() { abre(); }
    void cleanup() { m_ventana.reset(); }

    void valores()
    {
        QSet<QString> reglas;
        for (const QString &metodo : {u"optMetodo_0"_s, u"optMetodo_1"_s, u"optMetodo_2"_s}) {
            el<QRadioButton>(metodo)->click();
            reglas << texto(u"lblRegla"_s);
            calcula(u"5*4"_s);
            QCOMPARE(largo(u"txtValor"_s), u"6765"_s);
        }
        QCOMPARE(reglas.size(), 3);
        QCOMPARE(columna(u"FlexComparacion"_s, 1), u"Definición|Iteración|Duplicación"_s);
        QCOMPARE(columna(u"FlexComparacion"_s, 3), u"10.945|19|17"_s);
        pulsa(u"cmdBorrar"_s);
        QCOMPARE(columna(u"FlexComparacion"_s, 1), QString());
    }

    void unIndiceFueraDeSitio_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            definition | optMetodo_0 | 51 | 50 || doubling | optMetodo_2 | 117592+1 | 117592
            negative | optMetodo_1 | -1 | "" || fraction | optMetodo_1 | 5/2 | ""
            empty | optMetodo_1 |  | "")"_s);
    }
    void unIndiceFueraDeSitio()
    {
        const auto [metodo, n, cota] = estaFila<QString, QString, QString>();
        el<QRadioButton>(metodo)->click();
        calcula(n);
        QVERIFY(texto(u"lblAviso"_s).startsWith(u"✗"_s));
        QCOMPARE(columna(u"FlexComparacion"_s, 0), QString());
        if (cota.isEmpty()) {
            QVERIFY(Entorno::grabadora().mensajes.isEmpty());
            return;
        }
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.texto, u"El mayor número permitido es "_s + cota);
        QCOMPARE(mensaje.titulo, u"Número demasiado grande"_s);
    }

    void seDetiene()
    {
        el<QRadioButton>(u"optMetodo_0"_s)->click();
        escribe(u"TxtN"_s, u"50"_s);
        pulsa(u"cmdCalcular"_s);
        QCOMPARE(boton(u"cmdCalcular"_s)->toolTip(), u"Detener cálculo"_s);
        QTRY_VERIFY(texto(u"lblCifras"_s).startsWith(u"Calculando… Llamadas: "_s));
        pulsa(u"cmdCalcular"_s);
        QCOMPARE(boton(u"cmdCalcular"_s)->toolTip(), u"Calcular"_s);
        QTRY_COMPARE(columna(u"FlexComparacion"_s, 5), u"detenido"_s);
        QCOMPARE(texto(u"lblCifras"_s), u"Cálculo detenido"_s);
        QCOMPARE(largo(u"txtValor"_s), QString());
        // Stop and start again: the first run, which has not seen the stop yet, shows nothing.
        escribe(u"TxtN"_s, u"50"_s);
        pulsa(u"cmdCalcular"_s);
        pulsa(u"cmdCalcular"_s);
        calcula(u"10"_s);
        QTest::qWait(30);
        QCOMPARE(largo(u"txtValor"_s), u"55"_s);
        QCOMPARE(columna(u"FlexComparacion"_s, 0), u"50|10"_s);
    }

    void seCierraDurante()
    {
        auto *ventana = new FormFibonacci;
        QPointer<FormFibonacci> viva(ventana);
        ventana->show();
        control<QRadioButton>(ventana, u"optMetodo_0"_s)->click();
        control<QLineEdit>(ventana, u"TxtN"_s)->setText(u"50"_s);
        control<QPushButton>(ventana, u"cmdCalcular"_s)->click();
        QTest::qWait(20);
        ventana->cierra();
        QTRY_VERIFY(viva.isNull());
    }

    /// What is shown belongs to what stands in the fields, whether it was refused or only edited.
    void otroNumeroSeLlevaLoDeAntes_data()
    {
        filasDeTexto<QString, QString, QString>(uR"(
            values       | TxtN       | cmdCalcular |
            golden ratio | TxtHasta   | cmdAureo    | FlexCocientes
            m            | TxtIndiceM | cmdProbar   | FlexIdentidades
            n            | TxtIndiceN | cmdProbar   | FlexIdentidades)"_s);
    }
    void otroNumeroSeLlevaLoDeAntes()
    {
        const auto [campo, boton, rejilla] = estaFila<QString, QString, QString>();
        const auto hayAlgo = [this, &rejilla = rejilla] {
            return rejilla.isEmpty() ? !largo(u"txtValor"_s).isEmpty() : filas(rejilla) > 0;
        };
        escribe(campo, u"12"_s);
        pulsa(boton);
        QTRY_VERIFY(hayAlgo());
        escribe(campo, u"-1"_s);
        QVERIFY(!hayAlgo());
        QCOMPARE(largo(u"txtIzquierda"_s) + texto(u"lblCifras"_s), QString());
        pulsa(boton);
        QVERIFY(!hayAlgo());
        // Nothing is left to point at.
        QTest::keyClick(el<Grafica>(u"PicError"_s), Qt::Key_Right);
    }

    /// Each tool's panel has steps once there is a result, of the method or the identity chosen.
    void pasos()
    {
        // The page in front is the last one of the stack.
        const auto pasos = [this](int tema) {
            abreTema(tema);
            return m_ventana->findChildren<PanelDePasos *>().constLast()->pasos().cuantos();
        };
        escribe(u"TxtN"_s, u"12"_s);
        el<QRadioButton>(u"optMetodo_2"_s)->click();
        pulsa(u"cmdCalcular"_s);
        QTRY_COMPARE(pasos(1), 6);
        escribe(u"TxtN"_s, u"13"_s);
        QCOMPARE(pasos(1), 0);
        QCOMPARE(pasos(2), 30);
        escribe(u"TxtNumero"_s, u"100"_s);
        pulsa(u"cmdSiguiente"_s);
        QCOMPARE(pasos(3), 0);
        pulsa(u"cmdTodo"_s);
        QCOMPARE(pasos(3), 4);
        escribe(u"TxtIndiceM"_s, u"4"_s);
        escribe(u"TxtIndiceN"_s, u"6"_s);
        pulsa(u"cmdProbar"_s);
        QCOMPARE(pasos(4), 6);
        rejilla(u"FlexIdentidades"_s)->selectRow(2);
        QCOMPARE(pasos(4), 4);
    }

    void numeroAureo()
    {
        QCOMPARE(filas(u"FlexCocientes"_s), 30);
        escribe(u"TxtHasta"_s, u"12"_s);
        pulsa(u"cmdAureo"_s);
        QCOMPARE(filas(u"FlexCocientes"_s), 12);
        QCOMPARE(celda(u"FlexCocientes"_s, 11, 2), u"233"_s);
        QVERIFY(celda(u"FlexCocientes"_s, 11, 3).startsWith(u"1,61805555"_s));
        QCOMPARE(celda(u"FlexCocientes"_s, 11, 4), u"+2,16 · 10⁻⁵"_s);
        QCOMPARE(celda(u"FlexCocientes"_s, 0, 4), u"−6,18 · 10⁻¹"_s);
        auto *grafica = el<Grafica>(u"PicError"_s);
        QCOMPARE(grafica->encuadre().visible(), QRectF(0, -5, 12, 5));
        for (int i = 0; i < 12; ++i)
            QTest::keyClick(grafica, Qt::Key_Right);
        QCOMPARE(texto(u"lblPunto"_s), u"n = 12: error +2,16 · 10⁻⁵"_s);
        escribe(u"TxtHasta"_s, u"501"_s);
        pulsa(u"cmdAureo"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"El mayor número permitido es 500"_s);
    }

    void zeckendorfPasoAPaso()
    {
        pulsa(u"cmdSiguiente"_s);
        QCOMPARE(largo(u"txtSuma"_s), u"100 = 89 + (11)"_s);
        QCOMPARE(largo(u"txtCodigo"_s), QString());
        pulsa(u"cmdTodo"_s);
        pulsa(u"cmdSiguiente"_s);
        QCOMPARE(columna(u"FlexPasos"_s, 1), u"11|6|4"_s);
        QCOMPARE(columna(u"FlexPasos"_s, 3), u"11|3|0"_s);
        QCOMPARE(largo(u"txtSuma"_s), u"100 = 89 + 8 + 3 = F(11) + F(6) + F(4)"_s);
        QCOMPARE(largo(u"txtCodigo"_s), u"1000010100"_s);
        QCOMPARE(texto(u"lblAvisoZeckendorf"_s),
                 u"✓ Completa: 3 sumandos, y no hay dos consecutivos."_s);
        // Another number takes the steps away.
        escribe(u"TxtNumero"_s, u"2^5"_s);
        QCOMPARE(filas(u"FlexPasos"_s), 0);
        pulsa(u"cmdTodo"_s);
        QCOMPARE(largo(u"txtSuma"_s), u"32 = 21 + 8 + 3 = F(8) + F(6) + F(4)"_s);
        for (const QString &malo :
             {u"0"_s, u"-3"_s, u"1/2"_s, u"hola"_s, QString(), u"10^200+1"_s, u"9^9^9^9"_s}) {
            escribe(u"TxtNumero"_s, malo);
            pulsa(u"cmdSiguiente"_s);
            QCOMPARE(filas(u"FlexPasos"_s), 0);
            QVERIFY(texto(u"lblAvisoZeckendorf"_s).startsWith(u"✗"_s));
        }
        QVERIFY(Entorno::grabadora().mensajes.isEmpty());
    }

    void identidades()
    {
        pulsa(u"cmdProbar"_s);
        QCOMPARE(columna(u"FlexIdentidades"_s, 3), u"1|8|832.040|6.764|10.803.704"_s);
        QCOMPARE(columna(u"FlexIdentidades"_s, 2), u"✓ Sí|✓ Sí|✓ Sí|✓ Sí|✓ Sí"_s);
        el<QTableView>(u"FlexIdentidades"_s)->selectRow(2);
        QCOMPARE(largo(u"txtIzquierda"_s), u"832040"_s);
        QCOMPARE(largo(u"txtDerecha"_s), u"832040"_s);
        escribe(u"TxtIndiceN"_s, u"0"_s);
        pulsa(u"cmdProbar"_s);
        QCOMPARE(m_ventana->focusWidget(), campo(u"TxtIndiceN"_s));
    }

    void cuestiones()
    {
        const QString pregunta = texto(u"lblEnunciado_0"_s);
        const QString n = QRegularExpression(u"\\d+"_s).match(pregunta).captured();
        QStringList sumandos;
        for (const PasoZeckendorf &paso : representacionZeckendorf(n))
            sumandos << paso.sumando;
        pulsa(u"cmdComprobar_0"_s);
        QCOMPARE(texto(u"lblVeredicto_0"_s), u"Escriba una respuesta."_s);
        escribe(u"txtRespuesta_0"_s, sumandos.join(u" + "_s));
        pulsa(u"cmdComprobar_0"_s);
        QVERIFY(texto(u"lblVeredicto_0"_s).startsWith(u"✓"_s));
        QCOMPARE(el<ReproductorAVI>(u"ccrpAniEureka"_s)->estado(), ReproductorAVI::Reproduciendo);
        escribe(u"txtRespuesta_1"_s, u"1"_s);
        QTest::keyClick(campo(u"txtRespuesta_1"_s), Qt::Key_Return);
        QVERIFY(texto(u"lblVeredicto_1"_s).startsWith(u"✗"_s));
        QVERIFY(texto(u"lblVeredicto_0"_s).startsWith(u"✓"_s));
        bool esOtra = false;
        for (int i = 0; i < 20 && !esOtra; ++i) {
            pulsa(u"cmdOtra_0"_s);
            esOtra = texto(u"lblEnunciado_0"_s) != pregunta;
        }
        QVERIFY(esOtra);
        QCOMPARE(texto(u"lblVeredicto_0"_s), QString());
        QCOMPARE(campo(u"txtRespuesta_0"_s)->text(), QString());
    }

private:
    void calcula(const QString &n)
    {
        escribe(u"TxtN"_s, n);
        pulsa(u"cmdCalcular"_s);
        QTRY_COMPARE(boton(u"cmdCalcular"_s)->toolTip(), u"Calcular"_s);
    }

    QString largo(const QString &campo) const { return el<CampoLargo>(campo)->text(); }
    int filas(const QString &rejilla) const { return modelo(rejilla)->rowCount(); }
    QString celda(const QString &rejilla, int fila, int col) const
    {
        return modelo(rejilla)->index(fila, col).data().toString();
    }
    QString columna(const QString &rejilla, int col) const
    {
        QStringList textos;
        for (int i = 0; i < filas(rejilla); ++i)
            textos << celda(rejilla, i, col);
        return textos.join(u'|');
    }
};

NUMORA_TEST_MAIN(TestFormFibonacci)
#include "tst_FormFibonacci.moc"
