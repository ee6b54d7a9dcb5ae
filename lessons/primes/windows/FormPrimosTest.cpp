#include "lessons/primes/windows/FormPrimosTest.h"

#include "bignum/gateway/ModBignum.h"
#include "shell/controls/LineasSegunTexto.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormPrimosTest.h"

using namespace Qt::Literals::StringLiterals;

namespace {

const QString MaximoDeBits = u"2000"_s;

} // namespace

FormPrimosTest::FormPrimosTest(QWidget *leccion)
    : QWidget(leccion), ui(std::make_unique<Ui::FormPrimosTest>()), m_leccion(leccion)
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
}

FormPrimosTest::~FormPrimosTest() = default;

void FormPrimosTest::SetSemaforo(bool primo)
{
    const QString veredicto = Traduce(primo ? u"Es primo"_s : u"No es primo"_s);
    ui->imgTestPrimo->setImagen(primo ? u"SEMAFOROVERDE"_s : u"SEMAFOROROJO"_s);
    ponVeredicto(veredicto);
    ui->LabelPrimo->setText(veredicto);
}

/// A number that is prime by the way it was found: green without a test. Where none was found (the
/// number was none, or there is no such prime) what stands in the field is not lost.
bool FormPrimosTest::muestraPrimo(const QString &primo)
{
    if (primo.isEmpty()) {
        ui->LabelPrimo->setText(Traduce(u"No se ha encontrado ningún primo"_s));
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
    ui->cmdEsPrimo->setEnabled(hayNumero);
    ui->cmdSigPrimo->setEnabled(hayNumero);
    ui->cmdEsPrimo->setText(Traduce(u"¿Es primo?"_s));
    // Blanks count here, though they enable no button: something has been typed.
    ui->LabelPrimo->setText(Traduce(texto.isEmpty() ? u"Introduzca un número para ver si es primo"_s
                                                    : u"Pulse en el botón para ver si es primo"_s));
}

void FormPrimosTest::cmdEsPrimo_Click()
{
    const QString numero = ui->txtNúmero->text();
    SetSemaforo(EsPrimo(numero));
    ui->txtNumBits->setText(QString::number(NumeroDeBits(numero)));
}

void FormPrimosTest::cmdSigPrimo_Click()
{
    m_leccion->setCursor(Qt::WaitCursor);
    const QString primo = PrimoSiguiente(ui->txtNúmero->text());
    if (muestraPrimo(primo))
        ui->txtNumBits->setText(QString::number(NumeroDeBits(primo)));
    m_leccion->unsetCursor();
}

void FormPrimosTest::txtNumBits_Change()
{
    ui->cmdNumBits->setEnabled(EsNumerico(Evalua(ui->txtNumBits->text(), MaximoDeBits)));
}

void FormPrimosTest::cmdNumBits_Click()
{
    const QString resultado = Evalua(ui->txtNumBits->text(), MaximoDeBits);
    if (!EsNumerico(resultado)) {
        ui->txtNumBits->setFocus();
        return;
    }
    m_leccion->setCursor(Qt::WaitCursor);
    const std::int16_t bits = Moneda::deTexto(resultado).value_or(Moneda()).aEntero16();
    if (bits <= 0) {
        // The pointer stays an hourglass until the next search succeeds.
        ui->txtNumBits->setFocus();
        return;
    }
    muestraPrimo(PrimoAleatorio(bits));
    m_leccion->unsetCursor();
}
