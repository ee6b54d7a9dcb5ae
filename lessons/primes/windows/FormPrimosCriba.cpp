// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimosCriba.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/CribaSegmentada.h"
#include "lessons/primes/ModeloPrimos.h"
#include "lessons/primes/steps/PasosDeCriba.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormPrimosCriba.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

const QString Maximo = u"100000000"_s;

QString resumen(qint64 cuantos, qint64 mayor, bool detenida)
{
    if (cuantos == 0)
        return Traduce(detenida ? u"Criba detenida antes de hallar ningún primo"_s
                                : u"No hay primos hasta ese número"_s);
    if (cuantos == 1)
        return Traduce(u"Un solo primo: %1"_s).arg(formatoEntero(mayor));
    return Traduce(detenida ? u"Criba detenida: %1 primos; el mayor es %2"_s
                            : u"%1 primos; el mayor es %2"_s)
        .arg(formatoEntero(cuantos), formatoEntero(mayor));
}

} // namespace

FormPrimosCriba::FormPrimosCriba(FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormPrimosCriba>()),
      m_leccion(leccion),
      m_modelo(new ModeloPrimos(this)),
      m_pasos(new PanelDePasos(u"Criba de Eratóstenes"_s, this)),
      m_tareas(this, leccion->parada())
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblCriba);
    Aspecto::destaca(ui->lblTiempo);
    ui->ccrpAniCriba->carga(u"ClipArt\\RUEDAS.AVI"_s, u"RUEDAS"_s);
    ui->FlexPrimos->setModel(m_modelo);
    ui->FlexPrimos->horizontalHeader()->hide();
    ui->FlexPrimos->horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    ui->FlexPrimos->ponTextoVacio(
        Traduce(u"Escriba hasta qué número y pulse el botón: aquí aparecerán los primos."_s));
    m_boton = new BotonDeCorrida(
        ui->BtnCriba, {u"CRIBA"_s, Traduce(u"C&ribar"_s), Traduce(u"Realizar la criba"_s)},
        BotonDeCorrida::detener());
    m_boton->ponReloj(ui->lblTiempo, 100ms);
    m_boton->ponAnimacion(ui->ccrpAniCriba);

    conecta(ui->BtnCriba, &QPushButton::clicked, this, &FormPrimosCriba::BtnCriba_Click);
    conecta(ui->txtMaxPrimo, &QLineEdit::returnPressed, this,
            [this] { ui->BtnCriba->animateClick(); });
}

FormPrimosCriba::~FormPrimosCriba() = default;

void FormPrimosCriba::muestraTiempo(const QString &tiempo)
{
    ui->lblTiempo->setText(tiempo);
}

Tarea<> FormPrimosCriba::BtnCriba_Click()
{
    if (m_boton->enMarcha()) {
        m_boton->detiene();
        co_return;
    }
    const std::optional<Moneda> cota = Moneda::deTexto(Evalua(ui->txtMaxPrimo->text(), Maximo));
    if (!cota) {
        ui->txtMaxPrimo->setFocus();
        ui->txtMaxPrimo->selectAll();
        co_return;
    }
    const std::int32_t limite = cota->aEntero32();
    const bool propia = ui->optTipoCriba_0->isChecked();
    ponEnMarcha();
    const auto marcha = m_boton->empieza(m_tareas.billete());
    const Billete billete = marcha.billete();
    co_await billete.cederYa();
    const auto avance = [&](int porcentaje) {
        if (marcha.vigente())
            ui->ProgressBar->setValue(porcentaje);
    };
    PrimosDelServicio lista;
    if (propia)
        lista = co_await criba(limite, billete, avance);
    else
        lista = co_await listaPrimos(limite, billete, avance);
    if (!marcha.vigente())
        co_return;
    muestraPrimos(std::move(lista), billete.detenida());
    // The list and the steps would together keep a click waiting.
    co_await billete.cederYa();
    if (marcha.vigente())
        m_pasos->pon(pasosDeCriba(limite));
}

void FormPrimosCriba::ponEnMarcha()
{
    m_modelo->pon({});
    m_pasos->pon({});
    ui->FlexPrimos->ponTextoVacio(Traduce(u"Cribando…"_s));
    ui->ProgressBar->setFormat(u"%p %"_s);
    ui->ProgressBar->setValue(0);
    ui->lblResumen->clear();
}

Tarea<PrimosDelServicio> FormPrimosCriba::criba(std::int32_t limite, Billete billete,
                                                std::function<void(int porcentaje)> avance)
{
    CribaSegmentada esta;
    co_await esta.criba(limite, billete, std::move(avance));
    PrimosDelServicio lista;
    lista.numeros = esta.entregaPrimos();
    lista.cuantos = static_cast<std::int32_t>(lista.numeros.size());
    co_return lista;
}

void FormPrimosCriba::muestraPrimos(PrimosDelServicio lista, bool detenida)
{
    m_leccion->setCursor(Qt::WaitCursor);
    // What the library counts beforehand is not there when the list was stopped.
    const auto cuantos = detenida ? static_cast<qint64>(lista.numeros.size()) : lista.cuantos;
    const qint64 mayor = lista.numeros.empty() ? 0 : lista.numeros.back();
    m_modelo->pon(std::move(lista.numeros));
    // The bar stands where the largest prime does, nearly always short of 100 %.
    if (!detenida)
        ui->ProgressBar->setFormat(Traduce(u"Terminada"_s));
    muestraNeutro(ui->lblResumen, resumen(cuantos, mayor, detenida));
    ui->FlexPrimos->ponTextoVacio(ui->lblResumen->text());
    m_leccion->unsetCursor();
}
