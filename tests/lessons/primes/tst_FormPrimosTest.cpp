// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimos.h"
#include "shell/controls/Dibujo.h"
#include "tests/Tabla.h"
#include "tests/lessons/VentanaDeLeccion.h"

namespace {

/// Sees a line painted, and the pointer of a window become an hourglass.
class Testigo : public QObject
{
public:
    bool pintada = false;
    bool conReloj = false;

    Testigo(QWidget *ventana, QLabel *linea) : m_ventana(ventana), m_linea(linea)
    {
        ventana->installEventFilter(this);
        linea->installEventFilter(this);
    }
    bool eventFilter(QObject *, QEvent *suceso) override
    {
        pintada = pintada || (suceso->type() == QEvent::Paint && !m_linea->text().isEmpty());
        conReloj = conReloj || m_ventana->cursor().shape() == Qt::WaitCursor;
        return false;
    }

private:
    QWidget *m_ventana;
    QLabel *m_linea;
};

} // namespace

/// The topic "Test de primos", by its controls.
class TestFormPrimosTest : public QObject, private VentanaDeLeccion<FormPrimos>
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        abre();
        m_numero = el<CampoLargo>(u"txtNúmero"_s);
        m_bits = campo(u"txtNumBits"_s);
        m_esPrimo = boton(u"cmdEsPrimo"_s);
        m_siguiente = boton(u"cmdSigPrimo"_s);
        m_busca = boton(u"cmdNumBits"_s);
        m_rotulo = el<QLabel>(u"LabelPrimo"_s);
        m_luz = el<Dibujo>(u"imgTestPrimo"_s);
    }
    void cleanup() { m_ventana.reset(); }

    void alAbrir()
    {
        QCOMPARE(m_luz->imagen(), u"SEMAFOROROJO"_s);
        QCOMPARE(m_luz->toolTip(), u"No es primo"_s);
        QCOMPARE(m_rotulo->text(), u"Introduzca un número para ver si es primo"_s);
        QVERIFY(!m_esPrimo->isEnabled() && !m_siguiente->isEnabled() && !m_busca->isEnabled());
    }

    void veredictos_data()
    {
        filasDeTexto<QString, bool, QString>(uR"(
            97 | yes | 7 || 91 | no | 7 || " 97 " | yes | 7 || 90+7 | no | 0 || -7 | no | 3
            68647976601306097149819007990813932172694353001433054093944634591855431833976560521\
            22559640661454554977296311391480858037121987999716643812574028291115057151 | \
            yes | 521)"_s);
    }
    void veredictos()
    {
        const auto [numero, primo, bits] = estaFila<QString, bool, QString>();
        m_numero->setText(numero);
        QCOMPARE(m_esPrimo->text(), u"¿Es primo?"_s);
        m_esPrimo->click();
        const QString veredicto = primo ? u"Es primo"_s : u"No es primo"_s;
        QCOMPARE(m_luz->imagen(), primo ? u"SEMAFOROVERDE"_s : u"SEMAFOROROJO"_s);
        QCOMPARE(m_luz->toolTip(), veredicto);
        QCOMPARE(m_esPrimo->text(), veredicto);
        QCOMPARE(m_rotulo->text(), veredicto);
        QCOMPARE(m_bits->text(), bits);
    }

    void elSiguiente()
    {
        m_numero->setText(u"97"_s);
        m_siguiente->click();
        QCOMPARE(m_numero->text(), u"101"_s);
        QCOMPARE(m_luz->imagen(), u"SEMAFOROVERDE"_s);
        QCOMPARE(m_esPrimo->text(), u"Es primo"_s);
        QCOMPARE(m_rotulo->text(), u"Pulse en el botón para ver si es primo"_s);
        QCOMPARE(m_bits->text(), u"7"_s);
        QCOMPARE(m_ventana->cursor().shape(), Qt::ArrowCursor);
    }

    void editarTrasElVeredicto()
    {
        m_numero->setText(u"97"_s);
        m_esPrimo->click();
        m_numero->setText(u"971"_s);
        QCOMPARE(m_esPrimo->text(), u"¿Es primo?"_s);
        QCOMPARE(m_rotulo->text(), u"Pulse en el botón para ver si es primo"_s);
        QCOMPARE(m_luz->imagen(), u"SEMAFOROVERDE"_s);
        m_numero->setText(u"  "_s);
        QVERIFY(!m_esPrimo->isEnabled() && !m_siguiente->isEnabled());
        QCOMPARE(m_rotulo->text(), u"Pulse en el botón para ver si es primo"_s);
        m_numero->setText(QString());
        QCOMPARE(m_rotulo->text(), u"Introduzca un número para ver si es primo"_s);
    }

    void numeroDeBits_data()
    {
        filasDeTexto<QString, bool, int>(uR"(
            the most | 2000 | yes | 0 || one more | 2001 | no | 1 || expression | 2*64 | yes | 0
            half an expression | 2* | no | 0 || fraction | 5/2 | no | 0 || huge | 9^9^9^9 | no | 0)"_s);
    }
    void numeroDeBits()
    {
        const auto [texto, activo, avisos] = estaFila<QString, bool, int>();
        m_bits->setText(texto);
        QCOMPARE(m_busca->isEnabled(), activo);
        QCOMPARE(Entorno::grabadora().mensajes.size(), avisos);
        if (avisos == 1) {
            const auto mensaje = Entorno::grabadora().unico();
            QCOMPARE(mensaje.texto, u"El mayor número permitido es 2000"_s);
            QCOMPARE(mensaje.titulo, u"Número demasiado grande"_s);
        }
    }

    void primoDeTantosBits()
    {
        m_bits->setText(u"2*64"_s);
        m_busca->click();
        QCOMPARE(m_luz->imagen(), u"SEMAFOROVERDE"_s);
        QCOMPARE(m_esPrimo->text(), u"Es primo"_s);
        m_esPrimo->click();
        QCOMPARE(m_esPrimo->text(), u"Es primo"_s);
        QCOMPARE(m_bits->text(), u"128"_s);
    }

    void ceroBitsDejaElRelojDeArena()
    {
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowActive(m_ventana.get()));
        m_bits->setText(u"0"_s);
        m_busca->click();
        QCOMPARE(m_ventana->cursor().shape(), Qt::WaitCursor);
        QCOMPARE(m_ventana->focusWidget(), m_bits);
        QCOMPARE(m_numero->text(), QString());
        m_numero->setText(u"3"_s);
        m_siguiente->click();
        QCOMPARE(m_ventana->cursor().shape(), Qt::ArrowCursor);
    }

    /// While a long call goes on, nothing is painted: what tells of it stands there before.
    void loQueTardaSeDiceAntes_data()
    {
        filasDeTexto<QString, QString, int, bool>(uR"(
            cmdEsPrimo | 4 | 2500 | yes || cmdEsPrimo | 4 | 2000 | no
            cmdSigPrimo | 4 | 4000 | yes || cmdSigPrimo | 4 | 40 | no
            cmdNumBits | 2000 | 1 | yes || cmdNumBits | 100 | 1 | no)"_s);
    }
    void loQueTardaSeDiceAntes()
    {
        const auto [orden, cifras, veces, dicho] = estaFila<QString, QString, int, bool>();
        const QString numero = cifras.repeated(veces);
        abreTema(2);
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_ventana.get()));
        (orden == u"cmdNumBits"_s ? m_bits->setText(numero) : m_numero->setText(numero));
        auto *linea = el<QLabel>(u"lblEspera"_s);
        Testigo testigo(m_ventana.get(), linea);
        pulsa(orden);
        QCOMPARE(testigo.pintada, dicho);
        QVERIFY(testigo.conReloj);
        QVERIFY(linea->text().isEmpty());
        QCOMPARE(m_ventana->cursor().shape(), Qt::ArrowCursor);
        Entorno::grabadora().mensajes.clear();
    }

    void sinPrimoNoSePierdeNada()
    {
        const QString ninguno = u"No se ha encontrado ningún primo"_s;
        m_numero->setText(u"12 345"_s);
        m_siguiente->click();
        QCOMPARE(m_rotulo->text(), ninguno);
        m_numero->setText(u"91"_s);
        m_bits->setText(u"1"_s);
        m_busca->click();
        QCOMPARE(m_rotulo->text(), ninguno);
        QCOMPARE(m_numero->text(), u"91"_s);
        QCOMPARE(m_luz->imagen(), u"SEMAFOROROJO"_s);
        QCOMPARE(m_ventana->cursor().shape(), Qt::ArrowCursor);
    }

    void elCampoCreceConElNumero()
    {
        abreTema(2);
        control<QToolButton>(m_ventana.get(), u"cmdPasos"_s)
            ->click(); // the whole width for the tool
        m_ventana->resize(900, 600);
        m_ventana->show();
        QCOMPARE(m_numero->lineas(), 6);
        m_numero->setText(QString(800, u'7'));
        QTRY_VERIFY(m_numero->lineas() > 6 && m_numero->lineas() < 14);
        const int lineas = m_numero->lineas();
        m_ventana->resize(700, 600);
        QTRY_VERIFY(m_numero->lineas() > lineas);
        m_numero->setText(QString(20'000, u'7'));
        QTRY_COMPARE(m_numero->lineas(), 14);
        m_numero->setText(u"7"_s);
        QTRY_COMPARE(m_numero->lineas(), 6);
    }

    void modAlPrincipioEsUnErrorDelSuceso()
    {
        m_bits->setText(u"mod"_s);
        QCOMPARE(Entorno::grabadora().unico().texto, u"Argumento no válido."_s);
    }

    void intro()
    {
        m_numero->setText(u"97"_s);
        QTest::keyClick(m_numero, Qt::Key_Enter);
        QTRY_COMPARE(m_rotulo->text(), u"Es primo"_s);
    }

private:
    CampoLargo *m_numero = nullptr;
    QLineEdit *m_bits = nullptr;
    QPushButton *m_esPrimo = nullptr, *m_siguiente = nullptr, *m_busca = nullptr;
    QLabel *m_rotulo = nullptr;
    Dibujo *m_luz = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosTest)
#include "tst_FormPrimosTest.moc"
