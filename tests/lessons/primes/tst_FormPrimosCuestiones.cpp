// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/CuestionDosPrimos.h"
#include "lessons/primes/windows/FormPrimos.h"
#include "shell/controls/ReproductorAVI.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

#include <set>

/// The exercise of the lesson: its logic, and its window by the controls.
class TestFormPrimosCuestiones : public QObject, private VentanaDeLeccion<FormPrimos>
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        abre();
        m_primos = {el<CampoLargo>(u"txtPrimo_0"_s), el<CampoLargo>(u"txtPrimo_1"_s)};
        m_producto = el<CampoLargo>(u"txtProducto"_s);
        m_veredicto = el<QLabel>(u"lblVeredicto"_s);
    }
    void cleanup() { m_ventana.reset(); }

    void digitosPedidos()
    {
        std::set<int> vistos;
        for (int i = 0; i < 400; ++i)
            vistos.insert(CuestionDosPrimos().digitosPedidos());
        QVERIFY(*vistos.begin() >= 100 && *vistos.rbegin() <= 200);
        QVERIFY(vistos.size() > 50);
    }

    void juicios()
    {
        using Juicio = CuestionDosPrimos::Juicio;
        const CuestionDosPrimos cuestion;
        const QString justo(cuestion.digitosPedidos(), u'1');
        const auto cifras = [](int n) { return QString(n, u'7'); };
        QCOMPARE(cuestion.juzga(cifras(16), cifras(17), justo), Juicio::Acertada);
        QCOMPARE(cuestion.juzga(cifras(17), cifras(16), justo), Juicio::Acertada);
        QCOMPARE(cuestion.juzga(cifras(15), cifras(17), justo), Juicio::Lejanos);
        QCOMPARE(cuestion.juzga(cifras(16), cifras(16), justo + u'0'), Juicio::OtraLongitud);
    }

    void enunciado()
    {
        const QString enunciado = texto(u"LabelEnunciado1"_s);
        const QRegularExpression forma(
            u"^Busca dos primos lo mas cercanos posible, de modo que la expresión binaria de su "
            "producto tenga (1\\d\\d|200) dígitos\\.$"_s);
        QVERIFY2(forma.match(enunciado).hasMatch(), qPrintable(enunciado));
        QVERIFY(m_producto->isReadOnly());
    }

    /// sigprimo(2^k) has k + 1 bits and starts with a one and zeros: two of them make a product of
    /// exactly the sum of the exponents plus one.
    void respuestaAcertada()
    {
        const int pedidos = digitosDelEnunciado();
        const int mitad = (pedidos - 1) / 2;
        responde(u"sigprimo(2^%1)"_s.arg(mitad), u"sigprimo(2^%1)"_s.arg(pedidos - 1 - mitad));
        QCOMPARE(m_producto->text().size(), pedidos);
        QVERIFY(m_veredicto->text().startsWith(u"✓"_s));
        QCOMPARE(texto(u"LabelProducto"_s),
                 u"Expresión binaria del producto: %1 dígitos"_s.arg(pedidos));
        QCOMPARE(el<ReproductorAVI>(u"ccrpAniEureka"_s)->estado(), ReproductorAVI::Reproduciendo);
        m_primos[0]->setText(u"3"_s);
        QVERIFY(m_veredicto->text().isEmpty());
    }

    void respuestaErronea()
    {
        responde(u"5"_s, u"3"_s);
        QCOMPARE(m_producto->text(), u"1111"_s);
        QVERIFY(m_veredicto->text().startsWith(u"✗"_s));
    }

    void sinPrimo_data()
    {
        filasDeTexto<QString, QString, int, QString>(uR"(
            composite     | 7*13 | 3    | 0 | El número 91 no es primo
            second        | 3    | 2^10 | 1 | El número 1024 no es primo
            empty         | 3    |      | 1 |
            no expression | 3+   | 4    | 0 |)"_s);
    }
    void sinPrimo()
    {
        const auto [primo1, primo2, foco, aviso] = estaFila<QString, QString, int, QString>();
        responde(primo1, primo2);
        QCOMPARE(m_ventana->focusWidget(), m_primos[static_cast<std::size_t>(foco)]);
        QVERIFY(m_producto->text().isEmpty());
        if (aviso.isEmpty()) {
            QVERIFY(Entorno::grabadora().mensajes.isEmpty());
            return;
        }
        const auto mensaje = Entorno::grabadora().unico();
        QCOMPARE(mensaje.texto, aviso);
        QCOMPARE(mensaje.titulo, u"Solución errónea"_s);
    }

    /// What is said to be read is what is judged: the service's own reading of an expression.
    void leido_data()
    {
        filasDeTexto<QString, QString>(
            u"value | 7*13 | leo 91 || decimals | 5.167 | leo 5167/1000 || print | 2³ | no entiendo «2³» || mod | mod 5 | no entiendo «mod 5» || blank | |"_s);
    }
    void leido()
    {
        const auto [escrito, leido] = estaFila<QString, QString>();
        m_primos[0]->setText(u"1"_s);
        m_primos[0]->setText(escrito);
        QCOMPARE(texto(u"lblLeido_0"_s), leido);
    }

private:
    int digitosDelEnunciado() const
    {
        const QString enunciado = texto(u"LabelEnunciado1"_s);
        return QRegularExpression(u"\\d+"_s).match(enunciado).captured().toInt();
    }

    void responde(const QString &primo1, const QString &primo2)
    {
        m_primos[0]->setText(primo1);
        m_primos[1]->setText(primo2);
        pulsa(u"cmdProblema"_s);
    }

    std::array<CampoLargo *, 2> m_primos{};
    CampoLargo *m_producto = nullptr;
    QLabel *m_veredicto = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosCuestiones)
#include "tst_FormPrimosCuestiones.moc"
