// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1Hanoi.h"

#include "lessons/complexity/PasosDeHanoi.h"
#include "shell/access/Anuncio.h"
#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/core/PotenciaEscrita.h"
#include "shell/frame/Evento.h"
#include "shell/frame/Veredicto.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "shell/steps/PanelDePasos.h"
#include "ui_FormRecursion1Hanoi.h"

#include <QHeaderView>
#include <QShortcut>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double PasoMasLento = 1500;

QString cuantosHacenFalta(const TorresHanoi &torres)
{
    if (torres.discos() == 1)
        return Traduce(u"Con un disco basta un movimiento."_s);
    return Traduce(u"Con %1 discos hacen falta %2 − 1 = %3 movimientos."_s)
        .arg(QString::number(torres.discos()), potenciaEscrita(2, torres.discos()),
             formatoEntero(qint64{torres.minimo()}));
}

/// How the moves made stand against the fewest; nothing to say before the first.
QString cuenta(const TorresHanoi &torres)
{
    const qint64 hechos = torres.hechos();
    const qint64 faltan = torres.faltan();
    if (hechos == 0)
        return {};
    if (faltan > 0)
        return u' ' + Traduce(u"Por hacer, como poco: %1."_s).arg(formatoEntero(faltan));
    return u' ' + (hechos == torres.minimo() ? Traduce(u"Conseguido, y con los menos posibles."_s)
                                             : Traduce(u"Conseguido, con %1 de más."_s)
                                                   .arg(formatoEntero(hechos - torres.minimo())));
}

} // namespace

FormRecursion1Hanoi::FormRecursion1Hanoi(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion1Hanoi>()),
      m_modelo({Traduce(u"N.º"_s), Traduce(u"Disco"_s), Traduce(u"De"_s), Traduce(u"A"_s)}),
      m_pasos(new PanelDePasos(u"Torres de Hanói"_s, this))
{
    ui->setupUi(this);
    traduceVentana(this);
    ui->SpinDiscos->setMaximum(TorresHanoi::MaximoDiscos);
    ui->cmdSiguienteMovimiento->setIcon(ImgSiguiente());
    ui->cmdAnterior->setIcon(Icono(u"DESHACER"_s));
    ui->FlexMovimientos->setModel(&m_modelo);
    ui->FlexMovimientos->setSelectionBehavior(QAbstractItemView::SelectRows);
    ui->FlexMovimientos->verticalHeader()->hide();
    ui->FlexMovimientos->ponTextoVacio(Traduce(u"Aquí se anotarán los movimientos"_s));
    new ColumnasRepartidas(ui->FlexMovimientos);
    m_timerHanoi.setObjectName(u"TimerHanoi"_s);

    conecta(ui->cmdMover, &QPushButton::clicked, this, &FormRecursion1Hanoi::cmdMover_Click);
    conecta(ui->cmdSiguienteMovimiento, &QPushButton::clicked, this,
            &FormRecursion1Hanoi::cmdSiguienteMovimiento_Click);
    conecta(ui->cmdAnterior, &QPushButton::clicked, this, &FormRecursion1Hanoi::cmdAnterior_Click);
    conecta(ui->cmdEmpezar, &QPushButton::clicked, this, &FormRecursion1Hanoi::cmdEmpezar_Click);
    conecta(ui->SpinDiscos, &QSpinBox::valueChanged, this, &FormRecursion1Hanoi::cmdEmpezar_Click);
    conecta(ui->sldVelocidad, &QSlider::valueChanged, this,
            &FormRecursion1Hanoi::sldVelocidad_Change);
    conecta(ui->PicHanoi, &FormRecursion1DibujoHanoi::paloElegido, this,
            &FormRecursion1Hanoi::PicHanoi_PaloElegido);
    auto *escape = new QShortcut(Qt::Key_Escape, this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    conecta(escape, &QShortcut::activated, this, &FormRecursion1Hanoi::para);
    conecta(&m_timerHanoi, &QTimer::timeout, this, &FormRecursion1Hanoi::TimerHanoi_Timer);
    sldVelocidad_Change(ui->sldVelocidad->value());
    cmdEmpezar_Click();
}

FormRecursion1Hanoi::~FormRecursion1Hanoi() = default;

/// Each step of the slider moves the discs 1.7 times as fast, up to some hundred moves a second.
void FormRecursion1Hanoi::sldVelocidad_Change(int velocidad)
{
    m_timerHanoi.setInterval(static_cast<int>(PasoMasLento / std::pow(1.7, velocidad)));
}

void FormRecursion1Hanoi::cmdMover_Click()
{
    if (m_timerHanoi.isActive()) {
        para();
        return;
    }
    if (m_torres.terminado())
        cmdEmpezar_Click();
    m_timerHanoi.start();
    muestra();
}

void FormRecursion1Hanoi::TimerHanoi_Timer()
{
    m_torres.avanza();
    if (m_torres.terminado())
        para();
    else
        muestra();
}

void FormRecursion1Hanoi::para()
{
    m_timerHanoi.stop();
    ui->PicHanoi->suelta();
    ui->lblAvisoHanoi->clear();
    muestra();
    m_pasos->pon(pasosDeHanoi(m_torres));
}

/// The first pole gives its highest disc, the second takes it.
void FormRecursion1Hanoi::PicHanoi_PaloElegido(int palo)
{
    if (m_timerHanoi.isActive())
        para();
    ui->lblAvisoHanoi->clear();
    const int desde = ui->PicHanoi->levantado();
    if (desde >= 0) {
        intenta(desde, palo);
    } else if (m_torres.palo(palo).isEmpty()) {
        muestraVeredicto(ui->lblAvisoHanoi, false,
                         Traduce(u"En el palo %1 no hay ningún disco."_s).arg(nombreDePalo(palo)));
        anuncia(ui->lblAvisoHanoi);
    } else {
        ui->PicHanoi->levanta(palo);
    }
}

void FormRecursion1Hanoi::intenta(int desde, int hasta)
{
    if (m_torres.reparo(desde, hasta) == ReparoHanoi::DiscoMenor && desde != hasta) {
        muestraVeredicto(
            ui->lblAvisoHanoi, false,
            Traduce(u"El disco %1 no puede ir al palo %2: quedaría sobre el %3, que es menor."_s)
                .arg(m_torres.palo(desde).last())
                .arg(nombreDePalo(hasta))
                .arg(m_torres.palo(hasta).last()));
        anuncia(ui->lblAvisoHanoi);
        return;
    }
    m_torres.mueve(desde, hasta);
    para();
    anuncia(ui->lblMovimiento);
}

void FormRecursion1Hanoi::cmdSiguienteMovimiento_Click()
{
    m_torres.avanza();
    para();
}

void FormRecursion1Hanoi::cmdAnterior_Click()
{
    m_torres.retrocede();
    para();
}

void FormRecursion1Hanoi::cmdEmpezar_Click()
{
    m_torres = TorresHanoi(ui->SpinDiscos->value());
    para();
}

void FormRecursion1Hanoi::muestra()
{
    const bool enMarcha = m_timerHanoi.isActive();
    ui->cmdMover->setIcon(enMarcha ? ImgStop() : Icono(u"GO"_s));
    ui->cmdMover->setText(enMarcha ? Traduce(u"&Detener"_s) : Traduce(u"&Mover"_s));
    ui->cmdMover->setToolTip(enMarcha
                                 ? Traduce(u"Detener los movimientos"_s)
                                 : Traduce(u"Hace los movimientos que faltan, uno tras otro"_s));
    ui->cmdSiguienteMovimiento->setEnabled(!m_torres.terminado());
    ui->cmdAnterior->setEnabled(m_torres.hechos() > 0);
    ui->PicHanoi->muestra(&m_torres);
    muestraMovimientos();
    ui->lblMovimiento->setText(ultimoMovimiento() + cuantosHacenFalta(m_torres) + cuenta(m_torres));
}

void FormRecursion1Hanoi::muestraMovimientos()
{
    const QList<MovimientoHanoi> &hechos = m_torres.movimientos();
    if (m_modelo.rowCount() > hechos.size())
        m_modelo.ponFilas(m_modelo.filas().first(hechos.size()));
    for (qsizetype i = m_modelo.rowCount(); i < hechos.size(); ++i) {
        const MovimientoHanoi &movimiento = hechos.at(i);
        m_modelo.agrega({formatoEntero(qint64{i + 1}), QString::number(movimiento.disco),
                         nombreDePalo(movimiento.desde), nombreDePalo(movimiento.hasta)});
    }
    ui->FlexMovimientos->scrollToBottom();
}

QString FormRecursion1Hanoi::ultimoMovimiento() const
{
    if (m_torres.hechos() == 0)
        return {};
    const MovimientoHanoi &ultimo = m_torres.movimientos().last();
    return Traduce(u"Movimiento %1: el disco %2 pasa de %3 a %4. "_s)
        .arg(formatoEntero(qint64{m_torres.hechos()}))
        .arg(ultimo.disco)
        .arg(nombreDePalo(ultimo.desde), nombreDePalo(ultimo.hasta));
}
