// SPDX-License-Identifier: GPL-3.0-or-later
#include "lessons/recursion/functions/windows/FormRecursion3Ackermann.h"

#include "lessons/recursion/functions/PasosDeAck.h"
#include "shell/core/Formatos.h"
#include "shell/core/Lectura.h"
#include "shell/core/ModGlobal.h"
#include "shell/frame/BotonDeCorrida.h"
#include "shell/frame/Interlocutor.h"
#include "shell/frame/Veredicto.h"
#include "shell/look/Aspecto.h"
#include "shell/look/Textos.h"
#include "ui_FormRecursion3Ackermann.h"

#include <QHeaderView>
#include <QScrollBar>

using namespace Qt::Literals::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr int FilasAlAbrir = 12;
constexpr int ColumnasAlAbrir = 9;
constexpr int NumFotogramas = 4;
constexpr auto PasoDeAnimacion = 250ms;
/// How often the grid and the call in progress are shown: calls pass by the million.
constexpr auto PasoDePantalla = 50ms;

void conservaSuSitio(QWidget *control)
{
    QSizePolicy politica = control->sizePolicy();
    politica.setRetainSizeWhenHidden(true);
    control->setSizePolicy(politica);
    control->hide();
}

} // namespace

FormRecursion3Ackermann::FormRecursion3Ackermann(std::shared_ptr<Parada> parada, QWidget *padre)
    : QWidget(padre),
      ui(std::make_unique<Ui::FormRecursion3Ackermann>()),
      m_memoria(std::make_shared<MemoriaAck>(FilasAlAbrir, ColumnasAlAbrir)),
      m_modelo(m_memoria),
      m_tareas(this, std::move(parada))
{
    ui->setupUi(this);
    traduceVentana(this);
    const QString consejo = ui->cmdAck->toolTip();
    m_corrida =
        new BotonDeCorrida(ui->cmdAck, BotonDeCorrida::calcular(), BotonDeCorrida::detener());
    ui->cmdAck->setToolTip(consejo);
    ui->imgAck->setImagen(u"TRABAJANDO0"_s);
    Aspecto::destaca(ui->lblResultado, 1.15);
    ui->txtAck->setMinimumWidth(fontMetrics().horizontalAdvance(u"Ack(000, 0000000) "_s));
    conservaSuSitio(ui->imgAck);
    conservaSuSitio(ui->LabelAck1);
    preparaRejilla();
    m_timerAck.setObjectName(u"TimerAck"_s);
    m_timerAck.setInterval(PasoDeAnimacion);
    m_pantalla.setInterval(PasoDePantalla);

    conecta(ui->cmdAck, &QPushButton::clicked, this, &FormRecursion3Ackermann::cmdAck_Click);
    for (auto *campo : {ui->TxtX, ui->TxtY, ui->txtMaxAck})
        conecta(campo, &QLineEdit::returnPressed, this, &FormRecursion3Ackermann::empieza);
    conecta(m_corrida, &BotonDeCorrida::terminada, this, &FormRecursion3Ackermann::termina);
    conecta(&m_timerAck, &QTimer::timeout, this, &FormRecursion3Ackermann::TimerAck_Timer);
    conecta(&m_pantalla, &QTimer::timeout, this, &FormRecursion3Ackermann::muestraAvance);
}

FormRecursion3Ackermann::~FormRecursion3Ackermann() = default;

void FormRecursion3Ackermann::preparaRejilla()
{
    ui->FlexAck->setModel(&m_modelo);
    ui->FlexAck->ponRotulosDeFilaEnCopia(true);
    auto *filas = ui->FlexAck->verticalHeader();
    filas->show();
    filas->setSectionResizeMode(QHeaderView::Fixed);
    for (QHeaderView *cabecera : {filas, ui->FlexAck->horizontalHeader()})
        cabecera->setDefaultAlignment(Qt::AlignRight | Qt::AlignVCenter);
}

void FormRecursion3Ackermann::cmdAck_Click()
{
    if (!m_timerAck.isActive()) {
        empieza();
        return;
    }
    m_timerAck.stop();
    m_corrida->detiene();
}

void FormRecursion3Ackermann::empieza()
{
    if (m_timerAck.isActive() || !EsNumerico(ui->txtMaxAck->text()))
        return;
    const std::int32_t corte = enteroDeTexto(ui->txtMaxAck->text(), Traduce(u"Máximo"_s));
    const Ack::Llamada llamada{enteroDeTexto(ui->TxtX->text(), u"x"_s),
                               enteroDeTexto(ui->TxtY->text(), u"y"_s)};
    m_tareas.lanza(corre(llamada, corte));
}

Tarea<> FormRecursion3Ackermann::corre(Ack::Llamada llamada, std::int32_t corte)
{
    m_memoria = std::make_shared<MemoriaAck>(m_memoria->filas(), m_memoria->columnas());
    m_modelo.pon(m_memoria);
    ui->lblResultado->clear();
    Q_EMIT hayPasos({});
    const BotonDeCorrida::Marcha marcha = m_corrida->empieza(m_tareas.billete());
    co_await marcha.billete().cederYa();
    // The timer is what makes a click a stop, and does not run yet: one that came now has begun
    // anew. And what was stopped so far does not count.
    if (!marcha.vigente())
        co_return;
    const Billete billete = m_tareas.billete();
    const auto ack = std::make_shared<Ack>(m_memoria, corte, billete);
    m_ack = ack;
    ponEnMarcha();
    co_await billete.cederYa();
    const std::int32_t valor = co_await ack->calcula(llamada.m, llamada.n);
    if (!marcha.vigente())
        co_return;
    muestraFin(llamada, valor);
    // The table and the steps would together keep a click waiting.
    co_await billete.cederYa();
    if (marcha.vigente())
        Q_EMIT hayPasos(pasosDeAck(llamada, corte));
}

void FormRecursion3Ackermann::ponEnMarcha()
{
    ui->imgAck->show();
    ui->LabelAck1->show();
    m_timerAck.start();
    m_pantalla.start();
    m_reloj.start();
    TimerAck_Timer();
}

void FormRecursion3Ackermann::muestraFin(Ack::Llamada llamada, std::int32_t valor)
{
    m_modelo.publica();
    if (m_ack->rendido()) {
        interlocutor().avisa(this, Interlocutor::Icono::Exclamacion,
                             Traduce(u"Demasiados cálculos."_s), Traduce(u"Me rindo"_s));
    }
    muestraNeutro(ui->lblResultado, textoDeValor(llamada, valor));
    vaACelda(llamada);
}

/// However the run ended, the grid shows all that it found and the window is at rest.
void FormRecursion3Ackermann::termina()
{
    if (m_ack) {
        muestraAvance();
        TimerAck_Timer();
    }
    m_timerAck.stop();
    m_pantalla.stop();
    ui->imgAck->hide();
    ui->LabelAck1->hide();
}

void FormRecursion3Ackermann::muestraAvance()
{
    m_modelo.publica();
    ui->txtAck->setText(textoDeLlamada(m_ack->actual()));
}

void FormRecursion3Ackermann::vaACelda(Ack::Llamada llamada)
{
    const QModelIndex celda = m_modelo.destaca(llamada);
    if (!celda.isValid())
        return;
    // Without a selection, whose colour would cover the cyan.
    ui->FlexAck->selectionModel()->setCurrentIndex(celda, QItemSelectionModel::Clear);
    ui->FlexAck->scrollTo(celda, QAbstractItemView::PositionAtTop);
    ui->FlexAck->horizontalScrollBar()->setValue(
        ui->FlexAck->horizontalHeader()->sectionPosition(celda.column()));
}

void FormRecursion3Ackermann::TimerAck_Timer()
{
    if (!Aspecto::movimientoReducido())
        m_fotograma = (m_fotograma + 1) % NumFotogramas;
    ui->imgAck->setImagen(u"TRABAJANDO%1"_s.arg(m_fotograma));
    ui->lblTiempoAck->setText(formatoTiempo(std::chrono::milliseconds(m_reloj.elapsed())));
}
