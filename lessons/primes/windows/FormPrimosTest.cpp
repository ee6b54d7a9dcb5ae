// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimosTest.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/controls/CampoLargo.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/run/Aparte.h"
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

/// What tells that a call of the number service is going on, during which nothing is painted where
/// the window does not answer: the hourglass and, where it may take more than two seconds, a line.
/// Both stand on screen before the call begins.
class FormPrimosTest::Reloj
{
public:
    Reloj(FormPrimosTest *panel, bool larga) : m_panel(panel)
    {
        panel->m_enMarcha = true;
        panel->m_leccion->setCursor(Qt::WaitCursor);
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
        m_panel->m_enMarcha = false;
        m_panel->ui->lblEspera->clear();
    }
    Reloj(const Reloj &) = delete;
    Reloj &operator=(const Reloj &) = delete;

    void quitaElReloj() { m_panel->m_leccion->unsetCursor(); }

private:
    FormPrimosTest *m_panel;
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

    conecta(ui->txtNúmero, &CampoLargo::textoCambiado, this, &FormPrimosTest::txtNumero_Change);
    conecta(ui->txtNúmero, &CampoLargo::returnPressed, this,
            [this] { ui->cmdEsPrimo->animateClick(); });
    conecta(ui->cmdEsPrimo, &QPushButton::clicked, this, &FormPrimosTest::cmdEsPrimo_Click);
    conecta(ui->cmdSigPrimo, &QPushButton::clicked, this, &FormPrimosTest::cmdSigPrimo_Click);
    conecta(ui->txtNumBits, &QLineEdit::textChanged, this, &FormPrimosTest::txtNumBits_Change);
    conecta(ui->txtNumBits, &QLineEdit::returnPressed, this,
            [this] { ui->cmdNumBits->animateClick(); });
    conecta(ui->cmdNumBits, &QPushButton::clicked, this, &FormPrimosTest::cmdNumBits_Click);
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
    if (m_enMarcha)
        co_return;
    const QString numero = ui->txtNúmero->text();
    const std::int32_t bits = NumeroDeBits(numero);
    {
        Reloj reloj(this, bits >= BitsDelTest);
        const bool primo = co_await Aparte::esPrimo(numero, m_tareas.billete());
        reloj.quitaElReloj();
        // Another number may have been typed meanwhile.
        if (ui->txtNúmero->text() != numero)
            co_return;
        SetSemaforo(primo);
    }
    ui->txtNumBits->setText(QString::number(bits));
    anota(numero, ui->imgTestPrimo->imagen() == u"SEMAFOROVERDE"_s, bits);
}

Tarea<> FormPrimosTest::cmdSigPrimo_Click()
{
    if (m_enMarcha)
        co_return;
    const QString numero = ui->txtNúmero->text();
    Reloj reloj(this, NumeroDeBits(numero) >= BitsDelSiguiente);
    const QString primo = co_await Aparte::primoSiguiente(numero, m_tareas.billete());
    reloj.quitaElReloj();
    if (ui->txtNúmero->text() != numero)
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
    if (m_enMarcha)
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
    const QString primo = co_await Aparte::primoAleatorio(bits, m_tareas.billete());
    if (muestraPrimo(primo))
        anota(primo, true, bits);
    reloj.quitaElReloj();
}
