#include "lessons/primes/windows/FormPrimosCriba.h"

#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/CribaSegmentada.h"
#include "lessons/primes/ModeloPrimos.h"
#include "lessons/primes/PrimosDelServicio.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/FormLeccion.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormPrimosCriba.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;

namespace {

const QString Maximo = u"100000000"_s;

QString resumen(qint64 cuantos, qint64 mayor, bool detenida)
{
    if (cuantos == 0)
        return Traduce(u"No hay primos hasta ese número"_s);
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
      m_modelo(new ModeloPrimos(this))
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
    ponEnReposo();

    conecta(ui->BtnCriba, &QPushButton::clicked, this, &FormPrimosCriba::BtnCriba_Click);
    conecta(ui->txtMaxPrimo, &QLineEdit::returnPressed, this,
            [this] { ui->BtnCriba->animateClick(); });
}

FormPrimosCriba::~FormPrimosCriba() = default;

QAbstractButton *FormPrimosCriba::botonDeParada() const
{
    const bool enMarcha = ui->ccrpAniCriba->estado() == ReproductorAVI::Reproduciendo;
    return enMarcha ? ui->BtnCriba : nullptr;
}

void FormPrimosCriba::muestraTiempo(const QString &tiempo)
{
    ui->lblTiempo->setText(tiempo);
}

void FormPrimosCriba::BtnCriba_Click()
{
    const Corrida::Tramo tramo(m_leccion->corrida());
    if (botonDeParada()) {
        m_leccion->corrida().detener();
        ponEnReposo();
        return;
    }
    const std::optional<Moneda> cota = Moneda::deTexto(Evalua(ui->txtMaxPrimo->text(), Maximo));
    if (!cota) {
        ui->txtMaxPrimo->setFocus();
        ui->txtMaxPrimo->selectAll();
        return;
    }
    const std::int32_t limite = cota->aEntero32();
    m_leccion->corrida().permitir();
    ponEnMarcha();
    if (ui->optTipoCriba_0->isChecked()) {
        criba(limite);
    } else {
        PrimosDelServicio lista = listaPrimos(limite);
        ui->ProgressBar->setValue(100);
        ponEnReposo();
        muestraPrimos(std::move(lista.numeros), lista.cuantos, false);
    }
}

void FormPrimosCriba::criba(std::int32_t limite)
{
    // The run that yields may be overtaken by one that a second start began inside it; then the
    // panel belongs to the later one.
    const auto esta = m_criba = std::make_shared<CribaSegmentada>();
    esta->criba(limite, m_leccion->corrida(), [this](int porcentaje) {
        ui->ProgressBar->setValue(porcentaje);
        muestraTiempoTranscurrido();
    });
    if (m_criba != esta)
        return;
    ponEnReposo();
    const auto primos = esta->primos();
    muestraPrimos({primos.begin(), primos.end()}, static_cast<qint64>(primos.size()),
                  m_leccion->corrida().detenida());
}

void FormPrimosCriba::ponEnMarcha()
{
    ui->BtnCriba->setIcon(ImgStop());
    ui->BtnCriba->setToolTip(Traduce(u"Detener cálculo"_s));
    ui->BtnCriba->setAccessibleName(ui->BtnCriba->toolTip());
    ui->ccrpAniCriba->reproduce(ReproductorAVI::Modo::Continuo);
    ui->ProgressBar->setFormat(u"%p %"_s);
    ui->ProgressBar->setValue(0);
    ui->lblResumen->clear();
    m_inicio = std::chrono::steady_clock::now();
    muestraTiempoTranscurrido();
    m_leccion->corrida().cederYa();
}

void FormPrimosCriba::ponEnReposo()
{
    ui->ccrpAniCriba->para();
    ui->BtnCriba->setIcon(Icono(u"CRIBA"_s));
    ui->BtnCriba->setToolTip(Traduce(u"Realizar la criba"_s));
    ui->BtnCriba->setAccessibleName(ui->BtnCriba->toolTip());
}

void FormPrimosCriba::muestraTiempoTranscurrido()
{
    const auto ahora = std::chrono::steady_clock::now();
    muestraTiempo(
        formatoTiempo(std::chrono::duration_cast<std::chrono::milliseconds>(ahora - m_inicio)));
}

void FormPrimosCriba::muestraPrimos(std::vector<std::uint32_t> primos, qint64 cuantos,
                                    bool detenida)
{
    muestraTiempoTranscurrido();
    m_leccion->setCursor(Qt::WaitCursor);
    const qint64 mayor = primos.empty() ? 0 : primos.back();
    m_modelo->pon(std::move(primos));
    // The bar stands where the largest prime does, nearly always short of 100 %.
    if (!detenida)
        ui->ProgressBar->setFormat(Traduce(u"Terminada"_s));
    ui->lblResumen->setText(resumen(cuantos, mayor, detenida));
    m_leccion->unsetCursor();
}
