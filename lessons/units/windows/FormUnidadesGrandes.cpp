// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/units/windows/FormUnidadesGrandes.h"

#include "bignum/gateway/Azar.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/units/FuncionEuler.h"
#include "lessons/units/InversoGrande.h"
#include "lessons/units/PasosDeUnidades.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/run/Aparte.h"
#include "shell/core/steps/PasosDeInverso.h"
#include "shell/core/steps/PasosDePotencia.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormUnidadesGrandes.h"

using namespace Qt::Literals::StringLiterals;

namespace {

/// Longer numbers would only be slower, not more instructive.
constexpr qsizetype MayorNumeroDeCifras = 1'000;

constexpr int CifrasDelEjemplo = 200;

} // namespace

FormUnidadesGrandes::FormUnidadesGrandes(QWidget *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormUnidadesGrandes>()),
      m_leccion(leccion),
      m_pasos(new PanelDePasos(u"Números grandes"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->cmdEjemplo->setIcon(Icono(u"DADO"_s));
    for (QLabel *rotulo : {ui->lblMcd, ui->lblFi})
        Aspecto::destaca(rotulo, 1.1);
    m_corrida =
        new BotonDeCorrida(ui->cmdDetener, BotonDeCorrida::detener(), BotonDeCorrida::detener());
    m_corrida->ponEspera(m_leccion);
    ui->cmdDetener->hide();
    txtGrande_Change();

    conecta(ui->cmdInverso, &QPushButton::clicked, this, &FormUnidadesGrandes::cmdInverso_Click);
    conecta(ui->cmdFi, &QPushButton::clicked, this, &FormUnidadesGrandes::cmdFi_Click);
    conecta(ui->cmdFactores, &QPushButton::clicked, this, &FormUnidadesGrandes::cmdFactores_Click);
    conecta(ui->cmdEjemplo, &QPushButton::clicked, this, &FormUnidadesGrandes::cmdEjemplo_Click);
    conecta(ui->cmdDetener, &QPushButton::clicked, this, [this] { m_corrida->detiene(); });
    conecta(m_corrida, &BotonDeCorrida::detenida, this, &FormUnidadesGrandes::detenida);
    conecta(m_corrida, &BotonDeCorrida::terminada, this, &FormUnidadesGrandes::quitaDetener);
    for (const CampoLargo *campo : {ui->txtNGrande, ui->txtAGrande}) {
        conecta(campo, &CampoLargo::textoCambiado, this, &FormUnidadesGrandes::txtGrande_Change);
        conecta(campo, &CampoLargo::returnPressed, this,
                [this] { ui->cmdInverso->animateClick(); });
    }
}

FormUnidadesGrandes::~FormUnidadesGrandes() = default;

/// Results belong to the numbers that they were calculated from, and so does a run.
void FormUnidadesGrandes::txtGrande_Change()
{
    m_corrida->detiene();
    muestraNeutro(ui->lblMcd, Traduce(u"Escriba a y n y pulse «Inverso»."_s));
    muestraNeutro(ui->lblFi, Traduce(u"Escriba n y pulse «Función de Euler» o «Paso a paso»."_s));
    ui->txtInverso->setText({});
    ui->txtFi->clear();
    m_fi.clear();
    m_pasos->pon({});
}

/// The modulus that its field stands for; without one, the label tells what it has to be.
std::optional<QString> FormUnidadesGrandes::modulo(QLabel *rotulo)
{
    const auto n = leeEntero(ui->txtNGrande->text(), {.minimo = u"1"_s});
    if (n && n->size() <= MayorNumeroDeCifras)
        return *n;
    muestraVeredicto(
        rotulo, false,
        Traduce(u"El módulo n es un número entero positivo de 1000 cifras como mucho."_s));
    ui->txtNGrande->setFocus();
    ui->txtNGrande->selectAll();
    return {};
}

std::optional<QString> FormUnidadesGrandes::elemento()
{
    const auto a = leeEntero(ui->txtAGrande->text());
    return a && a->size() <= 2 * MayorNumeroDeCifras ? std::optional(*a) : std::nullopt;
}

void FormUnidadesGrandes::cmdInverso_Click()
{
    ui->txtInverso->setText({});
    const auto n = modulo(ui->lblMcd);
    if (!n)
        return;
    const auto a = elemento();
    if (!a) {
        muestraVeredicto(
            ui->lblMcd, false,
            Traduce(u"El elemento a es un número entero de 2000 cifras como mucho."_s));
        ui->txtAGrande->setFocus();
        ui->txtAGrande->selectAll();
        return;
    }
    const InversoGrande resultado = invierte(*a, *n);
    m_pasos->pon(pasosDeInverso(*a, *n));
    if (resultado.inverso.isEmpty()) {
        muestraNeutro(ui->lblMcd,
                      Traduce(u"a no es una unidad, porque mcd(a, n) no es 1. Es este:"_s));
        ui->txtInverso->setText(resultado.mcd);
        return;
    }
    muestraNeutro(ui->lblMcd, Traduce(u"mcd(a, n) = 1: a es una unidad. Su inverso es:"_s));
    ui->txtInverso->setText(resultado.inverso);
}

/// The hourglass and a line, which stand on screen before a call begins that lets nothing be
/// painted; where the window answers meanwhile, a button that stops it.
BotonDeCorrida::Marcha FormUnidadesGrandes::empiezaEspera()
{
    muestraNeutro(ui->lblFi, Traduce(u"Buscando los factores de n… (puede tardar dos minutos)"_s));
    ui->lblFi->repaint();
    ui->cmdDetener->setVisible(Aparte::responde());
    return m_corrida->empieza(m_tareas.billete());
}

/// At once, though what computes may take a moment to end.
void FormUnidadesGrandes::detenida()
{
    quitaDetener();
    muestraNeutro(ui->lblFi, Traduce(u"Detenida."_s));
}

void FormUnidadesGrandes::quitaDetener()
{
    // Who stops by the keyboard does not lose it.
    if (ui->cmdDetener->hasFocus())
        ui->txtNGrande->setFocus();
    ui->cmdDetener->hide();
}

Tarea<> FormUnidadesGrandes::cmdFi_Click()
{
    if (m_corrida->enMarcha())
        co_return;
    ui->txtFi->clear();
    m_fi.clear();
    const auto n = modulo(ui->lblFi);
    if (!n)
        co_return;
    const auto marcha = empiezaEspera();
    const QString valor = co_await Aparte::fiEuler(*n, marcha.billete());
    if (marcha.billete().detenida())
        co_return;
    const auto fi = sinError(valor);
    if (!fi) {
        muestraNeutro(ui->lblFi, Traduce(u"La biblioteca no encuentra todos los factores de n."_s));
        co_return;
    }
    m_fi = *fi;
    m_pasos->pon(pasosDeEuler(*n, *fi));
    ui->txtFi->setPlainText(u"φ(n) = "_s + *fi);
    muestraFi(*n, *fi, Traduce(u"φ(n), según la biblioteca."_s));
}

Tarea<> FormUnidadesGrandes::cmdFactores_Click()
{
    if (m_corrida->enMarcha())
        co_return;
    ui->txtFi->clear();
    const auto n = modulo(ui->lblFi);
    if (!n)
        co_return;
    const auto marcha = empiezaEspera();
    const Descomposicion factores = co_await Aparte::descompone(*n, marcha.billete());
    if (marcha.billete().detenida())
        co_return;
    const FuncionEuler euler(*n, factores);
    m_pasos->pon(Pasos::seguidos({pasosDeFi(euler, *n), pasosDeEuler(*n, euler.valor())}));
    ui->txtFi->setPlainText(euler.pasos());
    if (euler.valor().isEmpty()) {
        muestraNeutro(ui->lblFi, Traduce(u"No se conocen todos los factores de n."_s));
        co_return;
    }
    muestraFi(*n, euler.valor(),
              euler.valor() == m_fi
                  ? Traduce(u"φ(n), por factores: la misma que da la biblioteca."_s)
                  : Traduce(u"φ(n), por factores."_s));
}

/// Euler's theorem on the element, where it is a unit and φ(n) is known.
Pasos FormUnidadesGrandes::pasosDeEuler(const QString &n, const QString &fi)
{
    const auto a = elemento();
    return a && !fi.isEmpty() && Mcd(*a, n) == u"1"_s ? pasosDePotencia(*a, fi, n) : Pasos();
}

/// Adds to the label what Euler's theorem says of the element, where it says something.
void FormUnidadesGrandes::muestraFi(const QString &n, const QString &fi, const QString &rotulo)
{
    const auto a = elemento();
    const bool esUnidad = a && Mcd(*a, n) == u"1"_s;
    muestraNeutro(
        ui->lblFi,
        esUnidad
            ? rotulo + u' ' +
                  Traduce(u"Teorema de Euler: a^φ(n) da %1 módulo n."_s).arg(PotenciaMod(*a, fi, n))
            : rotulo);
}

Tarea<> FormUnidadesGrandes::cmdEjemplo_Click()
{
    const auto bits = static_cast<std::int16_t>(AleatorioEntre(300, 600));
    const QString primo = co_await Aparte::primoAleatorio(bits, m_tareas.billete());
    ui->txtNGrande->setText(moduloFacil(CifrasDelEjemplo));
    ui->txtAGrande->setText(primo);
    cmdInverso_Click();
}
