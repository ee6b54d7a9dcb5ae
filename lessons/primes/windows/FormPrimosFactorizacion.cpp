// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/primes/windows/FormPrimosFactorizacion.h"

#include "bignum/gateway/ErrorEjecucion.h"
#include "bignum/gateway/ModBignum.h"
#include "lessons/primes/DivisionTentativa.h"
#include "lessons/primes/steps/PasosDeFactorizacion.h"
#include "lessons/primes/windows/ModeloFactores.h"
#include "shell/controls/CampoLargo.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/run/Aparte.h"
#include "shell/frame/FormLeccion.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormPrimosFactorizacion.h"

#include <QHeaderView>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

FormPrimosFactorizacion::FormPrimosFactorizacion(FormLeccion *leccion)
    : QWidget(leccion),
      ui(std::make_unique<Ui::FormPrimosFactorizacion>()),
      m_modelo(new ModeloFactores(this)),
      m_pasos(new PanelDePasos(u"Factorización"_s, this)),
      m_tareas(this, leccion->parada())
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
    m_boton = new BotonDeCorrida(
        ui->BtnFactoriza, {u"FACTORIZAR"_s, Traduce(u"Fac&torizar"_s), Traduce(u"Factorizar"_s)},
        {u"STOP"_s, Traduce(u"&Detener"_s), Traduce(u"Detener factorización"_s)});
    m_boton->timer().setObjectName(u"TimerFactorizando"_s);
    m_boton->ponReloj(ui->lblTiempoFactorizando, 100ms);
    m_boton->ponEspera(leccion);
    m_boton->ponAnimacion(ui->ccrpAniFactorizando);

    conecta(&m_boton->timer(), &QTimer::timeout, this,
            &FormPrimosFactorizacion::TimerFactorizando_Timer);
    conecta(ui->BtnFactoriza, &QPushButton::clicked, this,
            &FormPrimosFactorizacion::BtnFactoriza_Click);
    conecta(ui->TxtN, &CampoLargo::returnPressed, this,
            [this] { ui->BtnFactoriza->animateClick(); });
    conecta(ui->FlexFactores->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this](const QModelIndex &celda) { FlexFactores_EnterCell(celda.row()); });
}

FormPrimosFactorizacion::~FormPrimosFactorizacion() = default;

Tarea<> FormPrimosFactorizacion::BtnFactoriza_Click()
{
    if (m_boton->enMarcha()) {
        detiene();
        co_return;
    }
    // The wheels turn from the first moment, and go on turning when the input is refused.
    ui->ccrpAniFactorizando->reproduce(ReproductorAVI::Modo::Continuo);
    const QString numero = Evalua(ui->TxtN->text());
    if (numero.isEmpty() || esError(numero)) {
        ui->TxtN->setFocus();
        co_return;
    }
    // What is chosen now holds for the whole run, whatever is clicked meanwhile.
    const Algoritmo elegido = algoritmo();
    Moneda moneda;
    if (elegido != Avanzado) {
        if (excedeElLimite(numero))
            co_return;
        const auto leida = Moneda::deTexto(numero);
        if (!leida)
            throw ErrorEjecucion(ErrorEjecucion::TipoNoCoincide, numero);
        moneda = *leida;
    }
    co_await factoriza(elegido, numero, moneda);
}

/// The naive loop returns at its next yield; the other algorithms run to their end regardless, and
/// then their factors are shown.
void FormPrimosFactorizacion::detiene()
{
    muestraNeutro(ui->lblResultado, Traduce(u"Detenida."_s));
    ui->FlexFactores->ponTextoVacio(ui->lblResultado->text());
    m_boton->detiene();
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
    interlocutor().avisa(this, Interlocutor::Icono::Informacion,
                         Traduce(u"Solo puede dar números grandes con el algoritmo avanzado."_s) +
                             u'\n' + Traduce(u"Con el algoritmo seleccionado, el máximo es "_s) +
                             limite,
                         Traduce(u"Número demasiado grande"_s));
    return true;
}

/// Nothing of another number stands on screen while this one is factored.
void FormPrimosFactorizacion::ponEnMarcha(Algoritmo elegido, const QString &numero)
{
    m_boton->anuncia();
    m_pasos->pon({});
    m_rastro.reset();
    ui->FlexFactores->ponTextoVacio(Traduce(u"Factorizando…"_s));
    m_modelo->pon({});
    FlexFactores_EnterCell(-1);
    ui->txtProductoDeFactores->setText({});
    ui->lblResultado->setText(
        elegido == Avanzado && puedeTardar(numero) && !Aparte::responde()
            ? Traduce(u"Factorizando… Con tantas cifras puede durar hasta dos minutos, en los que "
                      u"la ventana no responde."_s)
            : Traduce(u"Factorizando…"_s));
}

Tarea<> FormPrimosFactorizacion::factoriza(Algoritmo elegido, QString numero, Moneda moneda)
{
    ponEnMarcha(elegido, numero);
    const auto turno = m_boton->turno();
    const Billete previo = m_tareas.billete();
    co_await previo.cederYa();
    // A second click may have started another factorization meanwhile.
    if (turno != m_boton->turno())
        co_return;
    auto marcha = m_boton->empieza(m_tareas.billete());
    const Billete billete = marcha.billete();
    co_await billete.cederYa();
    try {
        const TablaDeFactores tabla = co_await halla(elegido, numero, moneda, billete);
        if (!marcha.vigente())
            co_return;
        muestra(tabla);
    } catch (const ErrorEjecucion &) {
        if (!marcha.vigente())
            co_return;
        // It ends the event, and leaves the window as it stands.
        marcha.deja();
        throw;
    }
    marcha.termina();
    Q_EMIT tiempoMedido(ui->lblTiempoFactorizando->text());
}

Tarea<TablaDeFactores> FormPrimosFactorizacion::halla(Algoritmo elegido, QString numero,
                                                      Moneda moneda, Billete billete)
{
    if (elegido == Avanzado) {
        // Nothing is painted any more until it has returned.
        ui->lblResultado->repaint();
        co_return co_await factorizaAparte(numero, billete);
    }
    co_return co_await divide(elegido, numero, moneda, billete);
}

Tarea<TablaDeFactores> FormPrimosFactorizacion::divide(Algoritmo elegido, QString numero,
                                                       Moneda moneda, Billete billete)
{
    const auto rastro = m_rastro = std::make_shared<RastroDeDivision>();
    m_numero = numero;
    m_divisionesVistas = 0;
    ColFactores factores;
    if (elegido == Ingenuo)
        factores = co_await FactorizaIngenuo(moneda, billete, rastro.get());
    else
        factores = co_await FactorizaMejorado(moneda, billete, rastro.get());
    TablaDeFactores tabla = tablaDe(numero, factores);
    tabla.cortes = cortesDe(*rastro);
    m_factores = std::make_unique<ColFactores>(std::move(factores));
    co_return tabla;
}

/// The divisor reached and the factors found so far, and the tree when it has grown.
void FormPrimosFactorizacion::TimerFactorizando_Timer()
{
    if (!m_rastro || !m_boton->enMarcha())
        return;
    ui->lblResultado->setText(fraseDelAvance(*m_rastro));
    if (m_rastro->divisiones.size() == m_divisionesVistas)
        return;
    m_divisionesVistas = m_rastro->divisiones.size();
    TablaDeFactores hastaAqui{m_numero};
    hastaAqui.cortes = cortesDe(*m_rastro);
    m_pasos->continua(pasosDeFactorizacion(hastaAqui, true));
}

void FormPrimosFactorizacion::muestra(const TablaDeFactores &tabla)
{
    m_rastro.reset();
    m_pasos->pon(pasosDeFactorizacion(tabla));
    m_modelo->pon(tabla);
    ui->txtProductoDeFactores->setText(tabla.producto());
    muestraNeutro(ui->lblResultado, tabla.frase());
    ui->FlexFactores->ponTextoVacio(tabla.frase());
    const bool hayFilas = !tabla.filas.isEmpty();
    if (hayFilas)
        ui->FlexFactores->setCurrentIndex(m_modelo->index(0, ModeloFactores::Factor));
    FlexFactores_EnterCell(hayFilas ? 0 : -1);
}

/// Shows the factor of the current row whole, whatever its length, and how it was found.
void FormPrimosFactorizacion::FlexFactores_EnterCell(int fila)
{
    const bool hayFactor = fila >= 0 && fila < m_modelo->rowCount();
    const FilaDeFactor elegida = hayFactor ? m_modelo->tabla().filas[fila] : FilaDeFactor();
    const QString &factor = elegida.factor;
    ui->txtFactorElegido->setText(factor);
    ui->lblHallazgo->setText(elegida.hallazgo);
    ui->lblFactorElegido->setText(
        hayFactor ? Traduce(u"Factor &elegido (cifras: %1)"_s).arg(formatoEntero(factor.size()))
                  : Traduce(u"Factor &elegido"_s));
}
