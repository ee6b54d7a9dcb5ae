// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/complexity/windows/FormRecursion1Hanoi.h"

#include "shell/core/Formatos.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/Evento.h"
#include "shell/grid/ColumnasRepartidas.h"
#include "shell/look/Imagenes.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion1Hanoi.h"

#include <QHeaderView>
#include <QShortcut>
#include <cmath>

using namespace Qt::Literals::StringLiterals;

namespace {

constexpr double PasoMasLento = 1500;

QString nombreDe(int palo)
{
    return QChar(u'A' + palo);
}

QString cuantosHacenFalta(const TorresHanoi &torres)
{
    if (torres.discos() == 1)
        return Traduce(u"Con un disco basta un movimiento."_s);
    return Traduce(u"Con %1 discos hacen falta 2^%1 − 1 = %2 movimientos."_s)
        .arg(QString::number(torres.discos()), formatoEntero(qint64{torres.movimientos().size()}));
}

} // namespace

FormRecursion1Hanoi::FormRecursion1Hanoi(QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion1Hanoi>()),
      m_modelo({Traduce(u"N.º"_s), Traduce(u"Disco"_s), Traduce(u"De"_s), Traduce(u"A"_s)})
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
    muestra();
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
    const QList<MovimientoHanoi> hechos = m_torres.movimientos().first(m_torres.hechos());
    if (m_modelo.rowCount() > hechos.size())
        m_modelo.ponFilas(m_modelo.filas().first(hechos.size()));
    for (qsizetype i = m_modelo.rowCount(); i < hechos.size(); ++i) {
        const MovimientoHanoi &movimiento = hechos.at(i);
        m_modelo.agrega({formatoEntero(qint64{i + 1}), QString::number(movimiento.disco),
                         nombreDe(movimiento.desde), nombreDe(movimiento.hasta)});
    }
    ui->FlexMovimientos->scrollToBottom();
    const QString total = cuantosHacenFalta(m_torres);
    if (hechos.isEmpty()) {
        ui->lblMovimiento->setText(total);
        return;
    }
    const MovimientoHanoi &ultimo = hechos.last();
    ui->lblMovimiento->setText(Traduce(u"Movimiento %1: el disco %2 pasa de %3 a %4. "_s)
                                   .arg(formatoEntero(qint64{hechos.size()}))
                                   .arg(ultimo.disco)
                                   .arg(nombreDe(ultimo.desde), nombreDe(ultimo.hasta)) +
                               total);
}
