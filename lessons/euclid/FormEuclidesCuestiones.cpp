#include "lessons/euclid/FormEuclidesCuestiones.h"

#include "lessons/euclid/EvaluaEntero.h"
#include "shell/Aspecto.h"
#include "shell/Evento.h"
#include "shell/Imagenes.h"
#include "shell/ModGlobal.h"
#include "shell/Textos.h"
#include "shell/Veredicto.h"
#include "ui_FormEuclidesCuestiones.h"

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr std::int64_t MayorNumeroDeDivisiones = 100;

/// A blank field counts as 0.
Moneda valorDe(const QLineEdit *campo, std::int64_t mayor)
{
    return campo->text().trimmed().isEmpty() ? Moneda()
                                             : EvaluaEntero(campo->text(), Moneda::deEntero(mayor));
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
    for (const QLineEdit *campo : {ui->txtP1_0, ui->txtP1_1, ui->TxtN})
        conecta(campo, &QLineEdit::returnPressed, this,
                [this] { ui->cmdProblema->animateClick(); });
}

FormEuclidesCuestiones::~FormEuclidesCuestiones() = default;

void FormEuclidesCuestiones::cmdProblema_Click()
{
    const Moneda a = valorDe(ui->txtP1_0, Moneda::MaximoEntero);
    const Moneda b = valorDe(ui->txtP1_1, Moneda::MaximoEntero);
    const std::int16_t n = valorDe(ui->TxtN, MayorNumeroDeDivisiones).aEntero16();
    m_mcd.ponNúmero2(a);
    m_mcd.ponNúmero1(b);
    muestraVeredicto(m_mcd.NumDivisiones() == n);
}

void FormEuclidesCuestiones::muestraVeredicto(bool acierto)
{
    ui->ccrpAnimation->carga(acierto ? Sesión().AVIEureka() : Sesión().AVIError(),
                             acierto ? u"EUREKA"_s : u"ERROR"_s);
    ui->ccrpAnimation->reproduce(ReproductorAVI::Modo::UnaVez);
    const QString veredicto = Traduce(acierto ? u"Correcto"_s : u"No es correcto"_s);
    ui->ccrpAnimation->setAccessibleName(veredicto);
    ::muestraVeredicto(ui->lblVeredicto, acierto, veredicto);
}
