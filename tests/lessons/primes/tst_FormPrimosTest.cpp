// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimos.h"
#include "shell/controls/CampoLargo.h"
#include "shell/controls/Dibujo.h"
#include "tests/shell/support/Entorno.h"

#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTabBar>

using namespace Qt::Literals::StringLiterals;

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
class TestFormPrimosTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        Entorno::limpia();
        m_ventana = std::make_unique<FormPrimos>();
        m_numero = control<CampoLargo>(m_ventana.get(), u"txtNúmero"_s);
        m_bits = control<QLineEdit>(m_ventana.get(), u"txtNumBits"_s);
        m_esPrimo = control<QPushButton>(m_ventana.get(), u"cmdEsPrimo"_s);
        m_siguiente = control<QPushButton>(m_ventana.get(), u"cmdSigPrimo"_s);
        m_busca = control<QPushButton>(m_ventana.get(), u"cmdNumBits"_s);
        m_rotulo = control<QLabel>(m_ventana.get(), u"LabelPrimo"_s);
        m_luz = control<Dibujo>(m_ventana.get(), u"imgTestPrimo"_s);
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
        QTest::addColumn<QString>("numero");
        QTest::addColumn<bool>("primo");
        QTest::addColumn<QString>("bits");
        QTest::newRow("97") << u"97"_s << true << u"7"_s;
        QTest::newRow("91") << u"91"_s << false << u"7"_s;
        QTest::newRow("blanks around") << u" 97 "_s << true << u"7"_s;
        QTest::newRow("no expressions") << u"90+7"_s << false << u"0"_s;
        QTest::newRow("negative") << u"-7"_s << false << u"3"_s;
        QTest::newRow("2^521-1")
            << u"6864797660130609714981900799081393217269435300143305409394463459185543183397656052"
               "122559640661454554977296311391480858037121987999716643812574028291115057151"_s
            << true << u"521"_s;
    }
    void veredictos()
    {
        QFETCH(QString, numero);
        QFETCH(bool, primo);
        QFETCH(QString, bits);
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
        QTest::addColumn<QString>("texto");
        QTest::addColumn<bool>("activo");
        QTest::addColumn<int>("avisos");
        QTest::newRow("the most") << u"2000"_s << true << 0;
        QTest::newRow("one more") << u"2001"_s << false << 1;
        QTest::newRow("expression") << u"2*64"_s << true << 0;
        QTest::newRow("half an expression") << u"2*"_s << false << 0;
        QTest::newRow("fraction") << u"5/2"_s << false << 0;
        QTest::newRow("huge") << u"9^9^9^9"_s << false << 0;
    }
    void numeroDeBits()
    {
        QFETCH(QString, texto);
        QFETCH(int, avisos);
        m_bits->setText(texto);
        QTEST(m_busca->isEnabled(), "activo");
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
        QTest::addColumn<QString>("boton");
        QTest::addColumn<QString>("numero");
        QTest::addColumn<bool>("linea");
        QTest::newRow("test") << u"cmdEsPrimo"_s << QString(2500, u'4') << true;
        QTest::newRow("short test") << u"cmdEsPrimo"_s << QString(2000, u'4') << false;
        QTest::newRow("next") << u"cmdSigPrimo"_s << QString(4000, u'4') << true;
        QTest::newRow("short next") << u"cmdSigPrimo"_s << QString(40, u'4') << false;
        QTest::newRow("random") << u"cmdNumBits"_s << u"2000"_s << true;
        QTest::newRow("short random") << u"cmdNumBits"_s << u"100"_s << false;
    }
    void loQueTardaSeDiceAntes()
    {
        QFETCH(QString, boton);
        QFETCH(QString, numero);
        control<QTabBar>(m_ventana.get(), u"tsTema"_s)->setCurrentIndex(2);
        m_ventana->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_ventana.get()));
        (boton == u"cmdNumBits"_s ? m_bits->setText(numero) : m_numero->setText(numero));
        auto *linea = control<QLabel>(m_ventana.get(), u"lblEspera"_s);
        Testigo testigo(m_ventana.get(), linea);
        control<QPushButton>(m_ventana.get(), boton)->click();
        QTEST(testigo.pintada, "linea");
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
        control<QTabBar>(m_ventana.get(), u"tsTema"_s)->setCurrentIndex(2);
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
    std::unique_ptr<FormPrimos> m_ventana;
    CampoLargo *m_numero = nullptr;
    QLineEdit *m_bits = nullptr;
    QPushButton *m_esPrimo = nullptr, *m_siguiente = nullptr, *m_busca = nullptr;
    QLabel *m_rotulo = nullptr;
    Dibujo *m_luz = nullptr;
};

NUMORA_TEST_MAIN(TestFormPrimosTest)
#include "tst_FormPrimosTest.moc"
