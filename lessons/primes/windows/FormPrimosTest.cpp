// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimosTest.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/controls/CampoLargo.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/run/Aparte.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormPrimosTest.h"

#include <QLayout>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString MaximoDeBits = u"2000"_s;

/// From these sizes on the longest calls take two seconds or more.
constexpr std::int32_t BitsDelTest = 8'000;
constexpr std::int32_t BitsDelSiguiente = 2'500;
constexpr std::int32_t BitsDelAlAzar = 1'800;

} // namespace

/// What tells that a call of the number service is going on: the hourglass and, where it may take
/// more than two seconds, a line. Where nothing is painted meanwhile, both stand on screen before
/// the call begins; where the window answers, there is a button that stops it.
class FormPrimosTest::Reloj
{
public:
    Reloj(FormPrimosTest *panel, bool larga)
        : m_panel(panel), m_marcha(panel->m_corrida->empieza(panel->m_tareas.billete()))
    {
        panel->m_leccion->setCursor(Qt::WaitCursor);
        panel->ui->cmdDetener->setVisible(Aparte::responde());
        if (!larga)
            return;
        panel->ui->lblEspera->setText(
            Aparte::responde()
                ? Traduce(u"Con un número tan grande puede tardar desde segundos hasta minutos."_s)
                : Traduce(u"Con un número tan grande puede tardar desde segundos hasta minutos, en "
                          u"los que la ventana no responde."_s));
        panel->layout()->activate();
        panel->repaint();
    }
    ~Reloj()
    {
        if (m_marcha.vigente())
            m_panel->quitaEspera();
    }
    Reloj(const Reloj &) = delete;
    Reloj &operator=(const Reloj &) = delete;

    const Billete &billete() const { return m_marcha.billete(); }

    /// The call has returned: whether anybody still waits for it.
    bool vuelve()
    {
        if (billete().detenida())
            return false;
        m_panel->m_leccion->unsetCursor();
        return true;
    }

private:
    FormPrimosTest *m_panel;
    BotonDeCorrida::Marcha m_marcha;
};

FormPrimosTest::FormPrimosTest(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormPrimosTest>()),
      m_leccion(leccion),
      m_pasos(new PanelDePasos(u"Test de primos"_s, this)),
      m_historial({Traduce(u"Número"_s), Traduce(u"bits"_s), Traduce(u"Veredicto"_s)}),
      m_tareas(this)
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdNumBits->setIcon(Icono(u"DADO"_s));
    ui->imgTestPrimo->setImagen(u"SEMAFOROROJO"_s);
    Aspecto::destaca(ui->lblTest);
    Aspecto::destaca(ui->LabelPrimo);
    new LineasSegunTexto(ui->txtNúmero, 6, 14);
    m_corrida =
        new BotonDeCorrida(ui->cmdDetener, BotonDeCorrida::detener(), BotonDeCorrida::detener());
    ui->cmdDetener->hide();

    conecta(ui->txtNúmero, &CampoLargo::textoCambiado, this, &FormPrimosTest::txtNumero_Change);
    conecta(ui->txtNúmero, &CampoLargo::returnPressed, this,
            [this] { ui->cmdEsPrimo->animateClick(); });
    conecta(ui->cmdEsPrimo, &QPushButton::clicked, this, &FormPrimosTest::cmdEsPrimo_Click);
    conecta(ui->cmdSigPrimo, &QPushButton::clicked, this, &FormPrimosTest::cmdSigPrimo_Click);
    conecta(ui->txtNumBits, &QLineEdit::textChanged, this, &FormPrimosTest::txtNumBits_Change);
    conecta(ui->txtNumBits, &QLineEdit::returnPressed, this,
            [this] { ui->cmdNumBits->animateClick(); });
    conecta(ui->cmdNumBits, &QPushButton::clicked, this, &FormPrimosTest::cmdNumBits_Click);
    conecta(ui->cmdDetener, &QPushButton::clicked, this, [this] { m_corrida->detiene(); });
    conecta(m_corrida, &BotonDeCorrida::detenida, this, &FormPrimosTest::detenida);
    preparaPasos();
}

FormPrimosTest::~FormPrimosTest() = default;

void FormPrimosTest::SetSemaforo(bool primo)
{
    const QString veredicto = Traduce(primo ? u"Es primo"_s : u"No es primo"_s);
    ui->imgTestPrimo->setImagen(primo ? u"SEMAFOROVERDE"_s : u"SEMAFOROROJO"_s);
    ponVeredicto(veredicto);
    muestraNeutro(ui->LabelPrimo, veredicto);
}

/// A number that is prime by the way it was found: green without a test. Where none was found (the
/// number was none, or there is no such prime) what stands in the field is not lost.
bool FormPrimosTest::muestraPrimo(const QString &primo)
{
    if (primo.isEmpty()) {
        muestraNeutro(ui->LabelPrimo, Traduce(u"No se ha encontrado ningún primo"_s));
        return false;
    }
    ui->txtNúmero->setText(primo);
    ui->imgTestPrimo->setImagen(u"SEMAFOROVERDE"_s);
    ponVeredicto(Traduce(u"Es primo"_s));
    return true;
}

void FormPrimosTest::ponVeredicto(const QString &texto)
{
    ui->imgTestPrimo->setToolTip(texto);
    ui->imgTestPrimo->setAccessibleName(texto);
    ui->cmdEsPrimo->setText(texto);
}

void FormPrimosTest::txtNumero_Change()
{
    const QString texto = ui->txtNúmero->text();
    const bool hayNumero = !texto.trimmed().isEmpty();
    m_probado.clear();
    muestraPasos();
    ui->cmdEsPrimo->setEnabled(hayNumero);
    ui->cmdSigPrimo->setEnabled(hayNumero);
    ui->cmdEsPrimo->setText(Traduce(u"¿Es primo?"_s));
    // Blanks count here, though they enable no button: something has been typed.
    ui->LabelPrimo->setText(Traduce(texto.isEmpty() ? u"Introduzca un número para ver si es primo"_s
                                                    : u"Pulse en el botón para ver si es primo"_s));
}

Tarea<> FormPrimosTest::cmdEsPrimo_Click()
{
    if (m_corrida->enMarcha())
        co_return;
    const QString numero = ui->txtNúmero->text();
    const std::int32_t bits = NumeroDeBits(numero);
    {
        Reloj reloj(this, bits >= BitsDelTest);
        const bool primo = co_await Aparte::esPrimo(numero, reloj.billete());
        // Another number may have been typed meanwhile.
        if (!reloj.vuelve() || ui->txtNúmero->text() != numero)
            co_return;
        SetSemaforo(primo);
    }
    ui->txtNumBits->setText(QString::number(bits));
    anota(numero, ui->imgTestPrimo->imagen() == u"SEMAFOROVERDE"_s, bits);
}

Tarea<> FormPrimosTest::cmdSigPrimo_Click()
{
    if (m_corrida->enMarcha())
        co_return;
    const QString numero = ui->txtNúmero->text();
    Reloj reloj(this, NumeroDeBits(numero) >= BitsDelSiguiente);
    const QString primo = co_await Aparte::primoSiguiente(numero, reloj.billete());
    if (!reloj.vuelve() || ui->txtNúmero->text() != numero)
        co_return;
    if (muestraPrimo(primo)) {
        const std::int32_t bits = NumeroDeBits(primo);
        ui->txtNumBits->setText(QString::number(bits));
        anota(primo, true, bits);
    }
}

void FormPrimosTest::txtNumBits_Change()
{
    ui->cmdNumBits->setEnabled(EsNumerico(Evalua(ui->txtNumBits->text(), MaximoDeBits)));
}

Tarea<> FormPrimosTest::cmdNumBits_Click()
{
    if (m_corrida->enMarcha())
        co_return;
    const QString resultado = Evalua(ui->txtNumBits->text(), MaximoDeBits);
    if (!EsNumerico(resultado)) {
        ui->txtNumBits->setFocus();
        co_return;
    }
    const std::int16_t bits = Moneda::deTexto(resultado).value_or(Moneda()).aEntero16();
    Reloj reloj(this, bits >= BitsDelAlAzar);
    if (bits <= 0) {
        // The pointer stays an hourglass until the next search succeeds.
        ui->txtNumBits->setFocus();
        co_return;
    }
    const QString primo = co_await Aparte::primoAleatorio(bits, reloj.billete());
    if (reloj.vuelve() && muestraPrimo(primo))
        anota(primo, true, bits);
}

/// At once, though what computes may take a moment to end.
void FormPrimosTest::detenida()
{
    m_leccion->unsetCursor();
    quitaEspera();
    muestraNeutro(ui->LabelPrimo, Traduce(u"Detenida."_s));
}

void FormPrimosTest::quitaEspera()
{
    ui->lblEspera->clear();
    // Who stops by the keyboard does not lose it.
    if (ui->cmdDetener->hasFocus())
        ui->txtNúmero->setFocus();
    ui->cmdDetener->hide();
}
