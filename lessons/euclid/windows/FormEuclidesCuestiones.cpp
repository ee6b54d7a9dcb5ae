#include "lessons/euclid/windows/FormEuclidesCuestiones.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/euclid/EvaluaEntero.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormEuclidesCuestiones.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// One of the two numbers; a blank field counts as 0.
Moneda numeroDe(const QLineEdit *campo)
{
    return EvaluaEntero(campo->text(), Moneda::deEntero(Moneda::MaximoEntero));
}

/// The number of divisions asked for; a blank field counts as 0, halves are rounded to even.
std::int16_t divisionesDe(const QLineEdit *campo)
{
    constexpr std::int64_t maximo = 100;
    return EvaluaMoneda(campo->text(), Moneda::deEntero(maximo)).aEntero16();
}

} // namespace

FormEuclidesCuestiones::FormEuclidesCuestiones(QWidget *leccion)
    : QWidget(leccion), ui(std::make_unique<Ui::FormEuclidesCuestiones>())
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdProblema->setIcon(Icono(u"COMPROBAR"_s));
    Aspecto::destaca(ui->lblVeredicto);
    ui->ccrpAnimation->carga({}, u"EUREKA0"_s);

    conecta(ui->cmdProblema, &QPushButton::clicked, this,
            &FormEuclidesCuestiones::cmdProblema_Click);
    for (const QLineEdit *campo : {ui->txtP1_0, ui->txtP1_1, ui->TxtN}) {
        conecta(campo, &QLineEdit::returnPressed, this,
                [this] { ui->cmdProblema->animateClick(); });
        // A verdict belongs to the numbers that were judged.
        conecta(campo, &QLineEdit::textChanged, ui->lblVeredicto, &QLabel::clear);
    }
}

FormEuclidesCuestiones::~FormEuclidesCuestiones() = default;

void FormEuclidesCuestiones::cmdProblema_Click()
{
    const Moneda a = numeroDe(ui->txtP1_0);
    const Moneda b = numeroDe(ui->txtP1_1);
    const std::int16_t n = divisionesDe(ui->TxtN);
    m_mcd.ponNúmero2(a);
    m_mcd.ponNúmero1(b);
    muestraVeredicto(m_mcd.NumDivisiones() == n);
}

QString FormEuclidesCuestiones::veredicto(bool acierto)
{
    if (acierto)
        return Traduce(u"Correcto"_s);
    // Where a number is 0 nothing was divided, and the count is that of other numbers.
    const bool hayDivisiones = m_mcd.Número1() != Moneda() && m_mcd.Número2() != Moneda();
    return hayDivisiones ? Traduce(u"No es correcto (iteraciones: %1)"_s).arg(m_mcd.NumDivisiones())
                         : Traduce(u"No es correcto"_s);
}

void FormEuclidesCuestiones::muestraVeredicto(bool acierto)
{
    ui->ccrpAnimation->carga(acierto ? Sesión().AVIEureka() : Sesión().AVIError(),
                             acierto ? u"EUREKA"_s : u"ERROR"_s);
    ui->ccrpAnimation->reproduce(ReproductorAVI::Modo::UnaVez);
    const QString texto = veredicto(acierto);
    ui->ccrpAnimation->setAccessibleName(texto);
    ::muestraVeredicto(ui->lblVeredicto, acierto, texto);
}
