#include "lessons/units/FormUnidadesGrandes.h"

#include "bignum/Azar.h"
#include "bignum/ModBignum.h"
#include "lessons/units/EntradaEntera.h"
#include "lessons/units/FuncionEuler.h"
#include "lessons/units/InversoGrande.h"
#include "shell/Aspecto.h"
#include "shell/Evento.h"
#include "shell/Imagenes.h"
#include "shell/ModGlobal.h"
#include "shell/Textos.h"
#include "ui_FormUnidadesGrandes.h"

#include <QScopeGuard>

using namespace Qt::Literals::StringLiterals;

namespace {

/// Longer numbers would only be slower, not more instructive.
constexpr qsizetype MayorNumeroDeCifras = 1'000;

constexpr int CifrasDelEjemplo = 200;

} // namespace

FormUnidadesGrandes::FormUnidadesGrandes(QWidget *leccion)
    : QWidget(leccion), ui(std::make_unique<Ui::FormUnidadesGrandes>()), m_leccion(leccion)
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdEjemplo->setIcon(Icono(u"DADO"_s));
    for (QLabel *rotulo : {ui->lblMcd, ui->lblFi})
        Aspecto::destaca(rotulo, 1.1);
    txtGrande_Change();

    conecta(ui->cmdInverso, &QPushButton::clicked, this, &FormUnidadesGrandes::cmdInverso_Click);
    conecta(ui->cmdFi, &QPushButton::clicked, this, &FormUnidadesGrandes::cmdFi_Click);
    conecta(ui->cmdEjemplo, &QPushButton::clicked, this, &FormUnidadesGrandes::cmdEjemplo_Click);
    for (const CampoLargo *campo : {ui->txtNGrande, ui->txtAGrande}) {
        conecta(campo, &CampoLargo::textoCambiado, this, &FormUnidadesGrandes::txtGrande_Change);
        conecta(campo, &CampoLargo::returnPressed, this,
                [this] { ui->cmdInverso->animateClick(); });
    }
}

FormUnidadesGrandes::~FormUnidadesGrandes() = default;

/// Results belong to the numbers that they were calculated from.
void FormUnidadesGrandes::txtGrande_Change()
{
    ui->lblMcd->setText(Traduce(u"Escribe a y n y pulsa «Inverso»."_s));
    ui->lblFi->setText(Traduce(u"Escribe n y pulsa «Función de Euler»."_s));
    ui->txtInverso->setText({});
    ui->txtFi->clear();
}

/// The modulus that its field stands for; without one, the label tells what it has to be.
std::optional<QString> FormUnidadesGrandes::modulo(QLabel *rotulo)
{
    const auto n = evaluaGrande(ui->txtNGrande->text());
    if (n && !n->startsWith(u'-') && *n != u"0"_s && n->size() <= MayorNumeroDeCifras)
        return n;
    rotulo->setText(
        Traduce(u"El módulo n es un número entero positivo de 1000 cifras como mucho."_s));
    ui->txtNGrande->setFocus();
    return {};
}

std::optional<QString> FormUnidadesGrandes::elemento()
{
    const auto a = evaluaGrande(ui->txtAGrande->text());
    return a && a->size() <= 2 * MayorNumeroDeCifras ? a : std::nullopt;
}

void FormUnidadesGrandes::cmdInverso_Click()
{
    ui->txtInverso->setText({});
    const auto n = modulo(ui->lblMcd);
    if (!n)
        return;
    const auto a = elemento();
    if (!a) {
        ui->lblMcd->setText(
            Traduce(u"El elemento a es un número entero de 2000 cifras como mucho."_s));
        ui->txtAGrande->setFocus();
        return;
    }
    const InversoGrande resultado = invierte(*a, *n);
    if (resultado.inverso.isEmpty()) {
        ui->lblMcd->setText(Traduce(u"a no es una unidad, porque mcd(a, n) no es 1. Es este:"_s));
        ui->txtInverso->setText(resultado.mcd);
        return;
    }
    ui->lblMcd->setText(Traduce(u"mcd(a, n) = 1: a es una unidad. Su inverso es:"_s));
    ui->txtInverso->setText(resultado.inverso);
}

void FormUnidadesGrandes::cmdFi_Click()
{
    ui->txtFi->clear();
    const auto n = modulo(ui->lblFi);
    if (!n)
        return;
    ui->lblFi->setText(Traduce(u"Buscando los factores de n… (puede tardar dos minutos)"_s));
    ui->lblFi->repaint();
    m_leccion->setCursor(Qt::WaitCursor);
    const auto cursor = qScopeGuard([this] { m_leccion->unsetCursor(); });
    const FuncionEuler euler(*n);
    ui->txtFi->setPlainText(euler.pasos());
    if (euler.valor().isEmpty()) {
        ui->lblFi->setText(Traduce(u"No se conocen todos los factores de n."_s));
        return;
    }
    const auto a = elemento();
    if (!a || Mcd(*a, *n) != u"1"_s) {
        ui->lblFi->setText(Traduce(u"φ(n), paso a paso:"_s));
        return;
    }
    ui->lblFi->setText(Traduce(u"φ(n), paso a paso. Teorema de Euler: a^φ(n) da %1 módulo n."_s)
                           .arg(PotenciaMod(*a, euler.valor(), *n)));
}

void FormUnidadesGrandes::cmdEjemplo_Click()
{
    ui->txtNGrande->setText(moduloFacil(CifrasDelEjemplo));
    ui->txtAGrande->setText(PrimoAleatorio(static_cast<std::int16_t>(AleatorioEntre(300, 600))));
    cmdInverso_Click();
}
