#include "lessons/primes/windows/FormPrimosFactorizacion.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/DivisionTentativa.h"
#include "lessons/primes/windows/ModeloFactores.h"
#include "shell/controls/LineasSegunTexto.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormPrimosFactorizacion.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

FormPrimosFactorizacion::FormPrimosFactorizacion(FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormPrimosFactorizacion>()),
      m_leccion(leccion),
      m_modelo(new ModeloFactores(this)),
      m_timerFactorizando(this)
{
    ui->setupUi(this);
    traduceVentana(this);
    Aspecto::destaca(ui->lblFactorizacion);
    Aspecto::destaca(ui->lblTiempoFactorizando);
    ui->ccrpAniFactorizando->carga(u"ClipArt\\RUEDAS.AVI"_s, u"RUEDAS"_s);
    ui->FlexFactores->setModel(m_modelo);
    ui->FlexFactores->ponTextoVacio(Traduce(u"Aquí aparecerán los factores primos."_s));
    // The exponents stay in sight beside the longest factor, which is shortened in its middle.
    QHeaderView *cabecera = ui->FlexFactores->horizontalHeader();
    cabecera->setSectionResizeMode(ModeloFactores::Factor, QHeaderView::Stretch);
    cabecera->setSectionResizeMode(ModeloFactores::Exponente, QHeaderView::ResizeToContents);
    ui->FlexFactores->setTextElideMode(Qt::ElideMiddle);
    new LineasSegunTexto(ui->TxtN, 3, 6);
    new LineasSegunTexto(ui->txtFactorElegido, 2, 6);
    new LineasSegunTexto(ui->txtProductoDeFactores, 2, 8);
    m_timerFactorizando.setObjectName(u"TimerFactorizando"_s);
    m_timerFactorizando.setInterval(100ms);
    ponBotonEnReposo();

    conecta(ui->BtnFactoriza, &QPushButton::clicked, this,
            &FormPrimosFactorizacion::BtnFactoriza_Click);
    conecta(ui->TxtN, &CampoLargo::returnPressed, this,
            [this] { ui->BtnFactoriza->animateClick(); });
    conecta(&m_timerFactorizando, &QTimer::timeout, this,
            &FormPrimosFactorizacion::TimerFactorizando_Timer);
    conecta(ui->FlexFactores->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &celda) { FlexFactores_EnterCell(celda.row()); });
}

FormPrimosFactorizacion::~FormPrimosFactorizacion() = default;

QAbstractButton *FormPrimosFactorizacion::botonDeParada() const
{
    return m_timerFactorizando.isActive() ? ui->BtnFactoriza : nullptr;
}

void FormPrimosFactorizacion::BtnFactoriza_Click()
{
    const Corrida::Tramo tramo(m_leccion->corrida());
    if (m_timerFactorizando.isActive()) {
        detiene();
        return;
    }
    // The wheels turn from the first moment, and go on turning when the input is refused.
    ui->ccrpAniFactorizando->reproduce(ReproductorAVI::Modo::Continuo);
    const QString numero = Evalua(ui->TxtN->text());
    if (numero.isEmpty() || numero.startsWith(TextoError)) {
        ui->TxtN->setFocus();
        return;
    }
    // What is chosen now holds for the whole run, whatever is clicked meanwhile.
    const Algoritmo elegido = algoritmo();
    Moneda moneda;
    if (elegido != Avanzado) {
        if (excedeElLimite(numero))
            return;
        const auto leida = Moneda::deTexto(numero);
        if (!leida)
            throw ErrorEjecucion(ErrorEjecucion::TipoNoCoincide, numero);
        moneda = *leida;
    }
    ponEnMarcha();
    factoriza(elegido, numero, moneda);
    termina();
}

/// The naive loop returns at its next yield; the other algorithms run to their end regardless, and
/// then their factors are shown.
void FormPrimosFactorizacion::detiene()
{
    m_timerFactorizando.stop();
    m_leccion->corrida().detener();
    ponBotonEnReposo();
    ui->ccrpAniFactorizando->para();
    m_leccion->unsetCursor();
}

FormPrimosFactorizacion::Algoritmo FormPrimosFactorizacion::algoritmo() const
{
    if (ui->OptAlgoritmo_0->isChecked())
        return Ingenuo;
    return ui->OptAlgoritmo_1->isChecked() ? Mejorado : Avanzado;
}

bool FormPrimosFactorizacion::excedeElLimite(const QString &numero)
{
    const QString limite = QString::number(Moneda::MaximoEntero);
    if (!EsMayor(limite, numero))
        return false;
    interlocutor().mensaje(this, Interlocutor::Icono::Informacion,
                           Traduce(u"Solo puede dar números grandes con el algoritmo avanzado."_s) +
                               u'\n' + Traduce(u"Con el algoritmo seleccionado, el máximo es "_s) +
                               limite,
                           Traduce(u"Número demasiado grande"_s));
    return true;
}

void FormPrimosFactorizacion::ponEnMarcha()
{
    ui->BtnFactoriza->setIcon(ImgStop());
    ui->BtnFactoriza->setToolTip(Traduce(u"Detener factorización"_s));
    ui->BtnFactoriza->setAccessibleName(ui->BtnFactoriza->toolTip());
    m_leccion->setCursor(Qt::WaitCursor);
    m_leccion->corrida().cederYa();
    m_leccion->corrida().permitir();
    m_inicio = std::chrono::steady_clock::now();
    m_timerFactorizando.start();
    TimerFactorizando_Timer();
    m_leccion->corrida().cederYa();
}

void FormPrimosFactorizacion::factoriza(Algoritmo elegido, const QString &numero, Moneda moneda)
{
    if (elegido == Avanzado) {
        m_modelo->pon(factorizaGrande(numero));
    } else {
        auto factores = std::make_unique<ColFactores>(
            elegido == Ingenuo ? FactorizaIngenuo(moneda, m_leccion->corrida())
                               : FactorizaMejorado(moneda, m_leccion->corrida()));
        m_factores = std::move(factores);
        m_modelo->pon(*m_factores);
    }
    ui->txtProductoDeFactores->setText(m_modelo->producto());
    ui->FlexFactores->ponTextoVacio(Traduce(u"Ningún factor primo."_s));
    if (m_modelo->rowCount() > 0)
        ui->FlexFactores->setCurrentIndex(m_modelo->index(0, ModeloFactores::Factor));
    FlexFactores_EnterCell(m_modelo->rowCount() > 0 ? 0 : -1);
}

void FormPrimosFactorizacion::termina()
{
    m_leccion->unsetCursor();
    TimerFactorizando_Timer();
    m_timerFactorizando.stop();
    Q_EMIT tiempoMedido(ui->lblTiempoFactorizando->text());
    ponBotonEnReposo();
    if (ui->ccrpAniFactorizando->estado() == ReproductorAVI::Reproduciendo)
        ui->ccrpAniFactorizando->para();
}

void FormPrimosFactorizacion::TimerFactorizando_Timer()
{
    ui->lblTiempoFactorizando->setText(tiempoTranscurrido());
    m_leccion->corrida().cederYa();
}

/// Shows the factor of the current row whole, whatever its length.
void FormPrimosFactorizacion::FlexFactores_EnterCell(int fila)
{
    const bool hayFactor = fila >= 0 && fila < m_modelo->rowCount();
    const QString factor = hayFactor ? m_modelo->factor(fila) : QString();
    ui->txtFactorElegido->setText(factor);
    ui->lblFactorElegido->setText(
        hayFactor ? Traduce(u"Factor &elegido (cifras: %1)"_s).arg(formatoEntero(factor.size()))
                  : Traduce(u"Factor &elegido"_s));
}

QString FormPrimosFactorizacion::tiempoTranscurrido() const
{
    const auto ahora = std::chrono::steady_clock::now();
    return formatoTiempo(std::chrono::duration_cast<std::chrono::milliseconds>(ahora - m_inicio));
}

void FormPrimosFactorizacion::ponBotonEnReposo()
{
    ui->BtnFactoriza->setIcon(Icono(u"FACTORIZAR"_s));
    ui->BtnFactoriza->setToolTip(Traduce(u"Factorizar"_s));
    ui->BtnFactoriza->setAccessibleName(ui->BtnFactoriza->toolTip());
}
